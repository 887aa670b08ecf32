// Expansion of RLE8 and RLE4 code streams into bottom-up pixel rows.
#pragma once

#include <cstddef>
#include <cstdint>

namespace ts::dib {

// Expands `stream` into `rows` rows of `stride` bytes, bottom row first, until the end
// of bitmap code or the end of the stream. Pixels that would land past a row's stride
// or above the last row (long runs, too many lines, far deltas) are dropped, so nothing
// is written outside the rows.
void expandRle(const uint8_t* stream, size_t length, bool rle8, uint8_t* out, int64_t stride, int64_t rows);

}  // namespace ts::dib
