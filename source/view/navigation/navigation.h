// Mouse and keyboard navigation of a scene: the input handlers only set rates, deltas
// and angles in the scene; the rendering pass applies them.
#pragma once

class cScene;

namespace ts {

void navigateButtonDown(cScene* scene, int x, int y);
void navigateMouseMove(cScene* scene, int x, int y);
void navigateButtonUp(cScene* scene);
void navigateKey(cScene* scene, int virtualKey);

}  // namespace ts
