// Channel extraction from 16- and 32-bit pixels through red, green and blue masks.
#pragma once

#include <cstdint>

#include "dib/core/dib_host.h"
#include "dib/core/dib_layout.h"

namespace ts::dib {

// One channel: the masked value moved up until the mask's top bit is bit 31, then its
// top 8 bits. A 5-bit field of 31 thus gives 248: the low bits are not filled. A mask
// of 0 gives 0 (it would never reach bit 31).
class Field {
public:
    explicit Field(uint32_t mask) : mask_(mask), shift_(mask ? __builtin_clz(mask) : 0) {}
    uint8_t operator()(uint32_t pixel) const {
        return mask_ ? uint8_t(((pixel & mask_) << shift_) >> 24) : 0;
    }

private:
    uint32_t mask_;
    int shift_;
};

struct Masks {
    uint32_t red, green, blue;
};

// The masks behind the header and colour table for bit fields, else the defaults of the
// depth: 5-5-5 for 16 bits, 8-8-8 for 32 bits.
Masks masksOf(Source src, const InfoHeader& h);

}  // namespace ts::dib
