// Scene-side handlers of the requests; each runs on the thread that owns the scene
// and acts on CURRENT_SCENE unless the request carries a scene.
#pragma once

#include <windows.h>

namespace ts {

LRESULT onAddNode(WPARAM node, LPARAM);
LRESULT onAddNode2D(WPARAM node, LPARAM);
LRESULT onDelNode(WPARAM node, LPARAM);
LRESULT onInsertAfter(WPARAM node, LPARAM insertAfter);
LRESULT onClearScene(WPARAM, LPARAM);
LRESULT onUseDisplayList(WPARAM listName, LPARAM);

}  // namespace ts
