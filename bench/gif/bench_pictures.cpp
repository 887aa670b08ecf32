// Making the benchmark's pictures.
#include "bench_pictures.h"

#include <cmath>
#include <random>

#include "dib/core/dib_layout.h"

namespace gifbench {

namespace {

void fillPaletteAndBitmap(Picture& p) {
    for (int i = 0; i < 256; ++i) p.palette.insert(p.palette.end(), {std::uint8_t(i), std::uint8_t(255 - i), std::uint8_t(i * 7)});
    using namespace ts::dib;
    std::uint64_t stride = std::uint64_t(strideOf(p.width, 8));
    InfoHeader h = newHeader(p.width, p.height, 8);
    h.biClrUsed = 256;
    p.bitmap.assign(kInfoSize + 1024 + stride * p.height, 0);
    writeHeader(p.bitmap.data(), h);
    for (int i = 0; i < 256; ++i) {
        std::uint8_t* e = p.bitmap.data() + kInfoSize + 4 * i;
        e[0] = p.palette[3 * i + 2], e[1] = p.palette[3 * i + 1], e[2] = p.palette[3 * i];
    }
    for (int y = 0; y < p.height; ++y)
        std::copy(p.indices.begin() + std::ptrdiff_t(y) * p.width, p.indices.begin() + std::ptrdiff_t(y + 1) * p.width,
                  p.bitmap.begin() + std::ptrdiff_t(kInfoSize + 1024 + (p.height - 1 - y) * stride));
}

}  // namespace

Picture naturalPicture(int size) {
    Picture p{"natural", size, size, {}, {}, {}};
    std::mt19937 random(1);
    p.indices.resize(std::size_t(size) * size);
    for (int y = 0; y < size; ++y)
        for (int x = 0; x < size; ++x) {
            double v = 128 + 60 * std::sin(x / 37.0) + 50 * std::cos(y / 23.0) + 15 * std::sin((x + y) / 11.0);
            v += (x / 512 + y / 512) % 4 == 0 ? random() % 3 : 0;
            p.indices[std::size_t(y) * size + x] = static_cast<std::uint8_t>(std::fmin(255, std::fmax(0, v)));
        }
    fillPaletteAndBitmap(p);
    return p;
}

Picture graphicPicture(int size) {
    Picture p{"graphic", size, size, {}, {}, {}};
    p.indices.resize(std::size_t(size) * size);
    for (int y = 0; y < size; ++y)
        for (int x = 0; x < size; ++x) {
            int dx = x - size / 2, dy = y - size / 3;
            std::uint8_t v = static_cast<std::uint8_t>((x / 160 + y / 96) % 6);
            if (dx * dx + dy * dy < size * size / 16) v = 40;
            if ((x + 2 * y) % 301 < 3) v = 200;
            p.indices[std::size_t(y) * size + x] = v;
        }
    fillPaletteAndBitmap(p);
    return p;
}

Picture noisePicture(int size) {
    Picture p{"noise", size, size, {}, {}, {}};
    std::mt19937 random(2);
    p.indices.resize(std::size_t(size) * size);
    for (std::uint8_t& v : p.indices) v = static_cast<std::uint8_t>(random());
    fillPaletteAndBitmap(p);
    return p;
}

}  // namespace gifbench
