// Text and bitmaps in the 3D scene through the DLL, read back from a library window:
// font list bases, bitmap and outline text (its scales, the outline record's layout),
// and 24-bit bitmaps drawn without shear.
#include <gtest/gtest.h>

#include <GL/gl.h>

#include <cmath>
#include <cstddef>
#include <cstring>

#include "support/child_process.h"
#include "twod/library_scene.h"

namespace {

using tw::LibraryScene;

constexpr unsigned kBgrExt = 0x80E0;  // GL_BGR_EXT

HFONT testFont() {
    static HFONT font = smCreateFont2D("Tahoma", 24, FW_NORMAL, FALSE, FALSE);
    return font;
}

// A plain scene: no lighting or depth test, so text and pixels show their own colours.
LibraryScene& plainScene() {
    LibraryScene& s = LibraryScene::fresh();
    smShadeMode(TS_SHADE_NONE);
    snColorRGB(nullptr, 1.0f, 1.0f, 1.0f);
    return s;
}

// Pixels of the window per scene unit in the plane z = 0: the default camera sits at
// z = 5 with a vertical field of view of 45 degrees.
double pixelsPerUnit(const LibraryScene& s) { return s.height / (2.0 * 5.0 * std::tan(22.5 * 3.14159265358979 / 180.0)); }

// The window pixels that are not the black background.
tw::Difference litPixels(const tw::WindowImage& image) {
    tw::WindowImage black = image;
    for (uint32_t& p : black.pixels) p = 0;
    return tw::compare(black, image);
}

// A 24-bit bitmap block of width x height whose pixel (x, y) (y from the bottom row)
// has the colour colorOf(x, y) as 0xRRGGBB.
template <class ColorOf>
HGLOBAL bitmap24(int width, int height, ColorOf colorOf) {
    const int stride = (width * 3 + 3) / 4 * 4;
    HGLOBAL block = GlobalAlloc(GMEM_MOVEABLE | GMEM_ZEROINIT, 40 + size_t(stride) * height);
    auto* info = static_cast<BITMAPINFOHEADER*>(GlobalLock(block));
    info->biSize = 40;
    info->biWidth = width;
    info->biHeight = height;
    info->biPlanes = 1;
    info->biBitCount = 24;
    BYTE* rows = reinterpret_cast<BYTE*>(info) + 40;
    for (int y = 0; y < height; ++y) {
        for (int x = 0; x < width; ++x) {
            const uint32_t c = colorOf(x, y);
            BYTE* p = rows + size_t(y) * stride + size_t(x) * 3;
            p[0] = BYTE(c), p[1] = BYTE(c >> 8), p[2] = BYTE(c >> 16);  // blue, green, red
        }
    }
    GlobalUnlock(block);
    return block;
}

}  // namespace

TST_SCENARIO(FontBasesOfAFreshScene) {
    cWind* window = swCreateWind("Fonts", 120, 100, 10, 10, WS_OVERLAPPEDWINDOW);
    cScene* scene = swCreateScene(window);
    ASSERT_NE(scene, nullptr);
    HFONT font = smCreateFont2D("Tahoma", 16, FW_NORMAL, FALSE, FALSE);
    const unsigned first = smCreateFontBMP(font);
    const unsigned second = smCreateFontBMP(font);
    EXPECT_EQ(first, 1000u);
    EXPECT_EQ(second, first + 256);
    smOutlineFontRecord* outline = smCreateFontEXT(font, 0.0f, 0.0f);
    EXPECT_EQ(outline->listBase, second + 256);
    GlobalFree(outline);
}

TEST(Fonts, TwoFontsOnAFreshSceneHaveBasesThatDifferBy256) {
    const tst::ChildResult r = tst::runScenario("FontBasesOfAFreshScene");
    EXPECT_EQ(r.exitCode, 0u) << r.output;
}

TEST(TextBMP, TextDrawsAtTheOriginOfTheModelCoordinates) {
    LibraryScene& s = plainScene();
    const unsigned base = smCreateFontBMP(testFont());
    snTextBMP(nullptr, "HH", base);
    const tw::Difference lit = litPixels(s.frame());
    const int cx = s.width / 2, cy = s.height / 2;
    ASSERT_GT(lit.count, 20);
    // The glyphs stand on the raster position: right of and above the window's centre.
    EXPECT_NEAR(lit.bounds.left, cx, 3);
    EXPECT_NEAR(lit.bounds.bottom, cy, 3);
    EXPECT_GT(lit.bounds.right, cx + 10);
    EXPECT_LT(lit.bounds.top, cy - 10);
}

