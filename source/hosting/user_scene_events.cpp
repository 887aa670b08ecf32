// Exported se* handlers: a scene in a window that the application owns, driven from
// the application's window procedure. The library's own windows use them too.
#include <new>
#include <string>

#include "guard/guard.h"
#include "guard/msgbox.h"
#include "hosting/cscene_wm_create.h"
#include "library/globals.h"
#include "registry/cspwhlist.h"
#include "tessarin.h"
#include "view/navigation/scene_input.h"
#include "view/pass/pass.h"
#include "view/pass/scene_gl.h"
#include "view/scene/cscene.h"

namespace {

// Finds the scene of hWnd in the registry and makes it ACTIVE_SCENE.
cScene* activateSceneOf(HWND hWnd) {
    cSPWHList& registry = ts::sceneRegistry();
    ACTIVE_SCENE = (hWnd != nullptr && registry.Find(hWnd) != 0) ? registry.current->sp : nullptr;
    return ACTIVE_SCENE;
}

using InputHandler = void (*)(cScene*, WPARAM, LPARAM);

// The common shape of the input handlers: look the scene up, run its handler and
// answer 0, or show "No active scene found in <name>!" and answer 1.
LRESULT dispatchInput(const char* name, HWND hWnd, unsigned line, InputHandler handler, WPARAM wParam,
                      LPARAM lParam) {
    return ts::guarded(name, [&]() -> LRESULT {
        TS_ASSERT(hWnd != NULL, "user_scene_events", line);
        cScene* scene = activateSceneOf(hWnd);
        if (scene == nullptr) {
            ts::errorBox((std::string("No active scene found in ") + name + "!").c_str());
            return 1;
        }
        handler(scene, wParam, lParam);
        return 0;
    });
}

}  // namespace

extern "C" {

cScene* seOnCreate(HWND hWnd, const char* scenename) {
    return ts::guarded("seOnCreate", [&]() -> cScene* {
        TS_ASSERT(hWnd != NULL, "user_scene_events", 24);
        TS_ASSERT(scenename != NULL, "user_scene_events", 25);
        if (THREAD_ACTIVE != 0) {
            ts::errorBox("Don't use Tessarin event handlers with Tessarin windows!");
            return nullptr;
        }
        ts::libraryInstance();
        cScene* scene = new (std::nothrow) cScene;
        ACTIVE_SCENE = CURRENT_SCENE = scene;
        if (scene == nullptr) {
            ts::errorBox("Scene creation failed in seOnCreate.");
            return nullptr;
        }
        ts::createSceneOnWindow(scene, hWnd, scenename);
        return scene;
    });
}

LRESULT seOnPaint(HWND hWnd) {
    return ts::guarded("seOnPaint", [&]() -> LRESULT {
        TS_ASSERT(hWnd != NULL, "user_scene_events", 50);
        cScene* scene = activateSceneOf(hWnd);
        if (scene == nullptr) {
            ts::errorBox("No active scene found in seOnPaint!");
            return 1;
        }
        ts::renderScene(scene);
        return 0;
    });
}

LRESULT seOnEraseBkgnd(HWND hWnd) {
    return ts::guarded("seOnEraseBkgnd", [&]() -> LRESULT {
        TS_ASSERT(hWnd != NULL, "user_scene_events", 61);
        cScene* scene = activateSceneOf(hWnd);
        if (scene != nullptr) ts::renderScene(scene);
        return 1;
    });
}

LRESULT seOnSize(HWND hWnd) {
    return ts::guarded("seOnSize", [&]() -> LRESULT {
        TS_ASSERT(hWnd != NULL, "user_scene_events", 71);
        cScene* scene = activateSceneOf(hWnd);
        if (scene == nullptr) return 1;
        ts::resizeScene(scene);
        return 0;
    });
}

LRESULT seOnMove(HWND hWnd) {
    return ts::guarded("seOnMove", [&]() -> LRESULT {
        TS_ASSERT(hWnd != NULL, "user_scene_events", 81);
        cScene* scene = activateSceneOf(hWnd);
        if (scene == nullptr) return 1;
        ts::readWindowRect(scene);
        ts::renderScene(scene);
        return 0;
    });
}

LRESULT seOnDestroy(HWND hWnd) {
    return ts::guarded("seOnDestroy", [&]() -> LRESULT {
        TS_ASSERT(hWnd != NULL, "user_scene_events", 91);
        if (ACTIVE_SCENE == nullptr) {
            ts::errorBox("No active scene found in seOnDestroy!");
            return 1;
        }
        cScene* doomed = ACTIVE_SCENE;
        cSPWHList& registry = ts::sceneRegistry();
        bool destroyedWithEntry = false;
        // Only the window's own entry is removed; an entry other than the head takes
        // its scene with it, which must then not be destroyed a second time.
        if (registry.Find(hWnd) != 0) {
            destroyedWithEntry = registry.current != registry.head && registry.current->sp == doomed;
            registry.DeleteCurrent();
        }
        PostQuitMessage(0);
        if (CURRENT_SCENE == doomed) CURRENT_SCENE = nullptr;
        ACTIVE_SCENE = nullptr;
        if (!destroyedWithEntry) ts::deleteScene(doomed);
        return 0;
    });
}

LRESULT seOnCommand(HWND hWnd, WPARAM wParam, LPARAM lParam) {
    return dispatchInput("seOnCommand", hWnd, 105, ts::onCommand, wParam, lParam);
}
LRESULT seOnChar(HWND hWnd, WPARAM wParam, LPARAM lParam) {
    return dispatchInput("seOnChar", hWnd, 116, ts::onChar, wParam, lParam);
}
LRESULT seOnKeyDown(HWND hWnd, WPARAM wParam, LPARAM lParam) {
    return dispatchInput("seOnKeyDown", hWnd, 127, ts::onKeyDown, wParam, lParam);
}
LRESULT seOnKeyUp(HWND hWnd, WPARAM wParam, LPARAM lParam) {
    return dispatchInput("seOnKeyUp", hWnd, 138, ts::onKeyUp, wParam, lParam);
}
LRESULT seOnLButtonDown(HWND hWnd, WPARAM wParam, LPARAM lParam) {
    return dispatchInput("seOnLButtonDown", hWnd, 149, ts::onLButtonDown, wParam, lParam);
}
LRESULT seOnMButtonDown(HWND hWnd, WPARAM wParam, LPARAM lParam) {
    return dispatchInput("seOnMButtonDown", hWnd, 160, ts::onMButtonDown, wParam, lParam);
}
LRESULT seOnRButtonDown(HWND hWnd, WPARAM wParam, LPARAM lParam) {
    return dispatchInput("seOnRButtonDown", hWnd, 171, ts::onRButtonDown, wParam, lParam);
}
LRESULT seOnLButtonUp(HWND hWnd, WPARAM wParam, LPARAM lParam) {
    return dispatchInput("seOnLButtonUp", hWnd, 182, ts::onLButtonUp, wParam, lParam);
}
LRESULT seOnMouseMove(HWND hWnd, WPARAM wParam, LPARAM lParam) {
    return dispatchInput("seOnMouseMove", hWnd, 193, ts::onMouseMove, wParam, lParam);
}

}  // extern "C"
