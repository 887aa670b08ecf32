// The GIF decoder's file level: signature, screen, tables, blocks, placement and the
// bitmap it produces.
#include <gtest/gtest.h>

#include "gif_core_support.h"

using namespace gift;
using ts::gif::text::kIllegalBlock;
using ts::gif::text::kNoColorTable;
using ts::gif::text::kNotGif;
using ts::gif::text::kPrematureEnd;
using ts::gif::text::kWrongColorInfo;

namespace {

std::vector<std::uint8_t> filled(std::size_t count, std::uint8_t value) {
    return std::vector<std::uint8_t>(count, value);
}

// A 4 x 4 screen of 16 colours holding one 4 x 4 image of index 1.
Bytes smallGif() {
    return GifBuilder().header().screen(4, 4, 3).image(0, 0, 4, 4).pixels(4, filled(16, 1))
        .trailer().bytes;
}

}  // namespace

TEST(GifRead, RefusesFilesThatDoNotStartWithGif) {
    tst::MemoryHost host;
    EXPECT_TRUE(decode({'G', 'I', 'X', '8', '9', 'a'}, host).block.empty());
    EXPECT_EQ(host.messages, std::vector<std::string>{kNotGif});
    host.messages.clear();
    EXPECT_TRUE(decode({}, host).block.empty());
    EXPECT_EQ(host.messages, std::vector<std::string>{kNotGif});
}

TEST(GifRead, UnknownVersionAsksAndCancelGivesNothing) {
    Bytes file = smallGif();
    file[4] = '8';  // GIF88a
    tst::MemoryHost host;
    host.answer = false;
    EXPECT_TRUE(decode(file, host).block.empty());
    EXPECT_EQ(host.questions, std::vector<std::string>{"Unbekannte GIF-Version: 88a\n\rWeiter?"});
    EXPECT_TRUE(host.messages.empty());
}

TEST(GifRead, UnknownVersionAnsweredOkDecodesAsUsual) {
    Bytes file = smallGif();
    file[4] = '8';
    tst::MemoryHost host;
    Dib dib = decode(file, host);
    ASSERT_FALSE(dib.block.empty());
    EXPECT_EQ(host.questions.size(), 1u);
    EXPECT_EQ(dib.index(3, 3), 1u);
    EXPECT_TRUE(host.messages.empty());
}

TEST(GifRead, KnownVersionsAskNothing) {
    for (const char* signature : {"GIF87a", "GIF89a"}) {
        Bytes file = smallGif();
        std::copy(signature, signature + 6, file.begin());
        tst::MemoryHost host;
        EXPECT_FALSE(decode(file, host).block.empty());
        EXPECT_TRUE(host.questions.empty());
        EXPECT_TRUE(host.messages.empty());
    }
}

TEST(GifRead, EightEntryTableGivesFourBitBitmap) {
    Bytes file = GifBuilder().header().screen(5, 3, 2).image(0, 0, 5, 3)
        .pixels(3, filled(15, 7)).trailer().bytes;
    tst::MemoryHost host;
    Dib dib = decode(file, host);
    DibHeader h = dib.header();
    EXPECT_EQ(h.size, 40u);
    EXPECT_EQ(h.width, 5);
    EXPECT_EQ(h.height, 3);
    EXPECT_EQ(h.planes, 1);
    EXPECT_EQ(h.bitCount, 4);
    EXPECT_EQ(h.compression, 0u);
    EXPECT_EQ(h.sizeImage, 12u);
    EXPECT_EQ(h.xPelsPerMeter, 2953);
    EXPECT_EQ(h.yPelsPerMeter, 2953);
    EXPECT_EQ(h.clrUsed, 16u);
    EXPECT_EQ(h.clrImportant, 8u);
    EXPECT_EQ(dib.block.size(), 12u + 1064u);
    for (unsigned i = 0; i < 8; ++i) EXPECT_EQ(dib.color(i), testColor(i));
    for (unsigned i = 8; i < 16; ++i) EXPECT_EQ(dib.color(i), (Rgb{0, 0, 0}));
    EXPECT_EQ(dib.index(4, 2), 7u);
}

TEST(GifRead, DepthFollowsTheGlobalTableSizeField) {
    const unsigned expected[8] = {1, 4, 4, 4, 8, 8, 8, 8};
    for (unsigned field = 0; field < 8; ++field) {
        Bytes file = GifBuilder().header().screen(3, 2, field).trailer().bytes;
        tst::MemoryHost host;
        Dib dib = decode(file, host);
        EXPECT_EQ(dib.bits(), expected[field]) << field;
        EXPECT_EQ(dib.header().clrUsed, 1u << expected[field]);
        EXPECT_EQ(dib.header().clrImportant, 2u << field);
    }
}

