// MessageWatch and ImportPatch.
#include "support/thread_watch.h"

#include <cstring>

namespace tst {
namespace {

struct WatchState {
    HANDLE seen = CreateEventA(nullptr, FALSE, FALSE, nullptr);
    volatile UINT message = 0;
    volatile WPARAM wParam = 0;
    volatile LONG armed = 0;
};

WatchState& watch() {
    static WatchState state;
    return state;
}

LRESULT CALLBACK getMessageHook(int code, WPARAM removed, LPARAM lParam) {
    WatchState& w = watch();
    const MSG* msg = reinterpret_cast<const MSG*>(lParam);
    if (code == HC_ACTION && removed == PM_REMOVE && w.armed != 0 && msg->message == w.message &&
        (w.wParam == static_cast<WPARAM>(-1) || msg->wParam == w.wParam)) {
        w.armed = 0;
        SetEvent(w.seen);
    }
    return CallNextHookEx(nullptr, code, removed, lParam);
}

}  // namespace

MessageWatch::MessageWatch(DWORD threadId) {
    hook_ = SetWindowsHookExA(WH_GETMESSAGE, getMessageHook, nullptr, threadId);
}

MessageWatch::~MessageWatch() {
    if (hook_ != nullptr) UnhookWindowsHookEx(hook_);
}

void MessageWatch::expect(UINT message, WPARAM wParam) {
    WatchState& w = watch();
    ResetEvent(w.seen);
    w.message = message;
    w.wParam = wParam;
    w.armed = 1;
}

bool MessageWatch::wait(DWORD timeoutMs) { return WaitForSingleObject(watch().seen, timeoutMs) == WAIT_OBJECT_0; }

bool MessageWatch::postAndWait(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    expect(message, wParam);
    PostMessageA(window, message, wParam, lParam);
    return wait();
}

ImportPatch::ImportPatch(HMODULE module, const char* dll, const char* function, void* replacement) {
    auto* base = reinterpret_cast<BYTE*>(module);
    auto* nt = reinterpret_cast<IMAGE_NT_HEADERS*>(base + reinterpret_cast<IMAGE_DOS_HEADER*>(base)->e_lfanew);
    const IMAGE_DATA_DIRECTORY& dir = nt->OptionalHeader.DataDirectory[IMAGE_DIRECTORY_ENTRY_IMPORT];
    auto* imports = reinterpret_cast<IMAGE_IMPORT_DESCRIPTOR*>(base + dir.VirtualAddress);
    for (; dir.VirtualAddress != 0 && imports->Name != 0 && slot_ == nullptr; ++imports) {
        if (_stricmp(reinterpret_cast<char*>(base + imports->Name), dll) != 0) continue;
        auto* names = reinterpret_cast<IMAGE_THUNK_DATA*>(base + imports->OriginalFirstThunk);
        auto* slots = reinterpret_cast<IMAGE_THUNK_DATA*>(base + imports->FirstThunk);
        for (; names->u1.AddressOfData != 0; ++names, ++slots) {
            if (IMAGE_SNAP_BY_ORDINAL(names->u1.Ordinal)) continue;
            auto* byName = reinterpret_cast<IMAGE_IMPORT_BY_NAME*>(base + names->u1.AddressOfData);
            if (strcmp(reinterpret_cast<char*>(byName->Name), function) == 0) {
                slot_ = reinterpret_cast<void**>(&slots->u1.Function);
                break;
            }
        }
    }
    if (slot_ == nullptr) return;
    original_ = *slot_;
    DWORD old = 0;
    VirtualProtect(slot_, sizeof(void*), PAGE_READWRITE, &old);
    *slot_ = replacement;
    VirtualProtect(slot_, sizeof(void*), old, &old);
}

ImportPatch::~ImportPatch() {
    if (slot_ == nullptr) return;
    DWORD old = 0;
    VirtualProtect(slot_, sizeof(void*), PAGE_READWRITE, &old);
    *slot_ = original_;
    VirtualProtect(slot_, sizeof(void*), old, &old);
}

}  // namespace tst
