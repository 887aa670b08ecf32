// Tests of the colour-depth conversions: single steps, field extraction, chains.
#include <gtest/gtest.h>

#include "dib/core/bit_fields.h"
#include "dib/core/depth_convert.h"
#include "support/memory_host.h"

using namespace ts::dib;
using tst::MemoryHost;
using Messages = std::vector<std::string>;

TEST(FieldExtraction, FillsNoLowBitsAndGuardsAZeroMask) {
    EXPECT_EQ(Field(0x7C00)(0x7C00), 248);
    EXPECT_EQ(Field(0x001F)(0x0001), 8);
    EXPECT_EQ(Field(0xFF0000)(0x123456), 0x12);
    EXPECT_EQ(Field(0x07E0)(0x07E0), 252);
    EXPECT_EQ(Field(0)(0xFFFFFFFF), 0);
}

TEST(Depth16To24, WhiteFiveFiveFiveGives248) {
    tst::TestDib dib = tst::makeDib(1, 1, 16);
    put16(dib.row(0), 0x7FFF);
    MemoryHost host;
    OwnedBlock out = dib16To24(host, dib.source());
    ASSERT_TRUE(out);
    const uint8_t* p = tst::rowOf(out, 0);
    EXPECT_EQ(p[0], 248);
    EXPECT_EQ(p[1], 248);
    EXPECT_EQ(p[2], 248);
    EXPECT_EQ(out.size(), 40u + 4u);
    EXPECT_EQ(host.cursors, (std::vector<Cursor>{Cursor::Wait, Cursor::Arrow}));
}

TEST(Depth16To24, BitFieldMasksAreUsedAndZeroMasksGiveBlack) {
    tst::TestDib dib = tst::makeDib(2, 1, 16, {}, kBiBitfields, {0xF800, 0x07E0, 0});
    put16(dib.row(0), 0xF800);
    put16(dib.row(0) + 2, 0x07FF);
    MemoryHost host;
    OwnedBlock out = dib16To24(host, dib.source());
    ASSERT_TRUE(out);
    const uint8_t* p = tst::rowOf(out, 0);
    EXPECT_EQ((std::vector<int>{p[0], p[1], p[2], p[3], p[4], p[5]}), (std::vector<int>{0, 0, 248, 0, 252, 0}));
}

TEST(Depth32To24, DefaultAndBitFieldMasks) {
    tst::TestDib plain = tst::makeDib(1, 1, 32);
    put32(plain.row(0), 0xAA112233);
    MemoryHost host;
    OwnedBlock a = dib32To24(host, plain.source());
    ASSERT_TRUE(a);
    EXPECT_EQ(tst::rowOf(a, 0)[0], 0x33);
    EXPECT_EQ(tst::rowOf(a, 0)[2], 0x11);
    tst::TestDib fields = tst::makeDib(1, 1, 32, {}, kBiBitfields, {0x000000FF, 0x0000FF00, 0x00FF0000});
    put32(fields.row(0), 0x00112233);
    OwnedBlock b = dib32To24(host, fields.source());
    ASSERT_TRUE(b);
    EXPECT_EQ(tst::rowOf(b, 0)[0], 0x11);  // blue from the top byte
    EXPECT_EQ(tst::rowOf(b, 0)[2], 0x33);
}

TEST(Depth1To4, TableIsSixteenWithTheSourceCountImportant) {
    tst::TestDib dib = tst::makeDib(10, 1, 1, {{0, 0, 0, 0}, {10, 20, 30, 0}});
    dib.row(0)[0] = 0xB1;  // 1011 0001
    dib.row(0)[1] = 0x80;
    MemoryHost host;
    OwnedBlock out = dib1To4(host, dib.source());
    ASSERT_TRUE(out);
    InfoHeader h = tst::headerOf(out);
    EXPECT_EQ(h.biClrUsed, 16u);
    EXPECT_EQ(h.biClrImportant, 2u);
    EXPECT_EQ(h.biBitCount, 4);
    EXPECT_EQ(out.size(), h.biSizeImage + 104u);
    EXPECT_EQ(tst::entryOf(out, 1).red, 30);
    for (unsigned i = 2; i < 16; ++i) EXPECT_EQ(tst::entryOf(out, i).red + tst::entryOf(out, i).blue, 0);
    const uint8_t* p = tst::rowOf(out, 0);
    EXPECT_EQ((std::vector<int>{p[0], p[1], p[2], p[3], p[4]}), (std::vector<int>{0x10, 0x11, 0x00, 0x01, 0x10}));
}

