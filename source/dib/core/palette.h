// Palette entries of a bitmap and the header of a device bitmap's copy.
#pragma once

#include <cstdint>

#include "dib/core/dib_host.h"
#include "dib/core/dib_layout.h"

namespace ts::dib {

// One logical-palette entry: red, green, blue, flags (0).
struct PaletteEntry {
    uint8_t red, green, blue, flags;
};
static_assert(sizeof(PaletteEntry) == 4, "a palette entry is 4 bytes");

constexpr uint32_t kFixedPaletteSize = 256;

// Entry i of the palette for bitmaps without a colour table: red in steps of 32 fastest,
// then green in steps of 32, then blue in steps of 64 (8 x 8 x 4 levels).
inline PaletteEntry fixedPaletteEntry(uint32_t i) {
    return PaletteEntry{uint8_t(32 * (i % 8)), uint8_t(32 * ((i / 8) % 8)), uint8_t(64 * (i / 64)), 0};
}

// Fills n entries from the bitmap's colour table (entries past its block read black),
// or the fixed palette when the bitmap has no table (n is then kFixedPaletteSize).
void fillPalette(Source src, uint32_t n, PaletteEntry* entries);

// The header dibDDBToDIB asks GDI to complete: bits 0 means planes x bits of the
// device bitmap; biClrUsed is 2^bits below 16 bits.
InfoHeader ddbHeader(int32_t width, int32_t height, uint16_t planes, uint16_t bitsPixel, unsigned bits,
                     uint32_t compression);

}  // namespace ts::dib
