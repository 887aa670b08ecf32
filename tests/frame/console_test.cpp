// swResetConsole against the real DLL: the title, the clearing, the console's window and
// buffer, the console window's position, and the layout stored in the user's console
// settings. Each case runs in a child process of its own, with its own console and a
// console title given at its start, so that the settings key is known:
// "CONSOLE\Tessarin_Console Test" for the title "Tessarin\Console Test".
#include <windows.h>

#include <fcntl.h>
#include <io.h>

#include <cstdio>
#include <string>

#include <gtest/gtest.h>

#include "support/child_process.h"
#include "tessarin.h"

namespace {

constexpr const char* kStartTitle = "Tessarin\\Console Test";
constexpr const char* kSettingsKey = "CONSOLE\\Tessarin_Console Test";
constexpr const char* kNewTitle = "Tessarin reset";

// --- child side: a fresh console as a console program has one ------------------------

HANDLE freshConsole() {
    FreeConsole();
    if (!AllocConsole()) return INVALID_HANDLE_VALUE;
    HANDLE out = CreateFileA("CONOUT$", GENERIC_READ | GENERIC_WRITE, FILE_SHARE_READ | FILE_SHARE_WRITE, nullptr,
                             OPEN_EXISTING, 0, nullptr);
    SetStdHandle(STD_OUTPUT_HANDLE, out);  // printf still reaches the parent through the C runtime
    return out;
}

// "cls" clears the console that the command interpreter writes to: the one behind the C
// runtime's standard output, which in a scenario is the pipe to the parent. While this
// lives it is the console, as in a console program; the parent hears nothing meanwhile.
class OutputOnConsole {
public:
    OutputOnConsole() {
        fflush(stdout);
        saved_ = _dup(1);
        const int console = _open("CONOUT$", _O_RDWR);
        _dup2(console, 1);
        _close(console);
    }
    ~OutputOnConsole() {
        fflush(stdout);
        _dup2(saved_, 1);
        _close(saved_);
    }

private:
    int saved_ = -1;
};

void writeMarker(HANDLE out) {
    DWORD written = 0;
    WriteConsoleOutputCharacterA(out, "dirty", 5, COORD{0, 0}, &written);
}

// Reports the console as the parent checks it: buffer, window, title, first characters.
void reportConsole(HANDLE out) {
    CONSOLE_SCREEN_BUFFER_INFO info = {};
    GetConsoleScreenBufferInfo(out, &info);
    char title[256] = "", cells[6] = "";
    GetConsoleTitleA(title, sizeof(title));
    DWORD read = 0;
    ReadConsoleOutputCharacterA(out, cells, 5, COORD{0, 0}, &read);
    printf("TST_CONSOLE %d %d %d %d %d %d|%s|%s\n", info.dwSize.X, info.dwSize.Y, info.srWindow.Left,
           info.srWindow.Top, info.srWindow.Right, info.srWindow.Bottom, title, cells);
    fflush(stdout);
}

void startSceneThread() { swCreateWind("console test", 100, 100, 0, 0, 0); }

// The usual scenario: a fresh console, the scene thread, one call, the report.
void resetFreshConsole(int x, int y, int columns, int rows, int bufferColumns, int bufferRows) {
    HANDLE out = freshConsole();
    startSceneThread();
    swResetConsole(kNewTitle, x, y, columns, rows, bufferColumns, bufferRows);
    reportConsole(out);
}

// --- parent side -------------------------------------------------------------------

struct ConsoleState {
    int bufferColumns = -1, bufferRows = -1, left = -1, top = -1, right = -1, bottom = -1;
    std::string title, firstCells;
};

bool parseConsole(const std::string& output, ConsoleState& state) {
    const size_t at = output.find("TST_CONSOLE ");
    if (at == std::string::npos) return false;
    char title[256] = "", cells[16] = "";
    const int n = sscanf(output.c_str() + at, "TST_CONSOLE %d %d %d %d %d %d|%255[^|]|%15[^\n]", &state.bufferColumns,
                         &state.bufferRows, &state.left, &state.top, &state.right, &state.bottom, title, cells);
    state.title = title;
    state.firstCells = cells;
    return n >= 7;
}

void deleteSettings() { RegDeleteKeyA(HKEY_CURRENT_USER, kSettingsKey); }

bool settingsExist() {
    HKEY key = nullptr;
    if (RegOpenKeyExA(HKEY_CURRENT_USER, kSettingsKey, 0, KEY_READ, &key) != ERROR_SUCCESS) return false;
    RegCloseKey(key);
    return true;
}

// The REG_DWORD value, or -1 when it is missing or of another type.
long long settingsValue(const char* name) {
    DWORD value = 0, size = sizeof(value), type = 0;
    if (RegGetValueA(HKEY_CURRENT_USER, kSettingsKey, name, RRF_RT_ANY, &type, &value, &size) != ERROR_SUCCESS ||
        type != REG_DWORD) {
        return -1;
    }
    return value;
}

// The child ended normally and reported its console.
::testing::AssertionResult reported(const tst::ChildResult& r, ConsoleState& console) {
    if (r.exitCode != 0) return ::testing::AssertionFailure() << "exit code " << r.exitCode << "\n" << r.output;
    if (!parseConsole(r.output, console)) return ::testing::AssertionFailure() << "no report:\n" << r.output;
    return ::testing::AssertionSuccess();
}

tst::ChildResult runConsoleScenario(const char* name, const char* executable = nullptr) {
    deleteSettings();
    tst::ScenarioOptions options;
    options.consoleTitle = kStartTitle;
    options.executable = executable;
    return tst::runScenario(name, options);
}

}  // namespace

