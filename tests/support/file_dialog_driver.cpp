// The open-file dialog driver: a thread-local window hook sees the dialog activated and
// arms a timer on it; the timer (running inside the dialog's own message loop) reads the
// dialog and answers. A dialog still open at the next tick is cancelled.
#include "support/file_dialog_driver.h"

#include <commdlg.h>
#include <dlgs.h>

#include <algorithm>

namespace tst {
namespace {

constexpr UINT_PTR kAnswerTimer = 0x7358;
FileDialogDriver* tlsDriver = nullptr;  // the one driver; its hook may run on another thread

bool isDialog(HWND window) {
    char cls[16] = "";
    GetClassNameA(window, cls, sizeof(cls));
    return strcmp(cls, "#32770") == 0;
}

bool isFileDialog(HWND window) { return isDialog(window) && GetDlgItem(window, cmb1) != nullptr; }

std::string text(HWND window) {
    char buffer[512] = "";
    GetWindowTextA(window, buffer, sizeof(buffer));
    return buffer;
}

SeenFileDialog read(HWND dialog) {
    SeenFileDialog seen;
    seen.title = text(dialog);
    char buffer[MAX_PATH] = "";
    if (SendDlgItemMessageA(dialog, cmb1, CB_GETLBTEXT, 0, reinterpret_cast<LPARAM>(buffer)) != CB_ERR) seen.filter = buffer;
    buffer[0] = '\0';
    SendMessageA(dialog, CDM_GETFOLDERPATH, MAX_PATH, reinterpret_cast<LPARAM>(buffer));
    seen.folder = buffer;
    seen.owner = GetWindow(dialog, GW_OWNER);
    HWND help = GetDlgItem(dialog, pshHelp);
    seen.helpButton = help != nullptr && IsWindowVisible(help);
    return seen;
}

}  // namespace

FileDialogDriver::FileDialogDriver(std::string answer, bool closeOthers, DWORD threadId)
    : answer_(std::move(answer)), closeOthers_(closeOthers) {
    tlsDriver = this;
    hook_ = SetWindowsHookExA(WH_CBT, hook, nullptr, threadId != 0 ? threadId : GetCurrentThreadId());
}

FileDialogDriver::~FileDialogDriver() {
    UnhookWindowsHookEx(hook_);
    tlsDriver = nullptr;
}

LRESULT CALLBACK FileDialogDriver::hook(int code, WPARAM wParam, LPARAM lParam) {
    HWND window = reinterpret_cast<HWND>(wParam);
    FileDialogDriver* driver = tlsDriver;
    if (code == HCBT_ACTIVATE && driver != nullptr && isDialog(window) &&
        std::find(driver->handled_.begin(), driver->handled_.end(), window) == driver->handled_.end()) {
        if (isFileDialog(window)) {
            driver->handled_.push_back(window);
            SetTimer(window, kAnswerTimer, 50, answer);
        } else if (driver->closeOthers_) {
            driver->handled_.push_back(window);
            SetTimer(window, kAnswerTimer, 50, close);
        }
    }
    return CallNextHookEx(nullptr, code, wParam, lParam);
}

void CALLBACK FileDialogDriver::answer(HWND dialog, UINT, UINT_PTR, DWORD) {
    FileDialogDriver* driver = tlsDriver;
    if (driver == nullptr) return;
    if (GetPropA(dialog, "TstAnswered") != nullptr) {
        // The answer did not close it: cancel, so that the test goes on and fails.
        KillTimer(dialog, kAnswerTimer);
        driver->seen_.back().answered = false;
        PostMessageA(dialog, WM_COMMAND, IDCANCEL, 0);
        return;
    }
    SetPropA(dialog, "TstAnswered", reinterpret_cast<HANDLE>(1));
    driver->seen_.push_back(read(dialog));
    if (driver->answer_.empty()) {
        SendMessageA(dialog, WM_COMMAND, IDCANCEL, 0);
        return;
    }
    for (int id : {edt1, cmb13}) SetDlgItemTextA(dialog, id, driver->answer_.c_str());
    SendMessageA(dialog, WM_COMMAND, MAKEWPARAM(IDOK, BN_CLICKED), reinterpret_cast<LPARAM>(GetDlgItem(dialog, IDOK)));
}

void CALLBACK FileDialogDriver::close(HWND dialog, UINT, UINT_PTR, DWORD) {
    KillTimer(dialog, kAnswerTimer);
    if (FileDialogDriver* driver = tlsDriver) {
        driver->others_.push_back({text(dialog), text(GetDlgItem(dialog, 0xFFFF))});
    }
    SendMessageA(dialog, WM_COMMAND, IDOK, 0);
}

}  // namespace tst
