// Message-box capture: patches the MessageBoxA import of the library and of the test
// executable with a spy; the spy hooks its own thread's window creation (WH_CBT), so
// when the real box is activated it reads the dialog and posts the chosen button.
#include "support/msgbox_capture.h"

#include <condition_variable>
#include <cstdio>
#include <cstring>
#include <mutex>

namespace tst {
namespace {

using MessageBoxFn = int(WINAPI*)(HWND, LPCSTR, LPCSTR, UINT);

struct CaptureState {
    std::mutex lock;
    std::condition_variable changed;
    std::vector<CapturedBox> boxes;
    int button = IDOK;
    bool active = false;
    bool report = false;
    MessageBoxFn real = nullptr;
};

CaptureState& state() {
    static CaptureState* s = new CaptureState;
    return *s;
}

thread_local CapturedBox* tlsPending = nullptr;
thread_local bool tlsSeen = false;

std::string escaped(const std::string& in) {
    std::string out;
    for (char c : in) {
        if (c == '\n') out += "\\n";
        else if (c == '\r') out += "\\r";
        else if (c == '\t') out += "\\t";
        else if (c == '\\') out += "\\\\";
        else out += c;
    }
    return out;
}

void recordAnswered(const CapturedBox& box) {
    CaptureState& s = state();
    std::lock_guard<std::mutex> hold(s.lock);
    s.boxes.push_back(box);
    if (s.report) {
        printf("TST_BOX\t%s\t%s\t%u\n", escaped(box.title).c_str(), escaped(box.text).c_str(), box.style);
        fflush(stdout);
    }
    s.changed.notify_all();
}

constexpr UINT_PTR kReadTimer = 0x7357;
thread_local int tlsReadAttempts = 0;

// Reads the dialog and presses the button. Some boxes (task-modal ones under wine)
// are activated before their text is set, so an empty text is read again from the
// dialog's own timer, inside its modal loop, a few times before it is taken as empty.
void CALLBACK readAndAnswer(HWND dialog, UINT, UINT_PTR, DWORD) {
    if (tlsPending == nullptr || tlsSeen) return;
    char buffer[4096] = {};
    GetDlgItemTextA(dialog, 0xFFFF, buffer, sizeof(buffer));
    if (buffer[0] == '\0' && ++tlsReadAttempts < 20) {
        SetTimer(dialog, kReadTimer, 10, readAndAnswer);
        return;
    }
    KillTimer(dialog, kReadTimer);
    tlsPending->text = buffer;
    GetWindowTextA(dialog, buffer, sizeof(buffer));
    tlsPending->title = buffer;
    int button = tlsPending->pressed;
    if (GetDlgItem(dialog, button) == nullptr) button = IDOK;
    tlsPending->pressed = button;
    tlsSeen = true;
    recordAnswered(*tlsPending);
    PostMessageA(dialog, WM_COMMAND, MAKEWPARAM(button, BN_CLICKED),
                 reinterpret_cast<LPARAM>(GetDlgItem(dialog, button)));
}

LRESULT CALLBACK boxHook(int code, WPARAM wParam, LPARAM lParam) {
    if (code == HCBT_ACTIVATE && tlsPending != nullptr && !tlsSeen) {
        tlsReadAttempts = 0;
        readAndAnswer(reinterpret_cast<HWND>(wParam), 0, 0, 0);
    }
    return CallNextHookEx(nullptr, code, wParam, lParam);
}

int WINAPI spyMessageBoxA(HWND owner, LPCSTR text, LPCSTR title, UINT style) {
    CaptureState& s = state();
    CapturedBox box;
    box.style = style;
    box.owner = owner;
    {
        std::lock_guard<std::mutex> hold(s.lock);
        box.pressed = s.button;
    }
    CapturedBox* outer = tlsPending;
    const bool outerSeen = tlsSeen;
    tlsPending = &box;
    tlsSeen = false;
    HHOOK hook = SetWindowsHookExA(WH_CBT, boxHook, nullptr, GetCurrentThreadId());
    const int result = s.real(owner, text, title, style);
    UnhookWindowsHookEx(hook);
    tlsPending = outer;
    tlsSeen = outerSeen;
    return result;
}

// Replaces the MessageBoxA entry of module's import address table.
void patchImport(HMODULE module, void* replacement) {
    if (module == nullptr) return;
    auto* base = reinterpret_cast<BYTE*>(module);
    auto* dos = reinterpret_cast<IMAGE_DOS_HEADER*>(base);
    auto* nt = reinterpret_cast<IMAGE_NT_HEADERS*>(base + dos->e_lfanew);
    const IMAGE_DATA_DIRECTORY& dir = nt->OptionalHeader.DataDirectory[IMAGE_DIRECTORY_ENTRY_IMPORT];
    if (dir.VirtualAddress == 0) return;
    auto* imports = reinterpret_cast<IMAGE_IMPORT_DESCRIPTOR*>(base + dir.VirtualAddress);
    for (; imports->Name != 0; ++imports) {
        if (_stricmp(reinterpret_cast<char*>(base + imports->Name), "user32.dll") != 0) continue;
        auto* names = reinterpret_cast<IMAGE_THUNK_DATA*>(base + imports->OriginalFirstThunk);
        auto* slots = reinterpret_cast<IMAGE_THUNK_DATA*>(base + imports->FirstThunk);
        for (; names->u1.AddressOfData != 0; ++names, ++slots) {
            if (IMAGE_SNAP_BY_ORDINAL(names->u1.Ordinal)) continue;
            auto* byName = reinterpret_cast<IMAGE_IMPORT_BY_NAME*>(base + names->u1.AddressOfData);
            if (strcmp(reinterpret_cast<char*>(byName->Name), "MessageBoxA") != 0) continue;
            DWORD old = 0;
            VirtualProtect(&slots->u1.Function, sizeof(slots->u1.Function), PAGE_READWRITE, &old);
            slots->u1.Function = reinterpret_cast<ULONG_PTR>(replacement);
            VirtualProtect(&slots->u1.Function, sizeof(slots->u1.Function), old, &old);
        }
    }
}

void patchAll(void* replacement) {
    patchImport(GetModuleHandleA("Tessarin20b.dll"), replacement);
    patchImport(GetModuleHandleA(nullptr), replacement);
}

}  // namespace

MessageBoxCapture::MessageBoxCapture(int button) {
    CaptureState& s = state();
    s.real = reinterpret_cast<MessageBoxFn>(
        reinterpret_cast<void*>(GetProcAddress(GetModuleHandleA("user32.dll"), "MessageBoxA")));
    {
        std::lock_guard<std::mutex> hold(s.lock);
        s.boxes.clear();
        s.button = button;
        s.active = true;
    }
    patchAll(reinterpret_cast<void*>(spyMessageBoxA));
}

MessageBoxCapture::~MessageBoxCapture() {
    CaptureState& s = state();
    patchAll(reinterpret_cast<void*>(s.real));
    std::lock_guard<std::mutex> hold(s.lock);
    s.active = false;
}

void MessageBoxCapture::setButton(int button) {
    CaptureState& s = state();
    std::lock_guard<std::mutex> hold(s.lock);
    s.button = button;
}

bool MessageBoxCapture::waitFor(size_t n, DWORD timeoutMs) const {
    CaptureState& s = state();
    std::unique_lock<std::mutex> hold(s.lock);
    return s.changed.wait_for(hold, std::chrono::milliseconds(timeoutMs), [&] { return s.boxes.size() >= n; });
}

std::vector<CapturedBox> MessageBoxCapture::boxes() const {
    CaptureState& s = state();
    std::lock_guard<std::mutex> hold(s.lock);
    return s.boxes;
}

size_t MessageBoxCapture::count() const {
    CaptureState& s = state();
    std::lock_guard<std::mutex> hold(s.lock);
    return s.boxes.size();
}

void reportBoxesToParent(bool on) {
    CaptureState& s = state();
    std::lock_guard<std::mutex> hold(s.lock);
    s.report = on;
}

}  // namespace tst
