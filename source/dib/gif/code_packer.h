// Packing LZW codes into GIF sub-blocks: least significant bit first, 255 data bytes
// a block, a block written as soon as its 255th byte is complete.
#pragma once

#include <cstdint>

#include "byte_sink.h"

namespace ts::gif {

class CodePacker {
public:
    explicit CodePacker(ByteSink& sink) : sink_(sink) {}

    // code must fit in size bits.
    void put(std::uint32_t code, unsigned size) {
        bits_ |= std::uint64_t{code} << count_;
        count_ += size;
        while (count_ >= 8) {
            block_[++fill_] = static_cast<std::uint8_t>(bits_);
            bits_ >>= 8;
            count_ -= 8;
            if (fill_ == 255) flushFull();
        }
    }

    // The last block keeps a byte only if bits are in it, so a stream that ends on a
    // block boundary ends with a block of length 0; then the terminator.
    void finish() {
        if (count_ != 0) block_[++fill_] = static_cast<std::uint8_t>(bits_);
        block_[0] = static_cast<std::uint8_t>(fill_);
        sink_.put(block_, fill_ + 1u);
        sink_.put(0);
        bits_ = 0;
        count_ = 0;
        fill_ = 0;
    }

private:
    void flushFull() {
        block_[0] = 255;
        sink_.put(block_, 256);
        fill_ = 0;
    }

    ByteSink& sink_;
    std::uint64_t bits_ = 0;
    unsigned count_ = 0;
    unsigned fill_ = 0;  // data bytes in block_[1..]
    std::uint8_t block_[256];
};

}  // namespace ts::gif
