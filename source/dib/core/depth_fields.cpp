// The bit-field steps: 16 and 32 bits to 24 bits through red, green and blue masks.
#include <cstring>
#include <memory>
#include <new>

#include "dib/core/bit_fields.h"
#include "dib/core/depth_convert.h"
#include "dib/core/depth_step.h"

namespace ts::dib {
namespace {

const StepRule k16To24{"dib16To24", 16, 24, "This is not 16-Bit-DIB!", refusesRle, "This is a RLE-DIB!", 0};
const StepRule k32To24{"dib32To24", 32, 24, "This is not a 32-Bit-DIB!", refusesRle, "This is a RLE-DIB!", 0};

// Blue, green, red bytes of a pixel value, packed for a 4-byte store.
inline uint32_t packed(const Field& r, const Field& g, const Field& b, uint32_t v) {
    return uint32_t(b(v)) | (uint32_t(g(v)) << 8) | (uint32_t(r(v)) << 16);
}

// Writes `width` pixels of 3 bytes from 4-byte values; the last one takes 3 bytes.
template <typename Value>
inline void storeRow(uint8_t* d, int64_t width, Value value) {
    for (int64_t x = 0; x + 1 < width; ++x) {
        uint32_t v = value(x);
        std::memcpy(d + 3 * x, &v, 4);
    }
    uint32_t last = value(width - 1);
    std::memcpy(d + 3 * (width - 1), &last, 3);
}

}  // namespace

OwnedBlock dib16To24(Host& host, Source src) {
    Masks m = masksOf(src, readHeader(src.data, src.size));
    Field red(m.red), green(m.green), blue(m.blue);
    // Every 16-bit value once, instead of three extractions a pixel.
    std::unique_ptr<uint32_t[]> lut(new (std::nothrow) uint32_t[65536]);
    for (uint32_t v = 0; lut && v < 65536; ++v) lut[v] = packed(red, green, blue, v);
    return runStep(host, src, k16To24, [&](const uint8_t* s, uint8_t* d, const StepFrame& f) {
        if (lut)
            storeRow(d, f.src.biWidth, [&](int64_t x) { return lut[le16(s + 2 * x)]; });
        else
            storeRow(d, f.src.biWidth, [&](int64_t x) { return packed(red, green, blue, le16(s + 2 * x)); });
    });
}

OwnedBlock dib32To24(Host& host, Source src) {
    Masks m = masksOf(src, readHeader(src.data, src.size));
    Field red(m.red), green(m.green), blue(m.blue);
    bool plain = m.red == 0xFF0000 && m.green == 0x00FF00 && m.blue == 0x0000FF;
    return runStep(host, src, k32To24, [&](const uint8_t* s, uint8_t* d, const StepFrame& f) {
        if (plain)
            storeRow(d, f.src.biWidth, [&](int64_t x) { return le32(s + 4 * x); });
        else
            storeRow(d, f.src.biWidth, [&](int64_t x) { return packed(red, green, blue, le32(s + 4 * x)); });
    });
}

}  // namespace ts::dib
