// cMaterial3D: parameters and drawing.
#include "tsobj3d/visible/cmaterial3d.h"

#include <windows.h>
#include <GL/gl.h>

#include "guard/msgbox.h"

namespace {

void copyColour(float* to, const float* from, const float* fallback) {
    const float* source = from != nullptr ? from : fallback;
    for (int k = 0; k < 4; ++k) to[k] = source[k];
}

}  // namespace

cMaterial3D::cMaterial3D(unsigned f, const float* a, const float* d, const float* s, int shine)
    : cNode(kClassCode) {
    set(f, a, d, s, shine);
}

void cMaterial3D::set(unsigned f, const float* a, const float* d, const float* s, int shine) {
    static const float kNone[4] = {0, 0, 0, 0};
    static const float kSpecular[4] = {0.5f, 0.5f, 0.5f, 1.0f};
    face = f;
    copyColour(ambient, a, kNone);
    copyColour(diffuse, d, kNone);
    copyColour(specular, s, kSpecular);
    shininess = shine;
}

void cMaterial3D::draw(ts::DrawContext&) {
    glMaterialfv(face, GL_AMBIENT, ambient);
    glMaterialfv(face, GL_DIFFUSE, diffuse);
    glMaterialfv(face, GL_SPECULAR, specular);
    if (shininess >= 0 && shininess <= 128) {
        glMateriali(face, GL_SHININESS, shininess);
    } else {
        ts::errorBox("Shine exponent has to be between 0 and 128 !");
    }
}
