// The layout arithmetic of swResetConsole: the buffer raised to the window, the
// registry key of a console title, and two 16-bit halves packed into one value.
#pragma once

#include <cstdint>
#include <string>

namespace ts {

struct ConsoleLayout {
    int x = 0, y = 0;                       // window position, screen pixels
    int columns = 0, rows = 0;              // window size, character cells
    int bufferColumns = 0, bufferRows = 0;  // screen buffer size, character cells
};

// A buffer dimension of 0 or below the window's becomes the window's.
ConsoleLayout raisedToWindow(ConsoleLayout layout);

// "CONSOLE\" followed by title, each backslash of the title replaced by an underscore
// (the operating system keeps a console's settings under that name). NULL reads as "".
std::string consoleKeyName(const char* title);

// high * 65536 + low in 32-bit unsigned arithmetic, as the console settings store
// a position or size.
uint32_t packHalves(int low, int high);

}  // namespace ts
