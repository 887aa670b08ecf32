// Median-cut palette building on the colour-cell histogram.
#pragma once

#include <cstdint>

#include "dib/core/dib_host.h"
#include "dib/core/dib_layout.h"

namespace ts::dib {

// A box of cells: inclusive bounds per channel in 5-bit units.
struct CellBox {
    int r0, r1, g0, g1, b0, b1;
};

// The state of one median-cut run. The library keeps a single instance in its module
// state (module_state.h), taken under the module lock.
struct MedianCut {
    const uint32_t* histogram = nullptr;  // pixel count per cell
    RgbQuad* palette = nullptr;           // 256 entries
    uint32_t produced = 0;                // palette entries written so far
    Host* host = nullptr;                 // for the program-error message
};

// Resets the counter and splits the box of all cells into `colours` entries.
// Returns the number of entries produced.
uint32_t runMedianCut(MedianCut& state, unsigned colours, int64_t pixels);

}  // namespace ts::dib
