// Tests of colour reduction: popularity, median cut, inverse map, error diffusion and
// the fixed 2- and 16-colour palettes.
#include <gtest/gtest.h>

#include <algorithm>

#include "dib/core/reduce.h"
#include "support/memory_host.h"

using namespace ts::dib;
using tst::MemoryHost;
using Messages = std::vector<std::string>;

namespace {

void setPixel(tst::TestDib& dib, int x, int y, uint8_t r, uint8_t g, uint8_t b) {
    uint8_t* p = dib.row(y) + 3 * x;
    p[0] = b;
    p[1] = g;
    p[2] = r;
}

tst::TestDib filled(int w, int h, uint8_t r, uint8_t g, uint8_t b) {
    tst::TestDib dib = tst::makeDib(w, h, 24);
    for (int y = 0; y < h; ++y)
        for (int x = 0; x < w; ++x) setPixel(dib, x, y, r, g, b);
    return dib;
}

bool sameColour(const RgbQuad& q, int r, int g, int b) { return q.red == r && q.green == g && q.blue == b; }

}  // namespace

TEST(ReduceColors, OneColourMedianCutRoundsDownToEights) {
    tst::TestDib dib = filled(5, 3, 100, 150, 201);
    MemoryHost host;
    OwnedBlock out = dibReduceColors(host, dib.source(), 8, 2);
    ASSERT_TRUE(out);
    InfoHeader h = tst::headerOf(out);
    EXPECT_EQ(h.biBitCount, 8);
    EXPECT_EQ(h.biClrUsed, 256u);
    EXPECT_EQ(h.biClrImportant, 0u);
    EXPECT_EQ(h.biXPelsPerMeter, 2953);
    EXPECT_EQ(out.size(), 8u * 3u + 1064u);
    EXPECT_TRUE(sameColour(tst::entryOf(out, 0), 96, 144, 200));
    for (unsigned i = 1; i < 256; ++i) EXPECT_TRUE(sameColour(tst::entryOf(out, i), 0, 0, 0));
    for (int y = 0; y < 3; ++y)
        for (int x = 0; x < 5; ++x) EXPECT_EQ(tst::rowOf(out, y)[x], 0);
    EXPECT_EQ(host.cursors, std::vector<Cursor>{Cursor::Arrow});
    EXPECT_EQ(host.liveBlocks(), 1u);
}

TEST(ReduceColors, OneBitGivesAnEightBitBitmapWithTwoColours) {
    tst::TestDib dib = tst::makeDib(2, 1, 24);
    setPixel(dib, 0, 0, 255, 0, 0);
    setPixel(dib, 1, 0, 0, 0, 255);
    MemoryHost host;
    OwnedBlock out = dibReduceColors(host, dib.source(), 1, 2);
    ASSERT_TRUE(out);
    EXPECT_EQ(tst::headerOf(out).biBitCount, 8);
    // The red axis splits first: the blue pixel (red 0) is the lower box.
    EXPECT_TRUE(sameColour(tst::entryOf(out, 0), 0, 0, 248));
    EXPECT_TRUE(sameColour(tst::entryOf(out, 1), 248, 0, 0));
    EXPECT_TRUE(sameColour(tst::entryOf(out, 2), 0, 0, 0));
    EXPECT_EQ(tst::rowOf(out, 0)[0], 1);
    EXPECT_EQ(tst::rowOf(out, 0)[1], 0);
}

TEST(ReduceColors, MedianCutSplitsAtTheMedianSliceAndAveragesBoxes) {
    // Red levels 0, 8, 16 with 1, 1, 2 pixels: one axis of extent; with two colours the
    // sweep stops at red 8 (sum 2 >= 4/2), giving [0..1] and [2..31].
    tst::TestDib dib = tst::makeDib(4, 1, 24);
    setPixel(dib, 0, 0, 0, 0, 0);
    setPixel(dib, 1, 0, 8, 0, 0);
    setPixel(dib, 2, 0, 16, 0, 0);
    setPixel(dib, 3, 0, 16, 0, 0);
    MemoryHost host;
    OwnedBlock out = dibReduceColors(host, dib.source(), 1, 2);
    ASSERT_TRUE(out);
    EXPECT_TRUE(sameColour(tst::entryOf(out, 0), 0, 0, 0));  // mean of r5 0 and 1 is 0
    EXPECT_TRUE(sameColour(tst::entryOf(out, 1), 16, 0, 0));
    const uint8_t* p = tst::rowOf(out, 0);
    EXPECT_EQ((std::vector<int>{p[0], p[1], p[2], p[3]}), (std::vector<int>{0, 0, 1, 1}));
}

