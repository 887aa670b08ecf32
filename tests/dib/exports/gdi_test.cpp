// Bitmaps and device bitmaps on a real window: drawing, stretching and the round trips
// between DIBs and DDBs, checked on the window's pixels.
#include <gtest/gtest.h>

#include "bitmap_handles.h"
#include "support/gl_window.h"
#include "tessarin.h"

using dibt::boxTexts;
using DibHandle = dibt::Handle;
using Texts = std::vector<std::string>;

namespace {

// A plain top-level window that GDI draws into; its client DC is kept.
class PlainWindow {
public:
    PlainWindow() {
        WNDCLASSA wc{};
        wc.lpfnWndProc = DefWindowProcA;
        wc.hInstance = GetModuleHandleA(nullptr);
        wc.lpszClassName = "TessarinDibTestWindow";
        RegisterClassA(&wc);
        hwnd = CreateWindowA(wc.lpszClassName, "dib test", WS_POPUP | WS_VISIBLE, 0, 0, 64, 64, nullptr, nullptr,
                             wc.hInstance, nullptr);
        dc = GetDC(hwnd);
        tst::pump();
        RECT all{0, 0, 64, 64};
        FillRect(dc, &all, static_cast<HBRUSH>(GetStockObject(BLACK_BRUSH)));
    }
    ~PlainWindow() {
        ReleaseDC(hwnd, dc);
        DestroyWindow(hwnd);
    }
    tst::Rgb pixel(int x, int y) const { return tst::screenPixel(hwnd, x, y); }
    HWND hwnd = nullptr;
    HDC dc = nullptr;
};

// A 4 x 2 bitmap: top row red, green, blue, white; bottom row gray levels.
HGLOBAL sample() {
    std::vector<uint8_t> rows = {10, 10, 10, 60, 60, 60, 110, 110, 110, 160, 160, 160,
                                 0, 0, 255, 0, 255, 0, 255, 0, 0, 255, 255, 255};
    return dibt::makeHandle(4, 2, 24, {}, rows);
}

void expectSample(const PlainWindow& w, int x0, int y0, int scale) {
    const tst::Rgb top[4] = {{255, 0, 0}, {0, 255, 0}, {0, 0, 255}, {255, 255, 255}};
    for (int i = 0; i < 4; ++i) {
        EXPECT_EQ(w.pixel(x0 + i * scale, y0), top[i]) << "top " << i;
        int g = 10 + 50 * i;
        EXPECT_EQ(w.pixel(x0 + i * scale + scale - 1, y0 + 2 * scale - 1), (tst::Rgb{g, g, g})) << "bottom " << i;
    }
}

}  // namespace

TEST(DibGdi, DrawAndStretchPutTheRowsTheRightWayUp) {
    PlainWindow w;
    DibHandle dib(sample());
    EXPECT_TRUE(dibDraw(w.dc, dib.get(), nullptr, 2, 3));
    expectSample(w, 2, 3, 1);
    EXPECT_TRUE(dibStretch(w.dc, dib.get(), nullptr, 20, 20, 12, 6));
    expectSample(w, 20, 20, 3);
}

TEST(DibGdi, DeviceBitmapRoundTripKeepsThePixels) {
    PlainWindow w;
    DibHandle dib(sample());
    HBITMAP ddb = dibDIBToDDB(dib.get(), nullptr);
    ASSERT_NE(ddb, nullptr);
    EXPECT_TRUE(dibDrawDDB(w.dc, ddb, nullptr, 1, 1));
    expectSample(w, 1, 1, 1);
    EXPECT_TRUE(dibStretchDDB(w.dc, ddb, nullptr, 30, 10, 8, 4));
    expectSample(w, 30, 10, 2);
    DibHandle back(dibDDBToDIB(ddb, nullptr, 24, 0));
    ASSERT_TRUE(back);
    BITMAPINFOHEADER h = back.header();
    EXPECT_EQ(h.biWidth, 4);
    EXPECT_EQ(h.biHeight, 2);
    EXPECT_EQ(h.biXPelsPerMeter, 2953);
    std::vector<uint8_t> a = dib.bytes(), b = back.bytes();
    ASSERT_EQ(b.size(), 40u + 24u);
    EXPECT_TRUE(std::equal(a.begin() + 40, a.end(), b.begin() + 40));
    DeleteObject(ddb);
}

TEST(DibGdi, DeviceDepthWhenNoBitsAreAsked) {
    HDC screen = GetDC(nullptr);
    HBITMAP ddb = CreateCompatibleBitmap(screen, 5, 3);
    int depth = GetDeviceCaps(screen, BITSPIXEL) * GetDeviceCaps(screen, PLANES);
    ReleaseDC(nullptr, screen);
    ASSERT_NE(ddb, nullptr);
    DibHandle dib(dibDDBToDIB(ddb, nullptr, 0, 0));
    ASSERT_TRUE(dib);
    EXPECT_EQ(dib.header().biBitCount, depth);
    if (depth >= 16) {
        EXPECT_EQ(dib.header().biClrUsed, 0u);
    }
    DeleteObject(ddb);
}

TEST(DibGdi, DrawingRefusals) {
    PlainWindow w;
    HBITMAP ddb = CreateCompatibleBitmap(w.dc, 2, 2);
    HDC broken = reinterpret_cast<HDC>(static_cast<uintptr_t>(0x1234));
    EXPECT_EQ(boxTexts([&] { EXPECT_FALSE(dibDrawDDB(broken, ddb, nullptr, 0, 0)); }),
              Texts{"dibDrawDDB: No memory device contect!"});
    EXPECT_EQ(boxTexts([&] { EXPECT_FALSE(dibStretchDDB(broken, ddb, nullptr, 0, 0, 4, 4)); }),
              Texts{"dibStretchDDB: No memory device context!"});
    DeleteObject(ddb);
}
