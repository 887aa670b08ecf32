// A photo-like 24-bit test picture: smooth shading, hard edges and sensor noise.
#include "photo.h"

#include <cmath>
#include <string>

#include "dib/core/dib_layout.h"

namespace bench {
namespace {

using namespace ts::dib;

uint8_t clamp(double v) { return uint8_t(v < 0 ? 0 : v > 255 ? 255 : v); }

// Sky, a lit ball and a ground plane with texture, plus noise: many nearby colours,
// as in a photograph, rather than a handful of flat areas.
void shade(int x, int y, int w, int h, uint32_t& seed, uint8_t bgr[3]) {
    double u = double(x) / w, v = double(y) / h;
    double r = 90 + 120 * v, g = 140 + 90 * v, b = 200 + 50 * v;  // sky, bottom row first
    if (v < 0.4) {                                                // ground
        double t = 0.5 + 0.5 * std::sin(u * 60 + std::sin(v * 40) * 3);
        r = 60 + 70 * t + 60 * v, g = 90 + 60 * t, b = 40 + 30 * t;
    }
    double dx = u - 0.6, dy = v - 0.55, d = dx * dx + dy * dy;
    if (d < 0.04) {  // ball lit from the upper left
        double light = 1.0 - std::sqrt(d) / 0.2 + 0.8 * (dy - dx);
        r = 220 * light + 20, g = 60 * light + 10, b = 50 * light + 10;
    }
    seed = seed * 1664525u + 1013904223u;
    double noise = double(int(seed >> 27) - 16) * 0.6;
    bgr[0] = clamp(b + noise), bgr[1] = clamp(g + noise), bgr[2] = clamp(r + noise);
}

}  // namespace

std::vector<uint8_t> photoDib(int width, int height) {
    InfoHeader h = newHeader(width, height, 24);
    std::vector<uint8_t> dib(40 + h.biSizeImage);
    writeHeader(dib.data(), h);
    int64_t stride = strideOf(width, 24);
    uint32_t seed = 12345;
    for (int y = 0; y < height; ++y)
        for (int x = 0; x < width; ++x) shade(x, y, width, height, seed, dib.data() + 40 + y * stride + 3 * x);
    return dib;
}

std::vector<uint8_t> photoPpm(const std::vector<uint8_t>& dib) {
    InfoHeader h = readHeader(dib.data(), dib.size());
    std::string head = "P6\n" + std::to_string(h.biWidth) + " " + std::to_string(h.biHeight) + "\n255\n";
    std::vector<uint8_t> ppm(head.begin(), head.end());
    int64_t stride = strideOf(h.biWidth, 24);
    for (int y = h.biHeight - 1; y >= 0; --y)
        for (int x = 0; x < h.biWidth; ++x) {
            const uint8_t* p = dib.data() + 40 + y * stride + 3 * x;
            ppm.insert(ppm.end(), {p[2], p[1], p[0]});
        }
    return ppm;
}

std::vector<uint8_t> asDepth(const std::vector<uint8_t>& dib24, int bits) {
    InfoHeader s = readHeader(dib24.data(), dib24.size());
    InfoHeader h = newHeader(s.biWidth, s.biHeight, uint16_t(bits));
    std::vector<uint8_t> out(40 + h.biSizeImage);
    writeHeader(out.data(), h);
    int64_t in = strideOf(s.biWidth, 24), os = strideOf(s.biWidth, bits);
    for (int y = 0; y < s.biHeight; ++y)
        for (int x = 0; x < s.biWidth; ++x) {
            const uint8_t* p = dib24.data() + 40 + y * in + 3 * x;
            uint8_t* d = out.data() + 40 + y * os + x * bits / 8;
            if (bits == 16)
                put16(d, uint16_t((p[2] >> 3) << 10 | (p[1] >> 3) << 5 | (p[0] >> 3)));
            else
                put32(d, uint32_t(p[2]) << 16 | uint32_t(p[1]) << 8 | p[0]);
        }
    return out;
}

}  // namespace bench
