// Scene-thread handlers of the window requests.
#include <new>

#include "guard/guard.h"
#include "hosting/cscene_wm_create.h"
#include "library/globals.h"
#include "requests/request_handlers.h"
#include "thread/cwind.h"
#include "view/scene/cscene.h"

namespace ts {

cWind* CURRENT_WIND = nullptr;

namespace {
cWind* windowOf(WPARAM wParam) { return reinterpret_cast<cWind*>(wParam); }
}  // namespace

LRESULT onCreateWindow(WPARAM wParam, LPARAM) {
    cWind* window = windowOf(wParam);
    CURRENT_WIND = window;
    HWND hWin = CreateWindowExA(0, "Tessarin", window->title, window->style, window->left, window->top,
                                window->right - window->left, window->bottom - window->top, nullptr, nullptr,
                                hLibInstance, nullptr);
    window->hWnd = hWin;
    TS_ASSERT(hWin != NULL, "cwind_wm_user", 39);
    return 1;
}

LRESULT onCreateScene(WPARAM wParam, LPARAM) {
    cWind* window = windowOf(wParam);
    cScene* scene = new cScene;
    CURRENT_SCENE = ACTIVE_SCENE = scene;
    TS_ASSERT(CURRENT_SCENE != NULL, "cwind_wm_user", 45);
    createSceneOnWindow(scene, window->hWnd, window->title);
    return reinterpret_cast<LRESULT>(scene);
}

LRESULT onShowWindow(WPARAM wParam, LPARAM) {
    cWind* window = windowOf(wParam);
    if (window->visible == 0) {
        ShowWindow(window->hWnd, SW_SHOWNORMAL);
        UpdateWindow(window->hWnd);
        SetForegroundWindow(window->hWnd);
        window->visible = 1;
    }
    return 1;
}

LRESULT onHideWindow(WPARAM wParam, LPARAM) {
    cWind* window = windowOf(wParam);
    if (window->visible != 0) {
        ShowWindow(window->hWnd, SW_HIDE);
        window->visible = 0;
    }
    return 1;
}

LRESULT onDeleteWindow(WPARAM wParam, LPARAM) {
    cWind* window = windowOf(wParam);
    ShowWindow(window->hWnd, SW_HIDE);
    DestroyWindow(window->hWnd);
    return 1;
}

LRESULT onSizeWindow(WPARAM wParam, LPARAM lParam) {
    cWind* window = windowOf(wParam);
    const int* r = reinterpret_cast<const int*>(lParam);
    // A hidden window is not moved; the request is dropped, not remembered.
    if (window->visible != 0) SetWindowPos(window->hWnd, HWND_NOTOPMOST, r[0], r[1], r[2], r[3], 0);
    return 1;
}

}  // namespace ts
