// Packed device-independent bitmap layout: colour count, pixel offset, header access.
#include "dib/core/dib_layout.h"

#include <cstring>

namespace ts::dib {

uint32_t colorCount(const InfoHeader& h) {
    if (h.biClrUsed != 0) return h.biClrUsed;
    if (h.biBitCount < 16) return 1u << h.biBitCount;
    return 0;
}

uint64_t pixelOffset(const InfoHeader& h) {
    uint64_t offset = kInfoSize + 4ull * colorCount(h);
    if (h.biCompression == kBiBitfields) offset += kMaskBytes;
    return offset;
}

InfoHeader readHeader(const uint8_t* block, size_t size) {
    uint8_t bytes[sizeof(InfoHeader)] = {};
    if (block) std::memcpy(bytes, block, size < sizeof bytes ? size : sizeof bytes);
    InfoHeader h;
    std::memcpy(&h, bytes, sizeof h);
    return h;
}

void writeHeader(uint8_t* block, const InfoHeader& h) { std::memcpy(block, &h, sizeof h); }

uint8_t* bitsOf(uint8_t* block) { return block + pixelOffset(readHeader(block, kInfoSize)); }

InfoHeader newHeader(int32_t width, int32_t height, uint16_t bits) {
    InfoHeader h{};
    h.biSize = kInfoSize;
    h.biWidth = width;
    h.biHeight = height;
    h.biPlanes = 1;
    h.biBitCount = bits;
    h.biCompression = kBiRgb;
    h.biSizeImage = uint32_t(uint64_t(strideOf(width, bits)) * uint64_t(height < 0 ? -int64_t(height) : height));
    h.biXPelsPerMeter = kDefaultPelsPerMeter;
    h.biYPelsPerMeter = kDefaultPelsPerMeter;
    return h;
}

}  // namespace ts::dib
