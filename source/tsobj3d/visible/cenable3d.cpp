// cEnable3D: parameters and drawing. It writes the current scene, which need not be
// the scene being drawn: that is how the switches have always been reached.
#include "tsobj3d/visible/cenable3d.h"

#include <windows.h>
#include <GL/gl.h>

#include "globals.h"
#include "tessarin.h"
#include "view/cscene.h"

namespace ts {

int* sceneSwitch(cScene& scene, int32_t n) {
    switch (n) {
        case TS_SWITCH_LIGHTING: return &scene.enableLighting;
        case TS_SWITCH_CULL_FACE: return &scene.enableCull;
        case TS_SWITCH_DEPTH_TEST: return &scene.enableDepth;
        case TS_SWITCH_COLOR_MATERIAL: return &scene.enableColorMaterial;
        case TS_SWITCH_PICKING: return &scene.pickingOn;
        case TS_SWITCH_FORCE_REDRAW: return &scene.forceRedraw;
        case TS_SWITCH_MOUSE_NAVIGATION: return &scene.mouseNavigation;
        case TS_SWITCH_KEY_NAVIGATION: return &scene.keyNavigation;
        case TS_SWITCH_CONTEXT_MENU: return &scene.contextMenu;
        default: return nullptr;
    }
}

}  // namespace ts

void cEnable3D::set(int number, int isOn) {
    switchNumber = number;
    on = isOn;
}

void cEnable3D::draw() {
    // Without a current scene there is no switch to write; nothing else changes.
    if (CURRENT_SCENE == nullptr) return;
    int* field = ts::sceneSwitch(*CURRENT_SCENE, switchNumber);
    if (field == nullptr) return;
    *field = on;
    if (switchNumber == TS_SWITCH_CULL_FACE) {
        if (on) {
            glEnable(GL_CULL_FACE);
        } else {
            glDisable(GL_CULL_FACE);
        }
    }
}
