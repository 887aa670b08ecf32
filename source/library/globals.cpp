// Definitions of the library-wide state.
#include "library/globals.h"

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
namespace {

HMODULE findLibraryModule() {
    HMODULE code = nullptr;
    GetModuleHandleExA(GET_MODULE_HANDLE_EX_FLAG_FROM_ADDRESS | GET_MODULE_HANDLE_EX_FLAG_UNCHANGED_REFCOUNT,
                       reinterpret_cast<LPCSTR>(&findLibraryModule), &code);
    if (code != nullptr && code == GetModuleHandleA(nullptr)) return code;
    return LoadLibraryA("Tessarin20b.dll");
}

}  // namespace

HINSTANCE libraryInstance() {
    if (hLibInstance == nullptr) hLibInstance = findLibraryModule();
    return hLibInstance;
}

}  // namespace ts
