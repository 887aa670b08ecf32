// Exported se* handlers: a scene in a window that the application owns, driven from
// the application's window procedure. The library's own windows use them too.
#include <new>

#include "cscene_wm_create.h"
#include "cspwhlist.h"
#include "globals.h"
#include "guard.h"
#include "msgbox.h"
#include "tessarin.h"
#include "view/cscene.h"

namespace {

// Finds the scene of hWnd in the registry and makes it ACTIVE_SCENE.
cScene* activateSceneOf(HWND hWnd) {
    cSPWHList& registry = ts::sceneRegistry();
    ACTIVE_SCENE = (hWnd != nullptr && registry.Find(hWnd) != 0) ? registry.current->sp : nullptr;
    return ACTIVE_SCENE;
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
        if (!destroyedWithEntry) delete doomed;
        return 0;
    });
}

}  // extern "C"
