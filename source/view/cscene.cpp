// Scene object: construction, teardown and the rendering pass.
#include "view/cscene.h"

#include <GL/glu.h>

#include "globals.h"
#include "tsobj3d/cgroup.h"

cScene::cScene() = default;

cScene::~cScene() {
    delete list3D;
    delete list2D;
    if (glrc != nullptr) {
        if (wglGetCurrentContext() == glrc) wglMakeCurrent(nullptr, nullptr);
        wglDeleteContext(glrc);
    }
    if (window != nullptr && dc != nullptr) ReleaseDC(window, dc);
    if (backgroundBrush != nullptr) DeleteObject(backgroundBrush);
    if (menu != nullptr) DestroyMenu(menu);
    if (CURRENT_GL_SCENE == this) CURRENT_GL_SCENE = nullptr;
}

namespace ts {

namespace {
void drawFrame(cScene* scene);
}

cScene* drawingScene() { return CURRENT_GL_SCENE != nullptr ? CURRENT_GL_SCENE : CURRENT_SCENE; }

void renderScene(cScene* scene) {
    if (scene->has3D == 0) {
        GetClientRect(scene->window, &scene->clientRect);
        FillRect(scene->dc, &scene->clientRect, scene->backgroundBrush);
    } else {
        drawFrame(scene);
    }
    scene->idle = 1;
    ValidateRect(scene->window, nullptr);
}

namespace {
void drawFrame(cScene* scene) {
    CURRENT_GL_SCENE = scene;
    wglMakeCurrent(scene->dc, scene->glrc);
    GetClientRect(scene->window, &scene->clientRect);
    const int width = scene->clientRect.right;
    const int height = scene->clientRect.bottom > 0 ? scene->clientRect.bottom : 1;
    glClearColor(scene->BackColor[0], scene->BackColor[1], scene->BackColor[2], 1.0f);
    glClear(GL_COLOR_BUFFER_BIT | GL_DEPTH_BUFFER_BIT);
    glEnable(GL_DEPTH_TEST);
    glViewport(0, 0, width, height);
    glMatrixMode(GL_PROJECTION);
    glLoadIdentity();
    gluPerspective(45.0, static_cast<double>(width) / height, 0.01, 1000.0);
    glMatrixMode(GL_MODELVIEW);
    glPushMatrix();
    glLoadIdentity();
    glTranslatef(0.0f, 0.0f, -5.0f);
    if (scene->useDisplayList != 0) {
        glCallList(scene->displayList);
    } else {
        scene->list3D->draw();
    }
    glPopMatrix();
    SwapBuffers(scene->dc);
}
}  // namespace

void updateSceneCursor(cScene*) {}

}  // namespace ts
