// The row order of interlaced GIF images, shared by decoder and encoder.
#pragma once

#include <cstdint>

namespace ts::gif {

// map[r] = the line of the data stream that holds image row r: rows 0, 8, 16, ...
// come first, then 4, 12, ..., then 2, 6, ..., then 1, 3, 5, ...
void interlaceRowMap(std::uint32_t* map, std::uint32_t height);

// The inverse: order[line] = the image row that stream line holds.
void interlaceRowOrder(std::uint32_t* order, std::uint32_t height);

}  // namespace ts::gif
