// smDIBfromScene: the bitmap handle holds what the scene window shows, at the size of
// its client area: the 3D frame, the 2D layer over it, and a window that covers part of
// it. The scene is hosted in a test window (the direct path); a library window's copy
// runs through the scene thread.
#include <windows.h>

#include <gtest/gtest.h>

#include "support/child_process.h"
#include "support/gl_window.h"
#include "tessarin.h"
#include "view/scene/cscene.h"
#include "view_fixture.h"

namespace {

// A bitmap handle's pixel at (x, y) from the top.
tst::Rgb dibPixel(HGLOBAL dib, int x, int y) {
    auto* info = static_cast<BITMAPINFOHEADER*>(GlobalLock(dib));
    const int stride = ((info->biWidth * 24 + 31) / 32) * 4;
    const BYTE* bits = reinterpret_cast<const BYTE*>(info) + info->biSize;
    const BYTE* p = bits + static_cast<size_t>(stride) * (info->biHeight - 1 - y) + 3 * x;
    const tst::Rgb c = {p[2], p[1], p[0]};
    GlobalUnlock(dib);
    return c;
}

// Every pixel of the handle against the window's own.
int differingPixels(HGLOBAL dib, HWND window) {
    const tst::Picture shown = tst::capture(window);
    int differing = 0;
    for (int y = 0; y < shown.height; ++y) {
        for (int x = 0; x < shown.width; ++x) differing += dibPixel(dib, x, y) == shown.at(x, y) ? 0 : 1;
    }
    return differing;
}

class SceneBitmap : public vt::ViewTest {};

// A plain window painted in one colour, above everything.
struct Cover {
    Cover(HWND over, int x, int y, int width, int height, COLORREF color) {
        WNDCLASSA wc = {};
        wc.lpfnWndProc = DefWindowProcA;
        wc.hInstance = GetModuleHandleA(nullptr);
        wc.hbrBackground = CreateSolidBrush(color);
        wc.lpszClassName = "TstCover";
        RegisterClassA(&wc);
        POINT at = {x, y};
        ClientToScreen(over, &at);
        hwnd = CreateWindowExA(WS_EX_TOPMOST, "TstCover", "", WS_POPUP | WS_VISIBLE, at.x, at.y, width, height,
                               nullptr, nullptr, wc.hInstance, nullptr);
        UpdateWindow(hwnd);
        tst::pump();
    }
    ~Cover() { DestroyWindow(hwnd); }
    HWND hwnd;
};

}  // namespace

TEST_F(SceneBitmap, HoldsThe3DFrameAndThe2DLayerAtTheClientSize) {
    smShadeMode(TS_SHADE_NONE);  // colours as given
    addQuad(0.0f, 1.0f, 0.0f);
    smAddNode2D(new vt::Fill2DNode(smGetHDC(scene()), RGB(0, 0, 255)));
    paint(0, 0);
    HGLOBAL dib = smDIBfromScene();
    ASSERT_NE(dib, nullptr);
    RECT client;
    GetClientRect(host.hwnd, &client);
    EXPECT_EQ(dibGetWidth(dib), client.right);
    EXPECT_EQ(dibGetHeight(dib), client.bottom);
    EXPECT_EQ(dibGetBitPerPixel(dib), 24);
    auto* info = static_cast<BITMAPINFOHEADER*>(GlobalLock(dib));
    EXPECT_EQ(dibGetColorsInPalette(info), 0u);
    EXPECT_EQ(info->biCompression, static_cast<DWORD>(BI_RGB));
    GlobalUnlock(dib);
    EXPECT_EQ(dibPixel(dib, 80, 60), (tst::Rgb{0, 255, 0}));  // the quad, unlit
    EXPECT_EQ(dibPixel(dib, 5, 5), (tst::Rgb{0, 0, 255}));    // the 2D layer over it
    EXPECT_EQ(dibPixel(dib, 157, 117), (tst::Rgb{0, 0, 0}));  // background
    EXPECT_EQ(differingPixels(dib, host.hwnd), 0);
    GlobalFree(dib);
}

TEST_F(SceneBitmap, TakesTheCoveringWindowWhereTheScreenShowsIt) {
    smShadeMode(TS_SHADE_NONE);
    addQuad(1.0f, 0.0f, 0.0f, 3.0f);
    paint(0, 0);
    Cover cover(host.hwnd, 100, 0, 60, 120, RGB(255, 255, 0));
    HGLOBAL dib = smDIBfromScene();
    ASSERT_NE(dib, nullptr);
    EXPECT_EQ(dibPixel(dib, 40, 60), (tst::Rgb{255, 0, 0}));
    EXPECT_EQ(dibPixel(dib, 130, 60), (tst::Rgb{255, 255, 0}));
    GlobalFree(dib);
}

TST_SCENARIO(CopyThroughTheSceneThread) {
    cWind* window = swCreateWind("Copied scene", 200, 150, 30, 30, WS_OVERLAPPEDWINDOW);
    swShowWind(window);
    cScene* scene = swCreateScene(window);
    smBackground(0.0f, 0.0f, 1.0f);
    smRefreshScene(scene);  // an empty 3D list: the background brush
    HGLOBAL dib = smDIBfromScene();
    ASSERT_NE(dib, nullptr);
    HWND hwnd = smGetHWND(scene);
    RECT client;
    GetClientRect(hwnd, &client);
    EXPECT_EQ(dibGetWidth(dib), client.right);
    EXPECT_EQ(dibGetHeight(dib), client.bottom);
    EXPECT_EQ(dibPixel(dib, 10, 10), (tst::Rgb{0, 0, 255}));
    EXPECT_EQ(differingPixels(dib, hwnd), 0);
    GlobalFree(dib);
}
TEST(SceneBitmapThread, ALibraryWindowIsCopiedOnTheSceneThread) {
    const tst::ChildResult r = tst::runScenario("CopyThroughTheSceneThread");
    EXPECT_EQ(r.exitCode, 0u) << r.output;
}
