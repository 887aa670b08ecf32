// The context menu of a scene window: opening it at a right click, and what each of
// its commands does.
#pragma once

#include <windows.h>

class cScene;

namespace ts {

// Opens the first popup (the 3D list is not empty) or the second at the client point
// `position` (as WM_RBUTTONDOWN carries it), with fresh check marks and the arrow
// cursor. Returns when the user has chosen or dismissed; the choice arrives as
// WM_COMMAND on the scene window.
void openContextMenu(cScene* scene, LPARAM position);

// Runs the menu command `id`: a viewpoint entry, a mode, a dialog, saving or help. Ids
// of no command do nothing. Then a pass, unless motion goes on painting anyway.
void runMenuCommand(cScene* scene, unsigned id);

// "Bitmap file *.bmp": the window's pixels, the save dialog, then the file.
void saveSceneAsBitmap(cScene* scene);

}  // namespace ts