TEST(Depth4To8, SplitsNibblesAndRefusesCompression) {
    tst::TestDib dib = tst::makeDib(3, 1, 4, std::vector<RgbQuad>(16));
    dib.row(0)[0] = 0x5A;
    dib.row(0)[1] = 0xC0;
    MemoryHost host;
    OwnedBlock out = dib4To8(host, dib.source());
    ASSERT_TRUE(out);
    EXPECT_EQ(tst::headerOf(out).biClrUsed, 256u);
    EXPECT_EQ(out.size(), 4u + 1064u);
    const uint8_t* p = tst::rowOf(out, 0);
    EXPECT_EQ((std::vector<int>{p[0], p[1], p[2], p[3]}), (std::vector<int>{5, 10, 12, 0}));
    InfoHeader h = dib.header();
    h.biCompression = kBiRle4;
    writeHeader(dib.bytes.data(), h);
    EXPECT_FALSE(dib4To8(host, dib.source()));
    EXPECT_EQ(host.messages, Messages{"dib4To8: This is not a RLE-DIB!"});
}

TEST(Depth8To24, TopDownSourceComesOutFlipped) {
    tst::TestDib dib = tst::makeDib(1, -2, 8, {{1, 2, 3, 0}, {4, 5, 6, 0}});
    dib.row(0)[0] = 0;
    dib.row(1)[0] = 1;
    MemoryHost host;
    OwnedBlock out = dib8To24(host, dib.source());
    ASSERT_TRUE(out);
    EXPECT_EQ(tst::headerOf(out).biHeight, 2);
    EXPECT_EQ(tst::rowOf(out, 0)[0], 1);  // memory order kept: the top row is now the bottom
    EXPECT_EQ(tst::rowOf(out, 1)[2], 6);
}

TEST(Depth8To24, IndexPastTheBlockReadsBlack) {
    tst::TestDib dib = tst::makeDib(1, 1, 8, {{9, 9, 9, 0}});
    dib.row(0)[0] = 255;  // table entry 255 would lie far behind this small block
    MemoryHost host;
    OwnedBlock out = dib8To24(host, dib.source());
    ASSERT_TRUE(out);
    EXPECT_EQ(tst::rowOf(out, 0)[0], 0);
}

TEST(DepthSteps, ChecksComeInOrderWithTheirTexts) {
    MemoryHost host;
    EXPECT_FALSE(dib8To24(host, Source{}));
    tst::TestDib os2 = tst::makeDib(1, 1, 8);
    put32(os2.bytes.data(), 12);
    EXPECT_FALSE(dib8To24(host, os2.source()));
    tst::TestDib wrong = tst::makeDib(1, 1, 4);
    EXPECT_FALSE(dib8To24(host, wrong.source()));
    EXPECT_FALSE(dib16To24(host, wrong.source()));
    EXPECT_FALSE(dib32To24(host, wrong.source()));
    EXPECT_FALSE(dib1To4(host, wrong.source()));
    tst::TestDib rle = tst::makeDib(1, 1, 8, {}, kBiRle8);
    EXPECT_FALSE(dib8To24(host, rle.source()));
    tst::TestDib rle16 = tst::makeDib(1, 1, 16, {}, kBiRle8);
    EXPECT_FALSE(dib16To24(host, rle16.source()));
    EXPECT_EQ(host.messages, (Messages{"dib8To24: No DIB passed!", "dib8To24: No support for OS/2-Bitmaps!",
                                       "dib8To24: This is not a 8-Bit-DIB!", "dib16To24: This is not 16-Bit-DIB!",
                                       "dib32To24: This is not a 32-Bit-DIB!", "dib1To4: This is not a 1-Bit-DIB!",
                                       "dib8To24: This is a RLE-DIB!", "dib16To24: This is a RLE-DIB!"}));
    MemoryHost refusing;
    refusing.allocationsLeft = 0;
    tst::TestDib ok = tst::makeDib(1, 1, 8);
    EXPECT_FALSE(dib8To24(refusing, ok.source()));
    EXPECT_EQ(refusing.messages, Messages{"dib8To24: Not enough memory for DIB!"});
}

