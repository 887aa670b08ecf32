// The recording HTML viewer: the .html association in HKEY_CLASSES_ROOT, and the viewer
// processes this process started, found in a process snapshot and waited for.
#include "support/html_viewer.h"

#include <windows.h>
#include <tlhelp32.h>

#include <cstdio>
#include <fstream>
#include <sstream>

namespace tst {
namespace {

constexpr const char* kProgId = "TessarinTest.HtmlRecorder";
constexpr const char* kRecorder = "html_recorder.exe";

std::string besideThisProgram(const char* name) {
    char exe[MAX_PATH];
    GetModuleFileNameA(nullptr, exe, MAX_PATH);
    std::string path = exe;
    return path.substr(0, path.find_last_of('\\') + 1) + name;
}

void setDefault(const char* key, const std::string& value) {
    RegSetKeyValueA(HKEY_CLASSES_ROOT, key, nullptr, REG_SZ, value.c_str(), static_cast<DWORD>(value.size() + 1));
}

void waitForViewers() {
    HANDLE snapshot = CreateToolhelp32Snapshot(TH32CS_SNAPPROCESS, 0);
    if (snapshot == INVALID_HANDLE_VALUE) return;
    PROCESSENTRY32 entry = {};
    entry.dwSize = sizeof(entry);
    for (BOOL more = Process32First(snapshot, &entry); more; more = Process32Next(snapshot, &entry)) {
        if (entry.th32ParentProcessID != GetCurrentProcessId() || _stricmp(entry.szExeFile, kRecorder) != 0) continue;
        if (HANDLE process = OpenProcess(SYNCHRONIZE, FALSE, entry.th32ProcessID)) {
            WaitForSingleObject(process, 30000);
            CloseHandle(process);
        }
    }
    CloseHandle(snapshot);
}

}  // namespace

RecordingHtmlViewer::RecordingHtmlViewer() {
    char value[256] = "";
    DWORD size = sizeof(value);
    hadProgId_ = RegGetValueA(HKEY_CLASSES_ROOT, ".html", nullptr, RRF_RT_REG_SZ, nullptr, value, &size) == ERROR_SUCCESS;
    previousProgId_ = value;
    setDefault(".html", kProgId);
    setDefault("TessarinTest.HtmlRecorder\\shell\\open\\command", "\"" + besideThisProgram(kRecorder) + "\" \"%1\"");
    char temp[MAX_PATH];
    GetTempPathA(MAX_PATH, temp);
    recordFile_ = std::string(temp) + "tessarin_opened_" + std::to_string(GetCurrentProcessId()) + ".txt";
    DeleteFileA(recordFile_.c_str());
    SetEnvironmentVariableA("TST_OPEN_RECORD", recordFile_.c_str());
}

RecordingHtmlViewer::~RecordingHtmlViewer() {
    waitForViewers();
    if (hadProgId_) setDefault(".html", previousProgId_);
    else RegDeleteKeyValueA(HKEY_CLASSES_ROOT, ".html", nullptr);
    RegDeleteTreeA(HKEY_CLASSES_ROOT, kProgId);
    SetEnvironmentVariableA("TST_OPEN_RECORD", nullptr);
    DeleteFileA(recordFile_.c_str());
}

std::vector<OpenedPage> RecordingHtmlViewer::opened() {
    waitForViewers();
    std::vector<OpenedPage> pages;
    std::ifstream in(recordFile_);
    std::string line;
    while (std::getline(in, line)) {
        std::stringstream fields(line);
        OpenedPage page;
        std::string show;
        std::getline(fields, page.file, '\t');
        std::getline(fields, page.folder, '\t');
        std::getline(fields, show);
        page.showCommand = atoi(show.c_str());
        while (!page.folder.empty() && page.folder.back() == '\\') page.folder.pop_back();
        pages.push_back(page);
    }
    in.close();
    DeleteFileA(recordFile_.c_str());
    return pages;
}

}  // namespace tst
