// The decoder's LZW stage: string building, code sizes, clear codes, the full table,
// and what damaged code streams do.
#include <gtest/gtest.h>

#include "gif_core_support.h"

using namespace gift;
using ts::gif::text::kIllegalBlock;
using ts::gif::text::kLzwError;
using ts::gif::text::kReadLoop;

namespace {

// A screen of width x height, 256 colours, with one image of the given codes.
Bytes withCodes(std::uint32_t width, std::uint32_t height, unsigned minCodeSize,
                const CodeStream& codes, bool trailer = true) {
    GifBuilder b;
    b.header().screen(width, height, 7).image(0, 0, width, height).codes(minCodeSize, codes.list);
    return trailer ? b.trailer().bytes : b.bytes;
}

std::vector<unsigned> row(const Dib& dib, std::uint32_t y) {
    std::vector<unsigned> values;
    for (std::uint32_t x = 0; x < dib.width(); ++x) values.push_back(dib.index(x, y));
    return values;
}

}  // namespace

TEST(LzwDecode, CodeEqualToTheNextFreeCodeRepeatsThePreviousString) {
    // 0, then "0 0" (code 6 before it exists), then "0 0 0" (code 7): six zeros
    CodeStream codes(2);
    codes.clear().code(1).code(6).code(7).end();
    EXPECT_EQ(codes.size(), 4u);  // the size grew after entry 7
    tst::MemoryHost host;
    Dib dib = decode(withCodes(3, 2, 2, codes), host);
    EXPECT_TRUE(host.messages.empty());
    EXPECT_EQ(row(dib, 0), (std::vector<unsigned>{1, 1, 1}));
    EXPECT_EQ(row(dib, 1), (std::vector<unsigned>{1, 1, 1}));
}

TEST(LzwDecode, StringsAreRebuiltFromTheirPrefixes) {
    // "2 3" is entry 6, "3 2" entry 7, "2 3 2" entry 8
    CodeStream codes(2);
    codes.clear().code(2).code(3).code(6).code(8).end();
    tst::MemoryHost host;
    Dib dib = decode(withCodes(8, 1, 2, codes), host);
    EXPECT_TRUE(host.messages.empty());
    EXPECT_EQ(row(dib, 0), (std::vector<unsigned>{2, 3, 2, 3, 2, 3, 2, 0}));
}

TEST(LzwDecode, ClearCodeResetsTheCodeSize) {
    CodeStream codes(2);
    codes.clear().repeat(1, 5).clear().code(2).code(3).end();
    EXPECT_EQ(codes.list[6].second, 4u);  // the second clear still went out at 4 bits
    tst::MemoryHost host;
    Dib dib = decode(withCodes(7, 1, 2, codes), host);
    EXPECT_TRUE(host.messages.empty());
    EXPECT_EQ(row(dib, 0), (std::vector<unsigned>{1, 1, 1, 1, 1, 2, 3}));
}

TEST(LzwDecode, FullTableKeepsDecodingTwelveBitCodesUntilAClear) {
    // 4091 codes fill entries 6..4095 (each "1 1"); codes then stay at 12 bits and
    // write only the spare entry, until the clear brings 3-bit codes back.
    CodeStream codes(2);
    codes.clear().repeat(1, 4091);
    EXPECT_EQ(codes.next(), 4096u);
    EXPECT_EQ(codes.size(), 12u);
    codes.code(2).code(3).code(4095).clear().code(3).code(2).end();
    EXPECT_EQ(codes.list[4095].second, 12u);  // the clear after the full table
    EXPECT_EQ(codes.list.back().second, 3u);
    tst::MemoryHost host;
    Dib dib = decode(withCodes(4097, 1, 2, codes), host);
    EXPECT_TRUE(host.messages.empty());
    std::vector<unsigned> expected(4091, 1);
    for (unsigned v : {2, 3, 1, 1, 3, 2}) expected.push_back(v);
    EXPECT_EQ(row(dib, 0), expected);
}

TEST(LzwDecode, EndCodeEndsTheImageWithoutCountingPixels) {
    CodeStream codes(2);
    codes.clear().code(1).code(2).end().code(3).code(3);
    tst::MemoryHost host;
    Dib dib = decode(withCodes(4, 1, 2, codes), host);
    EXPECT_TRUE(host.messages.empty());
    EXPECT_EQ(row(dib, 0), (std::vector<unsigned>{1, 2, 0, 0}));
}

