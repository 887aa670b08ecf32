// What a process holds of the system's objects, to compare before and after a call:
// GDI objects, USER objects and the busy blocks of its heaps.
#pragma once

#include <windows.h>

namespace tst {

struct ResourceCounts {
    long gdiObjects = 0;   // pens, brushes, fonts, bitmaps, DCs, ... (stock objects included)
    long userObjects = 0;  // windows and menus of this process (GetGuiResources: all USER objects)
    long heapBlocks = 0;   // busy blocks of every heap of the process
    long long heapBytes = 0;
};

// Counts this process's objects. Where GetGuiResources answers (Windows), its GDI and
// USER counts are taken; where it is a stub that answers 0 (wine), the GDI handle table
// and the USER handle table are walked instead (every 16-bit handle index asked with
// GetObjectType, and with IsWindow / IsMenu for windows and menus of this process).
ResourceCounts countResources();

// The GDI and the USER count alone, the same way, without walking the heaps. `system`
// tells whether GetGuiResources answered (false under wine).
long countGdiObjects(bool* system = nullptr);
long countUserObjects();

}  // namespace tst
