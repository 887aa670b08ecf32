// The bitmap library's documented message texts, for tests that check that every box
// they see is one of them.
#pragma once

#include <string>

namespace dibt {

// True when the text is one the library documents (the LZW code and the version
// question with their values filled in).
bool documentedText(const std::string& text);

// True when the title is the library's error title, or the version question's.
bool documentedTitle(const std::string& title);

}  // namespace dibt
