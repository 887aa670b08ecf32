// Regressions for the classes of bugs GIF decoders are known for: code indices taken
// unchecked from the stream, images of height 0, indices beyond the colour table,
// sizes that overflow, strings longer than the output stack, and writes past a row.
#include <gtest/gtest.h>

#include <memory>

#include "gif_core_support.h"

using namespace gift;
namespace text = ts::gif::text;

TEST(GifRegression, CodeFarBeyondTheTableIsRejectedBeforeItIndexesAnything) {
    // 12-bit codes right after a clear: 4095 is far beyond the next free code.
    CodeStream codes(11);
    codes.clear().code(4095).code(4094).end();
    tst::MemoryHost host;
    Dib dib = decode(GifBuilder().header().screen(3, 1, 7).image(0, 0, 3, 1).codes(11, codes.list)
                         .trailer().bytes, host);
    ASSERT_FALSE(host.messages.empty());
    EXPECT_EQ(host.messages[0], "Ung\xFCltiger LZW-Code 4095!");
    EXPECT_EQ(dib.index(0, 0), 0u);
}

TEST(GifRegression, FullTableWritesOnlyTheSpareEntry) {
    auto tables = std::make_unique<ts::gif::GifTables>();
    CodeStream codes(2);
    codes.clear().repeat(1, 4091).code(2).code(3).end();
    Bytes file = GifBuilder().header().screen(4093, 1, 1).image(0, 0, 4093, 1).codes(2, codes.list)
        .trailer().bytes;
    tst::MemoryHost host;
    ts::dib::OwnedBlock gif = ts::gif::readGif(file.data(), file.size(), *tables, host);
    EXPECT_TRUE(gif);
    EXPECT_TRUE(host.messages.empty());
    EXPECT_EQ(tables->prefix[4096], 2u);  // "2 3" went to the spare entry
    EXPECT_EQ(tables->suffix[4096], 3u);
}

TEST(GifRegression, InterlacedImageOfHeightZeroOrOne) {
    for (std::uint32_t h : {0u, 1u}) {
        CodeStream codes(2);
        codes.clear().repeat(2, 4 * h).end();
        tst::MemoryHost host;
        Dib dib = decode(GifBuilder().header().screen(4, 3, 1).image(0, 2, 4, h, 0x40)
                             .codes(2, codes.list).trailer().bytes, host);
        EXPECT_TRUE(host.messages.empty());
        EXPECT_EQ(dib.index(3, 2), h == 1 ? 2u : 0u);
    }
}

TEST(GifRegression, IndicesBeyondTheTableNeverReachOutsideTheRow) {
    // 4-bit screen, 8-bit codes of 255 everywhere: every byte of the image's rows
    // becomes 0xFF, the rows around it stay 0.
    tst::MemoryHost host;
    Dib dib = decode(GifBuilder().header().screen(8, 3, 3).image(0, 1, 8, 1)
                         .pixels(8, std::vector<std::uint8_t>(8, 255)).trailer().bytes, host);
    EXPECT_EQ(dib.rowBytes(1)[0], 0xFF);
    EXPECT_EQ(dib.rowBytes(1)[3], 0xFF);
    EXPECT_EQ(dib.rowBytes(0)[0], 0x00);
    EXPECT_EQ(dib.rowBytes(2)[3], 0x00);
}

TEST(GifRegression, ImageSizeThatCannotBeHeldFailsAsNoMemory) {
    tst::MemoryHost host;
    host.limit = 64u << 20;
    Dib dib = decode(GifBuilder().header().screen(4, 4, 1).image(0, 0, 65535, 65535)
                         .raw({2, 0}).trailer().bytes, host);
    EXPECT_FALSE(dib.block.empty());
    EXPECT_EQ(host.messages, std::vector<std::string>{text::kNoMemoryBitmap});
}

TEST(GifRegression, OddWidthImageCutAtTheRightEdgeStaysInItsRow) {
    // 8 pixels of 4 bits fill the row's 4 bytes exactly; the 9th pixel of the image
    // would add a nibble in the byte after the row, which is the next row's first.
    tst::MemoryHost host;
    Dib dib = decode(GifBuilder().header().screen(8, 2, 3).image(0, 1, 9, 1)
                         .pixels(4, std::vector<std::uint8_t>(9, 7)).trailer().bytes, host);
    EXPECT_EQ(dib.rowBytes(1)[3], 0x77);
    EXPECT_EQ(dib.rowBytes(0)[0], 0x00);
}

TEST(GifRegression, LongestStringsFitTheStack) {
    // Each code repeats the previous string plus one: strings grow to thousands of
    // pixels, the longest the table allows with a minimum code size of 2.
    CodeStream codes(2);
    codes.clear().code(1);
    std::uint64_t pixels = 1;
    for (unsigned length = 2; codes.next() < 4096; ++length) {
        codes.code(codes.next());
        pixels += length;
    }
    codes.end();
    tst::MemoryHost host;
    Dib dib = decode(GifBuilder().header().screen(4096, static_cast<std::uint32_t>(pixels / 4096 + 1), 1)
                         .image(0, 0, 4096, static_cast<std::uint32_t>(pixels / 4096 + 1))
                         .codes(2, codes.list).trailer().bytes, host);
    EXPECT_TRUE(host.messages.empty());
    EXPECT_EQ(dib.index(4095, static_cast<std::uint32_t>(pixels / 4096) - 1), 1u);
}
