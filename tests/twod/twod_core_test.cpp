// The GDI-free parts of the 2D layer and of text and bitmaps in 3D: colour conversion,
// circle end points, outline text scales, glDrawPixels byte counts and text copies.
#include <gtest/gtest.h>

#include <cmath>
#include <cstring>
#include <limits>

#include "cobj_2d/circle_arc.h"
#include "math/gdi_color.h"
#include "tsobj3d/text_copy.h"
#include "tsobj3d/visible/pixel_rect.h"
#include "tsobj3d/visible/text_scale.h"

namespace {

uint32_t rgb(uint32_t r, uint32_t g, uint32_t b) { return r | g << 8 | b << 16; }

}  // namespace

TEST(GdiColor, ComponentsAreTruncatedProductsInTheGdiLayout) {
    EXPECT_EQ(ts::gdiColor(1.0f, 0.5f, 0.0f), rgb(255, 127, 0));
    EXPECT_EQ(ts::gdiColor(0.0f, 0.0f, 1.0f), rgb(0, 0, 255));
    EXPECT_EQ(ts::colorChannel(0.999f), 254);  // 254.745 truncated
}

TEST(GdiColor, ComponentsAboveOneWrapAroundWithoutClamping) {
    EXPECT_EQ(ts::colorChannel(1.5f), 126);   // 382.5 -> 382 -> low byte 126
    EXPECT_EQ(ts::colorChannel(2.0f), 254);   // 510 -> 254
    EXPECT_EQ(ts::colorChannel(-0.5f), 129);  // -127.5 -> -127 -> 0x81
}

TEST(GdiColor, ValuesBeyondTheIntegerRangeGiveZero) {
    EXPECT_EQ(ts::colorChannel(1e30f), 0);
    EXPECT_EQ(ts::colorChannel(-1e30f), 0);
    EXPECT_EQ(ts::colorChannel(std::numeric_limits<float>::quiet_NaN()), 0);
    EXPECT_EQ(ts::colorChannel(std::numeric_limits<float>::infinity()), 0);
}

TEST(CircleArc, BoundingSquareAroundTheCentre) {
    const ts::ArcCall a = ts::circleArc(100, 50, 20, 0.0f, 90.0f);
    EXPECT_EQ(a.left, 80);
    EXPECT_EQ(a.top, 30);
    EXPECT_EQ(a.right, 120);
    EXPECT_EQ(a.bottom, 70);
}

TEST(CircleArc, AnglesGrowCounterClockwiseOnTheScreen) {
    // 0 degrees at 3 o'clock, 90 degrees at 12 o'clock (y is downwards).
    const ts::ArcCall a = ts::circleArc(100, 50, 20, 0.0f, 90.0f);
    EXPECT_EQ(a.xStart, 120);
    EXPECT_EQ(a.yStart, 50);
    EXPECT_EQ(a.xEnd, 100);
    EXPECT_EQ(a.yEnd, 30);
    const ts::ArcCall b = ts::circleArc(0, 0, 10, 180.0f, 90.0f);
    EXPECT_EQ(b.xStart, -10);
    EXPECT_EQ(b.yStart, 0);  // 10 sin(pi) is a tiny positive value, truncated to 0
    EXPECT_EQ(b.xEnd, 0);
    EXPECT_EQ(b.yEnd, 10);   // 270 degrees: 6 o'clock
}

TEST(CircleArc, OffsetsAreTruncatedTowardZeroBeforeTheyAreAdded) {
    // 45 degrees, radius 10: 7.07 on both axes.
    const ts::ArcCall a = ts::circleArc(0, 0, 10, 45.0f, 90.0f);
    EXPECT_EQ(a.xStart, 7);
    EXPECT_EQ(a.yStart, -7);
    // 135 degrees: x offset -7.07 truncates to -7, not -8.
    EXPECT_EQ(a.xEnd, -7);
    EXPECT_EQ(a.yEnd, -7);
}

TEST(CircleArc, AFullSweepEndsWhereItStarts) {
    const ts::ArcCall a = ts::circleArc(40, 40, 15, 30.0f, 360.0f);
    EXPECT_EQ(a.xStart, a.xEnd);
    EXPECT_EQ(a.yStart, a.yEnd);
}

TEST(CircleArc, HugeValuesStayDefined) {
    const ts::ArcCall a = ts::circleArc(2147483647, -2147483647, 2147483647, 1e30f, 1e30f);
    (void)a;  // no undefined conversion (the sanitizers check)
    SUCCEED();
}

