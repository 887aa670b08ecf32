// Navigation: a virtual trackball in TS_ROTATE (with pan and zoom while Ctrl or Shift
// is held), pitch, yaw, roll and speed in TS_FLY, turning and stepping in TS_WALK.
#include "view/navigation/navigation.h"

#include <ctime>

#include "events/navigation_state.h"
#include "tessarin.h"
#include "view/camera/camera_ops.h"
#include "view/pass/pass.h"
#include "view/scene/camera.h"
#include "view/scene/cscene.h"

namespace ts {
namespace {

bool navigable(const cScene* scene, int on) { return on != 0 && scene->has3D != 0; }

void setPending(cScene* scene, float dx, float dy, float dz) {
    scene->pending[0] = dx;
    scene->pending[1] = dy;
    scene->pending[2] = dz;
}

void keypadRotation(cScene* scene, float x, float y, float z, float angle) {
    scene->rotAxis[0] = x;
    scene->rotAxis[1] = y;
    scene->rotAxis[2] = z;
    scene->rotAngle = angle;
}

void changeViewAngle(cScene* scene, double by) {
    scene->angle += by;
    resizeScene(scene);
}

// The cursor keys: what each mode makes of them.
void cursorKey(cScene* scene, int key) {
    const int mode = scene->action_mode;
    if (mode == TS_ROTATE) {
        const int axis = (key == VK_LEFT || key == VK_RIGHT) ? 0 : 2;
        const float sign = (key == VK_LEFT || key == VK_UP) ? 1.0f : -1.0f;
        scene->pos[axis] += sign * scene->rotate_dpos;
    } else if (mode == TS_FLY) {
        if (key == VK_UP) scene->speed += scene->fly_dspeed;
        if (key == VK_DOWN) scene->speed -= scene->fly_dspeed;
    } else if (mode == TS_WALK) {
        if (key == VK_LEFT || key == VK_RIGHT) {
            scene->pending[0] = 0.0f;
            scene->yawRate = key == VK_LEFT ? scene->walk_drot : -scene->walk_drot;
        } else {
            scene->speed = key == VK_UP ? scene->walk_dpos : -scene->walk_dpos;
        }
    }
}

void applyKey(cScene* scene, int key) {
    const float drot = scene->rotate_drot;
    switch (key) {
    case VK_PRIOR: scene->pos[1] -= scene->rotate_dpos; break;
    case VK_NEXT: scene->pos[1] += scene->rotate_dpos; break;
    case VK_HOME:
    case VK_NUMPAD0: resetPosition(scene); break;
    case VK_LEFT:
    case VK_UP:
    case VK_RIGHT:
    case VK_DOWN: cursorKey(scene, key); break;
    case VK_NUMPAD1: keypadRotation(scene, 0, 0, 1, drot); break;
    case VK_NUMPAD2: keypadRotation(scene, 1, 0, 0, drot); break;
    case VK_NUMPAD3: keypadRotation(scene, 0, 0, 1, -drot); break;
    case VK_NUMPAD4: keypadRotation(scene, 0, 1, 0, -drot); break;
    case VK_NUMPAD6: keypadRotation(scene, 0, 1, 0, drot); break;
    case VK_NUMPAD8: keypadRotation(scene, 1, 0, 0, -drot); break;
    case VK_ADD: changeViewAngle(scene, 1.0); break;
    case VK_SUBTRACT: changeViewAngle(scene, -1.0); break;
    default: scene->rotAngle = 0.0f; break;
    }
}

}  // namespace

void navigateButtonDown(cScene* scene, int x, int y) {
    if (!navigable(scene, scene->mouseNavigation)) return;
    navigation().buttonDown = 1;
    scene->firstMove = 1;
    if (scene->action_mode == TS_ROTATE) {
        scene->rotAngle = 0.0f;
        scene->motionRunning = 0;
        trackballVector(*scene, x, y, scene->lastBall);
    }
}

void navigateMouseMove(cScene* scene, int x, int y) {
    NavigationState& nav = navigation();
    if (!navigable(scene, scene->mouseNavigation) || nav.buttonDown == 0) return;
    if (scene->firstMove != 0) {
        nav.lastX = x;
        nav.lastY = y;
        scene->firstMove = 0;
    }
    const float dx = static_cast<float>(nav.lastX - x), dy = static_cast<float>(y - nav.lastY);
    const int mode = scene->action_mode;
    if (mode == TS_FLY || (mode == TS_ROTATE && nav.pan != 0)) {
        setPending(scene, dx * 0.01f * scene->sensib_x_fly, dy * 0.01f * scene->sensib_y_fly, 0.0f);
    } else if (mode == TS_WALK) {
        setPending(scene, dx * 0.01f * scene->sensib_x_walk, 0.0f, 0.0f);
        scene->speed += (nav.lastY - y) * 0.0005f * scene->sensib_y_walk;
    } else if (mode == TS_ROTATE && nav.zoom != 0) {
        setPending(scene, 0.0f, 0.0f, (nav.lastY - y) * 0.01f * scene->sensib_y_fly);
        scene->lastMoveTime = clock();
    } else if (mode == TS_ROTATE) {
        turnTrackball(*scene, x, y);
        scene->lastMoveTime = clock();
    }
    nav.lastX = x;
    nav.lastY = y;
    renderScene(scene);
}

void navigateButtonUp(cScene* scene) {
    if (!navigable(scene, scene->mouseNavigation)) return;
    const clock_t now = clock();
    navigation().buttonDown = 0;
    if (scene->action_mode == TS_WALK) {
        scene->pitchRate = scene->yawRate = scene->rollRate = scene->speed = 0.0f;
    } else if (scene->action_mode == TS_ROTATE) {
        // A release after resting stops; a release while moving leaves the scene
        // spinning by the last angle on every pass.
        if (now - scene->lastMoveTime >= scene->frameTime + scene->auto_delay) {
            scene->rotAngle = 0.0f;
            scene->motionRunning = 0;
        } else {
            scene->motionRunning = 1;
            renderScene(scene);
        }
    }
    setPending(scene, 0, 0, 0);
}

void navigateKey(cScene* scene, int virtualKey) {
    if (!navigable(scene, scene->keyNavigation)) return;
    if (scene->action_mode == TS_ROTATE) stopMotion(scene);
    applyKey(scene, virtualKey);
    const NavigationState& nav = navigation();
    if (nav.pan == 0 && nav.zoom == 0) renderScene(scene);
    if (scene->action_mode == TS_WALK) scene->yawRate = scene->speed = 0.0f;
}

}  // namespace ts
