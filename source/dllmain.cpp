// Library entry point: loading the library creates no thread, window or class;
// unloading it (FreeLibrary) takes back the process-wide fault handler of the guard.
#include <windows.h>

#include "guard.h"

BOOL WINAPI DllMain(HINSTANCE, DWORD reason, LPVOID) {
    if (reason == DLL_PROCESS_DETACH) ts::removeFaultHandler();
    return TRUE;
}
