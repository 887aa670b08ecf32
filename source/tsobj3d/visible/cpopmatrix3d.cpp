// cPopMatrix3D: drawing.
#include "tsobj3d/visible/cpopmatrix3d.h"

#include <windows.h>
#include <GL/gl.h>

void cPopMatrix3D::draw(ts::DrawContext&) { glPopMatrix(); }