TST_SCENARIO(EightyByTwentyFive) { resetFreshConsole(0, 0, 80, 25, 0, 0); }

TEST(Console, EightyByTwentyFiveSetsTheBufferAndStoresTheLayout) {
    const tst::ChildResult r = runConsoleScenario("EightyByTwentyFive");
    ConsoleState console;
    ASSERT_TRUE(reported(r, console));
    EXPECT_TRUE(r.boxes.empty()) << r.boxes.front().text;
    EXPECT_EQ(console.bufferColumns, 80);
    EXPECT_EQ(console.bufferRows, 25);
    EXPECT_EQ(console.left, 0);
    EXPECT_EQ(console.top, 0);
    EXPECT_EQ(console.right, 79);
    EXPECT_EQ(console.bottom, 24);
    EXPECT_EQ(console.title, kNewTitle);
    // The values the 80 by 25 call stores, as the operating system reads them.
    EXPECT_EQ(settingsValue("WindowPosition"), 0);
    EXPECT_EQ(settingsValue("WindowSize"), 25 * 65536 + 80);  // 0x00190050 = 1638480
    EXPECT_EQ(settingsValue("ScreenBufferSize"), 25 * 65536 + 80);
    printf("80 x 25: WindowPosition=%lld WindowSize=%lld ScreenBufferSize=%lld\n", settingsValue("WindowPosition"),
           settingsValue("WindowSize"), settingsValue("ScreenBufferSize"));
}

TST_SCENARIO(Clearing) {
    HANDLE out = freshConsole();
    writeMarker(out);
    startSceneThread();
    {
        OutputOnConsole onConsole;
        swResetConsole(kNewTitle, 0, 0, 80, 25, 0, 0);
    }
    reportConsole(out);
}

TEST(Console, TheConsoleIsCleared) {
    const tst::ChildResult r = runConsoleScenario("Clearing");
    ConsoleState console;
    ASSERT_TRUE(reported(r, console));
    EXPECT_EQ(console.firstCells.find("dirty"), std::string::npos) << "the console was not cleared";
    EXPECT_EQ(console.bufferRows, 25);
}

TST_SCENARIO(NarrowBuffer) { resetFreshConsole(12, 34, 80, 25, 40, 300); }

