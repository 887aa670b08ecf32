// The library's message boxes: one function for every box it raises.
#pragma once

namespace ts {

constexpr const char* kErrorTitle = "Tessarin Error Message";
constexpr unsigned kSetForeground = 0x10000;  // MB_SETFOREGROUND: OK only, no icon

// Shows text in a box with no owner window; returns the button pressed.
int messageBox(const char* text, const char* title, unsigned style);
// The standard error box: title "Tessarin Error Message", MB_SETFOREGROUND only.
void errorBox(const char* text);
// "<function>: <message>" in the standard error box, as the dib functions report.
void functionError(const char* function, const char* message);

}  // namespace ts
