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

// The palette index of every cell, each found the first time a pixel needs it: the same
// indices as a map made for every cell beforehand, at the cost of the cells in use only.
class CellMap {
public:
    CellMap(const RgbQuad* palette, unsigned n) : palette_(palette), n_(n) {}
    uint8_t operator()(uint32_t cell) {
        uint8_t bit = uint8_t(1u << (cell & 7));
        if (!(known_[cell >> 3] & bit)) {
            index_[cell] = uint8_t(nearestEntry(palette_, n_, cellColor(cell)));
            known_[cell >> 3] |= bit;
        }
        return index_[cell];
    }

private:
    const RgbQuad* palette_;
    unsigned n_;
    uint8_t index_[kCells];
    uint8_t known_[kCells / 8] = {};
};

// Error diffusion by tables: the rounded shares of an error (-255..255) and the clamp of
// a channel plus a share, so that a pixel costs loads and adds only.
class Diffusion {
public:
    static const Diffusion& tables();

    // Walks one stored row: for each pixel, pick(bgr, chosen) gives its entry, and the
    // error (pixel minus chosen colour) goes to the neighbours not yet visited: right 3/8,
    // below 3/8, below-right 1/4, each rounded toward zero and clamped to 0..255, in the
    // row itself. next is the following stored row, or null after the last. The pixel to
    // the right is carried in registers: the chain from one pixel to the next is the
    // whole cost of diffusion.
    template <typename Pick>
    void row(uint8_t* row, uint8_t* next, int64_t width, Pick pick) const {
        uint8_t cur[3] = {row[0], row[1], row[2]};
        for (int64_t x = 0; x < width; ++x) {
            RgbQuad chosen;
            pick(x, cur, chosen);
            int error[3] = {cur[0] - chosen.blue + 255, cur[1] - chosen.green + 255, cur[2] - chosen.red + 255};
            if (next) add(next + 3 * x, error, threeEighths_);
            if (x + 1 >= width) break;
            uint8_t* right = row + 3 * (x + 1);
            for (int c = 0; c < 3; ++c) {  // arithmetic, not tables: this is the chain
                int v = right[c] + (error[c] - 255) * 3 / 8;
                right[c] = cur[c] = uint8_t(v < 0 ? 0 : v > 255 ? 255 : v);
            }
            if (next) add(next + 3 * (x + 1), error, quarter_);
        }
    }

private:
    Diffusion();
    void add(uint8_t* pixel, const int* error, const int8_t* share) const {
        for (int c = 0; c < 3; ++c) pixel[c] = clamp_[pixel[c] + share[error[c]] + 128];
    }
    int8_t threeEighths_[511], quarter_[511];
    uint8_t clamp_[512];
};

}  // namespace ts::dib