TEST(GifRead, ImageWithoutAnyColourTableFailsButTheBitmapComesBack) {
    Bytes file = GifBuilder().header().screen(4, 4, 3, false).image(0, 0, 4, 4)
        .pixels(4, filled(16, 1)).trailer().bytes;
    tst::MemoryHost host;
    Dib dib = decode(file, host);
    ASSERT_FALSE(dib.block.empty());
    EXPECT_EQ(host.messages, std::vector<std::string>{kNoColorTable});
    EXPECT_EQ(dib.header().clrImportant, 0u);
    EXPECT_EQ(dib.index(0, 0), 0u);
}

TEST(GifRead, LocalTableLargerThanTheDepthIsRefused) {
    Bytes file = GifBuilder().header().screen(4, 4, 0).image(0, 0, 4, 4, 0x81).table(4, 1)
        .pixels(2, filled(16, 1)).trailer().bytes;
    tst::MemoryHost host;
    Dib dib = decode(file, host);
    EXPECT_EQ(host.messages, std::vector<std::string>{kWrongColorInfo});
    EXPECT_EQ(dib.header().clrImportant, 2u);
    EXPECT_EQ(dib.color(1), testColor(1));
}

TEST(GifRead, LocalTableReplacesTheFirstEntriesForTheWholeBitmap) {
    Bytes file = GifBuilder().header().screen(4, 4, 3).image(0, 0, 2, 2).pixels(4, filled(4, 1))
        .image(2, 2, 2, 2, 0x81).table(4, 2).pixels(2, filled(4, 3)).trailer().bytes;
    tst::MemoryHost host;
    Dib dib = decode(file, host);
    EXPECT_TRUE(host.messages.empty());
    EXPECT_EQ(dib.header().clrImportant, 4u);
    for (unsigned i = 0; i < 4; ++i) EXPECT_EQ(dib.color(i), testColor(i, 2));
    for (unsigned i = 4; i < 16; ++i) EXPECT_EQ(dib.color(i), testColor(i));
    EXPECT_EQ(dib.index(0, 0), 1u);
    EXPECT_EQ(dib.index(3, 3), 3u);
}

TEST(GifRead, ExtensionsAndStrayZeroBytesAreReadOver) {
    Bytes file = GifBuilder().header().screen(4, 4, 3)
        .raw({0x21, 0xF9, 4, 1, 10, 0, 5, 0})                 // graphic control
        .raw({0x21, 0xFE, 3, 'a', 'b', 'c', 2, 'd', 'e', 0})  // comment of two sub-blocks
        .raw({0, 0}).image(0, 0, 4, 4).pixels(4, filled(16, 9)).raw({0})
        .raw({0x21, 0xFF, 0}).trailer().bytes;
    tst::MemoryHost host;
    Dib dib = decode(file, host);
    EXPECT_TRUE(host.messages.empty());
    EXPECT_EQ(dib.index(2, 2), 9u);
}

TEST(GifRead, IllegalBlockStopsButKeepsWhatWasDecoded) {
    Bytes file = GifBuilder().header().screen(4, 4, 3).image(0, 0, 4, 4).pixels(4, filled(16, 5))
        .raw({'x'}).image(0, 0, 4, 4).pixels(4, filled(16, 6)).trailer().bytes;
    tst::MemoryHost host;
    Dib dib = decode(file, host);
    EXPECT_EQ(host.messages, std::vector<std::string>{kIllegalBlock});
    EXPECT_EQ(dib.index(1, 1), 5u);
}

TEST(GifRead, MissingTrailerIsAPrematureEnd) {
    Bytes file = GifBuilder().header().screen(4, 4, 3).image(0, 0, 4, 4).pixels(4, filled(16, 5))
        .bytes;
    tst::MemoryHost host;
    Dib dib = decode(file, host);
    EXPECT_EQ(host.messages, std::vector<std::string>{kPrematureEnd});
    EXPECT_EQ(dib.index(3, 0), 5u);
}

TEST(GifRead, OneBitRowsOfWidthTenFillTwoBytes) {
    std::vector<std::uint8_t> pixels = {1, 0, 1, 1, 0, 0, 0, 1, 1, 1};
    Bytes file = GifBuilder().header().screen(10, 1, 0).image(0, 0, 10, 1).pixels(2, pixels)
        .trailer().bytes;
    tst::MemoryHost host;
    Dib dib = decode(file, host);
    EXPECT_EQ(dib.bits(), 1u);
    EXPECT_EQ(dib.rowBytes(0)[0], 0xB1);
    EXPECT_EQ(dib.rowBytes(0)[1], 0xC0);
    EXPECT_EQ(dib.header().clrUsed, 2u);
}

TEST(GifRead, FourBitOddWidthEndsWithAHighNibble) {
    Bytes base = GifBuilder().header().screen(6, 1, 3).image(0, 0, 6, 1).pixels(4, filled(6, 15))
        .bytes;
    Bytes file = GifBuilder{base}.image(1, 0, 3, 1).pixels(4, {1, 2, 3}).trailer().bytes;
    tst::MemoryHost host;
    Dib dib = decode(file, host);
    // left 1 rounds down to 0: pixels 1, 2 then 3 in a high nibble whose low nibble is cleared
    EXPECT_EQ(dib.rowBytes(0)[0], 0x12);
    EXPECT_EQ(dib.rowBytes(0)[1], 0x30);
    EXPECT_EQ(dib.rowBytes(0)[2], 0xFF);
}

