// Real top-level windows for drawing tests: a bare OpenGL window, and an application
// window that hosts a library scene through the se* handlers.
#pragma once

#include <windows.h>

#include <cstdint>

class cScene;

namespace tst {

struct Rgb {
    int r = 0, g = 0, b = 0;
    bool operator==(const Rgb& o) const { return r == o.r && g == o.g && b == o.b; }
};

// Processes every message waiting for this thread's windows (WM_QUIT is dropped).
void pump();

// Colour of a window's client pixel as the screen shows it (GDI, origin top-left).
Rgb screenPixel(HWND window, int x, int y);

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

// An application-owned window whose procedure calls seOnCreate, seOnPaint and
// seOnDestroy: a hosted scene on the caller's thread (no scene thread).
class HostWindow {
public:
    HostWindow(const char* sceneName = "Test scene", int width = 160, int height = 120);
    ~HostWindow();
    HostWindow(const HostWindow&) = delete;
    HostWindow& operator=(const HostWindow&) = delete;

    // Paints the window now (WM_PAINT through the handler) and returns a pixel.
    Rgb paintAndRead(int x, int y);
    Rgb pixel(int x, int y) const { return tst::screenPixel(hwnd, x, y); }

    HWND hwnd = nullptr;
    cScene* scene = nullptr;  // as returned by seOnCreate
};

}  // namespace tst
