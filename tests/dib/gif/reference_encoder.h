// A straightforward GIF writer that follows the encoder's algorithm step by step: the
// child table of 12 slots per code with its linear fallback search, and a code packer
// that works bit by bit. The library's encoder must write the same bytes.
#pragma once

#include "gif_test_support.h"

namespace gift {

// The whole file for a bitmap of 1, 4 or 8 bits, as the encoder writes it.
Bytes referenceGif(const Dib& dib, int version, bool interlace);

// Only the LZW part: code size byte, sub-blocks and terminator.
Bytes referenceLzw(const std::vector<std::uint8_t>& pixels, unsigned minCodeSize);

}  // namespace gift
