// cTranslate3D: drawing.
#include "tsobj3d/visible/ctranslate3d.h"

#include <windows.h>
#include <GL/gl.h>

void cTranslate3D::draw() { glTranslatef(x, y, z); }
