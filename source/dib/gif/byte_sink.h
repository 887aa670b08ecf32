// The encoder's output: a growable buffer in memory. A failed growth is remembered
// and makes the write fail; nothing is thrown.
#pragma once

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <memory>

namespace ts::gif {

class ByteSink {
public:
    void put(std::uint8_t byte) {
        if (size_ == capacity_ && !grow(1)) return;
        bytes_.get()[size_++] = byte;
    }
    void put(const std::uint8_t* bytes, std::size_t count) {
        if (capacity_ - size_ < count && !grow(count)) return;
        std::memcpy(bytes_.get() + size_, bytes, count);
        size_ += count;
    }
    void putWord(std::uint32_t value) {  // 16 bits, little-endian
        put(static_cast<std::uint8_t>(value));
        put(static_cast<std::uint8_t>(value >> 8));
    }
    // Room for at least bytes more without growing again.
    void reserve(std::size_t bytes);
    const std::uint8_t* data() const { return bytes_.get(); }
    std::size_t size() const { return size_; }
    bool failed() const { return failed_; }

private:
    bool grow(std::size_t more);

    struct Free {
        void operator()(std::uint8_t* bytes) const { std::free(bytes); }
    };
    std::unique_ptr<std::uint8_t, Free> bytes_;
    std::size_t size_ = 0;
    std::size_t capacity_ = 0;
    bool failed_ = false;
};

}  // namespace ts::gif