TEST(DepthSteps, ShortBlockAndHugeSizesStayInside) {
    tst::TestDib dib = tst::makeDib(64, 64, 8);
    dib.bytes.resize(40 + 1024 + 10);  // the rows are missing
    MemoryHost host;
    OwnedBlock out = dib8To24(host, dib.source());
    ASSERT_TRUE(out);
    EXPECT_EQ(out.size(), 40u + 64u * 192u);
    tst::TestDib huge = tst::makeDib(1, 1, 24);
    InfoHeader h = huge.header();
    h.biWidth = 0x7FFFFFFF;
    h.biHeight = -0x7FFFFFFF;
    writeHeader(huge.bytes.data(), h);
    huge.bytes[14] = 16;  // biBitCount
    EXPECT_FALSE(dib16To24(host, huge.source()));
    EXPECT_EQ(host.messages, Messages{"dib16To24: Not enough memory for DIB!"});
}

TEST(DepthChains, NullHandleMessagesAndFirstStepFailureIsTheOnlyMessage) {
    MemoryHost host;
    using Chain = OwnedBlock (*)(Host&, Source);
    Chain chains[] = {dib1To8, dib1To24, dib4To24, dib24To1, dib8To1, dib4To1, dib24To4, dib8To4};
    for (Chain c : chains) EXPECT_FALSE(c(host, Source{}));
    EXPECT_EQ(host.messages,
              (Messages{"dib1To8: No DIB passed!", "dib1To24: No DIB passed!", "dib4To24: No DIB passed!",
                        "dib24To1: No DIB passed!", "dib8To1: No DIB passed!", "dib4To1: No DIB passed!",
                        "dib24To4: No DIB passed!", "dib8To4: No DIB passed!"}));
    MemoryHost one;
    tst::TestDib eight = tst::makeDib(2, 2, 8);
    EXPECT_FALSE(dib1To24(one, eight.source()));
    EXPECT_EQ(one.messages, Messages{"dib1To4: This is not a 1-Bit-DIB!"});
    EXPECT_EQ(one.liveBlocks(), 0u);
}

TEST(DepthChains, OneBitTo24AndBackThroughTheFixedReduction) {
    tst::TestDib dib = tst::makeDib(9, 2, 1, {{0, 0, 0, 0}, {255, 255, 255, 0}});
    dib.row(0)[0] = 0xAA;
    dib.row(0)[1] = 0x80;
    dib.row(1)[0] = 0x0F;
    MemoryHost host;
    OwnedBlock wide = dib1To24(host, dib.source());
    ASSERT_TRUE(wide);
    EXPECT_EQ(tst::headerOf(wide).biBitCount, 24);
    EXPECT_EQ(tst::rowOf(wide, 0)[0], 255);
    EXPECT_EQ(tst::rowOf(wide, 0)[3], 0);
    EXPECT_EQ(tst::rowOf(wide, 0)[24], 255);
    OwnedBlock back = dib24To1(host, wide.source());
    ASSERT_TRUE(back);
    EXPECT_EQ(tst::rowOf(back, 0)[0], 0xAA);
    EXPECT_EQ(tst::rowOf(back, 0)[1], 0x80);
    EXPECT_EQ(tst::rowOf(back, 1)[0], 0x0F);
    EXPECT_EQ(tst::rowOf(wide, 0)[0], 255);  // the source stays as it was
    EXPECT_TRUE(host.messages.empty());
    EXPECT_EQ(host.liveBlocks(), 2u);
}

TEST(DepthChains, Dib24To8ChecksAndPaths) {
    MemoryHost host;
    EXPECT_FALSE(dib24To8(host, Source{}, false));
    tst::TestDib eight = tst::makeDib(2, 2, 8);
    EXPECT_FALSE(dib24To8(host, eight.source(), true));
    EXPECT_EQ(host.messages, (Messages{"dib24to8: No DIB passed!", "dib24to8: Not a 24-Bit-DIB!"}));
    tst::TestDib dib = tst::makeDib(2, 2, 24);
    dib.row(0)[2] = 255;
    OwnedBlock gray = dib24To8(host, dib.source(), true);
    ASSERT_TRUE(gray);
    EXPECT_EQ(tst::rowOf(gray, 0)[0], (77 * 255) >> 8);
    EXPECT_EQ(tst::entryOf(gray, 200).green, 200);
    OwnedBlock reduced = dib24To8(host, dib.source(), false);
    ASSERT_TRUE(reduced);
    EXPECT_EQ(tst::headerOf(reduced).biBitCount, 8);
}
