// Packed device-independent bitmap layout: header struct, strides, colour count, offsets.
#pragma once

#include <cstddef>
#include <cstdint>

namespace ts::dib {

// The 40-byte info header every bitmap block of the library starts with.
struct InfoHeader {
    uint32_t biSize;
    int32_t biWidth;
    int32_t biHeight;
    uint16_t biPlanes;
    uint16_t biBitCount;
    uint32_t biCompression;
    uint32_t biSizeImage;
    int32_t biXPelsPerMeter;
    int32_t biYPelsPerMeter;
    uint32_t biClrUsed;
    uint32_t biClrImportant;
};
static_assert(sizeof(InfoHeader) == 40, "the info header is 40 bytes");

// One colour-table entry: blue, green, red, reserved.
struct RgbQuad {
    uint8_t blue, green, red, reserved;
};
static_assert(sizeof(RgbQuad) == 4, "a colour-table entry is 4 bytes");

constexpr uint32_t kInfoSize = 40;
constexpr uint32_t kCoreSize = 12;       // OS/2 core header
constexpr uint32_t kBiRgb = 0;
constexpr uint32_t kBiRle8 = 1;
constexpr uint32_t kBiRle4 = 2;
constexpr uint32_t kBiBitfields = 3;
constexpr uint32_t kMaskBytes = 12;
constexpr int32_t kDefaultPelsPerMeter = 2953;  // 75 dots per inch
// Colour tables longer than this are refused as a lack of memory: no palette of the
// platform holds more, and a header that claims billions of entries would have the
// library allocate and copy gigabytes of nothing.
constexpr uint32_t kMaxColors = 65536;

// Bytes per row of a bitmap, padded to 4 bytes; 64-bit so that no header overflows it.
inline int64_t strideOf(int64_t width, int64_t bitCount) {
    return ((width * bitCount + 31) / 32) * 4;
}
inline int64_t absHeight(const InfoHeader& h) {
    return h.biHeight < 0 ? -int64_t(h.biHeight) : int64_t(h.biHeight);
}

// biClrUsed when set, else 2^bits below 16 bits, else none.
uint32_t colorCount(const InfoHeader& h);
// Offset of the first pixel byte: header, colour table, masks for bit fields. This is
// the one bits look-up of the library (dibGetBits): every operation finds the pixels
// of a block through it, whatever biSize says.
uint64_t pixelOffset(const InfoHeader& h);

// The header at the start of a block; a block shorter than 40 bytes reads as zero
// beyond its end, so that a damaged handle fails the header checks instead of faulting.
InfoHeader readHeader(const uint8_t* block, size_t size);
void writeHeader(uint8_t* block, const InfoHeader& h);

// The first pixel byte of a block whose header is in place.
uint8_t* bitsOf(uint8_t* block);

// A fresh header as the library creates them: 40 bytes, one plane, 2953 pixels a metre.
InfoHeader newHeader(int32_t width, int32_t height, uint16_t bits);

// Little-endian helpers for file and pixel fields.
inline uint16_t le16(const uint8_t* p) { return uint16_t(p[0] | (p[1] << 8)); }
inline uint32_t le32(const uint8_t* p) {
    return uint32_t(p[0]) | (uint32_t(p[1]) << 8) | (uint32_t(p[2]) << 16) | (uint32_t(p[3]) << 24);
}
inline void put16(uint8_t* p, uint16_t v) { p[0] = uint8_t(v); p[1] = uint8_t(v >> 8); }
inline void put32(uint8_t* p, uint32_t v) {
    for (int i = 0; i < 4; ++i) p[i] = uint8_t(v >> (8 * i));
}

}  // namespace ts::dib
