// The settings values of a scene, and a scene given settings values: each value of
// the settings file paired once with the scene field it stands for.
#pragma once

#include "view/scene/settings.h"

class cScene;

namespace ts {

SceneSettings settingsOfScene(const cScene* scene);
void applySettings(const SceneSettings& settings, cScene* scene);

}  // namespace ts
