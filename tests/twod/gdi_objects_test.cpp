// GDI hygiene of the 2D layer: a scene with every 2D class over a 3D box, drawn 10,000
// times, leaves the process's count of GDI objects where it was; and the nodes never
// delete the caller's pens, brushes, fonts and bitmaps.
#include <gtest/gtest.h>

#include "support/resource_counts.h"
#include "twod/library_scene.h"

namespace {

using tw::LibraryScene;

// The caller's objects, made before the count starts.
struct CallerObjects {
    HPEN pen = smCreatePen2D(1.0f, 1.0f, 0.0f, 2, PS_DASH);
    HBRUSH brush = smCreateBrush2D(0.0f, 0.5f, 1.0f, BS_HATCHED, HS_DIAGCROSS);
    HFONT font = smCreateFont2D("Tahoma", 18, FW_BOLD, TRUE, TRUE);
    HBITMAP bitmap = nullptr;

    CallerObjects() {
        HDC screen = GetDC(nullptr);
        bitmap = CreateCompatibleBitmap(screen, 16, 16);
        ReleaseDC(nullptr, screen);
    }
    // Every object is still alive, so deleting it succeeds.
    void deleteAll() {
        EXPECT_TRUE(smDelGDIObj(pen));
        EXPECT_TRUE(smDelGDIObj(brush));
        EXPECT_TRUE(smDelGDIObj(font));
        EXPECT_TRUE(smDelGDIObj(bitmap));
    }
};

void addEveryTwoDClass(const CallerObjects& o) {
    const POINT p[4] = {{10, 60}, {40, 20}, {70, 100}, {100, 60}};
    snPen2D(nullptr, o.pen);
    snBrush2D(nullptr, o.brush);
    snFont2D(nullptr, o.font);
    snBackColor2D(nullptr, 0.2f, 0.2f, 0.2f);
    snBackMode2D(nullptr, OPAQUE);
    snForeMix2D(nullptr, R2_COPYPEN);
    snMoveTo2D(nullptr, 5, 5);
    snLineTo2D(nullptr, 50, 10);
    snLine2D(nullptr, 0, 20, 100, 20);
    snPolyLine2D(nullptr, p, 4, TRUE);
    snPolyBezier2D(nullptr, p, 4, FALSE);
    snPolygon2D(nullptr, p, 4, WINDING);
    snRectangle2D(nullptr, 30, 30, 60, 50);
    snPixel2D(nullptr, 3, 3, 1.0f, 0.0f, 0.0f);
    snArc2D(nullptr, 60, 60, 90, 90, 90, 75, 60, 75);
    snPie2D(nullptr, 100, 60, 130, 90, 130, 75, 115, 60);
    snCircle2D(nullptr, 150, 50, 20, 45.0f, 270.0f);
    snText2D(nullptr, 10, 110, "Frame", 1.0f, 1.0f, 1.0f);
    snTextBlock2D(nullptr, 100, 100, 200, 140, "Block of text", DT_CENTER | DT_WORDBREAK, 0.0f, 1.0f, 0.0f);
    snBitmap2D(nullptr, o.bitmap, 150, 120, 0, 0, FALSE);
    snBitmap2D(nullptr, o.bitmap, 0, 0, 200, 150, TRUE);
}

}  // namespace

TEST(GdiObjects, TheCountSeesEveryObjectMadeAndDeleted) {
    const long before = tst::countGdiObjects();
    HPEN pen = CreatePen(PS_SOLID, 1, RGB(1, 2, 3));
    HDC memory = CreateCompatibleDC(nullptr);
    EXPECT_EQ(tst::countGdiObjects(), before + 2);
    DeleteDC(memory);
    DeleteObject(pen);
    EXPECT_EQ(tst::countGdiObjects(), before);
}

TEST(GdiObjects, TenThousandFramesOfAFullTwoDListLeaveTheCountFlat) {
    LibraryScene& s = LibraryScene::fresh();
    CallerObjects objects;
    s.addBox();
    addEveryTwoDClass(objects);
    smRefreshScene(s.scene);  // first use of every object outside the count
    const long before = tst::countGdiObjects();
    ASSERT_GT(before, 0L);
    for (int frame = 0; frame < 10000; ++frame) smRefreshScene(s.scene);
    const long after = tst::countGdiObjects();
    EXPECT_EQ(after, before);
    LibraryScene::fresh();  // the nodes go, the objects stay the caller's
    objects.deleteAll();
}

TEST(GdiObjects, SettingAndEditingNodesMakesNoObjects) {
    LibraryScene& s = LibraryScene::fresh();
    CallerObjects objects;
    const long before = tst::countGdiObjects();
    for (int round = 0; round < 200; ++round) {
        addEveryTwoDClass(objects);
        smClearScene2D();
    }
    EXPECT_EQ(tst::countGdiObjects(), before);
    LibraryScene::fresh();
    objects.deleteAll();
    (void)s;
}
