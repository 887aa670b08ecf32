// The scene window's pixels as a bitmap handle: what smDIBfromScene returns and what the
// context menu saves.
#pragma once

#include <windows.h>

class cScene;

namespace ts {

// Copies the window's pixels as they stand (the last swapped frame with the 2D layer
// over it, and whatever covers the window on the screen) over the size of the GL
// viewport into a new 24-bit bitmap handle without a colour table, which the caller
// frees. 0 when the copy cannot be made.
HGLOBAL dibFromScene(cScene* scene);

}  // namespace ts
