// cScene: one 3D view bound to one window: its GL context, camera, modes, lights,
// node lists and viewpoints. Fields keep the order the library has always had. The
// scene's data needs neither windows.h nor OpenGL: it keeps the handles of its window,
// device context and GL context opaque, and the pass (view/pass) does the drawing.
#pragma once

#include <cstdint>
#include <ctime>

#include "events/cevent.h"
#include "platform/handles.h"
#include "view/scene/clight.h"
#include "view/scene/cvplist.h"

class cGroup;

// A window rectangle in pixels as the window system reports it.
struct SceneRect {
    int32_t left = 0;
    int32_t top = 0;
    int32_t right = 0;
    int32_t bottom = 0;
};

namespace ts {
// The OpenGL render modes of a scene, by value.
constexpr uint32_t kGlRender = 0x1C00;  // GL_RENDER
constexpr uint32_t kGlSelect = 0x1C02;  // GL_SELECT: one picking pass
}  // namespace ts

class cScene {
public:
    cScene();
    // Frees what the scene's data owns: its node lists (with their nodes), the
    // selection buffer, viewpoints, events and lights. A scene bound to a window is
    // ended by ts::deleteScene (view/pass/scene_gl.h), which first lets go of the GL
    // context, the device context, the GDI objects and the menu in their fixed order.
    ~cScene();
    cScene(const cScene&) = delete;
    cScene& operator=(const cScene&) = delete;

    // The field of scene switch `number`, 1 to 9 in the order of TS_SWITCH_LIGHTING to
    // TS_SWITCH_CONTEXT_MENU; null for any other number.
    int* switchField(int number);

    char name[64] = {};
    HWND window = nullptr;
    HWND lightDialog = nullptr;
    HWND viewDialog = nullptr;
    HDC dc = nullptr;
    HGLRC glrc = nullptr;
    unsigned displayList = 0;
    SceneRect clientRect;  // right and bottom serve as width and height
    SceneRect windowRect;
    HMENU menu = nullptr;
    int has2D = 0;
    int has3D = 0;
    cGroup* list2D = nullptr;
    cGroup* list3D = nullptr;
    cGroup* currentGroup = nullptr;  // where new 3D nodes go
    int idle = 0;
    int initDraw2D = 1;
    // The four GDI objects the scene frees at teardown.
    HBRUSH backgroundBrush = nullptr;
    HGDIOBJ pen2D = nullptr;
    HGDIOBJ brush2D = nullptr;
    HGDIOBJ font2D = nullptr;
    // The scene's record of the 2D background colour, background mode and mix mode, as
    // the state nodes last set them.
    float backColor2D[3] = {0.0f, 0.0f, 0.0f};
    int backMode2D = 1;   // TRANSPARENT
    int foreMix2D = 13;   // R2_COPYPEN
    float BackColor[3] = {0.0f, 0.0f, 0.0f};
    int currentPos2D[2] = {0, 0};
    int relToPos2D = 1;
    int useDisplayList = 0;
    int motionRunning = 0;
    int draw_mode = 100012;
    int shade_mode = 100000;
    int action_mode = 0;
    int project_mode = 0;
    uint32_t renderMode = ts::kGlRender;
    float pos[3] = {0.0f, 0.0f, 5.0f};
    float lookAt[3] = {0.0f, 0.0f, 0.0f};
    float rotAngle = 0.0f;  // degrees, folded into rotMatrix on every pass
    float rotAxis[3] = {0.0f, 0.0f, 0.0f};
    float rotMatrix[16] = {1, 0, 0, 0, 0, 1, 0, 0, 0, 0, 1, 0, 0, 0, 0, 1};
    float dir[3] = {0.0f, 0.0f, -1.0f};
    float up[3] = {0.0f, 1.0f, 0.0f};
    float right[3] = {1.0f, 0.0f, 0.0f};
    float pitchRate = 0.0f;  // degrees per pass
    float rollRate = 0.0f;
    float yawRate = 0.0f;
    float yaw_roll_ratio = 0.0f;
    int yaw_around_y = 1;
    float speed = 0.0f;
    float sensib_rotate = 1.0f;
    float sensib_x_fly = 1.0f;
    float sensib_y_fly = 1.0f;
    float sensib_x_walk = 1.0f;
    float sensib_y_walk = 1.0f;
    int auto_delay = 50;       // clock ticks
    float steardelay = 1.2f;   // kept and saved, not used
    clock_t lastMoveTime = 0;
    clock_t frameTime = 1;     // never 0: navigation divides by it
    int pickX = 0;
    int pickY = 0;
    float pending[3] = {0.0f, 0.0f, 0.0f};  // navigation dx, dy, dz since the last pass
    char iniVPName[100] = "Default";
    float iniPos[3] = {0.0f, 0.0f, 5.0f};
    float iniRot = 0.0f;
    float iniAxis[3] = {0.0f, 0.0f, 0.0f};
    float iniDir[3] = {0.0f, 0.0f, -1.0f};
    float iniUp[3] = {0.0f, 1.0f, 0.0f};
    float iniRight[3] = {1.0f, 0.0f, 0.0f};
    float rotate_drot = 15.0f;
    float rotate_dpos = 0.1f;
    float fly_dspeed = 0.005f;
    float walk_drot = 5.0f;
    float walk_dpos = 0.1f;
    double angle = 45.0;       // vertical field of view, degrees
    double clipnear = 0.01f;
    double clipfar = 1000.0;
    int selectBufSize = 64;    // 32-bit entries (GLuint)
    uint32_t* selectBuffer = nullptr;
    int selectBufferEntries = 0;  // allocated: selectBufSize, more once a pick outgrew it
    int colorbits = 24;
    int depthbits = 16;
    // Scene-wide switches, written by the enable node (switch numbers 1 to 9) and read
    // by the rendering pass, navigation, picking and the context menu.
    int enableDepth = 1;
    int enableCull = 1;
    int enableLighting = 1;
    int enableColorMaterial = 1;
    int pickingOn = 0;
    int forceRedraw = 0;
    int mouseNavigation = 1;
    int keyNavigation = 1;
    int contextMenu = 1;
    float lightModelAmbient[4] = {0.2f, 0.2f, 0.2f, 1.0f};
    cLight lights[8];
    int pickvolume = 2;
    cVPList viewpoints;
    cEventList events;         // input events for the caller, newest first
    HCURSOR cursors[6] = {};   // rotate, pan, zoom, fly, walk, arrow (empty scene)
    float lastBall[3] = {0.0f, 0.0f, 1.0f};  // last trackball vector (unit length)
    int firstMove = 0;         // the next mouse move only takes its position
    // The first display-list name of the next font made on this scene (smCreateFontBMP,
    // smCreateFontEXT): each font takes the next 256 names, which are never given back.
    // The names start clear of the scenes' own list names (1, 2, ...).
    uint32_t nextFontBase = 1000;
    char homepage[200] = {};   // the Help menu's web address, from the settings file
};
