// Reading a window's client area back, and comparing two readings.
#include "twod/window_image.h"

#include <algorithm>

namespace tw {

tst::Rgb WindowImage::at(int x, int y) const {
    const uint32_t p = pixels[size_t(y) * size_t(width) + size_t(x)];
    return {int((p >> 16) & 0xFF), int((p >> 8) & 0xFF), int(p & 0xFF)};
}

WindowImage grab(HWND window) {
    const tst::Picture picture = tst::capture(window);
    WindowImage image;
    image.width = picture.width;
    image.height = picture.height;
    image.pixels.reserve(picture.pixels.size());
    for (const tst::Rgb& c : picture.pixels) {
        image.pixels.push_back(uint32_t(c.r) << 16 | uint32_t(c.g) << 8 | uint32_t(c.b));
    }
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
