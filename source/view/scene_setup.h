// What scene creation asks of the view: the settings file and the scene's defaults.
#pragma once

class cScene;

namespace ts {

struct SceneSettings;

// Reads "Tessarin20.ini" into the scene: the defaults first, then the file of the
// current directory, else that of the Windows directory; with neither, the template
// is written to the Windows directory. Always returns 1.
int LoadSettings(cScene* scene);

// Writes the scene's current settings to path. A file that cannot be opened shows
// "Save Tessarin.ini file failed". Returns 1 in every case.
int SaveSettings(cScene* scene, const char* path);

// The settings values of a scene, and a scene given settings values.
SceneSettings settingsOfScene(const cScene* scene);
void applySettings(const SceneSettings& settings, cScene* scene);

// Camera, navigation, lights, picking and 2D defaults of a scene whose GL context is
// current, including its first viewpoint.
void initSceneDefaults(cScene* scene);

}  // namespace ts