TEST(ReduceColors, MedianStoppingAtTheUpperBoundSplitsBeforeIt) {
    // Both pixels lie in red slice 31: the sweep stops at the box's upper bound, so the
    // split is [0..30] (no pixels, no entry) and [31..31], whose mean is one entry.
    tst::TestDib dib = tst::makeDib(2, 1, 24);
    setPixel(dib, 0, 0, 248, 0, 0);
    setPixel(dib, 1, 0, 248, 0, 8);
    MemoryHost host;
    OwnedBlock out = dibReduceColors(host, dib.source(), 1, 2);
    ASSERT_TRUE(out);
    EXPECT_TRUE(sameColour(tst::entryOf(out, 0), 248, 0, 0));  // blue (0 + 1) / 2 = 0
    EXPECT_TRUE(sameColour(tst::entryOf(out, 1), 0, 0, 0));
    EXPECT_EQ(tst::rowOf(out, 0)[1], 0);
    EXPECT_TRUE(host.messages.empty());
}

TEST(ReduceColors, PopularityRepeatsCellsWhoseCountBecameOne) {
    tst::TestDib dib = tst::makeDib(3, 1, 24);
    setPixel(dib, 0, 0, 40, 0, 0);
    setPixel(dib, 1, 0, 40, 0, 0);
    setPixel(dib, 2, 0, 0, 80, 0);
    MemoryHost host;
    OwnedBlock out = dibReduceColors(host, dib.source(), 2, 0);
    ASSERT_TRUE(out);
    EXPECT_TRUE(sameColour(tst::entryOf(out, 0), 40, 0, 0));
    EXPECT_TRUE(sameColour(tst::entryOf(out, 1), 0, 80, 0));
    // Both cells now count 1: the scan keeps taking the lower cell, green 80.
    EXPECT_TRUE(sameColour(tst::entryOf(out, 2), 0, 80, 0));
    EXPECT_TRUE(sameColour(tst::entryOf(out, 3), 0, 80, 0));
}

TEST(ReduceColors, ErrorDiffusionWorksOnACopyWithItsWeights) {
    // One palette colour (the mean) for two pixels: the first pixel's error goes 3/8 to
    // its right neighbour, which then maps to the same single entry.
    tst::TestDib dib = tst::makeDib(2, 2, 24);
    setPixel(dib, 0, 0, 200, 200, 200);
    MemoryHost host;
    std::vector<uint8_t> before = dib.bytes;
    OwnedBlock out = dibReduceColors(host, dib.source(), 0, 3);
    ASSERT_TRUE(out);
    EXPECT_EQ(dib.bytes, before);  // the source is not touched
    EXPECT_TRUE(sameColour(tst::entryOf(out, 0), 48, 48, 48));  // (25 * 1) / 4 = 6 -> 48
    EXPECT_EQ(host.liveBlocks(), 1u);
}

TEST(ReduceColors, ChecksAndMemoryFailures) {
    MemoryHost host;
    tst::TestDib dib = filled(2, 2, 1, 2, 3);
    EXPECT_FALSE(dibReduceColors(host, Source{}, 8, 3));
    EXPECT_FALSE(dibReduceColors(host, dib.source(), 9, 3));
    tst::TestDib os2 = dib;
    put32(os2.bytes.data(), 12);
    EXPECT_FALSE(dibReduceColors(host, os2.source(), 8, 3));
    tst::TestDib rle = tst::makeDib(2, 2, 24, {}, kBiBitfields);
    EXPECT_FALSE(dibReduceColors(host, rle.source(), 8, 3));
    tst::TestDib eight = tst::makeDib(2, 2, 8);
    EXPECT_FALSE(dibReduceColors(host, eight.source(), 8, 3));
    EXPECT_EQ(host.messages, (Messages{"dibReduceColors: No DIB passed!", "dibReduceColors: uBPP > 8!",
                                       "dibReduceColors: No support for OS/2-Bitmaps!",
                                       "dibReduceColors: No support for RLE-Bitmaps!",
                                       "dibReduceColors: Bitmap is already reduced!"}));
    for (int allowed = 0; allowed < 3; ++allowed) {
        MemoryHost refusing;
        refusing.allocationsLeft = allowed;
        EXPECT_FALSE(dibReduceColors(refusing, dib.source(), 8, allowed == 0 ? 2 : 3));
        EXPECT_EQ(refusing.messages, Messages{"dibReduceColors: Not enough memory for DIB!"});
        EXPECT_EQ(refusing.cursors, std::vector<Cursor>{Cursor::Arrow});
        EXPECT_EQ(refusing.liveBlocks(), 0u);
    }
    MemoryHost noCopy;
    noCopy.allocationsLeft = 0;
    EXPECT_FALSE(dibReduceColors(noCopy, dib.source(), 8, 3));
    EXPECT_EQ(noCopy.messages, Messages{"dibCopy: Not enough memory for DIB!"});
}

