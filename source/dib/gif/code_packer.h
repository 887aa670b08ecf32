// Packing LZW codes into GIF sub-blocks: least significant bit first, 255 data bytes
// a block, a block written as soon as its 255th byte is complete.
#pragma once

#include <cstdint>
#include <cstring>

#include "dib/core/byte_stream.h"

namespace ts::gif {

// The block being filled. Its scalars are kept apart from the bytes so that a caller
// can hold them in registers while bytes are stored.
struct PackState {
    std::uint64_t bits = 0;  // fewer than 8 bits between codes
    unsigned count = 0;
    unsigned fill = 1;       // next byte of the block to complete; byte 0 is the length
};

constexpr unsigned kPackBlockBytes = 256 + 16;  // a block and the overhang of a code

// Bytes already complete behind the 255th go to the front of the next block.
inline void flushFullBlock(PackState& s, std::uint8_t* block, dib::ByteSink& sink) {
    block[0] = 255;
    sink.put(block, 256);
    std::memmove(block + 1, block + 256, s.fill - 256);
    s.fill -= 255;
}

// code must fit in size bits; a size of 0 puts nothing. The whole bit buffer is stored
// every time, so that a code costs no decision but the block's end.
inline void putCode(PackState& s, std::uint8_t* block, dib::ByteSink& sink, std::uint32_t code,
                    unsigned size) {
    s.bits |= std::uint64_t{code} << s.count;
    s.count += size;
    std::memcpy(block + s.fill, &s.bits, sizeof s.bits);
    unsigned whole = s.count / 8;
    s.fill += whole;
    s.bits >>= whole * 8;
    s.count %= 8;
    if (s.fill > 255) flushFullBlock(s, block, sink);
}

// The last block keeps a byte only if bits are in it, so a stream that ends on a block
// boundary ends with a block of length 0; then the terminator.
inline void finishBlocks(PackState& s, std::uint8_t* block, dib::ByteSink& sink) {
    if (s.count != 0) block[s.fill++] = static_cast<std::uint8_t>(s.bits);
    block[0] = static_cast<std::uint8_t>(s.fill - 1);
    sink.put(block, s.fill);
    sink.put(0);
    s = PackState{};
}

}  // namespace ts::gif