namespace {

// Glyphs with cell increment 0.5 + code / 1000 and black-box height code / 100.
struct Glyphs {
    ts::GlyphMetrics g[256] = {};
    Glyphs() {
        for (int i = 0; i < 256; ++i) {
            g[i].cellIncX = 0.5f + float(i) / 1000.0f;
            g[i].blackBoxY = float(i) / 100.0f;
        }
    }
};

}  // namespace

TEST(OutlineTextScale, ZeroWidthAndHeightKeepTheFontsOwnSize) {
    Glyphs glyphs;
    const ts::TextScale s = ts::outlineTextScale(glyphs.g, "AB", 2, 0.0f, 0.0f);
    EXPECT_EQ(s.x, 1.0f);
    EXPECT_EQ(s.y, 1.0f);
}

TEST(OutlineTextScale, AWidthScalesToThatWidthAndKeepsTheProportions) {
    Glyphs glyphs;
    const float total = glyphs.g['A'].cellIncX + glyphs.g['B'].cellIncX;
    const ts::TextScale s = ts::outlineTextScale(glyphs.g, "AB", 2, 2.0f, 0.0f);
    EXPECT_FLOAT_EQ(s.x, 2.0f / total);
    EXPECT_EQ(s.y, s.x);
}

TEST(OutlineTextScale, AHeightScalesTheTallestBlackBoxToIt) {
    Glyphs glyphs;
    // 'B' (66) is taller than 'A' (65): 0.66 units.
    const ts::TextScale s = ts::outlineTextScale(glyphs.g, "AB", 2, 0.0f, 1.32f);
    EXPECT_EQ(s.x, 1.0f);
    EXPECT_FLOAT_EQ(s.y, 2.0f);
}

TEST(OutlineTextScale, CharactersAboveTheAsciiRangeUseTheirOwnEntries) {
    Glyphs glyphs;
    const char text[] = "\xE9";
    const ts::TextScale s = ts::outlineTextScale(glyphs.g, text, 1, 1.0f, 0.0f);
    EXPECT_FLOAT_EQ(s.x, 1.0f / glyphs.g[0xE9].cellIncX);
}

TEST(OutlineTextScale, AnEmptyTextKeepsScaleOneInsteadOfDividingByZero) {
    Glyphs glyphs;
    const ts::TextScale s = ts::outlineTextScale(glyphs.g, "", 0, 2.0f, 3.0f);
    EXPECT_EQ(s.x, 1.0f);
    EXPECT_EQ(s.y, 1.0f);
}

TEST(DrawPixelsBytes, RowsArePaddedToTheAlignmentExceptTheLast) {
    // A 3 x 3 bitmap of 24 bits: rows of 9 bytes padded to 12.
    EXPECT_EQ(ts::drawPixelsBytes(3, 3, 0x80E0, 0x1401, 4), 12 * 2 + 9);
    EXPECT_EQ(ts::drawPixelsBytes(4, 2, 0x1907, 0x1401, 4), 12 + 12);
    EXPECT_EQ(ts::drawPixelsBytes(3, 3, 0x1908, 0x1406, 4), 48 * 2 + 48);  // RGBA floats
    EXPECT_EQ(ts::drawPixelsBytes(5, 1, 0x1909, 0x1401, 1), 5);
}

TEST(DrawPixelsBytes, EmptyRectanglesReadNothingAndUnknownKindsAreRefused) {
    EXPECT_EQ(ts::drawPixelsBytes(0, 3, 0x80E0, 0x1401, 4), 0);
    EXPECT_EQ(ts::drawPixelsBytes(3, -3, 0x80E0, 0x1401, 4), 0);
    EXPECT_EQ(ts::drawPixelsBytes(3, 3, 0x1234, 0x1401, 4), -1);
    EXPECT_EQ(ts::drawPixelsBytes(3, 3, 0x80E0, 0x1A00 /* GL_BITMAP */, 4), -1);
}

TEST(DrawPixelsBytes, HugeHeadersDoNotOverflow) {
    const int64_t bytes = ts::drawPixelsBytes(2147483647, 2147483647, 0x1908, 0x1406, 4);
    EXPECT_EQ(bytes, INT64_MAX);
    EXPECT_EQ(ts::drawPixelsBytes(2147483647, 2, 0x1908, 0x1406, 1), int64_t(16) * 2147483647 * 2);
}

TEST(TextCopy, TheCopyKeepsItsTerminatingZero) {
    const char text[] = "Tessarin";
    std::unique_ptr<char[]> copy = ts::copyText(text);
    ASSERT_TRUE(copy);
    EXPECT_NE(copy.get(), text);
    EXPECT_EQ(std::memcmp(copy.get(), text, sizeof(text)), 0);
    EXPECT_EQ(copy[8], '\0');
    EXPECT_FALSE(ts::copyText(nullptr));
    EXPECT_STREQ(ts::copyText("").get(), "");
}