TEST(FixedReduction, OneBitThresholdIsLuminanceAbove127) {
    tst::TestDib dib = tst::makeDib(2, 1, 24);
    setPixel(dib, 0, 0, 128, 128, 128);
    setPixel(dib, 1, 0, 127, 127, 127);
    MemoryHost host;
    OwnedBlock out = _DIB24To1(host, dib.block());
    ASSERT_TRUE(out);
    InfoHeader h = tst::headerOf(out);
    EXPECT_EQ(h.biBitCount, 1);
    EXPECT_EQ(h.biClrUsed, 2u);
    EXPECT_EQ(h.biClrImportant, 2u);
    EXPECT_EQ(out.size(), 4u + 48u);
    EXPECT_TRUE(sameColour(tst::entryOf(out, 1), 255, 255, 255));
    // White for the first: its error (128 - 255 = -127) makes the second darker still.
    EXPECT_EQ(tst::rowOf(out, 0)[0], 0x80);
    EXPECT_EQ(dib.row(0)[3], 127 - 47);  // diffused into the source: -127 * 3 / 8 = -47
    EXPECT_EQ(host.cursors, (std::vector<Cursor>{Cursor::Wait, Cursor::Arrow}));
}

TEST(FixedReduction, DiffusionWeightsRoundingAndClampInTheSource) {
    tst::TestDib dib = filled(2, 2, 100, 100, 100);
    MemoryHost host;
    OwnedBlock out = _DIB24To1(host, dib.block());
    ASSERT_TRUE(out);
    // (0,0) black, error 100: right and below get 37 (3/8, rounded down), the diagonal 25.
    // (1,0) = 137 turns white, error -118: below gets -44 (toward zero), so (1,1) = 81;
    // (0,1) = 137 white again gives its right neighbour -44: (1,1) = 37, black.
    EXPECT_EQ(dib.row(0)[3], 137);
    EXPECT_EQ(dib.row(1)[0], 137);
    EXPECT_EQ(dib.row(1)[3], 37);
    EXPECT_EQ(tst::rowOf(out, 0)[0], 0x40);
    EXPECT_EQ(tst::rowOf(out, 1)[0], 0x80);
    tst::TestDib clamp = tst::makeDib(2, 1, 24);
    std::fill(clamp.row(0), clamp.row(0) + 3, uint8_t(100));
    std::fill(clamp.row(0) + 3, clamp.row(0) + 6, uint8_t(250));
    ASSERT_TRUE(_DIB24To1(host, clamp.block()));
    EXPECT_EQ(clamp.row(0)[3], 255);  // 250 + 37 clamped
}

TEST(FixedReduction, SixteenColoursNearestEntryAndNibbles) {
    tst::TestDib dib = tst::makeDib(3, 1, 24);
    setPixel(dib, 0, 0, 255, 0, 0);
    setPixel(dib, 1, 0, 0, 0, 128);
    setPixel(dib, 2, 0, 255, 255, 255);
    MemoryHost host;
    OwnedBlock out = _DIB24To4(host, dib.block());
    ASSERT_TRUE(out);
    EXPECT_EQ(tst::headerOf(out).biClrUsed, 16u);
    EXPECT_EQ(out.size(), 4u + 104u);
    EXPECT_TRUE(sameColour(tst::entryOf(out, 8), 192, 192, 192));
    EXPECT_TRUE(sameColour(tst::entryOf(out, 1), 0, 0, 128));
    const uint8_t* p = tst::rowOf(out, 0);
    EXPECT_EQ(p[0], 0xC1);
    EXPECT_EQ(p[1] >> 4, 15);
}

TEST(FixedReduction, MessagesIncludingTheLowerCaseTo) {
    MemoryHost host;
    tst::TestDib eight = tst::makeDib(2, 2, 8);
    EXPECT_FALSE(_DIB24To1(host, Block{}));
    EXPECT_FALSE(_DIB24To4(host, eight.block()));
    tst::TestDib dib = tst::makeDib(2, 2, 24);
    MemoryHost refusing;
    refusing.allocationsLeft = 0;
    EXPECT_FALSE(_DIB24To4(refusing, dib.block()));
    EXPECT_FALSE(_DIB24To1(refusing, dib.block()));
    MemoryHost noCube;
    noCube.allocationsLeft = 1;
    EXPECT_FALSE(_DIB24To4(noCube, dib.block()));
    EXPECT_EQ(host.messages, (Messages{"_DIB24To1: No DIB passed!", "_DIB24To4: This is not a 24-Bit DIB!"}));
    EXPECT_EQ(refusing.messages,
              (Messages{"_DIB24to4: Not enough memory for DIB!", "_DIB24To1: Not enough memory for DIB!"}));
    EXPECT_EQ(noCube.messages, Messages{"_DIB24To4: Not enough memory for color cube!"});
    EXPECT_EQ(noCube.liveBlocks(), 0u);
}

TEST(BlockCopy, CopiesTheWholeBlock) {
    tst::TestDib dib = tst::makeDib(2, 2, 24);
    dib.bytes.push_back(0x5A);
    MemoryHost host;
    OwnedBlock copy = dibCopy(host, dib.source());
    ASSERT_TRUE(copy);
    EXPECT_EQ(std::vector<uint8_t>(copy.data(), copy.data() + copy.size()), dib.bytes);
    EXPECT_FALSE(dibCopy(host, Source{}));
    EXPECT_EQ(host.messages, Messages{"dibCopy: No DIB passed!"});
}
