// The request table: one entry per request number, shared by the scene thread's
// window procedure and the direct path.
#include "requests/requests.h"

#include <iterator>

#include "library/globals.h"
#include "requests/request_handlers.h"

namespace ts {
namespace {

struct RequestEntry {
    UINT message;
    RequestHandler handler;
};

constexpr RequestEntry kRequests[] = {
    {TSM_ADD_NODE_2D, onAddNode2D},
    {TSM_ADD_NODE, onAddNode},
    {TSM_DEL_NODE, onDelNode},
    {TSM_INSERT_AFTER, onInsertAfter},
    {TSM_DEL_NODE_2D, onDelNode2D},
    {TSM_INSERT_AFTER_2D, onInsertAfter2D},
    {TSM_CLEAR_SCENE_2D, onClearScene2D},
    {TSM_REL_TO_POS_2D, onRelToPos2D},
    {TSM_CREATE_FONT_BMP, onCreateFontBMP},
    {TSM_CREATE_FONT_EXT, onCreateFontEXT},
    {TSM_CREATE_WINDOW, onCreateWindow},
    {TSM_CREATE_SCENE, onCreateScene},
    {TSM_SHOW_WINDOW, onShowWindow},
    {TSM_HIDE_WINDOW, onHideWindow},
    {TSM_DELETE_WINDOW, onDeleteWindow},
    {TSM_REFRESH, onRefresh},
    {TSM_BACKGROUND, onBackground},
    {TSM_SIZE_WINDOW, onSizeWindow},
    {TSM_GET_HDC, onGetHdc},
    {TSM_GET_HWND, onGetHwnd},
    {TSM_GET_HGLRC, onGetHglrc},
    {TSM_USE_DISPLAY_LIST, onUseDisplayList},
    {TSM_CLEAR_SCENE, onClearScene},
    {TSM_GET_EVENT, onGetEvent},
    {TSM_EVENT_EXISTS, onEventExists},
    {TSM_RESET_ROTATION, onResetRotation},
    {TSM_RESET_POS, onResetPos},
    {TSM_STOP_MOTION, onStopMotion},
    {TSM_DRAW_MODE, onDrawMode},
    {TSM_SHADE_MODE, onShadeMode},
    {TSM_PROJECTION_MODE, onProjectionMode},
    {TSM_ACTION_MODE, onActionMode},
    {TSM_TRANSLATION, onTranslation},
    {TSM_ROTATION, onRotation},
    {TSM_LOOK_AT, onLookAt},
    {TSM_VIEWPOINT_ADD, onViewpointAdd},
    {TSM_VIEWPOINT_DEL, onViewpointDel},
    {TSM_VIEWPOINT_SET, onViewpointSet},
    {TSM_LIGHT_DIALOG, onLightDialog},
    {TSM_VIEW_DIALOG, onViewDialog},
    {TSM_DIB_FROM_SCENE, onDibFromScene},
};

}  // namespace

RequestHandler requestHandler(UINT message) {
    for (const RequestEntry& entry : kRequests) {
        if (entry.message == message) return entry.handler;
    }
    return nullptr;
}

LRESULT forward(UINT message, WPARAM wParam, LPARAM lParam) {
    if (THREAD_ACTIVE != 0) return SendMessageA(hDummy, message, wParam, lParam);
    RequestHandler handler = requestHandler(message);
    return handler != nullptr ? handler(wParam, lParam) : 0;
}

WPARAM sceneArgument(cScene* scene) {
    return reinterpret_cast<WPARAM>(THREAD_ACTIVE != 0 ? scene : CURRENT_SCENE);
}

}  // namespace ts
