// Reading a window's client area back, and comparing two readings.
#include "twod/window_image.h"

#include <algorithm>

namespace tw {

tst::Rgb WindowImage::at(int x, int y) const {
    const uint32_t p = pixels[size_t(y) * size_t(width) + size_t(x)];
    return {int((p >> 16) & 0xFF), int((p >> 8) & 0xFF), int(p & 0xFF)};
}

WindowImage grab(HWND window) {
    RECT client = {};
    GetClientRect(window, &client);
    WindowImage image;
    image.width = client.right;
    image.height = client.bottom;
    image.pixels.resize(size_t(image.width) * size_t(image.height));
    HDC source = GetDC(window);
    HDC memory = CreateCompatibleDC(source);
    HBITMAP bitmap = CreateCompatibleBitmap(source, image.width, image.height);
    HGDIOBJ old = SelectObject(memory, bitmap);
    BitBlt(memory, 0, 0, image.width, image.height, source, 0, 0, SRCCOPY);
    SelectObject(memory, old);
    BITMAPINFO info = {};
    info.bmiHeader.biSize = sizeof(info.bmiHeader);
    info.bmiHeader.biWidth = image.width;
    info.bmiHeader.biHeight = -image.height;  // top row first
    info.bmiHeader.biPlanes = 1;
    info.bmiHeader.biBitCount = 32;
    GetDIBits(memory, bitmap, 0, UINT(image.height), image.pixels.data(), &info, DIB_RGB_COLORS);
    for (uint32_t& p : image.pixels) p &= 0xFFFFFF;
    DeleteObject(bitmap);
    DeleteDC(memory);
    ReleaseDC(window, source);
    return image;
}

Difference compare(const WindowImage& before, const WindowImage& after) {
    Difference d;
    for (int y = 0; y < std::min(before.height, after.height); ++y) {
        for (int x = 0; x < std::min(before.width, after.width); ++x) {
            if (before.at(x, y) == after.at(x, y)) continue;
            ++d.count;
            d.bounds = {std::min(d.bounds.left, x), std::min(d.bounds.top, y), std::max(d.bounds.right, x),
                        std::max(d.bounds.bottom, y)};
        }
    }
    return d;
}

}  // namespace tw
