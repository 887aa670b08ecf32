// Colour-depth conversions: five single steps and the chains built from them.
// Each returns a new block, or an empty one after its message; the source is only read
// (except that the reductions of the chains work on their own intermediates).
#pragma once

#include "dib/core/dib_host.h"

namespace ts::dib {

// Every conversion takes the caller's bitmap and returns a new one.
using Conversion = OwnedBlock(Host& host, Source src);

// The single steps; every other conversion is a chain of these and of the reductions.
Conversion dib1To4, dib4To8, dib8To24, dib16To24, dib32To24;
// Widening chains: 1 to 8 bits (not exported), 1 and 4 to 24 bits.
Conversion dib1To8, dib1To24, dib4To24;
// To black and white, and to the fixed 16 colours: a copy (or the 24-bit widening)
// reduced by _DIB24To1 or _DIB24To4.
Conversion dib24To1, dib8To1, dib4To1, dib24To4, dib8To4;
// 24 to 8 bits: the gray ramp of dibGray, or dibReduceColors(8 bits, mode 3).
OwnedBlock dib24To8(Host& host, Source src, bool gray);

}  // namespace ts::dib
