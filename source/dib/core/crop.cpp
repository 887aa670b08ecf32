// dibCrop: a new bitmap of a rectangle of the source, rows in stored order.
#include <cstring>
#include <memory>
#include <new>

#include "dib/core/dib_checks.h"
#include "dib/core/image_ops.h"

namespace ts::dib {
namespace {

constexpr const char* kName = "dibCrop";

// `length` source bytes from `start` (block offset, may lie outside): the block itself
// where it holds them, else a zero-padded copy in scratch.
const uint8_t* span(Source s, int64_t start, int64_t length, uint8_t* scratch) {
    if (start >= 0 && uint64_t(start + length) <= s.size) return s.data + start;
    for (int64_t i = 0; i < length; ++i) scratch[i] = start + i < 0 ? 0 : byteAt(s, uint64_t(start + i));
    return scratch;
}

struct CropRow {
    unsigned bits;
    int64_t x, bytes;  // output bytes of a row
    int64_t first;     // first source byte of a row, from the row start
    int64_t need;      // source bytes read a row
};

CropRow cropRow(unsigned bits, int64_t x, int64_t width) {
    int64_t shift = bits == 1 ? 8 : 2;
    if (bits == 1 || bits == 4) {
        int64_t bytes = (width * bits + 7) / 8;
        int64_t first = x >= 0 ? x / shift : -((-x + shift - 1) / shift);
        return CropRow{bits, x, bytes, first, bytes + 1};
    }
    int64_t bpp = bits / 8;
    bool whole = bits == 8 || bits == 16 || bits == 24 || bits == 32;
    return CropRow{bits, x, whole ? width * bpp : 0, x * bpp, whole ? width * bpp : 0};
}

void copyRow(const CropRow& c, const uint8_t* s, uint8_t* d) {
    if (c.bits == 1) {
        unsigned shift = unsigned(((c.x % 8) + 8) % 8);
        for (int64_t j = 0; j < c.bytes; ++j) d[j] = uint8_t(((s[j] << 8 | s[j + 1]) << shift) >> 8);
    } else if (c.bits == 4 && c.x % 2 != 0) {
        for (int64_t j = 0; j < c.bytes; ++j) d[j] = uint8_t(s[j] << 4 | s[j + 1] >> 4);
    } else {
        std::memcpy(d, s, size_t(c.bytes));
    }
}

// Block offset of a row's first byte; rows so far off that the offset overflows lie
// past the block anyway.
int64_t rowStart(uint64_t prefix, int64_t row, int64_t stride, int64_t first) {
    int64_t offset;
    if (__builtin_mul_overflow(row, stride, &offset) || __builtin_add_overflow(offset, first, &offset) ||
        __builtin_add_overflow(offset, int64_t(prefix), &offset))
        return INT64_MAX / 2;
    return offset;
}

}  // namespace

OwnedBlock dibCrop(Host& host, Source src, int32_t x, int32_t y, int32_t width, int32_t height) {
    OwnedBlock out(host);
    InfoHeader h;
    if (!requireRunLength(host, src, kName, h, RunLength::Refused, "No support for RLE-Bitmaps!")) return out;
    CropRow c = cropRow(h.biBitCount, x, width);
    uint64_t prefix = pixelOffset(h);
    if (!allocateOutput(host, out, prefix, imageBytes(width, height, h.biBitCount), kName)) return out;
    std::unique_ptr<uint8_t[]> scratch(new (std::nothrow) uint8_t[size_t(c.need > 0 ? c.need : 1)]);
    if (!scratch) {
        out.reset();
        host.report(kName, "Not enough memory for DIB!");
        return out;
    }
    InfoHeader d = newHeader(width, height, h.biBitCount);
    d.biCompression = h.biCompression;
    d.biClrUsed = colorCount(h);
    writeHeader(out.data(), d);
    for (uint64_t i = kInfoSize; i < prefix; ++i) out.data()[i] = byteAt(src, i);
    int64_t srcStride = strideOf(h.biWidth, h.biBitCount), dstStride = strideOf(width, h.biBitCount);
    for (int64_t r = 0; r < height && dstStride > 0; ++r) {
        const uint8_t* row = span(src, rowStart(prefix, y + r, srcStride, c.first), c.need, scratch.get());
        copyRow(c, row, out.data() + prefix + r * dstStride);
    }
    return out;
}

}  // namespace ts::dib
