// Nearest palette entries and the diffusion tables shared by the reductions.
#include "dib/core/color_cells.h"

namespace ts::dib {
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

Diffusion::Diffusion() {
    for (int e = -255; e <= 255; ++e) {
        threeEighths_[e + 255] = int8_t(e * 3 / 8);
        quarter_[e + 255] = int8_t(e / 4);
    }
    for (int v = 0; v < 512; ++v) clamp_[v] = uint8_t(v < 128 ? 0 : v > 383 ? 255 : v - 128);
}

const Diffusion& Diffusion::tables() {
    static const Diffusion instance;
    return instance;
}

}  // namespace ts::dib
