// The view's part of creating a scene: its defaults once its settings are read.
#pragma once

class cScene;

namespace ts {

// Camera, navigation, lights, picking and 2D defaults of a scene whose GL context is
// current, including its first viewpoint.
void initSceneDefaults(cScene* scene);

}  // namespace ts
