// cScale3D: drawing.
#include "tsobj3d/visible/cscale3d.h"

#include <windows.h>
#include <GL/gl.h>

void cScale3D::draw(ts::DrawContext&) { glScalef(x, y, z); }
