// Palette entries of a bitmap and the header of a device bitmap's copy.
#include "dib/core/palette.h"

namespace ts::dib {

void fillPalette(Source src, uint32_t n, PaletteEntry* entries) {
    InfoHeader h = readHeader(src.data, src.size);
    if (colorCount(h) == 0) {
        for (uint32_t i = 0; i < n; ++i) entries[i] = fixedPaletteEntry(i);
        return;
    }
    for (uint32_t i = 0; i < n; ++i) {
        uint64_t at = kInfoSize + 4ull * i;
        entries[i] = PaletteEntry{byteAt(src, at + 2), byteAt(src, at + 1), byteAt(src, at), 0};
    }
}

InfoHeader ddbHeader(int32_t width, int32_t height, uint16_t planes, uint16_t bitsPixel, unsigned bits,
                     uint32_t compression) {
    if (bits == 0) bits = unsigned(planes) * bitsPixel;
    InfoHeader h{};
    h.biSize = kInfoSize;
    h.biWidth = width;
    h.biHeight = height;
    h.biPlanes = 1;
    h.biBitCount = uint16_t(bits);
    h.biCompression = compression;
    h.biXPelsPerMeter = kDefaultPelsPerMeter;
    h.biYPelsPerMeter = kDefaultPelsPerMeter;
    h.biClrUsed = bits < 16 ? 1u << bits : 0;
    return h;
}

}  // namespace ts::dib
