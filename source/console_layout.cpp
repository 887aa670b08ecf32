// The layout arithmetic of swResetConsole (no Windows calls, tested natively).
#include "console_layout.h"

#include <algorithm>

namespace ts {

ConsoleLayout raisedToWindow(ConsoleLayout layout) {
    if (layout.bufferColumns == 0 || layout.bufferColumns < layout.columns) layout.bufferColumns = layout.columns;
    if (layout.bufferRows == 0 || layout.bufferRows < layout.rows) layout.bufferRows = layout.rows;
    return layout;
}

std::string consoleKeyName(const char* title) {
    std::string tail = title != nullptr ? title : "";
    std::replace(tail.begin(), tail.end(), '\\', '_');
    return "CONSOLE\\" + tail;
}

uint32_t packHalves(int low, int high) {
    return static_cast<uint32_t>(high) * 65536u + static_cast<uint32_t>(low);
}

}  // namespace ts
