// swResetConsole: gives the process's console a title, clears it, sets its window and
// buffer size and its position, and stores that layout in the user's console settings
// so that the console opens the same way next time.
#include <windows.h>

#include <cstdlib>

#include "console_layout.h"
#include "globals.h"
#include "guard.h"
#include "msgbox.h"
#include "tessarin.h"

namespace ts {
namespace {

// Window rectangle, then buffer, then position. Each failure is reported and ends the
// resizing; the settings are stored all the same.
void resizeConsole(const ConsoleLayout& layout) {
    HANDLE out = GetStdHandle(STD_OUTPUT_HANDLE);
    const SMALL_RECT window = {0, 0, static_cast<SHORT>(layout.columns - 1), static_cast<SHORT>(layout.rows - 1)};
    if (!SetConsoleWindowInfo(out, TRUE, &window)) {
        errorBox("Resizing console failed!");
        return;
    }
    const COORD buffer = {static_cast<SHORT>(layout.bufferColumns), static_cast<SHORT>(layout.bufferRows)};
    if (!SetConsoleScreenBufferSize(out, buffer)) {
        errorBox("Resetting console buffer failed!");
        return;
    }
    if (hConsole != nullptr &&
        !SetWindowPos(hConsole, HWND_TOP, layout.x, layout.y, 0, 0, SWP_NOSIZE | SWP_SHOWWINDOW)) {
        errorBox("Resetting console position failed!");
    }
}

// The key stays open, as it always has: one handle per call.
void storeConsoleSettings(const ConsoleLayout& layout) {
    STARTUPINFOA startup = {};
    startup.cb = sizeof(startup);
    GetStartupInfoA(&startup);
    HKEY key = nullptr;
    DWORD disposition = 0;
    if (RegCreateKeyExA(HKEY_CURRENT_USER, consoleKeyName(startup.lpTitle).c_str(), 0, nullptr,
                        REG_OPTION_NON_VOLATILE, KEY_ALL_ACCESS, nullptr, &key, &disposition) != ERROR_SUCCESS) {
        errorBox("Registration of console failed!");
        return;
    }
    const struct { const char* name; DWORD value; } values[] = {
        {"WindowPosition", packHalves(layout.x, layout.y)},
        {"WindowSize", packHalves(layout.columns, layout.rows)},
        {"ScreenBufferSize", packHalves(layout.bufferColumns, layout.bufferRows)},
    };
    for (const auto& v : values) {
        RegSetValueExA(key, v.name, 0, REG_DWORD, reinterpret_cast<const BYTE*>(&v.value), sizeof(DWORD));
    }
    RegFlushKey(key);
}

void resetConsole(const char* title, const ConsoleLayout& requested) {
    if (!THREAD_ACTIVE) {
        errorBox(kNotInitialized);
        return;
    }
    const ConsoleLayout layout = raisedToWindow(requested);
    SetConsoleTitleA(title);
    system("cls");
    if (osPlatform != VER_PLATFORM_WIN32_NT) return;
    resizeConsole(layout);
    storeConsoleSettings(layout);
}

}  // namespace
}  // namespace ts

extern "C" void swResetConsole(const char* title, int x, int y, int columns, int rows, int bufferColumns,
                               int bufferRows) {
    ts::probe(title, "swResetConsole(title)");
    ts::guarded("swResetConsole", [&] {
        ts::ConsoleLayout layout;
        layout.x = x;
        layout.y = y;
        layout.columns = columns;
        layout.rows = rows;
        layout.bufferColumns = bufferColumns;
        layout.bufferRows = bufferRows;
        ts::resetConsole(title, layout);
    });
}
