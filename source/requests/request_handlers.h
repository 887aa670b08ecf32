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
LRESULT onDelNode2D(WPARAM node, LPARAM);
LRESULT onInsertAfter2D(WPARAM node, LPARAM insertAfter);
LRESULT onClearScene2D(WPARAM, LPARAM);
LRESULT onRelToPos2D(WPARAM flag, LPARAM);
// Fonts for the text nodes (source/view/font_requests.cpp).
LRESULT onCreateFontBMP(WPARAM font, LPARAM);
LRESULT onCreateFontEXT(WPARAM font, LPARAM record);
LRESULT onCreateWindow(WPARAM window, LPARAM);
LRESULT onCreateScene(WPARAM window, LPARAM);
LRESULT onShowWindow(WPARAM window, LPARAM);
LRESULT onHideWindow(WPARAM window, LPARAM);
LRESULT onDeleteWindow(WPARAM window, LPARAM);
LRESULT onSizeWindow(WPARAM window, LPARAM rectangle);
LRESULT onRefresh(WPARAM scene, LPARAM);
LRESULT onBackground(WPARAM colour, LPARAM);
LRESULT onGetHdc(WPARAM scene, LPARAM);
LRESULT onGetHwnd(WPARAM scene, LPARAM);
LRESULT onGetHglrc(WPARAM scene, LPARAM);
LRESULT onGetEvent(WPARAM type, LPARAM);
LRESULT onEventExists(WPARAM type, LPARAM);

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

// Settings dialogs and the scene's image (source/view/user_dialogs.cpp).
LRESULT onLightDialog(WPARAM scene, LPARAM);
LRESULT onViewDialog(WPARAM scene, LPARAM);
LRESULT onDibFromScene(WPARAM, LPARAM);

}  // namespace ts
