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

// Modes, camera and viewpoints (source/view/view_requests.cpp).
LRESULT onShadeMode(WPARAM mode, LPARAM);
LRESULT onDrawMode(WPARAM mode, LPARAM);
LRESULT onProjectionMode(WPARAM mode, LPARAM threeDoubles);
LRESULT onResetRotation(WPARAM, LPARAM);
LRESULT onResetPos(WPARAM, LPARAM);
LRESULT onStopMotion(WPARAM, LPARAM);
LRESULT onTranslation(WPARAM threeFloats, LPARAM);
LRESULT onRotation(WPARAM hundredths, LPARAM axis);
LRESULT onLookAt(WPARAM nineFloats, LPARAM);
LRESULT onActionMode(WPARAM mode, LPARAM);
LRESULT onViewpointAdd(WPARAM record, LPARAM name);
LRESULT onViewpointDel(WPARAM name, LPARAM);
LRESULT onViewpointSet(WPARAM name, LPARAM);

}  // namespace ts
