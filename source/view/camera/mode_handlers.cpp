// The viewing modes and the check marks of the context menu that mirror them.
#include <windows.h>

#include "tessarin.h"
#include "view/camera/camera_ops.h"
#include "view/scene/cscene.h"

namespace ts {
namespace {

struct MenuMark {
    unsigned command;
    int cScene::*mode;
    int value;
};

// Context-menu commands and the mode value each one stands for.
constexpr MenuMark kMarks[] = {
    {TS_CMD_PROJECTION_PERSPECTIVE, &cScene::project_mode, TS_PERSPECTIVE},
    {TS_CMD_PROJECTION_ORTHOGONAL, &cScene::project_mode, TS_ORTHOGONAL},
    {TS_CMD_SHADE_SMOOTH, &cScene::shade_mode, TS_SHADE_SMOOTH},
    {TS_CMD_SHADE_FLAT, &cScene::shade_mode, TS_SHADE_FLAT},
    {TS_CMD_SHADE_NONE, &cScene::shade_mode, TS_SHADE_NONE},
    {TS_CMD_DRAW_FILLED, &cScene::draw_mode, TS_DRAW_FILLED},
    {TS_CMD_DRAW_LINES, &cScene::draw_mode, TS_DRAW_LINES},
    {TS_CMD_DRAW_POINTS, &cScene::draw_mode, TS_DRAW_POINTS},
    {TS_CMD_ACTION_ROTATE, &cScene::action_mode, TS_ROTATE},
    {TS_CMD_ACTION_FLY, &cScene::action_mode, TS_FLY},
    {TS_CMD_ACTION_WALK, &cScene::action_mode, TS_WALK},
};

bool inRange(int value, int low, int high) { return value >= low && value <= high; }

}  // namespace

void updateMenuChecks(cScene* scene) {
    if (scene->menu == nullptr) return;
    for (const MenuMark& mark : kMarks) {
        const bool on = scene->*mark.mode == mark.value;
        CheckMenuItem(scene->menu, mark.command, MF_BYCOMMAND | (on ? MF_CHECKED : MF_UNCHECKED));
    }
}

void setShadeMode(cScene* scene, int mode) {
    if (!inRange(mode, 100000, 100002)) return;
    scene->shade_mode = mode;
    updateMenuChecks(scene);
}

void setDrawMode(cScene* scene, int mode) {
    if (!inRange(mode, 100010, 100012)) return;
    scene->draw_mode = mode;
    updateMenuChecks(scene);
}

void setProjectionMode(cScene* scene, int mode, double angle, double clipnear, double clipfar) {
    if (!inRange(mode, 0, 1)) return;
    scene->project_mode = mode;
    scene->angle = angle;
    scene->clipnear = clipnear;
    scene->clipfar = clipfar;
    updateMenuChecks(scene);
}

}  // namespace ts
