// The 32 x 32 x 32 colour cells the reductions quantise on, and error diffusion.
#pragma once

#include <cstdint>

#include "dib/core/dib_layout.h"

namespace ts::dib {

constexpr uint32_t kCells = 32768;

// Cell of a pixel from its blue, green, red bytes.
inline uint32_t cellOf(const uint8_t* bgr) {
    return (uint32_t(bgr[2] >> 3) << 10) | (uint32_t(bgr[1] >> 3) << 5) | uint32_t(bgr[0] >> 3);
}
// A cell's representative colour: each 5-bit level times 8.
inline RgbQuad cellColor(uint32_t cell) {
    return RgbQuad{uint8_t((cell & 31) << 3), uint8_t(((cell >> 5) & 31) << 3), uint8_t(((cell >> 10) & 31) << 3), 0};
}
inline int distance(const RgbQuad& a, const RgbQuad& b) {
    int dr = a.red - b.red, dg = a.green - b.green, db = a.blue - b.blue;
    return dr * dr + dg * dg + db * db;
}

// Index of the nearest of n entries; entry 0 first, a later one only when strictly nearer.
unsigned nearestEntry(const RgbQuad* palette, unsigned n, const RgbQuad& colour);

// Spreads the error of the pixel at column x (pixel minus chosen colour) to the
// neighbours not yet visited: right 3/8, below 3/8, below-right 1/4, each rounded toward
// zero and clamped to 0..255. next is the following stored row, or null after the last.
void diffuseError(uint8_t* row, uint8_t* next, int64_t x, int64_t width, const RgbQuad& chosen);

}  // namespace ts::dib
