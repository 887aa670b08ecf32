// Tests of crop, gray, half size and run-length expansion.
#include <gtest/gtest.h>

#include <algorithm>

#include "dib/core/image_ops.h"
#include "dib/core/rle_expand.h"
#include "support/memory_host.h"

using namespace ts::dib;
using tst::MemoryHost;
using Messages = std::vector<std::string>;

namespace {

// An RLE bitmap whose pixel area is `codes`.
tst::TestDib rleDib(int w, int h, uint16_t bits, const std::vector<uint8_t>& codes) {
    tst::TestDib dib = tst::makeDib(w, h, bits, std::vector<RgbQuad>(bits == 8 ? 4 : 16), bits == 8 ? kBiRle8 : kBiRle4);
    InfoHeader hd = dib.header();
    dib.bytes.resize(size_t(pixelOffset(hd)));
    dib.bytes.insert(dib.bytes.end(), codes.begin(), codes.end());
    hd.biSizeImage = uint32_t(codes.size());
    writeHeader(dib.bytes.data(), hd);
    return dib;
}

}  // namespace

TEST(SmallSize, OneByOneGivesAnEmptyBitmap) {
    tst::TestDib dib = tst::makeDib(1, 1, 24);
    MemoryHost host;
    OwnedBlock out = dibSmallSize(host, dib.source());
    ASSERT_TRUE(out);
    InfoHeader h = tst::headerOf(out);
    EXPECT_EQ(h.biWidth, 0);
    EXPECT_EQ(h.biHeight, 0);
    EXPECT_EQ(out.size(), 40u);
}

TEST(SmallSize, OneBitWidthTwentyWritesOneByteARow) {
    tst::TestDib dib = tst::makeDib(20, 2, 1, std::vector<RgbQuad>(2));
    dib.row(0)[0] = 0xAA;  // bits 7, 5, 3, 1 set
    dib.row(0)[1] = 0x55;
    dib.row(0)[2] = 0xFF;
    MemoryHost host;
    OwnedBlock out = dibSmallSize(host, dib.source());
    ASSERT_TRUE(out);
    InfoHeader h = tst::headerOf(out);
    EXPECT_EQ(h.biWidth, 10);
    EXPECT_EQ(h.biClrUsed, 2u);
    EXPECT_EQ(h.biClrImportant, 2u);
    EXPECT_EQ(tst::rowOf(out, 0)[0], 0xF0);
    EXPECT_EQ(tst::rowOf(out, 0)[1], 0);  // pixels 8 and 9 stay 0
}

TEST(SmallSize, FourBitsAndTrueColourTakeEverySecondPixel) {
    tst::TestDib four = tst::makeDib(4, 2, 4, std::vector<RgbQuad>(16));
    four.row(0)[0] = 0x12;
    four.row(0)[1] = 0x34;
    MemoryHost host;
    OwnedBlock a = dibSmallSize(host, four.source());
    ASSERT_TRUE(a);
    EXPECT_EQ(tst::rowOf(a, 0)[0], 0x13);
    tst::TestDib rgb = tst::makeDib(4, 4, 24);
    for (int i = 0; i < 12; ++i) rgb.row(2)[i] = uint8_t(i);
    OwnedBlock b = dibSmallSize(host, rgb.source());
    ASSERT_TRUE(b);
    const uint8_t* p = tst::rowOf(b, 1);
    EXPECT_EQ((std::vector<int>{p[0], p[1], p[2], p[3], p[4], p[5]}), (std::vector<int>{0, 1, 2, 6, 7, 8}));
}

TEST(SmallSize, BitFieldMasksAreCopiedAndTheBlockHoldsTheRows) {
    tst::TestDib dib = tst::makeDib(4, 4, 16, {}, kBiBitfields, {0xF800, 0x07E0, 0x001F});
    MemoryHost host;
    OwnedBlock out = dibSmallSize(host, dib.source());
    ASSERT_TRUE(out);
    EXPECT_EQ(le32(out.data() + 40), 0xF800u);
    EXPECT_EQ(le32(out.data() + 48), 0x001Fu);
    EXPECT_EQ(out.size(), 52u + 4u * 2u);
    EXPECT_EQ(tst::headerOf(out).biCompression, kBiBitfields);
}

TEST(SmallSize, Messages) {
    MemoryHost host;
    EXPECT_FALSE(dibSmallSize(host, Source{}));
    tst::TestDib rle = tst::makeDib(2, 2, 8, {}, kBiRle8);
    EXPECT_FALSE(dibSmallSize(host, rle.source()));
    EXPECT_EQ(host.messages, (Messages{"dibSmallSize: No DIB passed!", "dibSmallSize: It's a RLE-DIB!"}));
}