TEST(LzwDecode, TerminatorWithTooFewPixelsIsAnLzwError) {
    CodeStream codes(2);
    codes.clear().code(1).code(2);
    tst::MemoryHost host;
    Dib dib = decode(withCodes(4, 2, 2, codes), host);
    EXPECT_EQ(host.messages, std::vector<std::string>{kLzwError});
    EXPECT_EQ(row(dib, 0), (std::vector<unsigned>{1, 2, 0, 0}));  // the partial picture
}

TEST(LzwDecode, TerminatorWithTooManyPixelsIsAnLzwError) {
    CodeStream codes(2);
    codes.clear().repeat(1, 40);
    tst::MemoryHost host;
    Dib dib = decode(withCodes(2, 2, 2, codes), host);
    EXPECT_EQ(host.messages, std::vector<std::string>{kLzwError});
    EXPECT_EQ(dib.index(1, 1), 1u);
}

TEST(LzwDecode, CodeBeyondTheNextFreeCodeIsReported) {
    CodeStream codes(2);
    codes.clear().code(1).code(7).code(1).end();
    tst::MemoryHost host;
    Dib dib = decode(withCodes(3, 1, 2, codes), host);
    ASSERT_FALSE(host.messages.empty());
    EXPECT_EQ(host.messages[0], "Ung\xFCltiger LZW-Code 7!");
    EXPECT_EQ(dib.index(0, 0), 1u);
}

TEST(LzwDecode, InvalidCodeSkipsTheFollowingSubBlocks) {
    // Sub-block 1 ends on an invalid code; sub-block 2 would paint the rest.
    CodeStream first(8);
    first.clear().code(5).code(300);
    CodeStream second(8);
    second.repeat(6, 3);
    GifBuilder b;
    b.header().screen(4, 1, 7).image(0, 0, 4, 1).codes(8, first.list, false);
    Bytes tail = GifBuilder().codes(8, second.list).bytes;  // without its code size byte
    b.bytes.insert(b.bytes.end(), tail.begin() + 1, tail.end());
    tst::MemoryHost host;
    Dib dib = decode(b.trailer().bytes, host);
    ASSERT_EQ(host.messages.size(), 2u);
    EXPECT_EQ(host.messages[0], "Ung\xFCltiger LZW-Code 300!");
    EXPECT_EQ(host.messages[1], kLzwError);
    EXPECT_EQ(row(dib, 0), (std::vector<unsigned>{5, 0, 0, 0}));
}

TEST(LzwDecode, StringThatLoopsOnItselfIsAnInvalidCode) {
    // The first code after a clear may name the next free code; the entry written there
    // next then becomes its own prefix, and decoding it again must not run away.
    CodeStream codes(2);
    codes.clear().code(6).code(6).code(6).end();
    tst::MemoryHost host;
    Dib dib = decode(withCodes(8, 1, 2, codes), host);
    ASSERT_FALSE(host.messages.empty());
    EXPECT_EQ(host.messages[0], "Ung\xFCltiger LZW-Code 6!");
    EXPECT_FALSE(dib.block.empty());
}

TEST(LzwDecode, MinimumCodeSizeBeyondTwelveBitsIsRefused) {
    for (unsigned minCodeSize : {12u, 13u, 200u}) {
        Bytes file = GifBuilder().header().screen(2, 2, 7).image(0, 0, 2, 2)
            .raw({static_cast<std::uint8_t>(minCodeSize), 2, 0xFF, 0xFF, 0}).trailer().bytes;
        tst::MemoryHost host;
        Dib dib = decode(file, host);
        EXPECT_EQ(host.messages, std::vector<std::string>{kLzwError});
        EXPECT_FALSE(dib.block.empty());
    }
}

TEST(LzwDecode, ShortSubBlockIsReportedAndDecodingGoesOn) {
    CodeStream codes(8);
    codes.clear().repeat(7, 4).end();
    Bytes file = GifBuilder().header().screen(4, 1, 7).image(0, 0, 4, 1).codes(8, codes.list, false)
        .bytes;
    file[file.size() - 8] = 20;  // the sub-block claims more bytes than the file has
    tst::MemoryHost host;
    Dib dib = decode(file, host);
    ASSERT_GE(host.messages.size(), 1u);
    EXPECT_EQ(host.messages[0], kReadLoop);
    EXPECT_EQ(row(dib, 0), (std::vector<unsigned>{7, 7, 7, 7}));
}

