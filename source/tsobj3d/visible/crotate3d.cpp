// cRotate3D: parameters and drawing.
#include "tsobj3d/visible/crotate3d.h"

#include <windows.h>
#include <GL/gl.h>

void cRotate3D::set(float angleDegrees, float ax, float ay, float az, float incrementDegrees) {
    angle = angleDegrees;
    x = ax;
    y = ay;
    z = az;
    increment = incrementDegrees;
}

// Every drawing counts, a picking pass too: animation needs no timer of its own.
void cRotate3D::draw(ts::DrawContext&) {
    glRotatef(angle, x, y, z);
    angle += increment;
}
