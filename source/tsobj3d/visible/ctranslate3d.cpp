// cTranslate3D: drawing.
#include "tsobj3d/visible/ctranslate3d.h"

#include <windows.h>
#include <GL/gl.h>

void cTranslate3D::draw(ts::DrawContext&) { glTranslatef(x, y, z); }
