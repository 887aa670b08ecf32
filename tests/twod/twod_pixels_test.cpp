// The 2D layer in a library window, read back from the window after each frame: the
// edge cases of the 2D list, state and drawing nodes, and every 2D class drawn once
// over a 3D box, whose pixels stay wherever no 2D pixel is drawn.
#include <gtest/gtest.h>

#include <functional>

#include "twod/library_scene.h"

namespace {

using tw::LibraryScene;

constexpr tst::Rgb kWhite{255, 255, 255};
constexpr tst::Rgb kBlack{0, 0, 0};

// Nodes added by `add` over the red box (absolute coordinates): they must change some
// pixels, and only inside region; everywhere else the 3D frame shows as before. The
// region crosses the box, so the 2D pixels lie over 3D pixels.
struct OverBox {
    tw::WindowImage before, after;
    tw::Difference d;
};
OverBox drawOverBox(const std::function<void()>& add, tw::PixelBox region) {
    LibraryScene& s = LibraryScene::fresh();
    smRelToPos2D(FALSE);
    s.addBox();
    OverBox r;
    r.before = s.frame();
    EXPECT_FALSE(r.before.at(region.left, region.top) == kBlack) << "the region lies on the box";
    add();
    r.after = s.frame();
    r.d = tw::compare(r.before, r.after);
    EXPECT_GT(r.d.count, 0);
    EXPECT_GE(r.d.bounds.left, region.left);
    EXPECT_GE(r.d.bounds.top, region.top);
    EXPECT_LE(r.d.bounds.right, region.right);
    EXPECT_LE(r.d.bounds.bottom, region.bottom);
    return r;
}

HBRUSH blueBrush() {
    static HBRUSH brush = smCreateBrush2D(0.0f, 0.0f, 1.0f, BS_SOLID, 0);
    return brush;
}

HBITMAP greenBitmap(int width, int height) {
    HDC screen = GetDC(nullptr);
    HBITMAP bitmap = CreateCompatibleBitmap(screen, width, height);
    HDC memory = CreateCompatibleDC(screen);
    HGDIOBJ old = SelectObject(memory, bitmap);
    const RECT all = {0, 0, width, height};
    HBRUSH green = CreateSolidBrush(RGB(0, 255, 0));
    FillRect(memory, &all, green);
    DeleteObject(green);
    SelectObject(memory, old);
    DeleteDC(memory);
    ReleaseDC(nullptr, screen);
    return bitmap;
}

}  // namespace

TEST(Pixels2D, ARectangleCoversBothOfItsCorners) {
    LibraryScene& s = LibraryScene::fresh();
    smRelToPos2D(FALSE);
    s.addBox();
    const tw::WindowImage before = s.frame();
    snRectangle2D(nullptr, 10, 10, 20, 20);
    const tw::WindowImage after = s.frame();
    const tw::Difference d = tw::compare(before, after);
    EXPECT_EQ(d.bounds.left, 10);
    EXPECT_EQ(d.bounds.top, 10);
    EXPECT_EQ(d.bounds.right, 20);
    EXPECT_EQ(d.bounds.bottom, 20);
    EXPECT_EQ(after.at(10, 10), kWhite);
    EXPECT_EQ(after.at(20, 20), kWhite);
    EXPECT_EQ(after.at(20, 15), kWhite);
    EXPECT_EQ(after.at(15, 20), kWhite);
    EXPECT_EQ(after.at(15, 15), before.at(15, 15));  // the null brush leaves the inside
}

TEST(Pixels2D, ARelativeLineToReachesThePointBesideThePen) {
    LibraryScene& s = LibraryScene::fresh();
    const tw::WindowImage before = s.frame();
    snMoveTo2D(nullptr, 100, 50);
    snLineTo2D(nullptr, 10, 0);
    // The pen moved with the line, before any frame.
    EXPECT_EQ(s.penPosition().x, 110);
    EXPECT_EQ(s.penPosition().y, 50);
    const tw::WindowImage after = s.frame();
    const tw::Difference d = tw::compare(before, after);
    EXPECT_EQ(d.count, 10);  // (100, 50) to (109, 50): GDI leaves the end point out
    EXPECT_EQ(d.bounds.left, 100);
    EXPECT_EQ(d.bounds.right, 109);
    EXPECT_EQ(d.bounds.top, 50);
    EXPECT_EQ(d.bounds.bottom, 50);
    EXPECT_EQ(s.penPosition().x, 110);
    EXPECT_EQ(s.penPosition().y, 50);
}