TEST(LzwDecode, TruncatedRasterDataGivesTheRowsDecodedSoFar) {
    std::vector<std::uint8_t> pixels(16 * 16);
    for (std::size_t i = 0; i < pixels.size(); ++i) pixels[i] = static_cast<std::uint8_t>(1 + i / 16);
    Bytes file = GifBuilder().header().screen(16, 16, 4).image(0, 0, 16, 16).pixels(8, pixels)
        .trailer().bytes;
    file.resize(file.size() - 150);
    tst::MemoryHost host;
    Dib dib = decode(file, host);
    ASSERT_FALSE(host.messages.empty());
    EXPECT_EQ(host.messages.back(), kLzwError);
    EXPECT_EQ(row(dib, 0), std::vector<unsigned>(16, 1));
    EXPECT_EQ(row(dib, 5), std::vector<unsigned>(16, 6));
    EXPECT_EQ(row(dib, 15), std::vector<unsigned>(16, 0));  // never reached
}

TEST(LzwDecode, TruncatedAfterTheEndCodeIsAPrematureEnd) {
    Bytes file = GifBuilder().header().screen(4, 4, 3).image(0, 0, 4, 4)
        .pixels(4, std::vector<std::uint8_t>(16, 2)).bytes;
    file.pop_back();  // the terminator
    tst::MemoryHost host;
    Dib dib = decode(file, host);
    EXPECT_EQ(host.messages, std::vector<std::string>{ts::gif::text::kPrematureEnd});
    EXPECT_EQ(dib.index(3, 3), 2u);
}

TEST(LzwDecode, IndicesBeyondTheColourTableAreStoredUnmasked) {
    // 8-bit screen with a 4-colour table: index 200 is kept as it is.
    tst::MemoryHost host;
    Dib eight = decode(GifBuilder().header().screen(2, 1, 1).image(0, 0, 2, 1).pixels(8, {200, 3})
                           .trailer().bytes, host);
    EXPECT_EQ(eight.bits(), 4u);
    EXPECT_EQ(eight.rowBytes(0)[0], 0x83);  // 200 << 4 | 3, kept to the byte
    eight = decode(GifBuilder().header().screen(2, 1, 4).image(0, 0, 2, 1).pixels(8, {200, 3})
                       .trailer().bytes, host);
    EXPECT_EQ(eight.index(0, 0), 200u);
    // 1-bit screen, 8-bit codes: index 3 spills into the bit on its left
    Dib one = decode(GifBuilder().header().screen(3, 1, 0).image(0, 0, 3, 1).pixels(8, {0, 0, 3})
                         .trailer().bytes, host);
    EXPECT_EQ(one.rowBytes(0)[0], 0x60);
    EXPECT_TRUE(host.messages.empty());
}

TEST(LzwDecode, EmptyImagesDecodeToNothing) {
    for (auto [w, h] : {std::pair{0u, 5u}, std::pair{5u, 0u}, std::pair{0u, 0u}}) {
        CodeStream codes(2);
        codes.clear().end();
        for (bool interlaced : {false, true}) {
            Bytes file = GifBuilder().header().screen(4, 4, 1)
                .image(1, 1, w, h, interlaced ? 0x40 : 0).codes(2, codes.list).trailer().bytes;
            tst::MemoryHost host;
            Dib dib = decode(file, host);
            EXPECT_TRUE(host.messages.empty());
            EXPECT_EQ(dib.index(1, 1), 0u);
        }
    }
}

TEST(LzwDecode, EmptyImageWithDataIsAnLzwError) {
    CodeStream codes(2);
    codes.clear().code(1).code(1);
    Bytes file = GifBuilder().header().screen(4, 4, 1).image(0, 0, 3, 0).codes(2, codes.list)
        .trailer().bytes;
    tst::MemoryHost host;
    decode(file, host);
    EXPECT_EQ(host.messages, std::vector<std::string>{kLzwError});
}

TEST(LzwDecode, DataSubBlockBehindTheEndCodeReachesTheBlockLoop) {
    CodeStream codes(2);
    codes.clear().code(1).end();
    Bytes file = GifBuilder().header().screen(1, 1, 1).image(0, 0, 1, 1).codes(2, codes.list, false)
        .raw({1, 0x55, 0}).trailer().bytes;
    tst::MemoryHost host;
    Dib dib = decode(file, host);
    EXPECT_EQ(host.messages, std::vector<std::string>{kIllegalBlock});
    EXPECT_EQ(dib.index(0, 0), 1u);
}
