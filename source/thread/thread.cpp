// Scene thread. Messages posted while no scene is current are dropped (sent messages,
// and so every request, are delivered inside GetMessage and are not affected); that
// is how the library has always behaved.
#include "thread/thread.h"

#include "events/event_wait.h"
#include "guard/guard.h"
#include "guard/msgbox.h"
#include "library/globals.h"
#include "registry/cspwhlist.h"
#include "requests/requests.h"
#include "tessarin.h"
#include "view/pass/pass.h"
#include "view/scene/cscene.h"

namespace ts {
namespace {

bool registerClass(const char* name, UINT style) {
    WNDCLASSA wc = {};
    wc.style = style;
    wc.lpfnWndProc = SceneWndProc;
    wc.hInstance = hLibInstance;
    wc.hIcon = LoadIconA(hLibInstance, MAKEINTRESOURCEA(1));
    wc.hbrBackground = reinterpret_cast<HBRUSH>(COLOR_WINDOW + 1);
    wc.lpszClassName = name;
    return RegisterClassA(&wc) != 0;
}

void RegisterWinClass() {
    if (!registerClass("DummyThread", CS_HREDRAW | CS_VREDRAW)) errorBox("RegisterWinClass failed");
    if (!registerClass("TESSARIN", CS_HREDRAW | CS_VREDRAW | CS_OWNDC)) errorBox("RegisterWinClass failed");
}

// Keyboard input of the settings dialogs (Tab, Enter, Escape) goes to the dialog it is
// for, whichever scene owns it.
bool takenByDialog(MSG& msg) {
    for (cSPWH* entry = sceneRegistry().head; entry != nullptr; entry = entry->next) {
        const cScene* scene = entry->sp;
        if (scene == nullptr) continue;
        if (scene->lightDialog != nullptr && IsDialogMessageA(scene->lightDialog, &msg)) return true;
        if (scene->viewDialog != nullptr && IsDialogMessageA(scene->viewDialog, &msg)) return true;
    }
    return false;
}

DWORD WINAPI SceneThreadMain(LPVOID) {
    RegisterWinClass();
    hDummy = CreateWindowExA(0, "DummyThread", "Dummy", WS_OVERLAPPEDWINDOW, 20, 100, 300, 300, nullptr, nullptr,
                             hLibInstance, nullptr);
    TS_ASSERT(hDummy != NULL, "thread", 45);
    CURRENT_SCENE = nullptr;
    SetEvent(hSyncEvent);
    MSG msg;
    UINT previous = 0;
    BOOL got;
    while ((got = GetMessageA(&msg, nullptr, 0, 0)) != 0) {
        if (got == -1) continue;
        if (CURRENT_SCENE == nullptr) {
            // A dropped paint would be generated again at once and spin the thread;
            // validating the window loses it, as every dropped message is lost.
            if (msg.message == WM_PAINT && msg.hwnd != nullptr) ValidateRect(msg.hwnd, nullptr);
            continue;
        }
        if (takenByDialog(msg)) continue;
        if (previous == WM_KEYDOWN && msg.message != WM_CHAR) completeKeyEvent();
        previous = msg.message;
        TranslateMessage(&msg);
        DispatchMessageA(&msg);
    }
    return static_cast<DWORD>(msg.wParam);
}

void findConsole() {
    char title[255] = {};
    GetConsoleTitleA(title, 255);
    OSVERSIONINFOA version = {};
    version.dwOSVersionInfoSize = 148;
    GetVersionExA(&version);
    osPlatform = version.dwPlatformId;
    hConsole = FindWindowA(osPlatform == VER_PLATFORM_WIN32_NT ? "ConsoleWindowClass" : "tty", title);
}

}  // namespace

void InitThread() {
    libraryInstance();
    guarded("InitThread", [] {
        findConsole();
        hSyncEvent = CreateEventA(nullptr, FALSE, FALSE, nullptr);
    });
    DWORD id = 0;
    HANDLE thread = CreateThread(nullptr, 0, SceneThreadMain, nullptr, 0, &id);
    if (thread == nullptr) {
        // No thread: the caller reports the library as not initialised, and the next
        // swCreateWind tries again with an event of its own.
        CloseHandle(hSyncEvent);
        hSyncEvent = nullptr;
        return;
    }
    CloseHandle(thread);
    THREAD_ACTIVE = 1;
    WaitForSingleObject(hSyncEvent, INFINITE);
}

}  // namespace ts

namespace ts {
namespace {

// Every registered scene is visited, whatever window the paint is for. A window with
// no scene is validated too, so that it does not ask to be painted for ever.
LRESULT paintAllScenes(HWND window) {
    bool windowHasScene = false;
    for (cSPWH* entry = sceneRegistry().head; entry != nullptr; entry = entry->next) {
        if (entry->wh == window) windowHasScene = true;
        if (entry->sp == nullptr) continue;
        if (entry->sp->idle != 0) {
            ValidateRect(entry->sp->window, nullptr);
        } else {
            renderScene(entry->sp);
        }
    }
    if (!windowHasScene) ValidateRect(window, nullptr);
    return 0;
}

}  // namespace

LRESULT CALLBACK SceneWndProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    if (RequestHandler handler = requestHandler(message)) return handler(wParam, lParam);
    switch (message) {
    case WM_DESTROY: return seOnDestroy(window);
    case WM_MOVE: return seOnMove(window);
    case WM_SIZE: return seOnSize(window);
    case WM_ERASEBKGND: return seOnEraseBkgnd(window);
    case WM_KEYDOWN: return seOnKeyDown(window, wParam, lParam);
    case WM_KEYUP: return seOnKeyUp(window, wParam, lParam);
    case WM_CHAR: return seOnChar(window, wParam, lParam);
    case WM_COMMAND: return seOnCommand(window, wParam, lParam);
    case WM_MOUSEMOVE: return seOnMouseMove(window, wParam, lParam);
    case WM_LBUTTONDOWN: return seOnLButtonDown(window, wParam, lParam);
    case WM_LBUTTONUP: return seOnLButtonUp(window, wParam, lParam);
    case WM_RBUTTONDOWN: return seOnRButtonDown(window, wParam, lParam);
    case WM_MBUTTONDOWN: return seOnMButtonDown(window, wParam, lParam);
    case WM_PAINT: return paintAllScenes(window);
    default: return DefWindowProcA(window, message, wParam, lParam);
    }
}

}  // namespace ts