TEST(TextBMP, ListBaseZeroDrawsNothing) {
    LibraryScene& s = plainScene();
    snTextBMP(nullptr, "HH", 0);
    EXPECT_EQ(litPixels(s.frame()).count, 0);
}

TEST(TextBMP, AnEditReplacesTheTextAndItsCopyIsTheNodesOwn) {
    LibraryScene& s = plainScene();
    const unsigned base = smCreateFontBMP(testFont());
    char text[] = "HHHHHH";
    cNode* node = snTextBMP(nullptr, text, base);
    std::memset(text, 0, sizeof(text));  // the node keeps its own copy
    const int wide = litPixels(s.frame()).bounds.right;
    EXPECT_EQ(snTextBMP(node, "H", base), node);
    const int narrow = litPixels(s.frame()).bounds.right;
    EXPECT_LT(narrow, wide - 20);
}

TEST(OutlineRecord, TheRecordKeepsItsLayoutAtRunTime) {
    plainScene();
    smOutlineFontRecord* record = smCreateFontEXT(testFont(), 0.01f, 0.25f);
    ASSERT_NE(record, nullptr);
    EXPECT_EQ(sizeof(smOutlineFontRecord), 6156u);
    EXPECT_EQ(offsetof(smOutlineFontRecord, glyphs), 12u);
    EXPECT_GE(GlobalSize(record), 6156u);
    const BYTE* bytes = reinterpret_cast<const BYTE*>(record);
    uint32_t base;
    float deviation, extrusion, cellW, cellI, boxH;
    std::memcpy(&base, bytes, 4);
    std::memcpy(&deviation, bytes + 4, 4);
    std::memcpy(&extrusion, bytes + 8, 4);
    std::memcpy(&cellW, bytes + 12 + 'W' * 24 + 16, 4);  // cell increment x of 'W'
    std::memcpy(&cellI, bytes + 12 + 'i' * 24 + 16, 4);
    std::memcpy(&boxH, bytes + 12 + 'H' * 24 + 4, 4);    // black-box height of 'H'
    EXPECT_EQ(base, record->listBase);
    EXPECT_GE(base, 1000u);
    EXPECT_EQ(deviation, 0.01f);
    EXPECT_EQ(extrusion, 0.25f);
    EXPECT_GT(cellW, cellI);        // a wide and a narrow letter
    EXPECT_GT(cellW, 0.3f);         // in em units: about one unit per em
    EXPECT_LT(cellW, 2.0f);
    EXPECT_GT(boxH, 0.3f);
    EXPECT_LT(boxH, 1.2f);
    EXPECT_EQ(GlobalFree(record), nullptr);  // the caller's block
}

namespace {

struct OutlineText {
    tw::Difference lit;
    double expectedWidth;  // pixels from the first to the last glyph's ink, at scale 1
    float totalWidth;      // sum of the cell increments, em units
};

OutlineText drawOutline(float width, float height) {
    LibraryScene& s = plainScene();
    smOutlineFontRecord* font = smCreateFontEXT(testFont(), 0.0f, 0.0f);
    snTextEXT(nullptr, "HH", font, width, height);
    const GLYPHMETRICSFLOAT& h = font->glyphs['H'];
    OutlineText t;
    t.totalWidth = 2 * h.gmfCellIncX;
    t.expectedWidth = (h.gmfCellIncX + h.gmfBlackBoxX) * pixelsPerUnit(s);
    GlobalFree(font);  // the node keeps what it needs
    t.lit = litPixels(s.frame());
    return t;
}

int widthOf(const tw::Difference& d) { return d.bounds.right - d.bounds.left + 1; }
int heightOf(const tw::Difference& d) { return d.bounds.bottom - d.bounds.top + 1; }

}  // namespace

TEST(TextEXT, ZeroWidthAndHeightDrawAtTheFontsOwnSize) {
    const OutlineText t = drawOutline(0.0f, 0.0f);
    ASSERT_GT(t.lit.count, 50);
    EXPECT_NEAR(widthOf(t.lit), t.expectedWidth, 3.0);
}

