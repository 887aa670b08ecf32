// The bytes GDI gets for drawing and device bitmaps: never more than the block holds.
#include <gtest/gtest.h>

#include "dib/core/gdi_bits.h"
#include "support/memory_host.h"

using namespace ts::dib;
using tst::MemoryHost;

namespace {

tst::TestDib rle8(uint32_t sizeImage, const std::vector<uint8_t>& stream) {
    tst::TestDib dib = tst::makeDib(4, 4, 8, std::vector<RgbQuad>(2), kBiRle8);
    dib.bytes.resize(size_t(pixelOffset(dib.header())));
    dib.bytes.insert(dib.bytes.end(), stream.begin(), stream.end());
    InfoHeader h = dib.header();
    h.biSizeImage = sizeImage;
    writeHeader(dib.bytes.data(), h);
    return dib;
}

std::vector<uint8_t> streamOf(const GdiBits& g) {
    return std::vector<uint8_t>(g.bits(), g.bits() + g.header().biSizeImage);
}

}  // namespace

TEST(GdiBits, AStreamClaimingMoreThanTheBlockIsCutAndClosed) {
    MemoryHost host;
    tst::TestDib dib = rle8(1000, {2, 1, 0, 0, 2, 1});
    GdiBits g(host);
    ASSERT_TRUE(g.open(dib.source()));
    EXPECT_EQ(streamOf(g), (std::vector<uint8_t>{2, 1, 0, 0, 2, 1, 0, 1}));
    EXPECT_EQ(g.bits() - g.info(), 48);
    EXPECT_EQ(readHeader(g.info(), 40).biSizeImage, 8u);
}

TEST(GdiBits, AStreamShorterThanItsBlockKeepsItsStatedSize) {
    MemoryHost host;
    tst::TestDib dib = rle8(4, {2, 1, 0, 1, 9, 9});
    GdiBits g(host);
    ASSERT_TRUE(g.open(dib.source()));
    EXPECT_EQ(streamOf(g), (std::vector<uint8_t>{2, 1, 0, 1, 0, 1}));
}

TEST(GdiBits, AStreamWithoutAStatedSizeRunsToTheBlocksEnd) {
    MemoryHost host;
    tst::TestDib dib = rle8(0, {2, 1, 0, 0});
    GdiBits g(host);
    ASSERT_TRUE(g.open(dib.source()));
    EXPECT_EQ(streamOf(g), (std::vector<uint8_t>{2, 1, 0, 0, 0, 1}));
}

TEST(GdiBits, ShortUncompressedRowsArePaddedAndTheHeaderIsFortyBytes) {
    MemoryHost host;
    tst::TestDib dib = tst::makeDib(3, 2, 24, std::vector<RgbQuad>(5));
    dib.row(0)[0] = 7;
    dib.bytes.resize(dib.bytes.size() - 5);
    InfoHeader h = dib.header();
    h.biSize = 12;
    writeHeader(dib.bytes.data(), h);
    GdiBits g(host);
    ASSERT_TRUE(g.open(dib.source()));
    EXPECT_EQ(readHeader(g.info(), 40).biSize, 40u);
    EXPECT_EQ(g.bits()[0], 7);
    EXPECT_EQ(g.bits()[2 * 12 - 1], 0);
    EXPECT_EQ(dib.header().biSize, 12u);
}

TEST(GdiBits, AbsurdSizesFailWithoutAMessage) {
    MemoryHost host;
    tst::TestDib dib = tst::makeDib(1, 1, 24);
    InfoHeader h = dib.header();
    h.biWidth = 0x7FFFFFFF;
    h.biHeight = 0x7FFFFFFF;
    writeHeader(dib.bytes.data(), h);
    GdiBits g(host);
    EXPECT_FALSE(g.open(dib.source()));
    EXPECT_TRUE(host.messages.empty());
}

TEST(GdiBits, BitFieldMasksComeRightBehindTheHeaderBeforeTheTable) {
    MemoryHost host;
    std::vector<RgbQuad> table = {{1, 2, 3, 0}, {4, 5, 6, 0}};
    tst::TestDib dib = tst::makeDib(2, 2, 16, table, kBiBitfields, {0xF800, 0x07E0, 0x001F});
    dib.row(0)[0] = 9;
    GdiBits g(host);
    ASSERT_TRUE(g.open(dib.source()));
    EXPECT_EQ(le32(g.info() + 40), 0xF800u);
    EXPECT_EQ(le32(g.info() + 48), 0x001Fu);
    EXPECT_EQ(g.info()[52], 1);  // the table follows the masks
    EXPECT_EQ(g.info()[56], 4);
    EXPECT_EQ(g.bits(), dib.source().data + 40 + 8 + 12);
    EXPECT_EQ(g.bits()[0], 9);
}
