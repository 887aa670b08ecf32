// Scene creation on a window. Runs on the thread that owns the window.
#include "hosting/cscene_wm_create.h"

#include <cstdlib>
#include <cstring>

#include "guard/guard.h"
#include "guard/msgbox.h"
#include "library/globals.h"
#include "registry/cspwhlist.h"
#include "tsobj3d/cgroup.h"
#include "view/navigation/scene_cursor.h"
#include "view/pass/scene_gl.h"
#include "view/scene/cscene.h"
#include "view/scene_setup.h"
#include "view/settings_file.h"

namespace ts {
namespace {

unsigned lastDisplayList = 0;  // display-list names are never reused

// The two pixel-format failures end the process normally (atexit handlers run).
[[noreturn]] void pixelFormatFailure(const char* text) {
    messageBox(text, "Error", 0);
    exit(1);
}

void choosePixelFormat(HDC dc, int colorbits, int depthbits) {
    PIXELFORMATDESCRIPTOR pfd = {};
    pfd.nSize = sizeof(pfd);
    pfd.nVersion = 1;
    pfd.dwFlags = PFD_DRAW_TO_WINDOW | PFD_SUPPORT_OPENGL | PFD_DOUBLEBUFFER;
    pfd.iPixelType = PFD_TYPE_RGBA;
    pfd.cColorBits = static_cast<BYTE>(colorbits);
    pfd.cDepthBits = static_cast<BYTE>(depthbits);
    pfd.iLayerType = PFD_MAIN_PLANE;
    const int format = ChoosePixelFormat(dc, &pfd);
    if (format == 0) pixelFormatFailure("ChoosePixelFormat failed");
    if (!SetPixelFormat(dc, format, &pfd)) pixelFormatFailure("SetPixelFormat failed");
}

}  // namespace

void createSceneOnWindow(cScene* scene, HWND hWnd, const char* scenename) {
    TS_ASSERT(CURRENT_SCENE != NULL, "cscene_wm_create", 26);
    TS_ASSERT(scenename != NULL, "cscene_wm_create", 27);
    TS_ASSERT(hWnd != NULL, "cscene_wm_create", 28);
    strncpy(scene->name, scenename, sizeof(scene->name) - 1);
    scene->window = hWnd;
    scene->lightDialog = scene->viewDialog = nullptr;
    scene->menu = LoadMenuA(libraryInstance(), MAKEINTRESOURCEA(1));
    cSPWH* entry = new cSPWH;
    entry->sp = CURRENT_SCENE;
    entry->wh = hWnd;
    sceneRegistry().Insert(entry);
    scene->displayList = ++lastDisplayList;
    scene->dc = GetDC(hWnd);
    readClientRect(scene);
    readWindowRect(scene);
    LoadSettings(scene);
    choosePixelFormat(scene->dc, scene->colorbits, scene->depthbits);
    scene->glrc = wglCreateContext(scene->dc);
    wglMakeCurrent(scene->dc, scene->glrc);
    scene->list2D = new cGroup(nullptr);
    scene->list3D = new cGroup(nullptr);
    scene->currentGroup = scene->list3D;
    scene->has2D = scene->has3D = 0;
    initSceneDefaults(scene);
    loadSceneCursors(scene, libraryInstance());
}

}  // namespace ts
