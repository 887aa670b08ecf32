// The owned copy of a string that text nodes keep.
#pragma once

#include <memory>

namespace ts {

// A copy of text with room for its terminating zero; null when text is null or the copy
// cannot be allocated.
std::unique_ptr<char[]> copyText(const char* text);

}  // namespace ts
