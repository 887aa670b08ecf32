// Text copies of the text nodes.
#include "tsobj3d/text_copy.h"

#include <cstring>
#include <new>

namespace ts {

std::unique_ptr<char[]> copyText(const char* text) {
    if (text == nullptr) return nullptr;
    const size_t size = std::strlen(text) + 1;  // the terminating zero too
    std::unique_ptr<char[]> copy(new (std::nothrow) char[size]);
    if (copy) std::memcpy(copy.get(), text, size);
    return copy;
}

}  // namespace ts
