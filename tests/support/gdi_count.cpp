// Counting the process's GDI objects, on Windows and under wine.
#include "support/gdi_count.h"

#include <cstdint>

namespace tst {

DWORD gdiObjectCount() {
    const DWORD counted = GetGuiResources(GetCurrentProcess(), GR_GDIOBJECTS);
    if (counted != 0) return counted;
    DWORD live = 0;
    for (uintptr_t slot = 1; slot <= 0xFFFF; ++slot) {
        if (GetObjectType(reinterpret_cast<HGDIOBJ>(slot)) != 0) ++live;
    }
    return live;
}

}  // namespace tst
