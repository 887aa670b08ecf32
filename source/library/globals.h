// Library-wide state shared by the frame, the scene thread and the scene code.
#pragma once

#include <windows.h>

class cScene;

extern int THREAD_ACTIVE;          // 1 once the scene thread was created; never cleared
extern HINSTANCE hLibInstance;     // the library's own module: its code and its resources
extern HANDLE hSyncEvent;          // thread ready, then the wake-up of swWaitForEvent
extern HWND hDummy;                // hidden request window of the scene thread
extern HWND hConsole;              // console window of the process, or none
extern DWORD osPlatform;           // dwPlatformId of the system
extern cScene* CURRENT_SCENE;      // scene that calls without a scene argument act on
extern cScene* ACTIVE_SCENE;       // scene of the window of the latest se* handler
extern cScene* CURRENT_GL_SCENE;   // scene whose GL context the last pass made current

namespace ts {
// The library's module, found once: the source of its window classes, icon, cursors,
// menu and dialogs. Built as Tessarin20b.dll the library loads its own file by name, as
// it always has, which also pins the DLL while the scene thread runs. Linked into a
// program instead (the white-box tests), the program is the module and carries the
// resources itself.
HINSTANCE libraryInstance();
}
