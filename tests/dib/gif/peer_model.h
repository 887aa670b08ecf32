// What the decoder must make of a file, composed from giflib's decoding of it: the
// images placed on the screen by the decoder's rules (left edge rounded to a byte,
// cut at the screen, the last image winning), the colour tables laid over each other.
#pragma once

#include "giflib_peer.h"

namespace gift {

struct ExpectedBitmap {
    unsigned bits = 0;
    std::uint32_t width = 0, height = 0;
    std::vector<std::uint8_t> indices;   // width x height, top row first
    std::vector<Rgb> table;              // 2^bits entries
    std::uint32_t clrImportant = 0;
    bool refused = false;                // an image's table does not fit the depth
};

// sizeField is the low three bits of the screen descriptor's flags (file byte 10).
ExpectedBitmap composeExpected(const PeerGif& peer, unsigned sizeField);

}  // namespace gift
