// The palette steps: 1 to 4 bits, 4 to 8 bits, 8 bits to 24 bits.
#include <array>
#include <cstring>

#include "dib/core/depth_convert.h"
#include "dib/core/depth_step.h"

namespace ts::dib {
namespace {

const StepRule k1To4{"dib1To4", 1, 4, "This is not a 1-Bit-DIB!", nullptr, nullptr, 16};
const StepRule k4To8{"dib4To8", 4, 8, "This is not a 4-Bit-DIB!", refusesAny, "This is not a RLE-DIB!", 256};
const StepRule k8To24{"dib8To24", 8, 24, "This is not a 8-Bit-DIB!", refusesAny, "This is a RLE-DIB!", 0};

// Four output bytes of one 1-bit byte: bit 7 high nibble, bit 6 low nibble, and so on.
std::array<uint32_t, 256> nibblesOfBits() {
    std::array<uint32_t, 256> lut{};
    for (unsigned b = 0; b < 256; ++b) {
        uint8_t out[4];
        for (int i = 0; i < 4; ++i) out[i] = uint8_t((((b >> (7 - 2 * i)) & 1) << 4) | ((b >> (6 - 2 * i)) & 1));
        std::memcpy(&lut[b], out, 4);
    }
    return lut;
}

// The 24-bit bytes (blue, green, red) of the 256 table entries as they lie in the
// block; entries past the block read as black.
std::array<uint32_t, 256> tableColors(Source src) {
    std::array<uint32_t, 256> lut{};
    for (unsigned i = 0; i < 256; ++i) {
        uint8_t q[4] = {byteAt(src, kInfoSize + 4 * i), byteAt(src, kInfoSize + 4 * i + 1),
                        byteAt(src, kInfoSize + 4 * i + 2), 0};
        std::memcpy(&lut[i], q, 4);
    }
    return lut;
}

}  // namespace

OwnedBlock dib1To4(Host& host, Source src) {
    static const std::array<uint32_t, 256> lut = nibblesOfBits();
    return runStep(host, src, k1To4, [](const uint8_t* s, uint8_t* d, const StepFrame& f) {
        int64_t bytes = (int64_t(f.src.biWidth) + 7) / 8;
        for (int64_t i = 0; i < bytes; ++i) std::memcpy(d + 4 * i, &lut[s[i]], 4);
    });
}

OwnedBlock dib4To8(Host& host, Source src) {
    return runStep(host, src, k4To8, [](const uint8_t* s, uint8_t* d, const StepFrame& f) {
        int64_t bytes = (int64_t(f.src.biWidth) + 1) / 2;
        for (int64_t i = 0; i < bytes; ++i) {
            d[2 * i] = s[i] >> 4;
            d[2 * i + 1] = s[i] & 0x0F;
        }
    });
}

OwnedBlock dib8To24(Host& host, Source src) {
    const std::array<uint32_t, 256> lut = tableColors(src);
    return runStep(host, src, k8To24, [&lut](const uint8_t* s, uint8_t* d, const StepFrame& f) {
        int64_t width = f.src.biWidth;
        // Four bytes a pixel, the fourth overwritten by the next; the last pixel takes 3.
        for (int64_t x = 0; x + 1 < width; ++x) std::memcpy(d + 3 * x, &lut[s[x]], 4);
        std::memcpy(d + 3 * (width - 1), &lut[s[width - 1]], 3);
    });
}

}  // namespace ts::dib
