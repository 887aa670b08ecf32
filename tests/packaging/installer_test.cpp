// The installer's round trip under wine: a silent install, the installed files (the
// whole install tree), the registry values, a help page opened through the installed
// library with no dialog, a silent uninstall, and nothing left behind. This test loads
// the installed Tessarin20b.dll itself and links no other copy.
#include <windows.h>
#include <shlobj.h>

#include <cstdlib>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "support/file_dialog_driver.h"
#include "support/html_viewer.h"

namespace {

constexpr const char* kDocuKey = "Software\\Halvern Software\\Tessarin\\TessarinPath";
constexpr const char* kVendorKey = "Software\\Halvern Software";
constexpr const char* kUninstallKey = "Software\\Microsoft\\Windows\\CurrentVersion\\Uninstall\\Tessarin";
constexpr const char* kHelpFolder = "\\share\\doc\\Tessarin\\help";

// A path the build gave in an environment variable, as wine sees it (Z: is the root).
std::string hostPath(const char* variable) {
    const char* value = getenv(variable);
    std::string path = value != nullptr ? value : "";
    for (char& c : path) c = c == '/' ? '\\' : c;
    return path.empty() ? path : "Z:" + path;
}

bool exists(const std::string& path) { return GetFileAttributesA(path.c_str()) != INVALID_FILE_ATTRIBUTES; }

DWORD run(std::string command) {
    STARTUPINFOA startup = {};
    startup.cb = sizeof(startup);
    PROCESS_INFORMATION process = {};
    if (!CreateProcessA(nullptr, &command[0], nullptr, nullptr, FALSE, 0, nullptr, nullptr, &startup, &process))
        return 0xFFFFFFFF;
    if (WaitForSingleObject(process.hProcess, 300000) != WAIT_OBJECT_0) TerminateProcess(process.hProcess, 0xDEAD);
    DWORD code = 0xFFFFFFFF;
    GetExitCodeProcess(process.hProcess, &code);
    CloseHandle(process.hProcess);
    CloseHandle(process.hThread);
    return code;
}

// Every file under root, as paths relative to it.
void listFiles(const std::string& root, const std::string& relative, std::vector<std::string>& files) {
    WIN32_FIND_DATAA entry;
    HANDLE find = FindFirstFileA((root + relative + "\\*").c_str(), &entry);
    if (find == INVALID_HANDLE_VALUE) return;
    do {
        const std::string name = entry.cFileName;
        if (name == "." || name == "..") continue;
        if (entry.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY) listFiles(root, relative + "\\" + name, files);
        else files.push_back(relative + "\\" + name);
    } while (FindNextFileA(find, &entry));
    FindClose(find);
}

LONGLONG fileSize(const std::string& path) {
    WIN32_FILE_ATTRIBUTE_DATA data;
    if (!GetFileAttributesExA(path.c_str(), GetFileExInfoStandard, &data)) return -1;
    return (static_cast<LONGLONG>(data.nFileSizeHigh) << 32) | data.nFileSizeLow;
}

std::string registryString(const char* key, const char* name, DWORD* type = nullptr) {
    char value[1024] = "";
    DWORD size = sizeof(value), kind = 0;
    if (RegGetValueA(HKEY_LOCAL_MACHINE, key, name, RRF_RT_ANY | RRF_NOEXPAND, &kind, value, &size) != ERROR_SUCCESS)
        return "<missing>";
    if (type != nullptr) *type = kind;
    return value;
}

bool keyExists(const char* key) {
    HKEY handle = nullptr;
    if (RegOpenKeyExA(HKEY_LOCAL_MACHINE, key, 0, KEY_READ, &handle) != ERROR_SUCCESS) return false;
    RegCloseKey(handle);
    return true;
}

std::string startMenuFolder() {
    char programs[MAX_PATH] = "";
    SHGetFolderPathA(nullptr, CSIDL_COMMON_PROGRAMS, nullptr, 0, programs);
    return std::string(programs) + "\\Tessarin";
}

void expectInstalledTree(const std::string& stage, const std::string& target) {
    std::vector<std::string> files;
    listFiles(stage, "", files);
    ASSERT_GT(files.size(), 50u) << "the install tree " << stage << " looks empty";
    for (const std::string& file : files) {
        EXPECT_EQ(fileSize(target + file), fileSize(stage + file)) << file;
    }
    EXPECT_TRUE(exists(target + "\\Uninstall.exe"));
}

// Opens the welcome page through the installed library: the page must come from the
// installed help folder, with no message and no dialog.
void expectHelpOpensWithoutDialog(const std::string& target) {
    HMODULE library = LoadLibraryA((target + "\\bin\\Tessarin20b.dll").c_str());
    ASSERT_NE(library, nullptr);
    using OpenDocu = void (*)(const char*);
    auto openDocu = reinterpret_cast<OpenDocu>(reinterpret_cast<void*>(GetProcAddress(library, "smOpenDocu")));
    ASSERT_NE(openDocu, nullptr);
    tst::RecordingHtmlViewer viewer;
    {
        tst::FileDialogDriver dialogs("", true);
        openDocu("fsWelcome_e.html");
        EXPECT_TRUE(dialogs.seen().empty());
        EXPECT_TRUE(dialogs.others().empty()) << dialogs.others().front().text;
    }
    const std::vector<tst::OpenedPage> opened = viewer.opened();
    ASSERT_EQ(opened.size(), 1u);
    EXPECT_EQ(opened[0].file, "fsWelcome_e.html");
    EXPECT_EQ(_stricmp(opened[0].folder.c_str(), (target + kHelpFolder).c_str()), 0) << opened[0].folder;
    FreeLibrary(library);
}

// As Windows runs an NSIS uninstaller, but waited for: a copy outside the folder runs
// with _?= naming it, so the folder and the uninstaller itself can go.
DWORD uninstall(const std::string& target) {
    char temp[MAX_PATH];
    GetTempPathA(MAX_PATH, temp);
    const std::string copy = std::string(temp) + "tessarin_uninstall_" + std::to_string(GetCurrentProcessId()) + ".exe";
    if (!CopyFileA((target + "\\Uninstall.exe").c_str(), copy.c_str(), FALSE)) return 0xFFFFFFFF;
    const DWORD code = run("\"" + copy + "\" /S _?=" + target);
    DeleteFileA(copy.c_str());
    return code;
}

}  // namespace

