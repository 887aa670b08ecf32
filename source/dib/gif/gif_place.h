// Placing a decoded GIF image into the rows of the screen-sized bitmap: clipping to
// the logical screen and packing indices into 1-, 4- and 8-bit rows.
#pragma once

#include <cstdint>

namespace ts::gif {

// The pixel rows of the bitmap being filled, bottom row first.
struct Canvas {
    std::uint8_t* bits;
    std::uint32_t width;
    std::uint32_t height;
    std::uint64_t stride;
    unsigned bitCount;  // 1, 4 or 8
};

// An image as its descriptor gives it, in screen pixels from the top left.
struct ImageRect {
    std::uint32_t left, top, width, height;
};

// The part of an image that lands on the screen.
struct Placement {
    std::uint32_t left;  // rounded down to a byte boundary of the bitmap's depth
    std::uint32_t rows;  // lines, cut at the screen's bottom
    std::uint32_t cols;  // pixels a line, cut at the screen's right edge
};

// False when the image lies wholly right of or below the screen.
bool clipToScreen(const Canvas& canvas, const ImageRect& image, Placement& placement);

// Copies image rows into the bitmap. pixels holds the stream lines of the image,
// width bytes each; rowMap (null when not interlaced) gives each row's stream line.
// Rows whose stream line is streamLines or beyond were not decoded and stay as they are.
void placeImage(const Canvas& canvas, const ImageRect& image, const Placement& placement,
                const std::uint8_t* pixels, const std::uint32_t* rowMap,
                std::uint32_t streamLines);

}  // namespace ts::gif
