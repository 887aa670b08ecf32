// dibSmallSize: half width and half height by taking every second pixel and row.
#include <cstring>

#include "dib/core/dib_checks.h"
#include "dib/core/image_ops.h"

namespace ts::dib {
namespace {

constexpr const char* kName = "dibSmallSize";

// Bits 7, 5, 3, 1 of a byte as the high or low nibble.
inline uint8_t oddBits(uint8_t b) {
    return uint8_t(((b >> 4) & 8) | ((b >> 3) & 4) | ((b >> 2) & 2) | ((b >> 1) & 1));
}

// Every second pixel of Bytes bytes; a constant size lets the copies become moves.
template <int Bytes>
void everySecond(const uint8_t* __restrict s, uint8_t* __restrict d, int64_t newWidth) {
    for (int64_t x = 0; x < newWidth; ++x) std::memcpy(d + x * Bytes, s + 2 * x * Bytes, Bytes);
}

void halveRow(const uint8_t* s, uint8_t* d, int64_t newWidth, unsigned bits) {
    if (bits == 1) {
        for (int64_t i = 0; i < newWidth / 8; ++i) d[i] = uint8_t(oddBits(s[2 * i]) << 4 | oddBits(s[2 * i + 1]));
    } else if (bits == 4) {
        for (int64_t i = 0; i < newWidth / 2; ++i) d[i] = uint8_t((s[2 * i] & 0xF0) | (s[2 * i + 1] >> 4));
    } else if (bits == 8) {
        everySecond<1>(s, d, newWidth);
    } else if (bits == 16) {
        everySecond<2>(s, d, newWidth);
    } else if (bits == 24) {
        everySecond<3>(s, d, newWidth);
    } else if (bits == 32) {
        everySecond<4>(s, d, newWidth);
    }
}

}  // namespace

OwnedBlock dibSmallSize(Host& host, Source src) {
    OwnedBlock out(host);
    InfoHeader h;
    if (!requireRunLength(host, src, kName, h, RunLength::Refused, "It's a RLE-DIB!")) return out;
    int64_t newWidth = h.biWidth / 2, newHeight = absHeight(h) / 2;
    uint32_t n = colorCount(h);
    uint64_t prefix = pixelOffset(h);
    PaddedSource rows(host);
    if (!allocateOutput(host, out, prefix, imageBytes(newWidth, newHeight, h.biBitCount), kName)) return out;
    if (!openRows(rows, src, h)) {
        out.reset();
        host.report(kName, "Not enough memory for DIB!");
        return out;
    }
    InfoHeader d = newHeader(int32_t(newWidth), int32_t(newHeight), h.biBitCount);
    d.biCompression = h.biCompression;
    d.biXPelsPerMeter = h.biXPelsPerMeter;
    d.biYPelsPerMeter = h.biYPelsPerMeter;
    d.biClrUsed = d.biClrImportant = n;
    writeHeader(out.data(), d);
    std::memcpy(out.data() + kInfoSize, rows.data() + kInfoSize, size_t(prefix - kInfoSize));
    int64_t srcStride = strideOf(h.biWidth, h.biBitCount), dstStride = strideOf(newWidth, h.biBitCount);
    for (int64_t r = 0; r < newHeight && dstStride > 0; ++r)
        halveRow(rows.data() + prefix + 2 * r * srcStride, out.data() + prefix + r * dstStride, newWidth,
                 h.biBitCount);
    return out;
}

}  // namespace ts::dib
