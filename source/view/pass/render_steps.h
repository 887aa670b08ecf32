// The parts of the rendering pass that live in files of their own: the lights on both
// sides of the camera, and the camera of each action mode.
#pragma once

#include <windows.h>

class cScene;

namespace ts {

// Before the projection and camera: switch, colour and (for world-placed lights) place
// every light. Touches nothing in shade mode "none".
void lightsBeforeCamera(cScene* scene);
// Under the camera: place the lights fixed in the scene.
void lightsUnderCamera(cScene* scene);
// The camera transform of the scene's action mode on the pushed model-view matrix;
// consumes the pending navigation deltas.
void applyCamera(cScene* scene);
// Draws the 3D list (or the compiled display list) under the current matrices;
// returns the number of selection names a picking pass loaded.
int drawNodes(cScene* scene);

// The camera values the pass used last, shown by the View Settings dialog.
struct CameraCopy {
    float pos[3];
    float rotAngle;
    float rotAxis[3];
    float dir[3];
    float up[3];
};
const CameraCopy& lastCamera();

// Sent by the pass to the View Settings dialog, while it is open, after every pass: the
// dialog then shows lastCamera().
constexpr UINT kRefreshViewDialog = WM_APP + 1;

}  // namespace ts
