// The encoder's string table: the code of "string + pixel" from a hash of (string,
// pixel) pairs, in front of which each string remembers the extension it was last
// asked for, since runs of one colour ask for the same one again and again. Both stay
// small enough for the processor's nearest caches.
#pragma once

#include <algorithm>
#include <cstdint>

#include "dib/core/module_state.h"

namespace ts::gif {

struct StringTable {
    static constexpr std::uint32_t kEmpty = 0xFFFFFFFF;  // no pair; matches no pixel
    static constexpr unsigned kHashBits = 14;
    static constexpr std::uint32_t kHashSlots = 1u << kHashBits;  // at most a quarter full

    std::uint32_t* prefix;
    std::uint8_t* suffix;
    std::uint32_t* slots;    // kHashSlots entries: (string << 8 | pixel) << 12 | code
    std::uint32_t* recent;   // kMaxCodes entries: pixel << 12 | code, per string
    std::uint32_t clear;
    std::uint32_t next;

    // Roots only: every code from clear + 2 on is free again.
    void reset() {
        std::fill(slots, slots + kHashSlots, kEmpty);
        std::fill(recent, recent + std::max(next, clear), kEmpty);
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
        std::uint32_t entry = slots[slot(string, pixel)];
        if (entry == kEmpty) return 0;
        recent[string] = std::uint32_t{pixel} << 12 | (entry & 0xFFF);
        return entry & 0xFFF;
    }
    // Adds string + pixel at the next free code.
    void add(std::uint32_t string, std::uint8_t pixel) {
        slots[slot(string, pixel)] = (string << 8 | pixel) << 12 | next;
        recent[string] = std::uint32_t{pixel} << 12 | next;
        prefix[next] = string;
        suffix[next] = pixel;
        ++next;
    }
    // The slot that holds string + pixel, or the empty one where it would go.
    std::uint32_t slot(std::uint32_t string, std::uint8_t pixel) const {
        std::uint32_t key = string << 8 | pixel;
        std::uint32_t at = (key * 2654435761u) >> (32 - kHashBits);
        while (slots[at] != kEmpty && slots[at] >> 12 != key) at = (at + 1) & (kHashSlots - 1);
        return at;
    }
};

}  // namespace ts::gif
