// Exported calls of the settings dialogs and of the scene's image, with their
// scene-side request handlers.
#include <windows.h>

#include "guard/guard.h"
#include "library/globals.h"
#include "requests/request_handlers.h"
#include "requests/requests.h"
#include "tessarin.h"
#include "view/dialogs/settings_dialogs.h"
#include "view/pass/scene_bitmap.h"

namespace ts {

LRESULT onLightDialog(WPARAM scene, LPARAM) {
    openLightDialog(reinterpret_cast<cScene*>(scene));
    return 1;
}

LRESULT onViewDialog(WPARAM scene, LPARAM) {
    openViewDialog(reinterpret_cast<cScene*>(scene));
    return 1;
}

LRESULT onDibFromScene(WPARAM, LPARAM) { return reinterpret_cast<LRESULT>(dibFromScene(CURRENT_SCENE)); }

}  // namespace ts

extern "C" {

void smLightDialog(cScene* SceneWindow) {
    ts::guarded("smLightDialog", [&] {
        TS_ASSERT(SceneWindow != NULL, "user3d_uti", 233);
        ts::forward(TSM_LIGHT_DIALOG, ts::sceneArgument(SceneWindow), 0);
    });
}

void smViewDialog(cScene* SceneWindow) {
    ts::guarded("smViewDialog", [&] {
        TS_ASSERT(SceneWindow != NULL, "user3d_uti", 242);
        ts::forward(TSM_VIEW_DIALOG, ts::sceneArgument(SceneWindow), 0);
    });
}

HGLOBAL smDIBfromScene(void) {
    return ts::guarded("smDIBCreateScene",
                       [] { return reinterpret_cast<HGLOBAL>(ts::forward(TSM_DIB_FROM_SCENE, 0, 0)); });
}

}  // extern "C"
