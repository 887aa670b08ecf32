// A photo-like 24-bit test picture: smooth shading, hard edges and sensor noise.
#pragma once

#include <cstdint>
#include <vector>

namespace bench {

// A packed 24-bit bitmap (40-byte header, bottom-up rows) of width x height pixels.
std::vector<uint8_t> photoDib(int width, int height);

// The same picture as a binary PPM file, for the peer programs.
std::vector<uint8_t> photoPpm(const std::vector<uint8_t>& dib);

// A 16-bit 5-5-5 and a 32-bit bitmap with the same pixels.
std::vector<uint8_t> asDepth(const std::vector<uint8_t>& dib24, int bits);

}  // namespace bench
