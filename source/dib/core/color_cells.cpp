// Nearest palette entries and error diffusion shared by the reductions.
#include "dib/core/color_cells.h"

namespace ts::dib {
namespace {

inline void addClamped(uint8_t& channel, int amount) {
    int v = channel + amount;
    channel = uint8_t(v < 0 ? 0 : v > 255 ? 255 : v);
}

inline void spread(uint8_t* pixel, const int* error, int num, int den) {
    for (int c = 0; c < 3; ++c) addClamped(pixel[c], error[c] * num / den);
}

}  // namespace

unsigned nearestEntry(const RgbQuad* palette, unsigned n, const RgbQuad& colour) {
    unsigned best = 0;
    int bestDistance = n ? distance(palette[0], colour) : 0;
    for (unsigned i = 1; i < n; ++i) {
        int d = distance(palette[i], colour);
        if (d < bestDistance) {
            bestDistance = d;
            best = i;
        }
    }
    return best;
}

void diffuseError(uint8_t* row, uint8_t* next, int64_t x, int64_t width, const RgbQuad& chosen) {
    const uint8_t* p = row + 3 * x;
    int error[3] = {p[0] - chosen.blue, p[1] - chosen.green, p[2] - chosen.red};
    bool right = x + 1 < width;
    if (right) spread(row + 3 * (x + 1), error, 3, 8);
    if (!next) return;
    spread(next + 3 * x, error, 3, 8);
    if (right) spread(next + 3 * (x + 1), error, 1, 4);
}

}  // namespace ts::dib