TEST(Gray, PaletteBitmapKeepsDepthWithGrayTable) {
    tst::TestDib dib = tst::makeDib(2, 2, 4, {{0, 0, 255, 0}, {255, 0, 0, 0}});
    dib.row(0)[0] = 0x10;
    MemoryHost host;
    OwnedBlock out = dibGray(host, dib.source());
    ASSERT_TRUE(out);
    EXPECT_EQ(tst::headerOf(out).biBitCount, 4);
    RgbQuad e0 = tst::entryOf(out, 0);
    EXPECT_EQ(e0.red, (77 * 255) >> 8);
    EXPECT_EQ(e0.green, e0.red);
    EXPECT_EQ(e0.blue, e0.red);
    EXPECT_EQ(tst::entryOf(out, 1).red, (28 * 255) >> 8);
    EXPECT_EQ(tst::rowOf(out, 0)[0], 0x10);
}

TEST(Gray, TrueColourGivesAGrayRamp) {
    tst::TestDib dib = tst::makeDib(3, 1, 24);
    uint8_t* p = dib.row(0);
    p[0] = 10, p[1] = 20, p[2] = 30;
    MemoryHost host;
    OwnedBlock out = dibGray(host, dib.source());
    ASSERT_TRUE(out);
    InfoHeader h = tst::headerOf(out);
    EXPECT_EQ(h.biBitCount, 8);
    EXPECT_EQ(h.biClrUsed, 256u);
    EXPECT_EQ(out.size(), 4u + 1064u);
    EXPECT_EQ(tst::entryOf(out, 77).blue, 77);
    EXPECT_EQ(tst::rowOf(out, 0)[0], (77 * 30 + 151 * 20 + 28 * 10) >> 8);
    tst::TestDib sixteen = tst::makeDib(1, 1, 16);
    put16(sixteen.row(0), 0x7FFF);
    OwnedBlock g16 = dibGray(host, sixteen.source());
    ASSERT_TRUE(g16);
    EXPECT_EQ(tst::rowOf(g16, 0)[0], 248);
}

TEST(Gray, MessagesIncludingTheGrayPathName) {
    MemoryHost host;
    EXPECT_FALSE(dibGray(host, Source{}));
    tst::TestDib rle4 = tst::makeDib(2, 2, 4, std::vector<RgbQuad>(16), kBiRle4);
    EXPECT_FALSE(dibGray(host, rle4.source()));
    tst::TestDib rle24 = tst::makeDib(2, 2, 24, {}, kBiRle8);
    EXPECT_FALSE(dibGray(host, rle24.source()));
    EXPECT_EQ(host.messages, (Messages{"dibGray: No DIB passed!", "dibGray: No support for RLE-Bitmaps!",
                                       "dibGray: No support for RLE-Bitmaps!"}));
    EXPECT_EQ(host.liveBlocks(), 0u);
    MemoryHost refusing;
    refusing.allocationsLeft = 0;
    tst::TestDib dib = tst::makeDib(2, 2, 24);
    EXPECT_FALSE(dibGray(refusing, dib.source()));
    EXPECT_EQ(refusing.messages, Messages{"dib24to8: Not enough memory for DIB!"});
}

TEST(Crop, HeaderCountsAndDefaults) {
    tst::TestDib dib = tst::makeDib(8, 8, 8, std::vector<RgbQuad>(12));
    InfoHeader h = dib.header();
    h.biClrImportant = 12;
    h.biXPelsPerMeter = 1000;
    writeHeader(dib.bytes.data(), h);
    dib.row(3)[2] = 77;
    MemoryHost host;
    OwnedBlock out = dibCrop(host, dib.source(), 2, 3, 3, 2);
    ASSERT_TRUE(out);
    InfoHeader c = tst::headerOf(out);
    EXPECT_EQ(c.biWidth, 3);
    EXPECT_EQ(c.biHeight, 2);
    EXPECT_EQ(c.biClrUsed, 12u);
    EXPECT_EQ(c.biClrImportant, 0u);
    EXPECT_EQ(c.biXPelsPerMeter, 2953);
    EXPECT_EQ(out.size(), 40u + 48u + 8u);
    EXPECT_EQ(tst::rowOf(out, 0)[0], 77);
}

TEST(Crop, SubByteColumnsShiftAcrossBytes) {
    tst::TestDib one = tst::makeDib(16, 1, 1, std::vector<RgbQuad>(2));
    one.row(0)[0] = 0x0F;
    one.row(0)[1] = 0xF0;
    MemoryHost host;
    OwnedBlock a = dibCrop(host, one.source(), 4, 0, 8, 1);
    ASSERT_TRUE(a);
    EXPECT_EQ(tst::rowOf(a, 0)[0], 0xFF);
    tst::TestDib four = tst::makeDib(4, 1, 4, std::vector<RgbQuad>(16));
    four.row(0)[0] = 0x12;
    four.row(0)[1] = 0x34;
    OwnedBlock b = dibCrop(host, four.source(), 1, 0, 2, 1);
    ASSERT_TRUE(b);
    EXPECT_EQ(tst::rowOf(b, 0)[0], 0x23);
}

