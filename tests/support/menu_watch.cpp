// MenuWatch, menu reading, key presses in a popup and window pictures.
#include "support/menu_watch.h"

#include <algorithm>
#include <cstdio>
#include <cstring>

namespace tst {
namespace {

struct MenuWatchState {
    HANDLE shown = CreateEventA(nullptr, FALSE, FALSE, nullptr);
    volatile HWND popup = nullptr;
    volatile LONG loops = 0;
    volatile LONG loopsWhenArmed = 0;
    volatile LONG initialised = 0;
    std::function<void(HWND)> action;
};

MenuWatchState& state() {
    static MenuWatchState s;
    return s;
}

HWND popupOf(LPARAM lParam) {
    HWND popup = reinterpret_cast<HWND>(lParam);
    return popup != nullptr && IsWindow(popup) ? popup : FindWindowA("#32768", nullptr);
}

LRESULT CALLBACK callHook(int code, WPARAM wParam, LPARAM lParam) {
    const CWPSTRUCT* sent = reinterpret_cast<const CWPSTRUCT*>(lParam);
    MenuWatchState& s = state();
    if (code == HC_ACTION && sent->message == WM_ENTERMENULOOP) InterlockedIncrement(&s.loops);
    if (code == HC_ACTION && sent->message == WM_INITMENUPOPUP) InterlockedIncrement(&s.initialised);
    // A menu loop entered after arm() that ends before it ever waits for input showed no
    // popup to read (the end of a loop entered before is not of interest).
    if (code == HC_ACTION && sent->message == WM_EXITMENULOOP && s.popup == nullptr && s.loops > s.loopsWhenArmed) {
        SetEvent(s.shown);
    }
    if (code == HC_ACTION && sent->message == WM_ENTERIDLE && sent->wParam == MSGF_MENU) {
        s.popup = popupOf(sent->lParam);
        if (s.action) s.action(s.popup);
        SetEvent(s.shown);
    }
    return CallNextHookEx(nullptr, code, wParam, lParam);
}

struct DialogWatchState {
    HANDLE activated = CreateEventA(nullptr, FALSE, FALSE, nullptr);
    CRITICAL_SECTION lock;
    std::vector<HWND> dialogs;
    DialogWatchState() { InitializeCriticalSection(&lock); }
};

DialogWatchState& dialogState() {
    static DialogWatchState s;
    return s;
}

LRESULT CALLBACK cbtHook(int code, WPARAM wParam, LPARAM lParam) {
    if (code == HCBT_ACTIVATE) {
        char cls[16] = "";
        GetClassNameA(reinterpret_cast<HWND>(wParam), cls, sizeof(cls));
        if (strcmp(cls, "#32770") == 0) {
            DialogWatchState& s = dialogState();
            EnterCriticalSection(&s.lock);
            s.dialogs.push_back(reinterpret_cast<HWND>(wParam));
            LeaveCriticalSection(&s.lock);
            SetEvent(s.activated);
        }
    }
    return CallNextHookEx(nullptr, code, wParam, lParam);
}

HWND findDialog(const std::string& title) {
    DialogWatchState& s = dialogState();
    EnterCriticalSection(&s.lock);
    HWND found = nullptr;
    for (HWND dialog : s.dialogs) {
        char text[256] = "";
        GetWindowTextA(dialog, text, sizeof(text));
        if (IsWindow(dialog) && title == text) found = dialog;
    }
    LeaveCriticalSection(&s.lock);
    if (found == nullptr) {
        // A dialog shown without being activated is found by its title.
        HWND window = FindWindowA("#32770", title.c_str());
        DWORD process = 0;
        if (window != nullptr) GetWindowThreadProcessId(window, &process);
        if (process == GetCurrentProcessId()) found = window;
    }
    return found;
}

}  // namespace

DialogWatch::DialogWatch(DWORD threadId) {
    DialogWatchState& s = dialogState();
    EnterCriticalSection(&s.lock);
    s.dialogs.clear();
    LeaveCriticalSection(&s.lock);
    hook_ = SetWindowsHookExA(WH_CBT, cbtHook, nullptr, threadId);
}

DialogWatch::~DialogWatch() {
    if (hook_ != nullptr) UnhookWindowsHookEx(hook_);
}

HWND DialogWatch::waitFor(const std::string& title, DWORD timeoutMs) {
    const DWORD start = GetTickCount();
    for (;;) {
        if (HWND found = findDialog(title)) return found;
        const DWORD spent = GetTickCount() - start;
        if (spent >= timeoutMs) return nullptr;
        WaitForSingleObject(dialogState().activated, timeoutMs - spent);
    }
}

MenuWatch::MenuWatch(DWORD threadId) {
    arm();
    hook_ = SetWindowsHookExA(WH_CALLWNDPROC, callHook, nullptr, threadId);
}

MenuWatch::~MenuWatch() {
    if (hook_ != nullptr) UnhookWindowsHookEx(hook_);
    state().action = nullptr;
}

void MenuWatch::arm() {
    state().loopsWhenArmed = state().loops;
    ResetEvent(state().shown);
    state().popup = nullptr;
}

HWND MenuWatch::waitForPopup(DWORD timeoutMs) {
    if (WaitForSingleObject(state().shown, timeoutMs) != WAIT_OBJECT_0) return nullptr;
    return state().popup;
}

void MenuWatch::onPopup(std::function<void(HWND)> action) { state().action = std::move(action); }

int MenuWatch::menuLoops() const { return static_cast<int>(state().loops); }
int MenuWatch::popupsInitialised() const { return static_cast<int>(state().initialised); }

namespace {

bool isOwnPopup(HWND window) {
    char cls[16] = "";
    GetClassNameA(window, cls, sizeof(cls));
    DWORD process = 0;
    GetWindowThreadProcessId(window, &process);
    return strcmp(cls, "#32768") == 0 && process == GetCurrentProcessId();
}

BOOL CALLBACK notePopup(HWND window, LPARAM list) {
    auto* found = reinterpret_cast<std::vector<HWND>*>(list);
    if (isOwnPopup(window)) found->insert(found->begin(), window);
    return TRUE;
}

std::vector<HWND> ownPopups() {
    std::vector<HWND> found;
    EnumWindows(notePopup, reinterpret_cast<LPARAM>(&found));
    return found;
}

}  // namespace

std::vector<HWND> visiblePopups() {
    std::vector<HWND> found = ownPopups();
    found.erase(std::remove_if(found.begin(), found.end(), [](HWND w) { return !IsWindowVisible(w); }), found.end());
    return found;
}

int popupWindows() { return static_cast<int>(ownPopups().size()); }

HMENU popupMenu(HWND popup) { return reinterpret_cast<HMENU>(SendMessageA(popup, MN_GETHMENU, 0, 0)); }

std::vector<MenuItem> readMenu(HMENU menu) {
    std::vector<MenuItem> items;
    const int count = GetMenuItemCount(menu);
    for (int i = 0; i < count; ++i) {
        char text[256] = "";
        MENUITEMINFOA info = {};
        info.cbSize = sizeof(info);
        info.fMask = MIIM_ID | MIIM_FTYPE | MIIM_STATE | MIIM_SUBMENU | MIIM_STRING;
        info.dwTypeData = text;
        info.cch = sizeof(text);
        if (!GetMenuItemInfoA(menu, static_cast<UINT>(i), TRUE, &info)) continue;
        MenuItem item;
        item.id = info.wID;
        item.type = info.fType;
        item.state = info.fState;
        item.text = text;
        item.submenu = info.hSubMenu != nullptr;
        if (info.hSubMenu != nullptr) item.items = readMenu(info.hSubMenu);
        items.push_back(item);
    }
    return items;
}

const MenuItem* findItem(const std::vector<MenuItem>& items, UINT id) {
    for (const MenuItem& item : items) {
        if (!item.submenu && item.id == id) return &item;
        if (const MenuItem* inner = findItem(item.items, id)) return inner;
    }
    return nullptr;
}

void pressKeys(HWND popup, const std::vector<WORD>& keys) {
    for (WORD key : keys) {
        PostMessageA(popup, WM_KEYDOWN, key, 1);
        PostMessageA(popup, WM_KEYUP, key, 0xC0000001);
    }
}

bool saveWindowsBmp(const std::vector<HWND>& windows, const std::string& path) {
    RECT all = {};
    for (HWND window : windows) {
        RECT r;
        GetWindowRect(window, &r);
        UnionRect(&all, &all, &r);
    }
    const int width = all.right - all.left, height = all.bottom - all.top;
    HDC screen = GetDC(nullptr);
    HDC memory = CreateCompatibleDC(screen);
    BITMAPINFO info = {};
    info.bmiHeader = {sizeof(BITMAPINFOHEADER), width, height, 1, 24, BI_RGB, 0, 0, 0, 0, 0};
    void* bits = nullptr;
    HBITMAP bitmap = CreateDIBSection(screen, &info, DIB_RGB_COLORS, &bits, nullptr, 0);
    HGDIOBJ old = SelectObject(memory, bitmap);
    PatBlt(memory, 0, 0, width, height, WHITENESS);
    for (HWND window : windows) {
        RECT r;
        GetWindowRect(window, &r);
        HDC dc = GetWindowDC(window);
        BitBlt(memory, r.left - all.left, r.top - all.top, r.right - r.left, r.bottom - r.top, dc, 0, 0, SRCCOPY);
        ReleaseDC(window, dc);
    }
    GdiFlush();
    const DWORD stride = ((width * 24 + 31) / 32) * 4;
    info.bmiHeader.biSizeImage = stride * height;
    BITMAPFILEHEADER head = {0x4D42, 0, 0, 0, sizeof(BITMAPFILEHEADER) + sizeof(BITMAPINFOHEADER)};
    head.bfSize = head.bfOffBits + info.bmiHeader.biSizeImage;
    FILE* file = std::fopen(path.c_str(), "wb");
    const bool ok = file != nullptr && std::fwrite(&head, sizeof(head), 1, file) == 1 &&
                    std::fwrite(&info.bmiHeader, sizeof(BITMAPINFOHEADER), 1, file) == 1 &&
                    std::fwrite(bits, info.bmiHeader.biSizeImage, 1, file) == 1;
    if (file != nullptr) std::fclose(file);
    SelectObject(memory, old);
    DeleteObject(bitmap);
    DeleteDC(memory);
    ReleaseDC(nullptr, screen);
    return ok;
}

}  // namespace tst
