// Clipping and packing decoded GIF lines into bitmap rows.
#include "gif_place.h"

#include <algorithm>
#include <cstring>

namespace ts::gif {

namespace {

// Index values are not masked to the depth: a value too large spills into its
// neighbours' bits of the same byte, never beyond it.
void packOneBit(std::uint8_t* row, const Placement& at, const std::uint8_t* line) {
    std::uint8_t* to = row + at.left / 8;
    std::uint32_t whole = at.cols / 8;
    for (std::uint32_t i = 0; i < whole; ++i, line += 8) {
        unsigned byte = 0;
        for (unsigned bit = 0; bit < 8; ++bit) byte |= unsigned{line[bit]} << (7 - bit);
        to[i] = static_cast<std::uint8_t>(byte);
    }
    unsigned rest = at.cols % 8;
    if (rest == 0) return;
    unsigned byte = 0;
    for (unsigned bit = 0; bit < rest; ++bit) byte |= unsigned{line[bit]} << (7 - bit);
    to[whole] = static_cast<std::uint8_t>(byte);
}

// An odd image width adds one high nibble behind the pairs, even when the copied
// width is cut; that nibble is dropped where it would fall outside the row.
void packFourBit(std::uint8_t* row, std::uint64_t stride, const Placement& at,
                 std::uint32_t imageWidth, const std::uint8_t* line) {
    std::uint32_t start = at.left / 2;
    std::uint32_t pairs = at.cols / 2;
    for (std::uint32_t i = 0; i < pairs; ++i)
        row[start + i] = static_cast<std::uint8_t>((line[2 * i] << 4) | line[2 * i + 1]);
    if ((imageWidth & 1) != 0 && start + pairs < stride)
        row[start + pairs] = static_cast<std::uint8_t>(line[2 * pairs] << 4);
}

}  // namespace

bool clipToScreen(const Canvas& canvas, const ImageRect& image, Placement& placement) {
    std::uint64_t leftBits = std::uint64_t{image.left} * canvas.bitCount;
    placement.left = static_cast<std::uint32_t>((leftBits & ~std::uint64_t{7}) / canvas.bitCount);
    if (image.top >= canvas.height || placement.left >= canvas.width) return false;
    placement.rows = std::min(image.height, canvas.height - image.top);
    placement.cols = std::min(image.width, canvas.width - placement.left);
    return true;
}

void placeImage(const Canvas& canvas, const ImageRect& image, const Placement& placement,
                const std::uint8_t* pixels, const std::uint32_t* rowMap,
                std::uint32_t streamLines) {
    // The image's first line lands on the bitmap row counted from the bottom as
    // screen height - top - 1; later lines go one row further down.
    std::uint64_t firstRow = canvas.height - image.top - 1;
    for (std::uint32_t r = 0; r < placement.rows; ++r) {
        std::uint32_t streamLine = rowMap != nullptr ? rowMap[r] : r;
        if (streamLine >= streamLines) continue;
        const std::uint8_t* line = pixels + std::uint64_t{streamLine} * image.width;
        std::uint8_t* row = canvas.bits + (firstRow - r) * canvas.stride;
        if (canvas.bitCount == 8)
            std::memcpy(row + placement.left, line, placement.cols);
        else if (canvas.bitCount == 4)
            packFourBit(row, canvas.stride, placement, image.width, line);
        else
            packOneBit(row, placement, line);
    }
}

}  // namespace ts::gif
