// cPushMatrix3D: drawing.
#include "tsobj3d/visible/cpushmatrix3d.h"

#include <windows.h>
#include <GL/gl.h>

void cPushMatrix3D::draw(ts::DrawContext&) { glPushMatrix(); }
