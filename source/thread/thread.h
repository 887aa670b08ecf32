// The scene thread: lazy start, the two window classes, the hidden request window and
// the message loop that owns every library window and scene.
#pragma once

#include <windows.h>

namespace ts {

// Starts the scene thread and waits until its loop runs (called by swCreateWind).
void InitThread();

// The one window procedure of both window classes.
LRESULT CALLBACK SceneWndProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam);

}  // namespace ts
