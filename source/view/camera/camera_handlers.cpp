// Camera calls: reset, stop, translation, rotation, look-at and the action-mode switch
// with its conversions between the rotation matrix and the look vectors.
#include <windows.h>
#include <GL/gl.h>

#include <cstring>
#include <initializer_list>

#include "math/vecmath.h"
#include "view/camera/camera_ops.h"
#include "view/pass/pass.h"
#include "view/pass/scene_gl.h"
#include "view/pass/vecmath_gl.h"
#include "view/scene/camera.h"
#include "view/scene/cscene.h"

namespace ts {
namespace {

void copy3(float* to, const float* from) { std::memcpy(to, from, 3 * sizeof(float)); }

void loadIdentityRotation(cScene* s) {
    static const float kIdentity[16] = {1, 0, 0, 0, 0, 1, 0, 0, 0, 0, 1, 0, 0, 0, 0, 1};
    std::memcpy(s->rotMatrix, kIdentity, sizeof(kIdentity));
}

// The accumulated rotation is replaced by the one in rotAngle: the pass folds it into
// the identity once, and rotAngle is cleared so that it does not turn again.
void renderOnce(cScene* s) {
    loadIdentityRotation(s);
    renderScene(s);
    s->rotAngle = 0.0f;
}

bool isLookMode(int mode) { return mode == 1 || mode == 2; }

}  // namespace

void resetPosition(cScene* s) {
    s->rotAngle = s->iniRot;
    copy3(s->rotAxis, s->iniAxis);
    copy3(s->pos, s->iniPos);
    copy3(s->dir, s->iniDir);
    copy3(s->up, s->iniUp);
    copy3(s->right, s->iniRight);
    s->pending[0] = s->pending[1] = 0.0f;
    s->speed = s->pitchRate = s->rollRate = s->yawRate = 0.0f;
    s->motionRunning = 0;
    makeSceneCurrent(s);
    glMatrixMode(GL_MODELVIEW);
    glLoadIdentity();
    glGetFloatv(GL_MODELVIEW_MATRIX, s->rotMatrix);
}

void translateScene(cScene* s, const float* xyz) {
    copy3(s->pos, xyz);
    renderScene(s);
}

void rotateScene(cScene* s, float angle, const float* axis) {
    stopMotion(s);
    s->rotAngle = angle;
    copy3(s->rotAxis, axis);
    if (isLookMode(s->action_mode)) {
        makeSceneCurrent(s);
        angleAxisToLook(angle, axis, s->pos, s->dir, s->up, s->right);
    }
    renderScene(s);
    s->rotAngle = 0.0f;
}

void lookAtScene(cScene* s, const float* eyeDirUp) {
    stopMotion(s);
    copy3(s->pos, eyeDirUp);
    copy3(s->dir, eyeDirUp + 3);
    copy3(s->up, eyeDirUp + 6);
    if (s->action_mode == 0) {
        makeSceneCurrent(s);
        lookToAngleAxis(s->dir, s->up, s->pos, &s->rotAngle, s->rotAxis);
    }
    renderOnce(s);
}

int switchActionMode(cScene* s, int mode) {
    s->pending[0] = s->pending[1] = s->pending[2] = 0.0f;
    s->pitchRate = s->rollRate = s->yawRate = s->speed = 0.0f;
    makeSceneCurrent(s);
    if (s->action_mode == 0 && isLookMode(mode)) {
        float angle = 0.0f;
        float axis[3];
        matrixToAngleAxis(s->rotMatrix, &angle, axis);
        angleAxisToLook(angle, axis, s->pos, s->dir, s->up, s->right);
    } else if (isLookMode(s->action_mode) && mode == 0) {
        lookToAngleAxis(s->dir, s->up, s->pos, &s->rotAngle, s->rotAxis);
        for (float* v : {s->dir, s->up, s->right}) v[0] = v[1] = v[2] = 0.0f;
    }
    s->action_mode = mode;
    noteLookVectors(s);
    updateMenuChecks(s);
    renderOnce(s);
    return 1;
}

}  // namespace ts
