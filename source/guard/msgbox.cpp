// Message boxes of the library.
#include "guard/msgbox.h"

#include <windows.h>

#include <string>

namespace ts {

int messageBox(const char* text, const char* title, unsigned style) {
    return MessageBoxA(nullptr, text, title, style);
}

void errorBox(const char* text) { messageBox(text, kErrorTitle, kSetForeground); }

void functionError(const char* function, const char* message) {
    errorBox((std::string(function) + ": " + message).c_str());
}

}  // namespace ts
