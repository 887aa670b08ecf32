// Binding a new scene to its window: name, menu, registry entry, display-list name,
// device context, settings, pixel format, GL context, list roots and defaults.
#pragma once

#include <windows.h>

class cScene;

namespace ts {
void createSceneOnWindow(cScene* scene, HWND hWnd, const char* scenename);
}
