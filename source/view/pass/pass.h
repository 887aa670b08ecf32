// The rendering pass of a scene and the resize that precedes one.
#pragma once

class cScene;

namespace ts {

// One rendering pass of scene: the 3D frame (or the background), the 2D list over it,
// and the decision between going idle and painting again at once.
void renderScene(cScene* scene);
// True while the pass would paint again at once: motion, rates or speed, or the
// force-redraw switch.
bool motionContinues(const cScene* scene);
// The WM_SIZE work: viewport and a provisional perspective for the new client size,
// then a pass.
void resizeScene(cScene* scene);
// Hands the event record of swWaitForEvent the scene's dir and up as they stand (the
// action-mode switch does, after its conversion).
void noteLookVectors(const cScene* scene);

}  // namespace ts
