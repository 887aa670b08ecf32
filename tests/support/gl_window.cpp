// Test windows: a bare GL window, pixel reads and the pump.
#include "support/gl_window.h"

#include <algorithm>

#include <GL/gl.h>

namespace tst {
namespace {

const char* kGlClass = "TstGlWindow";

}  // namespace

void registerTestClass(const char* name, WNDPROC proc) {
    WNDCLASSA wc = {};
    wc.style = CS_OWNDC | CS_HREDRAW | CS_VREDRAW;
    wc.lpfnWndProc = proc;
    wc.hInstance = GetModuleHandleA(nullptr);
    wc.hCursor = LoadCursor(nullptr, IDC_ARROW);
    wc.lpszClassName = name;
    RegisterClassA(&wc);  // a second registration fails harmlessly
}

HWND createTestWindow(const char* className, int width, int height) {
    RECT frame = {0, 0, width, height};
    AdjustWindowRect(&frame, WS_OVERLAPPEDWINDOW, FALSE);
    HWND hwnd = CreateWindowA(className, className, WS_OVERLAPPEDWINDOW, 40, 40, frame.right - frame.left,
                              frame.bottom - frame.top, nullptr, nullptr, GetModuleHandleA(nullptr), nullptr);
    ShowWindow(hwnd, SW_SHOWNORMAL);
    UpdateWindow(hwnd);
    return hwnd;
}

void pump() {
    MSG msg;
    while (PeekMessageA(&msg, nullptr, 0, 0, PM_REMOVE)) {
        if (msg.message == WM_QUIT) continue;
        TranslateMessage(&msg);
        DispatchMessageA(&msg);
    }
}

Rgb screenPixel(HWND window, int x, int y) {
    HDC dc = GetDC(window);
    const COLORREF c = GetPixel(dc, x, y);
    ReleaseDC(window, dc);
    return {GetRValue(c), GetGValue(c), GetBValue(c)};
}

Picture capture(HWND window) {
    RECT client = {};
    GetClientRect(window, &client);
    Picture picture;
    picture.width = client.right;
    picture.height = client.bottom;
    HDC dc = GetDC(window);
    HDC memory = CreateCompatibleDC(dc);
    HBITMAP bitmap = CreateCompatibleBitmap(dc, picture.width, picture.height);
    HGDIOBJ old = SelectObject(memory, bitmap);
    BitBlt(memory, 0, 0, picture.width, picture.height, dc, 0, 0, SRCCOPY);
    SelectObject(memory, old);
    BITMAPINFO info = {};
    info.bmiHeader = {sizeof(BITMAPINFOHEADER), picture.width, -picture.height, 1, 32, BI_RGB, 0, 0, 0, 0, 0};
    std::vector<RGBQUAD> bits(static_cast<size_t>(picture.width) * picture.height);
    GetDIBits(memory, bitmap, 0, static_cast<UINT>(picture.height), bits.data(), &info, DIB_RGB_COLORS);
    for (const RGBQUAD& q : bits) picture.pixels.push_back({q.rgbRed, q.rgbGreen, q.rgbBlue});
    DeleteObject(bitmap);
    DeleteDC(memory);
    ReleaseDC(window, dc);
    return picture;
}

::testing::AssertionResult samePixels(const Picture& a, const Picture& b) {
    if (a.width != b.width || a.height != b.height) {
        return ::testing::AssertionFailure() << a.width << " x " << a.height << " against " << b.width << " x "
                                             << b.height;
    }
    int count = 0, left = a.width, top = a.height, right = -1, bottom = -1;
    for (int y = 0; y < a.height; ++y) {
        for (int x = 0; x < a.width; ++x) {
            if (a.at(x, y) == b.at(x, y)) continue;
            ++count;
            left = std::min(left, x), right = std::max(right, x);
            top = std::min(top, y), bottom = std::max(bottom, y);
        }
    }
    if (count == 0) return ::testing::AssertionSuccess();
    return ::testing::AssertionFailure() << count << " pixels differ, from (" << left << ", " << top << ") to ("
                                         << right << ", " << bottom << ")";
}

PIXELFORMATDESCRIPTOR scenePixelFormat() {
    PIXELFORMATDESCRIPTOR pfd = {};
    pfd.nSize = sizeof(pfd);
    pfd.nVersion = 1;
    pfd.dwFlags = PFD_DRAW_TO_WINDOW | PFD_SUPPORT_OPENGL | PFD_DOUBLEBUFFER;
    pfd.iPixelType = PFD_TYPE_RGBA;
    pfd.cColorBits = 24;
    pfd.cDepthBits = 16;
    return pfd;
}

GlWindow::GlWindow(int w, int h) : width(w), height(h) {
    registerTestClass(kGlClass, DefWindowProcA);
    hwnd = createTestWindow(kGlClass, w, h);
    dc = GetDC(hwnd);
    const PIXELFORMATDESCRIPTOR pfd = scenePixelFormat();
    SetPixelFormat(dc, ChoosePixelFormat(dc, &pfd), &pfd);
    rc = wglCreateContext(dc);
    makeCurrent();
    glViewport(0, 0, w, h);
    pump();
}

GlWindow::~GlWindow() {
    wglMakeCurrent(nullptr, nullptr);
    wglDeleteContext(rc);
    ReleaseDC(hwnd, dc);
    DestroyWindow(hwnd);
    pump();
}

void GlWindow::makeCurrent() const { wglMakeCurrent(dc, rc); }

void GlWindow::swap() const { SwapBuffers(dc); }

Rgb GlWindow::readPixel(int x, int y) const {
    unsigned char px[4] = {};
    glFinish();
    glReadPixels(x, height - 1 - y, 1, 1, GL_RGBA, GL_UNSIGNED_BYTE, px);
    return {px[0], px[1], px[2]};
}

}  // namespace tst
