// Mask lookup for 16- and 32-bit pixels.
#include "dib/core/bit_fields.h"

namespace ts::dib {

Masks masksOf(Source src, const InfoHeader& h) {
    if (h.biCompression == kBiBitfields) {
        uint64_t at = pixelOffset(h) - kMaskBytes;  // the masks sit right before the pixels
        uint8_t m[kMaskBytes];
        for (unsigned i = 0; i < kMaskBytes; ++i) m[i] = byteAt(src, at + i);
        return Masks{le32(m), le32(m + 4), le32(m + 8)};
    }
    if (h.biBitCount == 16) return Masks{0x7C00, 0x03E0, 0x001F};
    return Masks{0xFF0000, 0x00FF00, 0x0000FF};
}

}  // namespace ts::dib
