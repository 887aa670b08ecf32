// The two settings dialogs of a scene: View Settings (camera, projection, action mode)
// and Light Settings (the eight lights). Both are modeless, one of each per scene, and
// run on the thread that owns the scene window.
#pragma once

class cScene;

namespace ts {

// Opens the scene's View Settings dialog, or raises the one already open.
void openViewDialog(cScene* scene);
// Opens the scene's Light Settings dialog, or raises the one already open.
void openLightDialog(cScene* scene);

}  // namespace ts
