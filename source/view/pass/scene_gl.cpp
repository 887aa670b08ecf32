// A scene's window-system and OpenGL side, and its teardown in the fixed order.
#include "view/pass/scene_gl.h"

#include <GL/gl.h>

#include <initializer_list>

#include "library/globals.h"
#include "tsobj3d/cgroup.h"

namespace ts {
namespace {

SceneRect fromRect(const RECT& r) {
    SceneRect rect;
    rect.left = r.left;
    rect.top = r.top;
    rect.right = r.right;
    rect.bottom = r.bottom;
    return rect;
}

void releaseContexts(cScene* scene) {
    if (scene->glrc != nullptr) {
        if (wglGetCurrentContext() == scene->glrc) wglMakeCurrent(nullptr, nullptr);
        wglDeleteContext(scene->glrc);
    }
    if (scene->window != nullptr && scene->dc != nullptr) ReleaseDC(scene->window, scene->dc);
    scene->glrc = nullptr;
    scene->dc = nullptr;
}

}  // namespace

void makeSceneCurrent(cScene* scene) {
    CURRENT_GL_SCENE = scene;
    wglMakeCurrent(scene->dc, scene->glrc);
}

void readClientRect(cScene* scene) {
    RECT r = {};
    GetClientRect(scene->window, &r);
    scene->clientRect = fromRect(r);
}

void readWindowRect(cScene* scene) {
    RECT r = {};
    GetWindowRect(scene->window, &r);
    scene->windowRect = fromRect(r);
}

RECT toRect(const SceneRect& rect) { return RECT{rect.left, rect.top, rect.right, rect.bottom}; }

void deleteScene(cScene* scene) {
    if (scene == nullptr) return;
    // Settings dialogs outlive a scene only when it ends before its window; they go first.
    for (HWND dialog : {scene->viewDialog, scene->lightDialog}) {
        if (dialog != nullptr && IsWindow(dialog)) DestroyWindow(dialog);
    }
    scene->viewDialog = scene->lightDialog = nullptr;
    if (scene->glrc != nullptr) makeSceneCurrent(scene);
    delete scene->list3D;
    delete scene->list2D;
    scene->list3D = scene->list2D = scene->currentGroup = nullptr;
    releaseContexts(scene);
    // The context is gone by now; the call is kept in its place and does nothing then.
    glDeleteLists(scene->displayList, 1);
    for (HGDIOBJ object : {static_cast<HGDIOBJ>(scene->backgroundBrush), scene->pen2D, scene->brush2D, scene->font2D}) {
        if (object != nullptr) DeleteObject(object);
    }
    if (scene->menu != nullptr) DestroyMenu(scene->menu);
    if (CURRENT_GL_SCENE == scene) CURRENT_GL_SCENE = nullptr;
    delete scene;
}

}  // namespace ts
