// The packed bitmap layout as the GIF codec reads and writes it in plain memory: a
// 40-byte header, the colour table, bottom-up rows padded to 4 bytes.
#pragma once

#include <cstddef>
#include <cstdint>

namespace ts::gif {

// BITMAPINFOHEADER, field for field; the codec only runs on little-endian machines.
struct DibHeader {
    std::uint32_t size;
    std::int32_t width;
    std::int32_t height;
    std::uint16_t planes;
    std::uint16_t bitCount;
    std::uint32_t compression;
    std::uint32_t sizeImage;
    std::int32_t xPelsPerMeter;
    std::int32_t yPelsPerMeter;
    std::uint32_t clrUsed;
    std::uint32_t clrImportant;
};
static_assert(sizeof(DibHeader) == 40, "the bitmap header is 40 bytes");

constexpr std::size_t kDibHeaderSize = 40;
constexpr std::int32_t kPelsPerMeter = 2953;  // 75 dots per inch
constexpr std::uint32_t kBitfields = 3;       // compression code of bit-field masks

// Bytes per row: rows are padded to a multiple of 4 bytes.
constexpr std::uint64_t dibStride(std::uint64_t width, unsigned bits) {
    return (width * bits + 31) / 32 * 4;
}

DibHeader loadDibHeader(const std::uint8_t* block);
void storeDibHeader(std::uint8_t* block, const DibHeader& header);

// Colour-table entries: biClrUsed, else 2^bits below 16 bits, else none.
std::uint32_t dibColorCount(const DibHeader& header);
// Offset of the first pixel byte: the table, plus 12 bytes of masks for bit fields.
std::uint64_t dibPixelOffset(const DibHeader& header);

}  // namespace ts::gif
