// The context menu: the resource's popups with their check marks, and the command table.
#include "view/menu/context_menu.h"

#include <windowsx.h>

#include "library/globals.h"
#include "resource_ids.h"
#include "tessarin.h"
#include "view/camera/camera_ops.h"
#include "view/dialogs/settings_dialogs.h"
#include "view/pass/pass.h"
#include "view/scene/camera.h"
#include "view/scene/cscene.h"
#include "view/viewpoints/viewpoints.h"

namespace ts {
namespace {

bool isViewpointEntry(const cScene* s, unsigned id) {
    return s->viewpoints.first != nullptr && id >= s->viewpoints.first->id && id <= s->viewpoints.last->id;
}

// The commands that set one mode value through the call of that mode.
bool setModeOf(cScene* s, unsigned id) {
    switch (id) {
    case TS_CMD_DRAW_FILLED: setDrawMode(s, TS_DRAW_FILLED); return true;
    case TS_CMD_DRAW_LINES: setDrawMode(s, TS_DRAW_LINES); return true;
    case TS_CMD_DRAW_POINTS: setDrawMode(s, TS_DRAW_POINTS); return true;
    case TS_CMD_SHADE_SMOOTH: setShadeMode(s, TS_SHADE_SMOOTH); return true;
    case TS_CMD_SHADE_FLAT: setShadeMode(s, TS_SHADE_FLAT); return true;
    case TS_CMD_SHADE_NONE: setShadeMode(s, TS_SHADE_NONE); return true;
    case TS_CMD_ACTION_ROTATE: switchActionMode(s, TS_ROTATE); return true;
    case TS_CMD_ACTION_FLY: switchActionMode(s, TS_FLY); return true;
    case TS_CMD_ACTION_WALK: switchActionMode(s, TS_WALK); return true;
    case TS_CMD_PROJECTION_PERSPECTIVE:
    case TS_CMD_PROJECTION_ORTHOGONAL:
        setProjectionMode(s, id == TS_CMD_PROJECTION_ORTHOGONAL ? TS_ORTHOGONAL : TS_PERSPECTIVE, s->angle,
                          s->clipnear, s->clipfar);
        return true;
    default: return false;
    }
}

// Help pages and the home page go through the documentation launcher.
const char* helpTarget(const cScene* s, unsigned id) {
    switch (id) {
    case TS_CMD_HELP_3D_CONTROL: return "fsSetting3D.html";
    case TS_CMD_HELP_KEYBOARD_MOUSE: return "fsKeyboard.html";
    case TS_CMD_HELP_WELCOME: return "fsWelcome_e.html";
    case TS_CMD_HOMEPAGE: return s->homepage;
    default: return nullptr;
    }
}

void runCommand(cScene* s, unsigned id) {
    if (setModeOf(s, id)) return;
    if (const char* target = helpTarget(s, id)) {
        smOpenDocu(target);
        return;
    }
    switch (id) {
    case TS_CMD_ADD_VIEWPOINT: addViewpoint(s, nullptr, nullptr); break;
    case TS_CMD_DELETE_VIEWPOINT: deleteViewpoint(s, nullptr); break;
    case TS_CMD_STOP_MOTION: stopMotion(s); break;
    case TS_CMD_VIEW_SETTING: openViewDialog(s); break;
    case TS_CMD_LIGHT_SETTING: openLightDialog(s); break;
    case TS_CMD_SAVE_BITMAP: saveSceneAsBitmap(s); break;
    default: break;
    }
}

}  // namespace

void openContextMenu(cScene* scene, LPARAM position) {
    if (scene->menu == nullptr) scene->menu = LoadMenuA(libraryInstance(), MAKEINTRESOURCEA(TS_IDR_CONTEXT_MENU));
    if (scene->menu == nullptr) return;
    updateMenuChecks(scene);
    HMENU popup = GetSubMenu(scene->menu, scene->has3D != 0 ? 0 : 1);
    POINT at = {GET_X_LPARAM(position), GET_Y_LPARAM(position)};
    ClientToScreen(scene->window, &at);
    SetCursor(LoadCursorA(nullptr, MAKEINTRESOURCEA(32512)));  // IDC_ARROW
    TrackPopupMenu(popup, TPM_RIGHTBUTTON, at.x, at.y, 0, scene->window, nullptr);
}

void runMenuCommand(cScene* scene, unsigned id) {
    if (isViewpointEntry(scene, id)) {
        viewpointCommand(scene, id);
    } else {
        runCommand(scene, id);
    }
    if (!motionContinues(scene)) renderScene(scene);
}

}  // namespace ts
