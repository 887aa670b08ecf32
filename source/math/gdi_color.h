// The library's conversion of float colours to the GDI colour layout.
#pragma once

#include <cstdint>

namespace ts {

// One float component (0..1) as an 8-bit channel: the component times 255.0f, truncated
// toward zero, low 8 bits. Components above 1.0 wrap around on purpose (1.5 gives 126);
// applications rely on the same numbers they always got, so nothing is clamped. Values
// beyond the integer range (and NaN) give what the processor's truncation gives there: 0.
uint8_t colorChannel(float component);

// red | green << 8 | blue << 16, the layout of a GDI COLORREF.
uint32_t gdiColor(float red, float green, float blue);

}  // namespace ts
