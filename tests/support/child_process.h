// Scenarios that must run in a child process (they end the process): the child runs
// this same test executable filtered to one scenario; the parent asserts its exit code
// and the message boxes it showed.
#pragma once

#include <windows.h>

#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "support/msgbox_capture.h"

namespace tst {

struct ChildBox {
    std::string title;
    std::string text;
    UINT style = 0;
};

struct ChildResult {
    DWORD exitCode = 0xFFFFFFFF;
    std::vector<ChildBox> boxes;
    std::string output;  // everything else the child wrote to standard output
};

// Exit code reported for a child that had to be ended after the time-out.
constexpr DWORD kChildTimedOut = 0xDEADu;

struct ScenarioOptions {
    int button = IDOK;                  // pressed in every message box
    DWORD timeoutMs = 120000;           // after which the child is ended
    const char* consoleTitle = nullptr; // lpTitle of the child's start-up information
    const char* executable = nullptr;   // another copy of this test executable
};

// Runs scenario `name` in a child process; every message box it shows is read and
// answered with `button`. Waits for the child to end, at most timeoutMs, after which
// the child is ended and exitCode is kChildTimedOut.
ChildResult runScenario(const char* name, int button = IDOK, DWORD timeoutMs = 120000);
ChildResult runScenario(const char* name, const ScenarioOptions& options);

// Installed by TST_SCENARIO in the child: captures and reports boxes to the parent.
class ScenarioCapture {
public:
    ScenarioCapture();

private:
    MessageBoxCapture capture_;
};

}  // namespace tst

// A scenario body. It is a disabled test, so it runs only when a parent asks for it.
#define TST_SCENARIO(Name) \
    struct TstScenarioBody_##Name { static void run(); }; \
    TEST(Scenario, DISABLED_##Name) { tst::ScenarioCapture capture; TstScenarioBody_##Name::run(); } \
    void TstScenarioBody_##Name::run()
