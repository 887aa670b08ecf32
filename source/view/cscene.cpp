// Scene object: construction, teardown in its fixed order, and the current GL scene.
#include "view/cscene.h"

#include <initializer_list>

#include "library/globals.h"
#include "tsobj3d/cgroup.h"

cScene::cScene() = default;

int* cScene::switchField(int number) {
    int* const fields[] = {&enableLighting, &enableCull,   &enableDepth,     &enableColorMaterial, &pickingOn,
                           &forceRedraw,    &mouseNavigation, &keyNavigation, &contextMenu};
    return number >= 1 && number <= 9 ? fields[number - 1] : nullptr;
}

cScene::~cScene() {
    // Nodes may free GL objects of their own, so the lists go while the context lives.
    if (glrc != nullptr) ts::makeSceneCurrent(this);
    delete list3D;
    delete list2D;
    list3D = list2D = currentGroup = nullptr;
    if (glrc != nullptr) {
        if (wglGetCurrentContext() == glrc) wglMakeCurrent(nullptr, nullptr);
        wglDeleteContext(glrc);
    }
    if (window != nullptr && dc != nullptr) ReleaseDC(window, dc);
    glrc = nullptr;
    dc = nullptr;
    // The context is gone by now; the call is kept in its place and does nothing then.
    glDeleteLists(displayList, 1);
    for (HGDIOBJ object : {static_cast<HGDIOBJ>(backgroundBrush), pen2D, brush2D, font2D}) {
        if (object != nullptr) DeleteObject(object);
    }
    if (menu != nullptr) DestroyMenu(menu);
    delete[] selectBuffer;
    if (CURRENT_GL_SCENE == this) CURRENT_GL_SCENE = nullptr;
}

namespace ts {

void makeSceneCurrent(cScene* scene) {
    CURRENT_GL_SCENE = scene;
    wglMakeCurrent(scene->dc, scene->glrc);
}

}  // namespace ts
