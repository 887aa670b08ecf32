// An application window that hosts a library scene through the se* handlers, and the
// module the library lives in. Header-only on purpose: each test compiles it against
// its own copy of the library (the DLL for black-box tests, tessarin_static for
// white-box ones), so the support library itself links neither.
#pragma once

#include <windows.h>

#include "support/gl_window.h"
#include "tessarin.h"

namespace tst {

// The module that holds the library's code and resources: Tessarin20b.dll, or the test
// program itself when it links the library statically.
inline HMODULE libraryModule() {
    HMODULE module = nullptr;
    GetModuleHandleExA(GET_MODULE_HANDLE_EX_FLAG_FROM_ADDRESS | GET_MODULE_HANDLE_EX_FLAG_UNCHANGED_REFCOUNT,
                       reinterpret_cast<LPCSTR>(&swCreateWind), &module);
    return module;
}

// An application-owned window whose procedure calls seOnCreate, seOnPaint,
// seOnCommand, seOnRButtonDown and seOnDestroy: a hosted scene on the caller's thread
// (no scene thread).
class HostWindow {
public:
    HostWindow(const char* sceneName = "Test scene", int width = 160, int height = 120) {
        registerTestClass(kClass, proc);
        pendingName() = sceneName;
        hwnd = createTestWindow(kClass, width, height);
        scene = reinterpret_cast<cScene*>(GetWindowLongPtrA(hwnd, GWLP_USERDATA));
        pump();
    }
    ~HostWindow() {
        if (IsWindow(hwnd)) DestroyWindow(hwnd);
        pump();
    }
    HostWindow(const HostWindow&) = delete;
    HostWindow& operator=(const HostWindow&) = delete;

    // Paints the window now (WM_PAINT through the handler) and returns a pixel.
    Rgb paintAndRead(int x, int y) {
        InvalidateRect(hwnd, nullptr, FALSE);
        UpdateWindow(hwnd);
        return pixel(x, y);
    }
    Rgb pixel(int x, int y) const { return screenPixel(hwnd, x, y); }

    HWND hwnd = nullptr;
    cScene* scene = nullptr;  // as returned by seOnCreate

private:
    static constexpr const char* kClass = "TstHostWindow";

    static const char*& pendingName() {
        static const char* name = nullptr;
        return name;
    }

    static LRESULT CALLBACK proc(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
        switch (message) {
        case WM_CREATE: {
            cScene* created = seOnCreate(window, pendingName());
            SetWindowLongPtrA(window, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(created));
            return 0;
        }
        case WM_PAINT: return seOnPaint(window);
        case WM_COMMAND: return seOnCommand(window, wParam, lParam);
        case WM_RBUTTONDOWN: return seOnRButtonDown(window, wParam, lParam);
        case WM_ERASEBKGND: return 1;
        case WM_DESTROY: return seOnDestroy(window);
        default: return DefWindowProcA(window, message, wParam, lParam);
        }
    }
};

}  // namespace tst
