// The camera of the rendering pass. TS_ROTATE turns the scene about lookAt with an
// accumulated rotation matrix; TS_FLY and TS_WALK steer look vectors by rates that
// persist from pass to pass, so motion continues without input.
#include <windows.h>
#include <GL/gl.h>
#include <GL/glu.h>

#include <cstring>

#include "events/event_wait.h"
#include "math/vecmath.h"
#include "view/pass/render_steps.h"
#include "view/pass/vecmath_gl.h"
#include "view/scene/camera.h"
#include "view/scene/cscene.h"

namespace ts {
namespace {

CameraCopy cameraCopy = {};

// rotMatrix := R(rotAngle about rotAxis) x rotMatrix, built on the GL matrix stack.
void foldRotation(cScene* s) {
    glPushMatrix();
    glLoadIdentity();
    glRotatef(s->rotAngle, s->rotAxis[0], s->rotAxis[1], s->rotAxis[2]);
    glMultMatrixf(s->rotMatrix);
    glGetFloatv(GL_MODELVIEW_MATRIX, s->rotMatrix);
    glPopMatrix();
}

void rotateCamera(cScene* s) {
    glTranslatef(-s->pos[0], -s->pos[1], -s->pos[2]);
    foldRotation(s);
    glMultMatrixf(s->rotMatrix);
    for (int k = 0; k < 3; ++k) s->lookAt[k] += s->pending[k];
    glTranslatef(-s->lookAt[0], -s->lookAt[1], -s->lookAt[2]);
    std::memcpy(cameraCopy.pos, s->pos, sizeof(cameraCopy.pos));
    cameraCopy.rotAngle = s->rotAngle;
    std::memcpy(cameraCopy.rotAxis, s->rotAxis, sizeof(cameraCopy.rotAxis));
    noteCamera(s->pos, s->rotAxis, &s->rotAngle, nullptr, nullptr);
}

// Turns dir, up and right together by angle about a copy of axis (axis may be one of them).
void turnLookVectors(cScene* s, const float* axis, float angle) {
    const float about[3] = {axis[0], axis[1], axis[2]};
    float m[16];
    rotationMatrix(angle, about, m);
    rotateByMatrix(m, s->dir, s->dir);
    rotateByMatrix(m, s->up, s->up);
    rotateByMatrix(m, s->right, s->right);
}

void lookCamera(cScene* s) {
    static const float kWorldY[3] = {0.0f, 1.0f, 0.0f};
    steerRates(*s);
    if (s->pitchRate != 0.0f) turnLookVectors(s, s->right, s->pitchRate);
    if (s->yawRate != 0.0f) {
        const bool aroundWorldY = s->action_mode == 1 && s->yaw_around_y != 0;
        turnLookVectors(s, aroundWorldY ? kWorldY : s->up, s->yawRate);
    }
    if (s->rollRate != 0.0f) turnLookVectors(s, s->dir, s->rollRate);
    for (int k = 0; k < 3; ++k) s->pos[k] += s->speed * s->dir[k];
    gluLookAt(s->pos[0], s->pos[1], s->pos[2], s->pos[0] + s->dir[0], s->pos[1] + s->dir[1],
              s->pos[2] + s->dir[2], s->up[0], s->up[1], s->up[2]);
    std::memcpy(cameraCopy.pos, s->pos, sizeof(cameraCopy.pos));
    std::memcpy(cameraCopy.dir, s->dir, sizeof(cameraCopy.dir));
    std::memcpy(cameraCopy.up, s->up, sizeof(cameraCopy.up));
    noteCamera(s->pos, nullptr, nullptr, s->dir, s->up);
    // The rates and the speed stay: motion continues on the next pass. TS_ROTATE keeps
    // its pending deltas until the button is released.
    s->pending[0] = s->pending[1] = s->pending[2] = 0.0f;
}

}  // namespace

const CameraCopy& lastCamera() { return cameraCopy; }

void noteLookVectors(const cScene* scene) { noteCamera(nullptr, nullptr, nullptr, scene->dir, scene->up); }

void applyCamera(cScene* scene) {
    if (scene->action_mode == 0) {
        rotateCamera(scene);
    } else {
        lookCamera(scene);
    }
}

}  // namespace ts