TEST(TextEXT, AWidthOfTwoUnitsScalesTheTextAndKeepsItsProportions) {
    const OutlineText own = drawOutline(0.0f, 0.0f);
    const OutlineText two = drawOutline(2.0f, 0.0f);
    const double scale = 2.0 / own.totalWidth;
    EXPECT_NEAR(widthOf(two.lit), widthOf(own.lit) * scale, 3.0);
    EXPECT_NEAR(heightOf(two.lit), heightOf(own.lit) * scale, 3.0);
    // Two units wide from the origin, up to the last glyph's right bearing.
    EXPECT_LE(two.lit.bounds.right, LibraryScene::get().width / 2 + 2.0 * pixelsPerUnit(LibraryScene::get()) + 2);
}

TEST(TextEXT, AHeightStretchesTheTextUpOnly) {
    const OutlineText own = drawOutline(0.0f, 0.0f);
    const OutlineText tall = drawOutline(0.0f, 2.0f);
    EXPECT_NEAR(widthOf(tall.lit), widthOf(own.lit), 2.0);
    EXPECT_NEAR(heightOf(tall.lit), 2.0 * pixelsPerUnit(LibraryScene::get()), 3.0);
}

TEST(TextEXT, ANullRecordGivesANodeThatDrawsNothing) {
    LibraryScene& s = plainScene();
    ASSERT_NE(snTextEXT(nullptr, "HH", nullptr, 0.0f, 0.0f), nullptr);
    EXPECT_EQ(litPixels(s.frame()).count, 0);
}

TEST(Bitmap3D, AThreeByThreeBitmapIsDrawnWithoutShear) {
    LibraryScene& s = plainScene();
    // Rows of 9 bytes padded to 12; every pixel its own colour.
    auto colorOf = [](int x, int y) { return uint32_t(0x400000 * (x + 1) + 0x4000 * (y + 1) + 0x80); };
    HGLOBAL dib = bitmap24(3, 3, colorOf);
    snBitmap(nullptr, dib, 10.0f, 0, kBgrExt, GL_UNSIGNED_BYTE);
    const tw::WindowImage image = s.frame();
    const int cx = s.width / 2, cy = s.height / 2;
    for (int y = 0; y < 3; ++y) {
        for (int x = 0; x < 3; ++x) {
            const uint32_t c = colorOf(x, y);
            // Zoomed ten times from the raster position, bottom row first.
            const tst::Rgb at = image.at(cx + 10 * x + 5, cy - 10 * y - 5);
            EXPECT_EQ(at, (tst::Rgb{int(c >> 16), int((c >> 8) & 0xFF), int(c & 0xFF)})) << x << "," << y;
        }
    }
    EXPECT_EQ(litPixels(image).count, 900);
    smClearScene();
    EXPECT_EQ(GlobalFree(dib), nullptr);  // the node never owned it
}

TEST(Bitmap3D, AnEditKeepsTheNodeAndABitmapTooShortForItsHeaderDrawsNothing) {
    LibraryScene& s = plainScene();
    HGLOBAL dib = bitmap24(2, 2, [](int, int) { return 0xFFFFFFu; });
    cNode* node = snBitmap(nullptr, dib, 4.0f, 0, kBgrExt, GL_UNSIGNED_BYTE);
    EXPECT_EQ(litPixels(s.frame()).count, 64);
    // A header that claims a thousand rows in a block of two.
    auto* info = static_cast<BITMAPINFOHEADER*>(GlobalLock(dib));
    info->biHeight = 1000;
    GlobalUnlock(dib);
    EXPECT_EQ(snBitmap(node, dib, 4.0f, 0, kBgrExt, GL_UNSIGNED_BYTE), node);
    EXPECT_EQ(litPixels(s.frame()).count, 0);
    // Floats read four times the bytes of the block.
    info = static_cast<BITMAPINFOHEADER*>(GlobalLock(dib));
    info->biHeight = 2;
    GlobalUnlock(dib);
    EXPECT_EQ(snBitmap(node, dib, 4.0f, 0, GL_RGB, GL_FLOAT), node);
    EXPECT_EQ(litPixels(s.frame()).count, 0);
    smClearScene();
    GlobalFree(dib);
}

TEST(Bitmap3D, EditingThroughAnotherClassGivesNull) {
    plainScene();
    cNode* text = snTextBMP(nullptr, "x", 0);
    HGLOBAL dib = bitmap24(1, 1, [](int, int) { return 0u; });
    EXPECT_EQ(snBitmap(text, dib, 1.0f, 0, kBgrExt, GL_UNSIGNED_BYTE), nullptr);
    smClearScene();
    GlobalFree(dib);
}