TEST(Pixels2D, TheRelativeOffsetIsTakenOnceWhenTheNodeIsSet) {
    LibraryScene& s = LibraryScene::fresh();
    snMoveTo2D(nullptr, 40, 40);
    snPixel2D(nullptr, 5, 5, 0.0f, 1.0f, 0.0f);  // at (45, 45)
    snMoveTo2D(nullptr, 0, 0);                   // a later move does not shift it
    const tw::WindowImage image = s.frame();
    EXPECT_EQ(image.at(45, 45), (tst::Rgb{0, 255, 0}));
    EXPECT_FALSE(image.at(5, 5) == (tst::Rgb{0, 255, 0}));
}

TEST(Pixels2D, WithTheRelativeModeOffCoordinatesCountFromTheCorner) {
    LibraryScene& s = LibraryScene::fresh();
    smRelToPos2D(FALSE);
    snMoveTo2D(nullptr, 40, 40);
    snPixel2D(nullptr, 5, 5, 0.0f, 0.0f, 1.0f);
    const tw::WindowImage image = s.frame();
    EXPECT_EQ(image.at(5, 5), (tst::Rgb{0, 0, 255}));
}

TEST(Pixels2D, ALineLeavesThePenWhereItWas) {
    LibraryScene& s = LibraryScene::fresh();
    snMoveTo2D(nullptr, 20, 20);
    snLine2D(nullptr, 0, 10, 30, 10);  // (20, 30) to (50, 30)
    EXPECT_EQ(s.penPosition().x, 20);
    EXPECT_EQ(s.penPosition().y, 20);
    snLineTo2D(nullptr, 0, 5);         // from the pen, still (20, 20), to (20, 25)
    const tw::WindowImage image = s.frame();
    EXPECT_EQ(image.at(35, 30), kWhite);
    EXPECT_EQ(image.at(20, 22), kWhite);
    EXPECT_EQ(image.at(20, 27), (tst::Rgb{0, 0, 0}));
}

TEST(Pixels2D, AMoveToMovesThePenAtOnce) {
    LibraryScene& s = LibraryScene::fresh();
    snMoveTo2D(nullptr, 60, 70);
    EXPECT_EQ(s.penPosition().x, 60);
    EXPECT_EQ(s.penPosition().y, 70);
}

TEST(Pixels2D, TheBackgroundColourWrapsNothingBelowOne) {
    LibraryScene& s = LibraryScene::fresh();
    smRelToPos2D(FALSE);
    snBackMode2D(nullptr, OPAQUE);
    snBackColor2D(nullptr, 1.0f, 0.5f, 0.0f);
    EXPECT_EQ(GetBkColor(s.dc), RGB(255, 127, 0));
    snText2D(nullptr, 30, 30, "MMM", 1.0f, 1.0f, 1.0f);
    const tw::WindowImage image = s.frame();
    SIZE extent = {};
    GetTextExtentPoint32A(s.dc, "MMM", 3, &extent);
    int background = 0, text = 0, untouched = 0;
    for (int y = 30; y < 30 + extent.cy; ++y) {
        for (int x = 30; x < 30 + extent.cx; ++x) {
            background += image.at(x, y) == tst::Rgb{255, 127, 0};
            text += image.at(x, y) == kWhite;
            untouched += image.at(x, y) == tst::Rgb{0, 0, 0};
        }
    }
    EXPECT_GT(background, extent.cx * extent.cy / 2);
    EXPECT_GT(text, 0);
    EXPECT_EQ(untouched, 0);  // the opaque background fills the whole text cell
    EXPECT_EQ(image.at(30 + extent.cx, 30), (tst::Rgb{0, 0, 0}));
}

TEST(Pixels2D, ColoursAboveOneWrapAround) {
    LibraryScene& s = LibraryScene::fresh();
    smRelToPos2D(FALSE);
    snPixel2D(nullptr, 7, 7, 1.5f, 0.0f, 2.0f);
    EXPECT_EQ(s.frame().at(7, 7), (tst::Rgb{126, 0, 254}));
}

