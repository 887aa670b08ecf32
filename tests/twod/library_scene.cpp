// The shared library window of a 2D test program.
#include "twod/library_scene.h"

#include <GL/glu.h>

namespace tw {

LibraryScene::LibraryScene() {
    cWind* window = swCreateWind("2D layer", 260, 200, 30, 30, WS_OVERLAPPEDWINDOW);
    swShowWind(window);
    scene = swCreateScene(window);
    hwnd = smGetHWND(scene);
    dc = smGetHDC(scene);
    RECT client = {};
    GetClientRect(hwnd, &client);
    width = client.right;
    height = client.bottom;
}

LibraryScene& LibraryScene::get() {
    static LibraryScene* shared = new LibraryScene();  // lives until the process ends
    return *shared;
}

LibraryScene& LibraryScene::fresh() {
    LibraryScene& s = get();
    s.reset();
    return s;
}

// State nodes set while the scene draws them at once put the device context back in
// the state of a new scene; clearing then drops the nodes.
void LibraryScene::reset() {
    smCurrentScene(scene);
    smRelToPos2D(TRUE);
    smClearScene2D();
    snPen2D(nullptr, static_cast<HPEN>(GetStockObject(WHITE_PEN)));
    snBrush2D(nullptr, static_cast<HBRUSH>(GetStockObject(NULL_BRUSH)));
    snFont2D(nullptr, static_cast<HFONT>(GetStockObject(SYSTEM_FONT)));
    snBackColor2D(nullptr, 0.0f, 0.0f, 0.0f);
    snBackMode2D(nullptr, TRANSPARENT);
    snForeMix2D(nullptr, R2_COPYPEN);
    smClearScene2D();
    smClearScene();
}

void LibraryScene::addBox() {
    snColorRGB(nullptr, 1.0f, 0.0f, 0.0f);
    snBox(nullptr, -1.0f, -1.0f, -1.0f, 1.0f, 1.0f, 1.0f, GLU_OUTSIDE);
}

WindowImage LibraryScene::frame() {
    smRefreshScene(scene);
    return grab(hwnd);
}

POINT LibraryScene::penPosition() const {
    POINT p = {};
    GetCurrentPositionEx(dc, &p);
    return p;
}

}  // namespace tw