TEST(GifRead, ImagesAtOffsetsOverlapAndTheLastOneWins) {
    Bytes file = GifBuilder().header().screen(8, 6, 7).image(1, 1, 4, 3).pixels(8, filled(12, 10))
        .image(3, 2, 4, 4).pixels(8, filled(16, 20)).trailer().bytes;
    tst::MemoryHost host;
    Dib dib = decode(file, host);
    EXPECT_TRUE(host.messages.empty());
    EXPECT_EQ(dib.index(0, 0), 0u);
    EXPECT_EQ(dib.index(1, 1), 10u);
    EXPECT_EQ(dib.index(2, 3), 10u);
    EXPECT_EQ(dib.index(3, 2), 20u);
    EXPECT_EQ(dib.index(4, 1), 10u);
    EXPECT_EQ(dib.index(6, 5), 20u);
    EXPECT_EQ(dib.index(7, 5), 0u);
}

TEST(GifRead, ImagesRightOfOrBelowTheScreenAreSkippedWithSuccess) {
    Bytes file = GifBuilder().header().screen(4, 4, 7).image(4, 0, 2, 2).pixels(8, filled(4, 1))
        .image(0, 4, 2, 2).pixels(8, filled(4, 2)).image(0, 0, 1, 1).pixels(8, {3}).trailer().bytes;
    tst::MemoryHost host;
    Dib dib = decode(file, host);
    EXPECT_TRUE(host.messages.empty());
    EXPECT_EQ(dib.index(0, 0), 3u);
    EXPECT_EQ(dib.index(3, 3), 0u);
}

TEST(GifRead, ImageLargerThanTheScreenIsCut) {
    std::vector<std::uint8_t> pixels(6 * 5);
    for (std::size_t i = 0; i < pixels.size(); ++i) pixels[i] = static_cast<std::uint8_t>(i);
    Bytes file = GifBuilder().header().screen(4, 3, 7).image(1, 1, 6, 5).pixels(8, pixels)
        .trailer().bytes;
    tst::MemoryHost host;
    Dib dib = decode(file, host);
    EXPECT_TRUE(host.messages.empty());
    for (std::uint32_t y = 1; y < 3; ++y)
        for (std::uint32_t x = 1; x < 4; ++x) EXPECT_EQ(dib.index(x, y), (y - 1) * 6 + (x - 1));
    EXPECT_EQ(dib.index(0, 1), 0u);
    EXPECT_EQ(dib.index(3, 0), 0u);
}

TEST(GifRead, OneBitLeftPositionRoundsDownToAByte) {
    Bytes file = GifBuilder().header().screen(16, 1, 0).image(11, 0, 3, 1).pixels(2, {1, 1, 1})
        .trailer().bytes;
    tst::MemoryHost host;
    Dib dib = decode(file, host);
    EXPECT_EQ(dib.rowBytes(0)[0], 0x00);
    EXPECT_EQ(dib.rowBytes(0)[1], 0xE0);
}

TEST(GifRead, InterlacedImageRowsComeFromThePassOrder) {
    // Stream line n holds the value n; image row r must show the line of its pass.
    std::vector<std::uint8_t> pixels;
    for (std::uint8_t line = 0; line < 9; ++line) pixels.insert(pixels.end(), 2, line);
    const unsigned lineOfRow[9] = {0, 5, 3, 6, 2, 7, 4, 8, 1};
    for (std::uint32_t top : {0u, 3u}) {
        Bytes file = GifBuilder().header().screen(2, 16, 7).image(0, top, 2, 9, 0x40)
            .pixels(8, pixels).trailer().bytes;
        tst::MemoryHost host;
        Dib dib = decode(file, host);
        EXPECT_TRUE(host.messages.empty());
        for (std::uint32_t r = 0; r < 9; ++r) EXPECT_EQ(dib.index(1, top + r), lineOfRow[r]) << top;
    }
}

TEST(GifRead, InterlacedImageCutAtTheBottomKeepsItsRowOrder) {
    std::vector<std::uint8_t> pixels;
    for (std::uint8_t line = 0; line < 9; ++line) pixels.push_back(line);
    const unsigned lineOfRow[4] = {0, 5, 3, 6};
    Bytes file = GifBuilder().header().screen(1, 6, 7).image(0, 2, 1, 9, 0x40).pixels(8, pixels)
        .trailer().bytes;
    tst::MemoryHost host;
    Dib dib = decode(file, host);
    for (std::uint32_t r = 0; r < 4; ++r) EXPECT_EQ(dib.index(0, 2 + r), lineOfRow[r]);
}
