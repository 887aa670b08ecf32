// Scene-side work of the mode and camera calls, given the scene; the request handlers
// and the context menu call these on the thread owning the scene.
#pragma once

class cScene;

namespace ts {

// Modes: values outside their set are ignored without a message. No redraw.
void setShadeMode(cScene* scene, int mode);
void setDrawMode(cScene* scene, int mode);
void setProjectionMode(cScene* scene, int mode, double angle, double clipnear, double clipfar);
// Exactly the matching item of each mode group of the context menu is checked.
void updateMenuChecks(cScene* scene);

// The start camera (initial position, rotation and vectors), motion stopped,
// rotMatrix the identity. No redraw.
void resetPosition(cScene* scene);
// pos := xyz, then a pass.
void translateScene(cScene* scene, const float* xyz);
// Turns the scene once by angle about axis (in TS_FLY/TS_WALK: the look vectors).
void rotateScene(cScene* scene, float angle, const float* axis);
// Eye, direction and up from nine floats; the orientation replaces the accumulated one.
void lookAtScene(cScene* scene, const float* eyeDirUp);
// Switches the action mode, converting the orientation between the rotation matrix
// and the look vectors. The mode is not range-checked. Returns 1.
int switchActionMode(cScene* scene, int mode);

}  // namespace ts
