// Colour reduction of 24-bit bitmaps: adaptive palettes (median cut, popularity) and
// the fixed 2- and 16-colour palettes, with error diffusion; plus the block copy.
#pragma once

#include "dib/core/dib_host.h"

namespace ts::dib {

// A new block holding a byte copy of the whole source block ("dibCopy").
OwnedBlock dibCopy(Host& host, Source src);

// An 8-bit bitmap with a palette of 2^uBPP colours. Mode bit 0: error diffusion;
// bit 1: median cut, else popularity. Not re-entrant (one median-cut state).
OwnedBlock dibReduceColors(Host& host, Source src, unsigned uBPP, unsigned mode);

// 1-bit black and white, and 4 bits with the fixed 16-colour palette. Both diffuse
// their error into the source block itself.
OwnedBlock _DIB24To1(Host& host, Block src);
OwnedBlock _DIB24To4(Host& host, Block src);

}  // namespace ts::dib
