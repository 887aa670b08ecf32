// The decoder's input: a byte string in memory, read from the front (the file is read
// into memory first, so that the decoder can be fed and fuzzed from a pointer).
#pragma once

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstring>

namespace ts::gif {

class ByteCursor {
public:
    ByteCursor(const std::uint8_t* data, std::size_t size) : data_(data), size_(size) {}

    // Copies up to count bytes; returns how many there were.
    std::size_t read(void* to, std::size_t count) {
        count = std::min(count, size_ - pos_);
        if (count != 0) std::memcpy(to, data_ + pos_, count);
        pos_ += count;
        return count;
    }
    bool readByte(std::uint8_t& byte) {
        if (pos_ == size_) return false;
        byte = data_[pos_++];
        return true;
    }
    void skip(std::size_t count) { pos_ += std::min(count, size_ - pos_); }
    std::size_t position() const { return pos_; }

private:
    const std::uint8_t* data_;
    std::size_t size_;
    std::size_t pos_ = 0;
};

}  // namespace ts::gif
