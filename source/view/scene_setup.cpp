// Defaults of a new scene once its settings are read and its GL context is current:
// camera, picking buffer, material, 2D state, menu check marks and the first viewpoint.
#include "view/scene_setup.h"

#include <windows.h>
#include <GL/gl.h>

#include <algorithm>
#include <cstring>
#include <new>

#include "math/gdi_color.h"
#include "view/camera/camera_ops.h"
#include "view/scene/cscene.h"
#include "view/viewpoints/viewpoints.h"

namespace ts {
namespace {

void initCamera(cScene* s) {
    std::memcpy(s->pos, s->iniPos, sizeof(s->pos));
    std::memcpy(s->rotAxis, s->iniAxis, sizeof(s->rotAxis));
    std::memcpy(s->dir, s->iniDir, sizeof(s->dir));
    std::memcpy(s->up, s->iniUp, sizeof(s->up));
    std::memcpy(s->right, s->iniRight, sizeof(s->right));
    glMatrixMode(GL_MODELVIEW);
    glLoadIdentity();
    glGetFloatv(GL_MODELVIEW_MATRIX, s->rotMatrix);
}

void initMaterial() {
    static const float kSpecular[4] = {1.0f, 1.0f, 1.0f, 1.0f};
    glEnable(GL_NORMALIZE);
    glMaterialfv(GL_FRONT, GL_SPECULAR, kSpecular);
    glMaterialf(GL_FRONT, GL_SHININESS, 50.0f);
}

// The 2D state starts with stock objects; the background brush follows BackColor.
void init2D(cScene* s) {
    const COLORREF back = gdiColor(s->BackColor[0], s->BackColor[1], s->BackColor[2]);
    s->backgroundBrush = CreateSolidBrush(back);
    s->pen2D = GetStockObject(WHITE_PEN);
    s->brush2D = GetStockObject(NULL_BRUSH);
    s->font2D = GetStockObject(SYSTEM_FONT);
    SelectObject(s->dc, s->pen2D);
    SelectObject(s->dc, s->brush2D);
    SelectObject(s->dc, s->font2D);
    SetBkColor(s->dc, back);
    SetBkMode(s->dc, TRANSPARENT);
    for (int i = 0; i < 3; ++i) s->backColor2D[i] = s->BackColor[i];
    s->backMode2D = TRANSPARENT;
    s->foreMix2D = R2_COPYPEN;
    MoveToEx(s->dc, 0, 0, nullptr);
    s->currentPos2D[0] = s->currentPos2D[1] = 0;
    SetROP2(s->dc, R2_COPYPEN);
}

}  // namespace

void initSceneDefaults(cScene* scene) {
    scene->renderMode = GL_RENDER;
    initCamera(scene);
    // A settings file may ask for no buffer at all; picking still needs one entry.
    const int entries = std::max(scene->selectBufSize, 1);
    scene->selectBuffer = new (std::nothrow) GLuint[entries];
    scene->selectBufferEntries = scene->selectBuffer != nullptr ? entries : 0;
    initMaterial();
    init2D(scene);
    updateMenuChecks(scene);
    addViewpoint(scene, scene->iniVPName, nullptr);
}

}  // namespace ts