TEST(Console, ABufferNarrowerThanTheWindowIsRaisedToTheWindowWidth) {
    const tst::ChildResult r = runConsoleScenario("NarrowBuffer");
    ConsoleState console;
    ASSERT_TRUE(reported(r, console));
    EXPECT_TRUE(r.boxes.empty()) << r.boxes.front().text;
    EXPECT_EQ(console.bufferColumns, 80);
    EXPECT_EQ(console.bufferRows, 300);  // a taller buffer stays
    EXPECT_EQ(settingsValue("ScreenBufferSize"), 300 * 65536 + 80);
    EXPECT_EQ(settingsValue("WindowSize"), 25 * 65536 + 80);
    EXPECT_EQ(settingsValue("WindowPosition"), 34 * 65536 + 12);
}

TST_SCENARIO(MovesTheConsoleWindow) {
    HANDLE out = freshConsole();
    // Wine's console window has a class of its own; a window of the class and caption
    // the library looks for stands in for it.
    char title[256] = "";
    GetConsoleTitleA(title, sizeof(title));
    WNDCLASSA wc = {};
    wc.lpfnWndProc = DefWindowProcA;
    wc.hInstance = GetModuleHandleA(nullptr);
    wc.lpszClassName = "ConsoleWindowClass";
    RegisterClassA(&wc);
    HWND stand = CreateWindowA("ConsoleWindowClass", title, WS_OVERLAPPEDWINDOW, 300, 300, 200, 150, nullptr,
                               nullptr, wc.hInstance, nullptr);
    startSceneThread();
    swResetConsole(kNewTitle, 40, 60, 80, 25, 0, 0);
    RECT rc = {};
    GetWindowRect(stand, &rc);
    printf("TST_WINDOW %ld %ld %ld %ld %d\n", rc.left, rc.top, rc.right - rc.left, rc.bottom - rc.top,
           IsWindowVisible(stand) ? 1 : 0);
    reportConsole(out);
}

TEST(Console, TheConsoleWindowMovesKeepsItsSizeAndShows) {
    const tst::ChildResult r = runConsoleScenario("MovesTheConsoleWindow");
    ASSERT_EQ(r.exitCode, 0u) << r.output;
    EXPECT_TRUE(r.boxes.empty()) << r.boxes.front().text;
    long left = 0, top = 0, width = 0, height = 0;
    int visible = 0;
    const size_t at = r.output.find("TST_WINDOW ");
    ASSERT_NE(at, std::string::npos) << r.output;
    ASSERT_EQ(sscanf(r.output.c_str() + at, "TST_WINDOW %ld %ld %ld %ld %d", &left, &top, &width, &height, &visible), 5);
    EXPECT_EQ(left, 40);
    EXPECT_EQ(top, 60);
    EXPECT_EQ(width, 200);
    EXPECT_EQ(height, 150);
    EXPECT_EQ(visible, 1);
    EXPECT_EQ(settingsValue("WindowPosition"), 60 * 65536 + 40);
}

TST_SCENARIO(NoConsole) {
    FreeConsole();
    startSceneThread();
    swResetConsole(kNewTitle, 5, 6, 100, 40, 0, 0);
}

TEST(Console, WithoutAConsoleTheResizingFailsAndTheLayoutIsStoredAllTheSame) {
    const tst::ChildResult r = runConsoleScenario("NoConsole");
    ASSERT_EQ(r.exitCode, 0u) << r.output;
    ASSERT_EQ(r.boxes.size(), 1u);
    EXPECT_EQ(r.boxes[0].text, "Resizing console failed!");
    EXPECT_EQ(r.boxes[0].title, "Tessarin Error Message");
    EXPECT_EQ(r.boxes[0].style, 0x10000u);
    EXPECT_EQ(settingsValue("WindowPosition"), 6 * 65536 + 5);
    EXPECT_EQ(settingsValue("WindowSize"), 40 * 65536 + 100);
    EXPECT_EQ(settingsValue("ScreenBufferSize"), 40 * 65536 + 100);
}

// The window is set before the buffer: a window taller than the current buffer is
// refused, and the buffer is then left alone.
TST_SCENARIO(WindowLargerThanTheBuffer) { resetFreshConsole(0, 0, 80, 400, 0, 0); }

