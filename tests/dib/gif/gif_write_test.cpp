// The GIF encoder's file layout: signature, screen, table, descriptor, code size,
// sub-blocks, and what it refuses.
#include <gtest/gtest.h>

#include <memory>

#include "gif_core_support.h"
#include "reference_encoder.h"

using namespace gift;

namespace {

Dib checker(std::uint32_t w, std::uint32_t h, unsigned bits, std::uint32_t clrUsed = 0) {
    std::vector<std::uint8_t> indices(std::size_t{w} * h);
    for (std::size_t i = 0; i < indices.size(); ++i)
        indices[i] = static_cast<std::uint8_t>((i % w + i / w) % (1u << bits));
    return makeDib(w, h, bits, indices, palette(clrUsed != 0 ? clrUsed : 1u << bits), clrUsed);
}

// Offset of the image descriptor behind a global table of 2^bits entries.
std::size_t descriptorAt(unsigned bits) { return 13 + 3 * (std::size_t{1} << bits); }

}  // namespace

TEST(GifWrite, OneBitBitmap) {
    tst::MemoryHost host;
    Bytes file = encode(checker(10, 3, 1), 87, false, host);
    ASSERT_FALSE(file.empty());
    EXPECT_EQ(std::string(file.begin(), file.begin() + 6), "GIF87a");
    EXPECT_EQ(file[6], 10);
    EXPECT_EQ(file[8], 3);
    EXPECT_EQ(file[10], 0x80);  // global table of two entries
    EXPECT_EQ(file[11], 0);
    EXPECT_EQ(file[12], 0);
    Rgb c1 = testColor(1);
    EXPECT_EQ(file[16], c1.r);
    EXPECT_EQ(file[18], c1.b);
    EXPECT_EQ(file[descriptorAt(1)], ',');
    EXPECT_EQ(file[descriptorAt(1) + 9], 0x00);   // image flags
    EXPECT_EQ(file[descriptorAt(1) + 10], 2);     // minimum code size
    EXPECT_EQ(file.back(), ';');
    EXPECT_TRUE(host.messages.empty());
}

TEST(GifWrite, FourAndEightBitScreenFlags) {
    tst::MemoryHost host;
    Bytes four = encode(checker(3, 3, 4), 89, true, host);
    EXPECT_EQ(std::string(four.begin(), four.begin() + 6), "GIF89a");
    EXPECT_EQ(four[10], 0xB3);
    EXPECT_EQ(four[descriptorAt(4) + 9], 0x43);  // interlaced, size field 3
    EXPECT_EQ(four[descriptorAt(4) + 10], 4);
    Bytes eight = encode(checker(3, 3, 8), 89, false, host);
    EXPECT_EQ(eight[10], 0xF7);
    EXPECT_EQ(eight[descriptorAt(8) + 9], 0x07);
    EXPECT_EQ(eight[descriptorAt(8) + 10], 8);
}

TEST(GifWrite, UsedColoursArePaddedWithBlack) {
    tst::MemoryHost host;
    Bytes file = encode(checker(4, 4, 8, 20), 89, false, host);
    ASSERT_EQ(file[descriptorAt(8)], ',');
    Rgb c19 = testColor(19);
    EXPECT_EQ(file[13 + 3 * 19], c19.r);
    for (std::size_t i = 13 + 3 * 20; i < descriptorAt(8); ++i) EXPECT_EQ(file[i], 0) << i;
}

TEST(GifWrite, UnknownVersionWritesNothing) {
    tst::MemoryHost host;
    auto tables = std::make_unique<ts::gif::GifTables>();
    ts::dib::MemorySink sink;
    Dib dib = checker(2, 2, 8);
    EXPECT_FALSE(ts::gif::encodeGif(ts::dib::Source{dib.block.data(), dib.block.size()}, 88, false, *tables,
                                    host, sink));
    EXPECT_EQ(host.messages, std::vector<std::string>{ts::gif::text::kUnknownFormat});
    EXPECT_EQ(sink.bytes.size(), 0u);
}

TEST(GifWrite, ParameterRecordFollowsTheCall) {
    auto module = std::make_unique<ts::gif::GifTables>();
    ts::dib::MemorySink sink;
    tst::MemoryHost host;
    Dib dib = checker(2, 2, 4);
    ASSERT_TRUE(ts::gif::encodeGif(ts::dib::Source{dib.block.data(), dib.block.size()}, 87, true, *module, host,
                                   sink));
    EXPECT_EQ(module->params.moduleVersion, 512);
    EXPECT_EQ(module->params.gifVersion, 87);
    EXPECT_EQ(module->params.globalTable, 1);
    EXPECT_EQ(module->params.interlace, 1);
    EXPECT_EQ(module->params.grayReduction, 0);
}

TEST(GifWrite, RoundTripThroughTheDecoder) {
    for (unsigned bits : {1u, 4u, 8u})
        for (bool interlace : {false, true}) {
            Dib dib = checker(37, 21, bits);
            tst::MemoryHost host;
            Dib back = decode(encode(dib, 89, interlace, host), host);
            EXPECT_TRUE(host.messages.empty());
            ASSERT_EQ(back.bits(), bits);
            for (std::uint32_t y = 0; y < 21; ++y)
                for (std::uint32_t x = 0; x < 37; ++x) ASSERT_EQ(back.index(x, y), dib.index(x, y));
        }
}

