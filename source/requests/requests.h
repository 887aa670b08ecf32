// The request protocol between the exported calls and the scene thread: the private
// message numbers, and the one path every forwarding export takes.
#pragma once

#include <windows.h>

enum TsmRequest : UINT {
    TSM_ADD_NODE_2D = WM_USER + 0,
    TSM_ADD_NODE = WM_USER + 1,
    TSM_DEL_NODE_2D = WM_USER + 2,
    TSM_DEL_NODE = WM_USER + 3,
    TSM_INSERT_AFTER_2D = WM_USER + 4,
    TSM_INSERT_AFTER = WM_USER + 5,
    TSM_CREATE_WINDOW = WM_USER + 99,
    TSM_CREATE_SCENE = WM_USER + 100,
    TSM_SHOW_WINDOW = WM_USER + 101,
    TSM_HIDE_WINDOW = WM_USER + 102,
    TSM_DELETE_WINDOW = WM_USER + 103,
    TSM_REFRESH = WM_USER + 104,
    TSM_BACKGROUND = WM_USER + 105,
    TSM_SIZE_WINDOW = WM_USER + 107,
    TSM_GET_HDC = WM_USER + 108,
    TSM_GET_HWND = WM_USER + 109,
    TSM_GET_HGLRC = WM_USER + 111,
    TSM_USE_DISPLAY_LIST = WM_USER + 200,
    TSM_CREATE_FONT_BMP = WM_USER + 201,
    TSM_CREATE_FONT_EXT = WM_USER + 202,
    TSM_RESET_ROTATION = WM_USER + 203,
    TSM_RESET_POS = WM_USER + 204,
    TSM_STOP_MOTION = WM_USER + 205,
    TSM_CLEAR_SCENE_2D = WM_USER + 206,
    TSM_CLEAR_SCENE = WM_USER + 207,
    TSM_DRAW_MODE = WM_USER + 208,
    TSM_SHADE_MODE = WM_USER + 209,
    TSM_PROJECTION_MODE = WM_USER + 210,
    TSM_ACTION_MODE = WM_USER + 211,
    TSM_TRANSLATION = WM_USER + 212,
    TSM_ROTATION = WM_USER + 213,
    TSM_LOOK_AT = WM_USER + 214,
    TSM_REL_TO_POS_2D = WM_USER + 217,
    TSM_LIGHT_DIALOG = WM_USER + 218,
    TSM_VIEW_DIALOG = WM_USER + 219,
    TSM_DIB_FROM_SCENE = WM_USER + 220,
    TSM_VIEWPOINT_ADD = WM_USER + 222,
    TSM_VIEWPOINT_DEL = WM_USER + 223,
    TSM_VIEWPOINT_SET = WM_USER + 224,
    TSM_GET_EVENT = WM_USER + 225,
    TSM_EVENT_EXISTS = WM_USER + 226,
};

class cScene;

namespace ts {

using RequestHandler = LRESULT (*)(WPARAM wParam, LPARAM lParam);

// The scene-side handler of a request number, or null for numbers in the gaps, which
// belong to the default window procedure.
RequestHandler requestHandler(UINT message);

// Sends the request to the scene thread and waits while that thread runs; otherwise
// runs the same handler here on the caller's thread. Returns the handler's result.
LRESULT forward(UINT message, WPARAM wParam, LPARAM lParam);

// The scene a scene-argument request acts on: the caller's on the scene thread, the
// current one on the direct path.
WPARAM sceneArgument(cScene* scene);

}  // namespace ts
