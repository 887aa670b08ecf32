// Definitions of the library-wide state.
#include "globals.h"

int THREAD_ACTIVE = 0;
HINSTANCE hLibInstance = nullptr;
HANDLE hSyncEvent = nullptr;
HWND hDummy = nullptr;
HWND hConsole = nullptr;
DWORD osPlatform = 0;
cScene* CURRENT_SCENE = nullptr;
cScene* ACTIVE_SCENE = nullptr;
cScene* CURRENT_GL_SCENE = nullptr;

namespace ts {
HINSTANCE libraryInstance() {
    if (hLibInstance == nullptr) hLibInstance = LoadLibraryA("Tessarin20b.dll");
    return hLibInstance;
}
}  // namespace ts
