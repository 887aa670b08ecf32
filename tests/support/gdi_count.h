// The number of GDI objects the process holds, for tests that check for leaks.
#pragma once

#include <windows.h>

namespace tst {

// GetGuiResources(GR_GDIOBJECTS) where the system counts; wine's answers 0, and there
// every live object is found by its handle slot (a handle of slot i without its upper
// bits names whatever lives in that slot).
DWORD gdiObjectCount();

}  // namespace tst
