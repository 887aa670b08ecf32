// The cursor of a scene window: the arrow while the 3D list is empty, otherwise the
// cursor of the navigation mode (pan and zoom while Ctrl or Shift is held).
#include "view/navigation/scene_cursor.h"

#include "events/navigation_state.h"
#include "view/scene/cscene.h"

namespace ts {

void loadSceneCursors(cScene* scene, HINSTANCE library) {
    const int resources[kCursorSlots - 1] = {112, 1, 2, 109, 110};
    for (int i = 0; i < kCursorSlots - 1; ++i) scene->cursors[i] = LoadCursorA(library, MAKEINTRESOURCEA(resources[i]));
    scene->cursors[kCursorArrow] = LoadCursorA(nullptr, MAKEINTRESOURCEA(32512));  // IDC_ARROW
    SetCursor(scene->cursors[kCursorArrow]);
}

void updateSceneCursor(cScene* scene) {
    int slot = kCursorArrow;
    if (scene->has3D != 0 && scene->action_mode == 1) {
        slot = kCursorFly;
    } else if (scene->has3D != 0 && scene->action_mode == 2) {
        slot = kCursorWalk;
    } else if (scene->has3D != 0) {
        const NavigationState& nav = navigation();
        slot = nav.pan != 0 ? kCursorPan : nav.zoom != 0 ? kCursorZoom : kCursorRotate;
    }
    SetCursor(scene->cursors[slot]);
}

}  // namespace ts