TEST(Installer, InstallsSilentlyOpensHelpAndUninstallsWithoutTrace) {
    const std::string installer = hostPath("TESSARIN_INSTALLER");
    const std::string stage = hostPath("TESSARIN_STAGE");
    ASSERT_TRUE(exists(installer)) << installer;
    const std::string target = "C:\\TessarinInstallTest" + std::to_string(GetCurrentProcessId());
    RegDeleteTreeA(HKEY_LOCAL_MACHINE, kVendorKey);  // the prefix is this build's own

    ASSERT_EQ(run("\"" + installer + "\" /S /D=" + target), 0u);
    expectInstalledTree(stage, target);
    DWORD type = 0;
    EXPECT_EQ(registryString(kDocuKey, "DocuPath", &type), target + kHelpFolder + "\\");
    EXPECT_EQ(type, static_cast<DWORD>(REG_SZ));
    EXPECT_EQ(registryString(kUninstallKey, "UninstallString"), "\"" + target + "\\Uninstall.exe\"");
    EXPECT_EQ(registryString(kUninstallKey, "QuietUninstallString"), "\"" + target + "\\Uninstall.exe\" /S");
    EXPECT_TRUE(exists(startMenuFolder() + "\\Tessarin Help.lnk"));

    expectHelpOpensWithoutDialog(target);

    ASSERT_EQ(uninstall(target), 0u);
    std::vector<std::string> left;
    listFiles(target, "", left);
    EXPECT_FALSE(exists(target)) << left.size() << " files left, the first: " << (left.empty() ? "" : left[0]);
    EXPECT_FALSE(keyExists(kVendorKey));
    EXPECT_FALSE(keyExists(kUninstallKey));
    EXPECT_FALSE(exists(startMenuFolder()));
}
