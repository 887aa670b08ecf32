// Float colours to GDI colours, with the wrap-around above 1.0 kept.
#include "math/gdi_color.h"

namespace ts {

uint8_t colorChannel(float component) {
    const float scaled = component * 255.0f;
    // The conversion of an out-of-range float is undefined in C++; the processor's
    // truncation yields the "integer indefinite" 0x80000000 there, whose low byte is 0.
    if (!(scaled > -2147483648.0f && scaled < 2147483648.0f)) return 0;
    return static_cast<uint8_t>(static_cast<int32_t>(scaled) & 0xFF);
}

uint32_t gdiColor(float red, float green, float blue) {
    return uint32_t(colorChannel(red)) | uint32_t(colorChannel(green)) << 8 | uint32_t(colorChannel(blue)) << 16;
}

}  // namespace ts