TEST(Console, AWindowTheBufferCannotHoldFailsAndStillStoresTheLayout) {
    const tst::ChildResult r = runConsoleScenario("WindowLargerThanTheBuffer");
    ConsoleState console;
    ASSERT_TRUE(reported(r, console));
    ASSERT_EQ(r.boxes.size(), 1u);
    EXPECT_EQ(r.boxes[0].text, "Resizing console failed!");
    EXPECT_NE(console.bufferRows, 400);
    EXPECT_EQ(settingsValue("ScreenBufferSize"), 400 * 65536 + 80);
}

TST_SCENARIO(BeforeTheSceneThread) {
    HANDLE out = freshConsole();
    swResetConsole(kNewTitle, 0, 0, 80, 25, 0, 0);
    reportConsole(out);
}

TEST(Console, BeforeTheSceneThreadRunsOnlyTheMessageShows) {
    const tst::ChildResult r = runConsoleScenario("BeforeTheSceneThread");
    ConsoleState console;
    ASSERT_TRUE(reported(r, console));
    ASSERT_EQ(r.boxes.size(), 1u);
    EXPECT_EQ(r.boxes[0].text, "Tessarin Window is not initialized!");
    EXPECT_NE(console.title, kNewTitle);
    EXPECT_FALSE(settingsExist());
}

TST_SCENARIO(NullTitle) {
    startSceneThread();
    swResetConsole(nullptr, 0, 0, 80, 25, 0, 0);
}

TEST(Console, ANullTitleEndsTheProcessThroughTheProbe) {
    const tst::ChildResult r = runConsoleScenario("NullTitle");
    EXPECT_EQ(r.exitCode, 1u);
    ASSERT_EQ(r.boxes.size(), 1u);
    EXPECT_EQ(r.boxes[0].text, "Pointer to inaccessible memory: swResetConsole(title)");
    EXPECT_FALSE(settingsExist());
}

// Outside the NT family: wine reports Windows 98 to a program named in its application
// defaults, so a copy of this executable under another name takes that branch.
TST_SCENARIO(OutsideNt) {
    HANDLE out = freshConsole();
    writeMarker(out);
    OSVERSIONINFOA version = {};
    version.dwOSVersionInfoSize = sizeof(version);
    GetVersionExA(&version);
    printf("TST_PLATFORM %lu\n", version.dwPlatformId);
    startSceneThread();
    {
        OutputOnConsole onConsole;
        swResetConsole(kNewTitle, 0, 0, 80, 25, 0, 0);
    }
    reportConsole(out);
}

TEST(Console, OutsideTheNtFamilyOnlyTheTitleAndTheClearingHappen) {
    char exe[MAX_PATH];
    GetModuleFileNameA(nullptr, exe, MAX_PATH);
    std::string copy = exe;
    copy.replace(copy.rfind(".exe"), 4, "_win98.exe");
    ASSERT_TRUE(CopyFileA(exe, copy.c_str(), FALSE));
    const std::string name = copy.substr(copy.find_last_of('\\') + 1);
    const std::string defaults = "Software\\Wine\\AppDefaults\\" + name;
    ASSERT_EQ(RegSetKeyValueA(HKEY_CURRENT_USER, defaults.c_str(), "Version", REG_SZ, "win98", 6), ERROR_SUCCESS);
    const tst::ChildResult r = runConsoleScenario("OutsideNt", copy.c_str());
    RegDeleteKeyA(HKEY_CURRENT_USER, defaults.c_str());
    DeleteFileA(copy.c_str());

    ConsoleState console;
    ASSERT_TRUE(reported(r, console));
    ASSERT_NE(r.output.find("TST_PLATFORM 1"), std::string::npos) << r.output;
    EXPECT_TRUE(r.boxes.empty()) << r.boxes.front().text;
    EXPECT_EQ(console.title, kNewTitle);
    EXPECT_EQ(console.firstCells.find("dirty"), std::string::npos) << "the console was not cleared";
    EXPECT_NE(console.bufferRows, 25);  // the buffer of a new console is left as it was
    EXPECT_FALSE(settingsExist());
}
