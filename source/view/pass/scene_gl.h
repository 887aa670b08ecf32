// A scene's window-system and OpenGL side: making its context current, reading its
// window rectangles, and ending a scene bound to a window.
#pragma once

#include <windows.h>

#include "view/scene/cscene.h"

namespace ts {

// Makes the scene's context current on this thread and notes it as the GL scene.
void makeSceneCurrent(cScene* scene);

// The scene window's client rectangle and window rectangle into the scene.
void readClientRect(cScene* scene);
void readWindowRect(cScene* scene);
RECT toRect(const SceneRect& rect);

// Ends a scene in its fixed order: the 3D and 2D lists (while its context is current,
// since nodes may own GL objects), the GL context, the device context, the scene's
// display list, the four GDI objects, the menu, and then the scene's data. Null is
// ignored.
void deleteScene(cScene* scene);

}  // namespace ts
