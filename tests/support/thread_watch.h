// Synchronisation with another thread's message loop: a WH_GETMESSAGE hook on that
// thread signals when it retrieves a chosen message, so a test can wait for posted
// input to be taken instead of sleeping.
#pragma once

#include <windows.h>

namespace tst {

class MessageWatch {
public:
    explicit MessageWatch(DWORD threadId);
    ~MessageWatch();
    MessageWatch(const MessageWatch&) = delete;
    MessageWatch& operator=(const MessageWatch&) = delete;

    // Arms the watch for the next retrieval of message (with wParam, unless it is -1).
    void expect(UINT message, WPARAM wParam = static_cast<WPARAM>(-1));
    // Waits for the armed message; false on time-out.
    bool wait(DWORD timeoutMs = 10000);
    // Posts message to window and waits until the loop has taken it.
    bool postAndWait(HWND window, UINT message, WPARAM wParam, LPARAM lParam);

private:
    HHOOK hook_ = nullptr;
};

// Replaces one imported function of a module for as long as the patch lives.
class ImportPatch {
public:
    ImportPatch(HMODULE module, const char* dll, const char* function, void* replacement);
    ~ImportPatch();
    ImportPatch(const ImportPatch&) = delete;
    ImportPatch& operator=(const ImportPatch&) = delete;
    void* original() const { return original_; }

private:
    void** slot_ = nullptr;
    void* original_ = nullptr;
};

}  // namespace tst
