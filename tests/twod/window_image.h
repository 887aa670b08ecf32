// A window's client area read back after a frame, the 2D layer included, and the
// comparison of two such images.
#pragma once

#include <windows.h>

#include <cstdint>
#include <vector>

#include "support/gl_window.h"

namespace tw {

struct WindowImage {
    int width = 0;
    int height = 0;
    std::vector<uint32_t> pixels;  // 0x00RRGGBB, top row first

    tst::Rgb at(int x, int y) const;
    bool inside(int x, int y) const { return x >= 0 && y >= 0 && x < width && y < height; }
};

// The client area of window as the screen shows it (BitBlt of its device context).
WindowImage grab(HWND window);

// A rectangle of window pixels, both corners inclusive.
struct PixelBox {
    int left, top, right, bottom;
    bool contains(int x, int y) const { return x >= left && x <= right && y >= top && y <= bottom; }
};

// The pixels where two images of the same size differ, and their bounding box.
struct Difference {
    int count = 0;
    PixelBox bounds = {1 << 30, 1 << 30, -1, -1};
};
Difference compare(const WindowImage& before, const WindowImage& after);

}  // namespace tw