TEST(Pixels2D, ClearingAnEmptyListStillResetsThePenAndRedraws) {
    LibraryScene& s = LibraryScene::fresh();
    s.addBox();
    s.frame();
    MoveToEx(s.dc, 33, 44, nullptr);
    SetPixel(s.dc, 3, 3, RGB(0, 255, 0));
    EXPECT_EQ(tw::grab(s.hwnd).at(3, 3), (tst::Rgb{0, 255, 0}));
    EXPECT_EQ(smClearScene2D(), 1);
    EXPECT_EQ(s.penPosition().x, 0);
    EXPECT_EQ(s.penPosition().y, 0);
    EXPECT_EQ(tw::grab(s.hwnd).at(3, 3), (tst::Rgb{0, 0, 0}));  // the pass painted over it
}

TEST(Pixels2D, TheTwoDListIsDrawnOverABackgroundWithoutThreeDContent) {
    LibraryScene& s = LibraryScene::fresh();
    smRelToPos2D(FALSE);
    snRectangle2D(nullptr, 50, 50, 60, 60);
    const tw::WindowImage image = s.frame();
    EXPECT_EQ(image.at(50, 55), kWhite);
    EXPECT_EQ(image.at(55, 55), (tst::Rgb{0, 0, 0}));
}

// --- every 2D class once over the 3D box ---------------------------------------------

TEST(Over3D, Arc) {
    // Counter-clockwise from 3 o'clock to 9 o'clock: the upper half of the circle.
    const OverBox r = drawOverBox([] { snArc2D(nullptr, 100, 60, 140, 100, 140, 80, 100, 80); }, {100, 60, 140, 81});
    EXPECT_EQ(r.after.at(120, 60), kWhite);
}

TEST(Over3D, BitmapAsItIs) {
    HBITMAP bitmap = greenBitmap(8, 6);
    const OverBox r = drawOverBox([&] { snBitmap2D(nullptr, bitmap, 110, 70, 0, 0, FALSE); }, {110, 70, 117, 75});
    EXPECT_EQ(r.d.count, 48);
    EXPECT_EQ(r.after.at(113, 72), (tst::Rgb{0, 255, 0}));
    smClearScene2D();
    DeleteObject(bitmap);
}

TEST(Over3D, CircleQuarterRunsCounterClockwiseFromThreeOClock) {
    const OverBox r = drawOverBox([] { snCircle2D(nullptr, 120, 80, 20, 0.0f, 90.0f); }, {120, 60, 140, 80});
    EXPECT_EQ(r.after.at(120, 60), kWhite);
}

TEST(Over3D, LineTo) {
    const OverBox r = drawOverBox([] {
        snMoveTo2D(nullptr, 90, 80);
        snLineTo2D(nullptr, 150, 80);
    }, {90, 80, 149, 80});
    EXPECT_EQ(r.d.count, 60);
}

TEST(Over3D, Line) {
    const OverBox r = drawOverBox([] { snLine2D(nullptr, 90, 90, 150, 90); }, {90, 90, 149, 90});
    EXPECT_EQ(r.d.count, 60);
}

TEST(Over3D, RectangleFilledWithTheBrush) {
    const OverBox r = drawOverBox([] {
        snBrush2D(nullptr, blueBrush());
        snRectangle2D(nullptr, 100, 60, 140, 100);
    }, {100, 60, 140, 100});
    EXPECT_EQ(r.after.at(120, 80), (tst::Rgb{0, 0, 255}));
    EXPECT_EQ(r.after.at(100, 80), kWhite);
}

TEST(Over3D, PieFilledWithTheBrush) {
    const OverBox r = drawOverBox([] {
        snBrush2D(nullptr, blueBrush());
        snPie2D(nullptr, 100, 60, 140, 100, 140, 80, 120, 60);
    }, {119, 59, 140, 81});  // wine's ellipse may reach one row above its box
    EXPECT_EQ(r.after.at(128, 72), (tst::Rgb{0, 0, 255}));
}

TEST(Over3D, Pixel) {
    const OverBox r = drawOverBox([] { snPixel2D(nullptr, 120, 80, 1.0f, 0.0f, 1.0f); }, {120, 80, 120, 80});
    EXPECT_EQ(r.after.at(120, 80), (tst::Rgb{255, 0, 255}));
}

