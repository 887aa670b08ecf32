// The cursors of a scene window, one per navigation mode and the arrow.
#pragma once

#include <windows.h>

class cScene;

namespace ts {

enum CursorSlot { kCursorRotate, kCursorPan, kCursorZoom, kCursorFly, kCursorWalk, kCursorArrow, kCursorSlots };

// Loads the six cursors of a new scene from the library's module and shows the arrow.
void loadSceneCursors(cScene* scene, HINSTANCE library);
// Shows the cursor that belongs to the scene's state (the arrow without 3D content).
void updateSceneCursor(cScene* scene);

}  // namespace ts
