// smOpenDocu: opens one of the library's help pages with the system's viewer, from the
// help folder kept in the registry; without one the user is asked to find a page.
#include <windows.h>
#include <commdlg.h>
#include <shellapi.h>

#include <cstring>
#include <string>

#include "docu_paths.h"
#include "globals.h"
#include "guard.h"
#include "msgbox.h"
#include "tessarin.h"
#include "view/cscene.h"

namespace ts {
namespace {

constexpr DWORD kPathBytes = 260;

HWND currentSceneWindow() { return CURRENT_SCENE != nullptr ? CURRENT_SCENE->window : nullptr; }

// "DocuPath" as a string of less than 260 bytes; anything else counts as missing.
bool readDocuPath(HKEY key, char (&path)[kPathBytes + 1]) {
    DWORD type = 0, size = kPathBytes;
    if (RegQueryValueExA(key, "DocuPath", nullptr, &type, reinterpret_cast<BYTE*>(path), &size) != ERROR_SUCCESS)
        return false;
    path[size < kPathBytes ? size : kPathBytes] = '\0';
    return type == REG_SZ || type == REG_EXPAND_SZ;
}

bool openedFromDocuPath(HKEY key, const char* file) {
    char path[kPathBytes + 1] = {};
    if (!readDocuPath(key, path)) return false;
    const INT_PTR result =
        reinterpret_cast<INT_PTR>(ShellExecuteA(currentSceneWindow(), "open", file, nullptr, path, SW_SHOW));
    return result > 32;
}

// The open-file dialog; on OK the chosen file's folder is stored as "SceneDocuPath" and
// returned, on cancel the result is empty.
std::string askForFolder(HKEY key) {
    char file[kPathBytes] = "", fileTitle[kPathBytes] = "", current[MAX_PATH] = "";
    GetCurrentDirectoryA(MAX_PATH, current);
    OPENFILENAMEA dialog = {};
    dialog.lStructSize = sizeof(dialog);
    dialog.hwndOwner = currentSceneWindow();
    dialog.lpstrFilter = "HTML-File (*.html)\0*.html\0";
    dialog.nFilterIndex = 1;
    dialog.lpstrFile = file;
    dialog.nMaxFile = kPathBytes;
    dialog.lpstrFileTitle = fileTitle;
    dialog.nMaxFileTitle = kPathBytes;
    dialog.lpstrInitialDir = current;
    dialog.Flags = OFN_OVERWRITEPROMPT | OFN_SHOWHELP;
    if (!GetOpenFileNameA(&dialog)) return std::string();
    const std::string folder = chosenFolder(file, fileTitle);
    RegSetValueExA(key, "SceneDocuPath", 0, REG_SZ, reinterpret_cast<const BYTE*>(folder.c_str()),
                   static_cast<DWORD>(folder.size()));
    return folder;
}

void openFromFolder(const char* file, const std::string& folder) {
    if (folder.empty()) return;
    const INT_PTR result =
        reinterpret_cast<INT_PTR>(ShellExecuteA(nullptr, "open", file, nullptr, folder.c_str(), SW_SHOWNORMAL));
    if (const char* text = docuOpenFailureText(result)) errorBox(text);
}

// The key stays open, as it always has: one handle per call.
void openDocu(const char* file) {
    HKEY key = nullptr;
    DWORD disposition = 0;
    if (RegCreateKeyExA(HKEY_LOCAL_MACHINE, kDocuKey, 0, nullptr, REG_OPTION_NON_VOLATILE, KEY_ALL_ACCESS, nullptr,
                        &key, &disposition) != ERROR_SUCCESS) {
        return;  // no key: the folder is empty and nothing opens
    }
    if (openedFromDocuPath(key, file)) return;
    errorBox(kDocuNotFound);
    openFromFolder(file, askForFolder(key));
}

}  // namespace
}  // namespace ts

extern "C" void smOpenDocu(const char* file) {
    ts::guarded("smOpenDocu", [&] {
        if (file != nullptr) ts::openDocu(file);
    });
}
