// The encoder's string table: the code of "string + pixel" from a direct table indexed
// by (string, pixel), in front of which each string remembers the extension it was
// last asked for, since runs of one colour ask for the same one again and again. A
// reset clears only what the codes in use occupy.
#pragma once

#include <algorithm>
#include <cstdint>

#include "gif_module.h"

namespace ts::gif {

struct StringTable {
    static constexpr std::uint32_t kForgotten = 0xFFFFFFFF;  // matches no pixel

    std::uint32_t* prefix;
    std::uint8_t* suffix;
    std::uint16_t* slots;    // kMaxCodes << pixelBits entries: code, or 0
    std::uint32_t* recent;   // kMaxCodes entries: pixel << 12 | code, per string
    unsigned pixelBits;      // the minimum code size: pixels lie below the clear code
    std::uint32_t clear;
    std::uint32_t next;

    // Roots only: every code from clear + 2 on is free again.
    void reset() {
        for (std::uint32_t code = clear + 2; code < next; ++code) slots[slot(prefix[code], suffix[code])] = 0;
        std::fill(recent, recent + std::max(next, clear), kForgotten);
        next = clear + 2;
        for (std::uint32_t code = 0; code < next; ++code) {
            prefix[code] = kNoCode;
            suffix[code] = static_cast<std::uint8_t>(code);
        }
    }
    // The code of string + pixel, or 0: a root is never anyone's extension.
    std::uint32_t find(std::uint32_t string, std::uint8_t pixel) {
        std::uint32_t last = recent[string];
        if (last >> 12 == pixel) return last & 0xFFF;
        std::uint32_t code = slots[slot(string, pixel)];
        if (code != 0) recent[string] = std::uint32_t{pixel} << 12 | code;
        return code;
    }
    void add(std::uint32_t string, std::uint8_t pixel) {
        slots[slot(string, pixel)] = static_cast<std::uint16_t>(next);
        recent[string] = std::uint32_t{pixel} << 12 | next;
        prefix[next] = string;
        suffix[next] = pixel;
        ++next;
    }
    std::uint32_t slot(std::uint32_t string, std::uint8_t pixel) const {
        return string << pixelBits | pixel;
    }
};

}  // namespace ts::gif