TEST(Crop, RectangleOutsideTheBlockReadsZero) {
    tst::TestDib dib = tst::makeDib(4, 4, 24);
    std::fill(dib.bytes.begin() + 40, dib.bytes.end(), uint8_t(0x55));
    MemoryHost host;
    OwnedBlock out = dibCrop(host, dib.source(), -3, 3, 6, 2);
    ASSERT_TRUE(out);
    EXPECT_EQ(tst::rowOf(out, 0)[0], 0x55);  // column -3: the tail of the row before
    EXPECT_EQ(tst::rowOf(out, 0)[9], 0x55);
    EXPECT_EQ(tst::rowOf(out, 1)[8], 0x55);
    EXPECT_EQ(tst::rowOf(out, 1)[9], 0);     // row 4 lies past the block
    EXPECT_FALSE(dibCrop(host, dib.source(), 0, 0, -1, 2));
    EXPECT_EQ(host.messages, Messages{"dibCrop: Not enough memory for DIB!"});
}

TEST(RleToDib, Rle8DeltaMovesRightAndUp) {
    tst::TestDib dib = rleDib(6, 3, 8, {2, 7, 0, 2, 3, 1, 1, 9, 0, 1});
    MemoryHost host;
    OwnedBlock out = dibRLEtoDIB(host, dib.source());
    ASSERT_TRUE(out);
    InfoHeader h = tst::headerOf(out);
    EXPECT_EQ(h.biCompression, 0u);
    EXPECT_EQ(h.biSizeImage, 24u);
    EXPECT_EQ(h.biClrUsed, 4u);
    EXPECT_EQ(out.size(), 40u + 1024u + 24u);
    EXPECT_EQ(tst::rowOf(out, 0)[1], 7);
    EXPECT_EQ(tst::rowOf(out, 1)[5], 9);  // column 2 + 3, one row up
}

TEST(RleToDib, Rle4RunsAbsoluteModeAndEndOfLine) {
    tst::TestDib dib = rleDib(5, 2, 4, {3, 0x12, 0, 0, 0, 3, 0xAB, 0xC0, 1, 0xF0, 0, 1});
    MemoryHost host;
    OwnedBlock out = dibRLEtoDIB(host, dib.source());
    ASSERT_TRUE(out);
    EXPECT_EQ(tst::rowOf(out, 0)[0], 0x12);
    EXPECT_EQ(tst::rowOf(out, 0)[1], 0x10);
    EXPECT_EQ(tst::rowOf(out, 1)[0], 0xAB);
    EXPECT_EQ(tst::rowOf(out, 1)[1], 0xCF);
}

TEST(RleToDib, Messages) {
    MemoryHost host;
    EXPECT_FALSE(dibRLEtoDIB(host, Source{}));
    tst::TestDib plain = tst::makeDib(2, 2, 8);
    EXPECT_FALSE(dibRLEtoDIB(host, plain.source()));
    tst::TestDib os2 = rleDib(2, 2, 8, {0, 1});
    put32(os2.bytes.data(), 12);
    EXPECT_FALSE(dibRLEtoDIB(host, os2.source()));
    EXPECT_EQ(host.messages, (Messages{"dibRLEtoDIB: No DIB passed!", "dibRLEtoDIB: Not a RLE-Bitmap!",
                                       "dibRLEtoDIB: No support for OS/2-Bitmaps!"}));
}

// Streams in the style of the published RLE heap overflows of other BMP readers: they
// must stay inside the output rows.
TEST(RleExpand, OverflowingStreamsStayInsideTheRows) {
    const std::vector<std::vector<uint8_t>> streams = {
        {0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 4, 1, 4, 1},  // more scanlines than the height
        {255, 1, 255, 2, 255, 3},                     // runs far past the row
        {0, 2, 255, 255, 5, 1},                       // delta past the picture
        {0, 255, 1, 2, 3},                            // absolute run past the stream's end
        {0, 2, 3},                                    // delta cut short
        {200},                                        // half a pair
    };
    for (bool rle8 : {true, false}) {
        for (const auto& s : streams) {
            std::vector<uint8_t> rows(3 * 4 + 8, 0xEE);  // 3 rows of 4 bytes, then a guard
            expandRle(s.data(), s.size(), rle8, rows.data(), 4, 3);
            for (size_t i = 12; i < rows.size(); ++i) EXPECT_EQ(rows[i], 0xEE);
        }
    }
}
