// Child-process scenarios: CreateProcess with a pipe on standard output, parsing the
// box lines the child's capture writes.
#include "support/child_process.h"

#include <cstdlib>
#include <sstream>

namespace tst {
namespace {

std::string unescaped(const std::string& in) {
    std::string out;
    for (size_t i = 0; i < in.size(); ++i) {
        if (in[i] != '\\' || i + 1 == in.size()) {
            out += in[i];
            continue;
        }
        const char c = in[++i];
        out += c == 'n' ? '\n' : c == 'r' ? '\r' : c == 't' ? '\t' : c;
    }
    return out;
}

std::vector<std::string> splitTabs(const std::string& line) {
    std::vector<std::string> parts;
    std::stringstream stream(line);
    std::string part;
    while (std::getline(stream, part, '\t')) parts.push_back(part);
    return parts;
}

void parseOutput(const std::string& all, ChildResult& result) {
    std::stringstream stream(all);
    std::string line;
    while (std::getline(stream, line)) {
        if (!line.empty() && line.back() == '\r') line.pop_back();
        const std::vector<std::string> parts = splitTabs(line);
        if (parts.size() == 4 && parts[0] == "TST_BOX") {
            result.boxes.push_back({unescaped(parts[1]), unescaped(parts[2]),
                                    static_cast<UINT>(strtoul(parts[3].c_str(), nullptr, 10))});
        } else {
            result.output += line + "\n";
        }
    }
}

}  // namespace

ScenarioCapture::ScenarioCapture() : capture_(atoi(getenv("TST_BUTTON") ? getenv("TST_BUTTON") : "1")) {
    reportBoxesToParent(true);
}

ChildResult runScenario(const char* name, int button, DWORD timeoutMs) {
    ScenarioOptions options;
    options.button = button;
    options.timeoutMs = timeoutMs;
    return runScenario(name, options);
}

ChildResult runScenario(const char* name, const ScenarioOptions& options) {
    ChildResult result;
    char exe[MAX_PATH];
    GetModuleFileNameA(nullptr, exe, MAX_PATH);
    std::string command = std::string("\"") + (options.executable ? options.executable : exe) +
                          "\" --gtest_filter=Scenario.DISABLED_" + name +
                          " --gtest_also_run_disabled_tests --gtest_color=no";
    SetEnvironmentVariableA("TST_BUTTON", std::to_string(options.button).c_str());

    // Only the pipe's write end may reach the child: this process's own standard
    // handles (a test runner's pipes) would otherwise live on in whatever the child
    // starts, such as wine's desktop process, and keep the runner waiting.
    for (DWORD which : {STD_INPUT_HANDLE, STD_OUTPUT_HANDLE, STD_ERROR_HANDLE}) {
        SetHandleInformation(GetStdHandle(which), HANDLE_FLAG_INHERIT, 0);
    }
    SECURITY_ATTRIBUTES inherit = {sizeof(inherit), nullptr, TRUE};
    HANDLE readEnd = nullptr, writeEnd = nullptr;
    if (!CreatePipe(&readEnd, &writeEnd, &inherit, 0)) {
        result.output = "no pipe to the child: error " + std::to_string(GetLastError()) + "\n";
        return result;
    }
    SetHandleInformation(readEnd, HANDLE_FLAG_INHERIT, 0);
    STARTUPINFOA startup = {};
    startup.cb = sizeof(startup);
    startup.dwFlags = STARTF_USESTDHANDLES;
    startup.hStdOutput = writeEnd;
    startup.hStdError = writeEnd;
    startup.hStdInput = nullptr;
    startup.lpTitle = const_cast<char*>(options.consoleTitle);
    PROCESS_INFORMATION process = {};
    // Under wine a start now and then fails while the console of the previous child is
    // still going away; the library has not run yet, so a few more tries are fair.
    BOOL started = FALSE;
    DWORD startError = 0;
    for (int attempt = 0; attempt < 5 && !started; ++attempt) {
        if (attempt > 0) Sleep(200);
        started = CreateProcessA(nullptr, &command[0], nullptr, nullptr, TRUE, 0, nullptr, nullptr, &startup, &process);
        if (!started) startError = GetLastError();
    }
    CloseHandle(writeEnd);
    if (!started) {
        CloseHandle(readEnd);
        result.output = "the child process did not start: error " + std::to_string(startError) + "\n";
        return result;
    }
    // The pipe may stay open after the child has gone (a process the child started,
    // such as wine's desktop, can inherit it), so the child's end is watched, not EOF.
    std::string all;
    const auto drain = [&] {
        char buffer[4096];
        DWORD available = 0, got = 0;
        while (PeekNamedPipe(readEnd, nullptr, 0, nullptr, &available, nullptr) && available > 0 &&
               ReadFile(readEnd, buffer, sizeof(buffer), &got, nullptr) && got > 0) {
            all.append(buffer, got);
        }
    };
    const ULONGLONG deadline = GetTickCount64() + options.timeoutMs;
    bool timedOut = false;
    while (WaitForSingleObject(process.hProcess, 20) == WAIT_TIMEOUT) {
        drain();
        if (GetTickCount64() > deadline) {
            TerminateProcess(process.hProcess, kChildTimedOut);
            WaitForSingleObject(process.hProcess, INFINITE);
            timedOut = true;
        }
    }
    drain();
    GetExitCodeProcess(process.hProcess, &result.exitCode);
    if (timedOut) result.exitCode = kChildTimedOut;
    CloseHandle(process.hProcess);
    CloseHandle(process.hThread);
    CloseHandle(readEnd);
    parseOutput(all, result);
    return result;
}

}  // namespace tst
