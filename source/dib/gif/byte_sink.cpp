// Growth of the encoder's output buffer.
#include "byte_sink.h"

#include <cstdlib>

namespace ts::gif {

void ByteSink::reserve(std::size_t bytes) {
    if (capacity_ - size_ < bytes) grow(bytes);
}

bool ByteSink::grow(std::size_t more) {
    if (failed_ || SIZE_MAX - size_ < more) {
        failed_ = true;
        return false;
    }
    std::size_t wanted = size_ + more;
    std::size_t doubled = capacity_ <= SIZE_MAX / 2 ? capacity_ * 2 : SIZE_MAX;
    std::size_t capacity = wanted > doubled ? wanted : doubled;
    if (capacity < 4096) capacity = 4096;
    void* bytes = std::realloc(bytes_.get(), capacity);
    if (bytes == nullptr) {
        failed_ = true;
        return false;
    }
    bytes_.release();
    bytes_.reset(static_cast<std::uint8_t*>(bytes));
    capacity_ = capacity;
    return true;
}

}  // namespace ts::gif
