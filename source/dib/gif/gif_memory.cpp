// The heap Memory of the GIF codec and the block owner.
#include "gif_memory.h"

#include <cstdlib>

namespace ts::gif {

void* HeapMemory::allocate(std::size_t bytes) {
    if (bytes > limit_) return nullptr;
    return std::calloc(bytes == 0 ? 1 : bytes, 1);
}

void HeapMemory::release(void* block) { std::free(block); }

bool Block::allocate(std::uint64_t bytes) {
    memory_.release(take());
    if (bytes <= SIZE_MAX) data_ = memory_.allocate(static_cast<std::size_t>(bytes));
    return data_ != nullptr;
}

void* Block::take() {
    void* data = data_;
    data_ = nullptr;
    return data;
}

}  // namespace ts::gif
