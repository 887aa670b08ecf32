// Helpers of the GIF tests: packed bitmaps, files.
#include "gif_test_support.h"

#include <cstdlib>
#include <cstring>
#include <fstream>
#include <iterator>
#include <memory>
#include <stdexcept>

namespace gift {

DibHeader loadHeader(const std::uint8_t* block) {
    DibHeader header;
    std::memcpy(&header, block, sizeof header);
    return header;
}

void storeHeader(std::uint8_t* block, const DibHeader& header) { std::memcpy(block, &header, sizeof header); }

std::uint64_t pixelOffset(const DibHeader& h) {
    std::uint64_t colors = h.clrUsed != 0 ? h.clrUsed : h.bitCount < 16 ? 1u << h.bitCount : 0;
    return 40 + 4 * colors + (h.compression == 3 ? 12 : 0);
}

std::uint32_t Dib::height() const {
    std::int32_t h = header().height;
    return static_cast<std::uint32_t>(h < 0 ? -h : h);
}

const std::uint8_t* Dib::rowBytes(std::uint32_t y) const {
    DibHeader h = header();
    std::uint64_t stride = strideOf(static_cast<std::uint32_t>(h.width), h.bitCount);
    std::uint64_t stored = h.height < 0 ? y : height() - 1 - y;
    return block.data() + pixelOffset(h) + stored * stride;
}

unsigned Dib::index(std::uint32_t x, std::uint32_t y) const {
    const std::uint8_t* row = rowBytes(y);
    switch (bits()) {
    case 8: return row[x];
    case 4: return x % 2 != 0 ? row[x / 2] & 15 : row[x / 2] >> 4;
    case 1: return (row[x / 8] >> (7 - x % 8)) & 1;
    default: throw std::logic_error("no palette depth");
    }
}

Rgb Dib::color(unsigned entry) const {
    const std::uint8_t* e = block.data() + 40 + 4 * entry;
    return {e[2], e[1], e[0]};
}

Dib makeDib(std::uint32_t width, std::uint32_t height, unsigned bits,
            const std::vector<std::uint8_t>& indices, const std::vector<Rgb>& palette,
            std::uint32_t clrUsed) {
    DibHeader h{40, static_cast<std::int32_t>(width), static_cast<std::int32_t>(height), 1,
                static_cast<std::uint16_t>(bits), 0, 0, 2953, 2953, clrUsed, 0};
    std::uint64_t stride = strideOf(width, bits);
    h.sizeImage = static_cast<std::uint32_t>(stride * height);
    Dib dib;
    dib.block.assign(pixelOffset(h) + stride * height, 0);
    storeHeader(dib.block.data(), h);
    for (std::size_t i = 0; i < palette.size() && 40 + 4 * i < pixelOffset(h); ++i) {
        std::uint8_t* e = dib.block.data() + 40 + 4 * i;
        e[0] = palette[i].b, e[1] = palette[i].g, e[2] = palette[i].r;
    }
    for (std::uint32_t y = 0; y < height; ++y) {
        std::uint8_t* row = dib.block.data() + pixelOffset(h) + (height - 1 - y) * stride;
        for (std::uint32_t x = 0; x < width; ++x) {
            unsigned v = indices[std::size_t{y} * width + x];
            if (bits == 8) row[x] = static_cast<std::uint8_t>(v);
            else if (bits == 4) row[x / 2] |= static_cast<std::uint8_t>(x % 2 ? v & 15 : v << 4);
            else row[x / 8] |= static_cast<std::uint8_t>((v & 1) << (7 - x % 8));
        }
    }
    return dib;
}

Bytes readFile(const std::string& path) {
    std::ifstream in(path, std::ios::binary);
    if (!in) throw std::runtime_error("cannot read " + path);
    return Bytes(std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>());
}

void writeFile(const std::string& path, const Bytes& bytes) {
    std::ofstream out(path, std::ios::binary);
    out.write(reinterpret_cast<const char*>(bytes.data()), static_cast<std::streamsize>(bytes.size()));
    if (!out) throw std::runtime_error("cannot write " + path);
}

Rgb testColor(unsigned entry, unsigned seed) {
    return {static_cast<std::uint8_t>(entry * 7 + 3 + seed * 50),
            static_cast<std::uint8_t>(entry * 13 + 1 + seed * 90),
            static_cast<std::uint8_t>(255 - entry - seed * 20)};
}

std::vector<Rgb> palette(unsigned entries) {
    std::vector<Rgb> colors;
    for (unsigned i = 0; i < entries; ++i) colors.push_back(testColor(i));
    return colors;
}

}  // namespace gift
