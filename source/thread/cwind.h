// cWind: a library window as the application holds it.
#pragma once

#include <windows.h>

class cWind {
public:
    char title[64];
    int visible;
    DWORD style;
    HWND hWnd;
    int left, top, right, bottom;  // creation rectangle, never updated
};

namespace ts {
// The record of the window being created on the scene thread.
extern cWind* CURRENT_WIND;
}
