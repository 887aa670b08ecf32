// BMP file variants the conformance tests derive from ImageMagick's files where
// ImageMagick cannot write them itself: top-down rows, RLE4, 16- and 32-bit layouts.
#pragma once

#include <cstdint>
#include <vector>

namespace tst {

// The same file with its rows in top-down order and a negative height.
std::vector<uint8_t> topDown(const std::vector<uint8_t>& bmp);

// An uncompressed 4-bit file re-encoded as RLE4 (runs, absolute mode, end of line).
std::vector<uint8_t> toRle4(const std::vector<uint8_t>& bmp4);

// A 16-bit file whose pixels are 5-5-5 made plain (compression 0, no masks).
std::vector<uint8_t> plain16(const std::vector<uint8_t>& bmp16);

// A 40-byte-header file of the pixels of a 16- or 32-bit file, with the given masks as
// bit fields (compression 3, masks behind the header) or, with no masks, plain.
std::vector<uint8_t> withInfoHeader(const std::vector<uint8_t>& bmp, const std::vector<uint32_t>& masks);

}  // namespace tst
