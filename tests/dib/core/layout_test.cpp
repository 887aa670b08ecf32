// Tests of the bitmap layout rules: colour count, pixel offset, stride, headers.
#include <gtest/gtest.h>

#include "dib/core/dib_layout.h"
#include "dib/core/palette.h"

using namespace ts::dib;

TEST(DibLayout, ColourCountFollowsClrUsedThenDepth) {
    InfoHeader h = newHeader(4, 4, 8);
    h.biClrUsed = 20;
    EXPECT_EQ(colorCount(h), 20u);
    h = newHeader(4, 4, 24);
    EXPECT_EQ(colorCount(h), 0u);
    h = newHeader(4, 4, 4);
    EXPECT_EQ(colorCount(h), 16u);
    h = newHeader(4, 4, 1);
    EXPECT_EQ(colorCount(h), 2u);
}

TEST(DibLayout, BitFieldPixelsLieBehindTheMasks) {
    InfoHeader h = newHeader(4, 4, 16);
    h.biCompression = kBiBitfields;
    EXPECT_EQ(pixelOffset(h), 52u);
    h.biCompression = kBiRgb;
    EXPECT_EQ(pixelOffset(h), 40u);
    h = newHeader(4, 4, 8);
    EXPECT_EQ(pixelOffset(h), 40u + 1024u);
}

TEST(DibLayout, StrideIsPaddedToFourBytes) {
    EXPECT_EQ(strideOf(1, 1), 4);
    EXPECT_EQ(strideOf(33, 1), 8);
    EXPECT_EQ(strideOf(7, 24), 24);
    EXPECT_EQ(strideOf(5, 4), 4);
    EXPECT_EQ(strideOf(9, 4), 8);
}

TEST(DibLayout, NewHeaderCarriesTheLibraryDefaults) {
    InfoHeader h = newHeader(3, -2, 24);
    EXPECT_EQ(h.biSize, 40u);
    EXPECT_EQ(h.biPlanes, 1);
    EXPECT_EQ(h.biXPelsPerMeter, 2953);
    EXPECT_EQ(h.biYPelsPerMeter, 2953);
    EXPECT_EQ(h.biSizeImage, 24u);
}

TEST(DibLayout, ShortBlockReadsAsZeroHeader) {
    uint8_t bytes[6] = {40, 0, 0, 0, 9, 0};
    InfoHeader h = readHeader(bytes, sizeof bytes);
    EXPECT_EQ(h.biSize, 40u);
    EXPECT_EQ(h.biWidth, 9);
    EXPECT_EQ(h.biBitCount, 0);
    EXPECT_EQ(readHeader(nullptr, 0).biSize, 0u);
}

TEST(DibPalette, FixedPaletteIsAnEightByEightByFourCube) {
    PaletteEntry e9 = fixedPaletteEntry(9);
    EXPECT_EQ(e9.red, 32);
    EXPECT_EQ(e9.green, 32);
    EXPECT_EQ(e9.blue, 0);
    PaletteEntry e255 = fixedPaletteEntry(255);
    EXPECT_EQ(e255.red, 224);
    EXPECT_EQ(e255.green, 224);
    EXPECT_EQ(e255.blue, 192);
    EXPECT_EQ(e255.flags, 0);
}

TEST(DibPalette, DdbHeaderTakesPlanesTimesBitsWhenAskedForZero) {
    InfoHeader h = ddbHeader(10, 5, 1, 32, 0, 0);
    EXPECT_EQ(h.biBitCount, 32);
    EXPECT_EQ(h.biClrUsed, 0u);
    EXPECT_EQ(h.biSizeImage, 0u);
    EXPECT_EQ(h.biXPelsPerMeter, 2953);
    h = ddbHeader(10, 5, 1, 32, 8, 1);
    EXPECT_EQ(h.biClrUsed, 256u);
    EXPECT_EQ(h.biCompression, 1u);
}
