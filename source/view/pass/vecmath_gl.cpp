// Rotation conversions built on the model-view matrix of the current GL context.
#include "view/pass/vecmath_gl.h"

#include <windows.h>
#include <GL/gl.h>
#include <GL/glu.h>

#include "math/vecmath.h"

namespace ts {

namespace {

// Runs build on a pushed, identity model-view matrix and reads the result into m;
// the matrix stack and the matrix mode are left as they were.
template <class Build>
void readModelView(Build&& build, float* m) {
    GLint mode = GL_MODELVIEW;
    glGetIntegerv(GL_MATRIX_MODE, &mode);
    glMatrixMode(GL_MODELVIEW);
    glPushMatrix();
    glLoadIdentity();
    build();
    glGetFloatv(GL_MODELVIEW_MATRIX, m);
    glPopMatrix();
    glMatrixMode(static_cast<GLenum>(mode));
}

}  // namespace

void rotationMatrix(float angle, const float* axis, float* m) {
    readModelView([&] { glRotatef(angle, axis[0], axis[1], axis[2]); }, m);
}

void angleAxisToLook(float angle, const float* axis, float* pos, float* dir, float* up,
                     float* right) {
    float m[16];
    rotationMatrix(-angle, axis, m);
    lookVectorsFromMatrix(m, dir, up, right, pos);
}

void lookToAngleAxis(const float* dir, const float* up, float* pos, float* angle, float* axis) {
    float m[16];
    readModelView(
        [&] {
            gluLookAt(pos[0], pos[1], pos[2], pos[0] + dir[0], pos[1] + dir[1],
                      pos[2] + dir[2], up[0], up[1], up[2]);
            // Undoes the look-at translation and keeps the pure rotation.
            glTranslated(pos[0], pos[1], pos[2]);
        },
        m);
    rotateByMatrix(m, pos, pos);
    matrixToAngleAxis(m, angle, axis);
}

}  // namespace ts
