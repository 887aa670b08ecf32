// What scene creation asks of the view: the settings file and the scene's defaults.
#pragma once

class cScene;

namespace ts {

// Reads "Tessarin20.ini" into the scene (current directory, then the Windows
// directory; writes the template when neither exists). Always returns 1.
int LoadSettings(cScene* scene);

// Camera, navigation, lights, picking and 2D defaults of a scene whose GL context is
// current, including its first viewpoint.
void initSceneDefaults(cScene* scene);

}  // namespace ts
