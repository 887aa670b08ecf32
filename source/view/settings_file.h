// The settings file "Tessarin20.ini" on disk: where a new scene reads it from, and
// where the scene's settings are written.
#pragma once

class cScene;

namespace ts {

// Reads "Tessarin20.ini" into the scene: the defaults first, then the file of the
// current directory, else that of the Windows directory; with neither, the template
// is written to the Windows directory. Always returns 1.
int LoadSettings(cScene* scene);

// Writes the scene's current settings to path. A file that cannot be opened shows
// "Save Tessarin.ini file failed". Returns 1 in every case.
int SaveSettings(cScene* scene, const char* path);

}  // namespace ts
