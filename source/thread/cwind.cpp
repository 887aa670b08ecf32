// Exported calls for library windows. They run on the caller's thread and reach the
// scene thread through requests; none of them has a direct path.
#include "thread/cwind.h"

#include <cstring>
#include <memory>
#include <new>

#include "guard/guard.h"
#include "guard/msgbox.h"
#include "library/globals.h"
#include "requests/requests.h"
#include "tessarin.h"
#include "thread/thread.h"

namespace {

// The scene-thread check: false, after the message, when the thread does not run.
bool threadRunning() {
    if (THREAD_ACTIVE != 0) return true;
    ts::errorBox(ts::kNotInitialized);
    return false;
}

void sendWindowRequest(UINT request, cWind* window, LPARAM extra = 0) {
    if (threadRunning()) SendMessageA(hDummy, request, reinterpret_cast<WPARAM>(window), extra);
}

}  // namespace

extern "C" {

cWind* swCreateWind(const char* title, int width, int height, int x, int y, DWORD style) {
    if (THREAD_ACTIVE == 0) ts::InitThread();
    if (!threadRunning()) return nullptr;
    std::unique_ptr<cWind> window(new (std::nothrow) cWind);
    if (window == nullptr) return nullptr;
    // Titles are cut to the record's 63 characters rather than overrunning it.
    strncpy(window->title, title != nullptr ? title : "", sizeof(window->title) - 1);
    window->title[sizeof(window->title) - 1] = '\0';
    window->left = x;
    window->top = y;
    window->right = x + width;
    window->bottom = y + height;
    window->visible = 0;
    window->style = style;
    window->hWnd = nullptr;
    SendMessageA(hDummy, TSM_CREATE_WINDOW, reinterpret_cast<WPARAM>(window.get()), 0);
    if (window->hWnd == nullptr) {
        // No window was made (the scene thread has ended): the record goes with the call.
        ts::CURRENT_WIND = nullptr;
        ts::errorBox("swCreateWind: Window creation failed!");
        return nullptr;
    }
    return window.release();
}

cScene* swCreateScene(cWind* window) {
    // NULL is answered like a library that is not running, not by the probe.
    if (window != nullptr) ts::probe(window, "swCreateScene(window)");
    if (THREAD_ACTIVE == 0 || window == nullptr) {
        ts::errorBox(ts::kNotInitialized);
        return nullptr;
    }
    return reinterpret_cast<cScene*>(SendMessageA(hDummy, TSM_CREATE_SCENE, reinterpret_cast<WPARAM>(window), 0));
}

void swShowWind(cWind* window) {
    ts::probe(window, "swShowWind(window)");
    sendWindowRequest(TSM_SHOW_WINDOW, window);
}

void swHideWind(cWind* window) {
    ts::probe(window, "swHideWind(window)");
    sendWindowRequest(TSM_HIDE_WINDOW, window);
}

void swDeleteWind(cWind* window) {
    ts::probe(window, "swDeleteWind(window)");
    sendWindowRequest(TSM_DELETE_WINDOW, window);
}

void swSizeWind(cWind* window, int x, int y, int width, int height) {
    ts::probe(window, "swSizeWind(window)");
    int rectangle[4] = {x, y, width, height};
    sendWindowRequest(TSM_SIZE_WINDOW, window, reinterpret_cast<LPARAM>(rectangle));
}

}  // extern "C"