TEST(Over3D, PolyBezier) {
    const POINT p[4] = {{90, 100}, {110, 60}, {130, 100}, {150, 60}};
    drawOverBox([&] { snPolyBezier2D(nullptr, p, 4, FALSE); }, {90, 60, 150, 100});
}

TEST(Over3D, PolygonFilledWithTheBrush) {
    const POINT p[3] = {{100, 100}, {140, 100}, {120, 60}};
    const OverBox r = drawOverBox([&] {
        snBrush2D(nullptr, blueBrush());
        snPolygon2D(nullptr, p, 3, ALTERNATE);
    }, {100, 60, 140, 100});
    EXPECT_EQ(r.after.at(120, 90), (tst::Rgb{0, 0, 255}));
}

TEST(Over3D, PolyLine) {
    const POINT p[3] = {{90, 60}, {150, 100}, {90, 100}};
    const OverBox r = drawOverBox([&] { snPolyLine2D(nullptr, p, 3, FALSE); }, {90, 60, 150, 100});
    EXPECT_EQ(r.after.at(120, 100), kWhite);
}

TEST(Over3D, Text) {
    SIZE extent = {};
    const OverBox r = drawOverBox([&] {
        snText2D(nullptr, 110, 75, "Hi", 1.0f, 1.0f, 0.0f);
        GetTextExtentPoint32A(LibraryScene::get().dc, "Hi", 2, &extent);
    }, {110, 75, 140, 110});
    EXPECT_LE(r.d.bounds.right, 110 + extent.cx - 1);
    EXPECT_LE(r.d.bounds.bottom, 75 + extent.cy - 1);
}

TEST(Over3D, TextBlock) {
    drawOverBox([] {
        snTextBlock2D(nullptr, 100, 70, 150, 90, "Tess", DT_CENTER | DT_SINGLELINE | DT_VCENTER, 1.0f, 1.0f, 1.0f);
    }, {100, 70, 149, 89});
}

TEST(Over3D, PenSelectsTheLinesColourAndWidth) {
    HPEN red = smCreatePen2D(0.0f, 1.0f, 1.0f, 3, PS_SOLID);
    const OverBox r = drawOverBox([&] {
        snPen2D(nullptr, red);
        snLine2D(nullptr, 90, 80, 150, 80);
    }, {88, 78, 151, 82});
    EXPECT_EQ(r.after.at(120, 79), (tst::Rgb{0, 255, 255}));
    EXPECT_EQ(r.after.at(120, 81), (tst::Rgb{0, 255, 255}));
    LibraryScene::fresh();
    EXPECT_TRUE(smDelGDIObj(red));
}

TEST(Over3D, FontSelectsTheTextsFace) {
    HFONT big = smCreateFont2D("Tahoma", 40, FW_BOLD, FALSE, FALSE);
    ASSERT_NE(big, nullptr);
    SIZE extent = {};
    const OverBox r = drawOverBox([&] {
        snFont2D(nullptr, big);
        snText2D(nullptr, 100, 60, "W", 1.0f, 1.0f, 1.0f);
        GetTextExtentPoint32A(LibraryScene::get().dc, "W", 1, &extent);
    }, {100, 60, 160, 110});
    EXPECT_GT(r.d.bounds.bottom - r.d.bounds.top, 20);  // taller than the system font
    LibraryScene::fresh();
    EXPECT_TRUE(smDelGDIObj(big));
}

TEST(Over3D, ForeMixInvertsTheFramesPixels) {
    const OverBox r = drawOverBox([] {
        snForeMix2D(nullptr, R2_NOT);
        snLine2D(nullptr, 90, 80, 150, 80);
    }, {90, 80, 149, 80});
    const tst::Rgb under = r.before.at(120, 80);
    EXPECT_EQ(r.after.at(120, 80), (tst::Rgb{255 - under.r, 255 - under.g, 255 - under.b}));
}

TEST(Over3D, BackModeAndColourFillTheTextCell) {
    const OverBox r = drawOverBox([] {
        snBackMode2D(nullptr, OPAQUE);
        snBackColor2D(nullptr, 0.0f, 1.0f, 0.0f);
        snText2D(nullptr, 110, 75, "Hi", 1.0f, 1.0f, 1.0f);
    }, {110, 75, 140, 110});
    EXPECT_EQ(r.after.at(110, 75), (tst::Rgb{0, 255, 0}));
}
