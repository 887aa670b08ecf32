// cScene: one 3D view bound to one window. The fields the node lists, scene
// creation and the rendering pass share; later parts of the view extend it.
#pragma once

#include <windows.h>
#include <GL/gl.h>

class cGroup;

class cScene {
public:
    cScene();
    ~cScene();
    cScene(const cScene&) = delete;
    cScene& operator=(const cScene&) = delete;

    char name[64] = {};
    HWND window = nullptr;
    HWND lightDialog = nullptr;
    HWND viewDialog = nullptr;
    HDC dc = nullptr;
    HGLRC glrc = nullptr;
    unsigned displayList = 0;
    RECT clientRect = {};
    RECT windowRect = {};
    HMENU menu = nullptr;
    int has2D = 0;
    int has3D = 0;
    cGroup* list2D = nullptr;
    cGroup* list3D = nullptr;
    cGroup* currentGroup = nullptr;  // where new 3D nodes go
    int idle = 0;
    HBRUSH backgroundBrush = nullptr;
    float BackColor[3] = {0.0f, 0.0f, 0.0f};
    int useDisplayList = 0;
    GLenum renderMode = GL_RENDER;
    int colorbits = 24;
    int depthbits = 16;
};

namespace ts {

// The scene whose render mode decides whether groups load selection names: the one
// being drawn, or the current scene outside a pass.
cScene* drawingScene();

// One rendering pass of scene.
void renderScene(cScene* scene);
// Shows the cursor that belongs to the scene's state (the empty-scene one without 3D).
void updateSceneCursor(cScene* scene);

}  // namespace ts