TEST(GifWrite, TopDownBitmapIsWrittenUpright) {
    Dib dib = checker(5, 4, 8);
    Dib topDown = dib;
    DibHeader h = dib.header();
    h.height = -4;
    storeHeader(topDown.block.data(), h);
    std::uint64_t stride = strideOf(5, 8), at = pixelOffset(h);
    for (std::uint32_t y = 0; y < 4; ++y)
        std::copy(dib.rowBytes(y), dib.rowBytes(y) + stride, topDown.block.begin() + at + y * stride);
    tst::MemoryHost host;
    EXPECT_EQ(encode(topDown, 89, false, host), encode(dib, 89, false, host));
}

TEST(GifWrite, RefusesWhatGifCannotHoldOrTheBlockDoesNotHold) {
    Dib dib = checker(8, 8, 8);
    std::vector<Dib> bad(4, dib);
    DibHeader h = dib.header();
    h.bitCount = 2;
    storeHeader(bad[0].block.data(), h);
    h = dib.header();
    h.compression = 1;
    storeHeader(bad[1].block.data(), h);
    bad[2].block.resize(bad[2].block.size() - 1);  // the last row is short
    bad[3].block.resize(39);
    for (const Dib& d : bad) {
        tst::MemoryHost host;
        EXPECT_TRUE(encode(d, 89, false, host).empty());
        EXPECT_EQ(host.messages, std::vector<std::string>{ts::gif::text::kNoDib});
    }
}

TEST(GifWrite, StreamEndingOnABlockBoundaryEndsWithAnEmptyBlock) {
    // Code sizes depend only on the count of codes: 2040 bits (255 full bytes) occur
    // for 1-bit pictures, 255 bytes with a partly used last byte for 8-bit ones. Look
    // for a picture of each: the first ends with a block of length 0, the second not.
    bool sawFull = false, sawPartial = false;
    std::uint32_t state = 7;
    for (int tries = 0; tries < 4000 && !(sawFull && sawPartial); ++tries) {
        unsigned bits = tries % 2 == 0 ? 1 : 8;
        std::uint32_t n = bits == 1 ? 1500 + tries % 1300 : 200 + tries % 100;
        std::vector<std::uint8_t> pixels(n);
        for (std::uint8_t& p : pixels)
            p = static_cast<std::uint8_t>(((state = state * 1103515245u + 12345u) >> 16) % (1u << bits));
        Bytes lzw = referenceLzw(pixels, bits == 1 ? 2 : 8);
        if (lzw.size() < 258 || lzw[1] != 255) continue;
        bool full = lzw.size() == 259 && lzw[257] == 0 && lzw[258] == 0;
        bool partial = lzw.size() == 258 && lzw[257] == 0;
        if (!full && !partial) continue;
        sawFull = sawFull || full;
        sawPartial = sawPartial || partial;
        tst::MemoryHost host;
        Bytes file = encode(makeDib(n, 1, bits, pixels, palette(1u << bits)), 89, false, host);
        ASSERT_GT(file.size(), lzw.size());
        EXPECT_TRUE(std::equal(lzw.begin(), lzw.end(), file.end() - 1 - static_cast<long>(lzw.size())));
    }
    EXPECT_TRUE(sawFull);
    EXPECT_TRUE(sawPartial);
}

TEST(GifWrite, FullTableEmitsAClearAtTwelveBits) {
    // Decode the code stream of a noisy picture by hand: after code 4095 is assigned the
    // next code is a clear code 256 at 12 bits, then 9-bit codes follow.
    std::vector<std::uint8_t> pixels(6000);
    std::uint32_t state = 1;
    for (std::uint8_t& p : pixels) p = static_cast<std::uint8_t>((state = state * 1103515245u + 12345u) >> 16);
    Bytes lzw = referenceLzw(pixels, 8);
    Bytes data;
    for (std::size_t at = 1; lzw[at] != 0; at += lzw[at] + 1u)
        data.insert(data.end(), lzw.begin() + static_cast<long>(at) + 1,
                    lzw.begin() + static_cast<long>(at) + 1 + lzw[at]);
    std::uint64_t bitPos = 0;
    auto read = [&](unsigned size) {
        unsigned code = 0;
        for (unsigned i = 0; i < size; ++i, ++bitPos)
            code |= ((data[bitPos / 8] >> (bitPos % 8)) & 1u) << i;
        return code;
    };
    ASSERT_EQ(read(9), 256u);
    unsigned next = 258, size = 9;
    read(size);  // the first code after a clear adds no entry
    while (next < 4096) {
        read(size);
        if (++next == (1u << size) && next < 4096) ++size;
    }
    EXPECT_EQ(size, 12u);
    EXPECT_EQ(read(12), 256u);  // the clear, still at 12 bits
    EXPECT_LT(read(9), 256u);   // a root at the minimum size + 1
    tst::MemoryHost host;
    Bytes file = encode(makeDib(6000, 1, 8, pixels, palette(256)), 89, false, host);
    EXPECT_TRUE(std::equal(lzw.begin(), lzw.end(), file.end() - 1 - static_cast<long>(lzw.size())));
}
