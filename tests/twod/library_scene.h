// The test program's library window with its scene (the library's scene thread starts
// once per process, so the tests of one program share it), reset to an empty scene
// with the 2D state of a new one before each test.
#pragma once

#include <windows.h>

#include "tessarin.h"
#include "twod/window_image.h"

namespace tw {

class LibraryScene {
public:
    // The window (made on first use) with empty lists, the relative mode on, and the
    // device context's pen, brush, font, background and mix mode as a new scene has them.
    static LibraryScene& fresh();
    // The same window as it is now.
    static LibraryScene& get();

    // A red lit box in the middle of the window, behind the 2D layer.
    void addBox();
    // A rendering pass of the scene, then the window as it shows.
    WindowImage frame();
    // The pen position of the scene window's device context.
    POINT penPosition() const;

    cScene* scene = nullptr;
    HWND hwnd = nullptr;
    HDC dc = nullptr;
    int width = 0;
    int height = 0;

private:
    LibraryScene();
    void reset();
};

}  // namespace tw
