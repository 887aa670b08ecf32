// The viewing modes and the check marks of the context menu that mirror them.
#include <windows.h>

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
    {20014, &cScene::project_mode, 0}, {20013, &cScene::project_mode, 1},
    {20018, &cScene::shade_mode, 100000}, {20004, &cScene::shade_mode, 100001},
    {20011, &cScene::shade_mode, 100002}, {20003, &cScene::draw_mode, 100012},
    {20010, &cScene::draw_mode, 100011}, {20015, &cScene::draw_mode, 100010},
    {20016, &cScene::action_mode, 0}, {20005, &cScene::action_mode, 1},
    {20021, &cScene::action_mode, 2},
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
