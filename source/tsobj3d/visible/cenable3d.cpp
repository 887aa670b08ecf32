// cEnable3D: parameters and drawing. It writes the current scene, which need not be
// the scene being drawn: that is how the switches have always been reached.
#include "tsobj3d/visible/cenable3d.h"

#include <windows.h>
#include <GL/gl.h>

#include "tessarin.h"
#include "tsobj3d/draw_context.h"

void cEnable3D::set(int number, int isOn) {
    switchNumber = number;
    on = isOn;
}

void cEnable3D::draw(ts::DrawContext& context) {
    // Without a current scene there is no switch to write; nothing else changes.
    int* field = context.currentSceneSwitch(switchNumber);
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
