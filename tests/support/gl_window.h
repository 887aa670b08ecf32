// Real top-level windows for drawing tests: a bare OpenGL window, pixel reads and the
// message pump. Neutral: no part of the library is linked here.
#pragma once

#include <windows.h>

#include <vector>

#include <gtest/gtest.h>

namespace tst {

struct Rgb {
    int r = 0, g = 0, b = 0;
    bool operator==(const Rgb& o) const { return r == o.r && g == o.g && b == o.b; }
    bool operator!=(const Rgb& o) const { return !(*this == o); }
};

// Processes every message waiting for this thread's windows (WM_QUIT is dropped).
void pump();

// Colour of a window's client pixel as the screen shows it (GDI, origin top-left).
Rgb screenPixel(HWND window, int x, int y);

// The pixel format a scene asks for by default: a window, OpenGL, double-buffered RGBA,
// 24 colour bits and 16 depth bits.
PIXELFORMATDESCRIPTOR scenePixelFormat();
// A window's client area as GDI reads it from the window's DC, origin top-left.
struct Picture {
    int width = 0, height = 0;
    std::vector<Rgb> pixels;  // row by row from the top
    Rgb at(int x, int y) const { return pixels[static_cast<size_t>(y) * width + x]; }
};
Picture capture(HWND window);
// Success when both pictures have the same size and pixels; else how many pixels
// differ and the box around them.
::testing::AssertionResult samePixels(const Picture& a, const Picture& b);

// A visible window with a double-buffered RGBA OpenGL context, current on this thread.
class GlWindow {
public:
    GlWindow(int width = 128, int height = 128);
    ~GlWindow();
    GlWindow(const GlWindow&) = delete;
    GlWindow& operator=(const GlWindow&) = delete;

    void makeCurrent() const;
    void swap() const;
    // Colour of the back buffer at (x, y), origin top-left, before swap().
    Rgb readPixel(int x, int y) const;
    Rgb screenPixel(int x, int y) const { return tst::screenPixel(hwnd, x, y); }
    void pump() const { tst::pump(); }

    HWND hwnd = nullptr;
    HDC dc = nullptr;
    HGLRC rc = nullptr;
    int width, height;
};

// Registers a window class of this program once (a second registration fails harmlessly).
void registerTestClass(const char* name, WNDPROC proc);
// A visible overlapped window of class className with a client area of width x height.
HWND createTestWindow(const char* className, int width, int height);

}  // namespace tst
