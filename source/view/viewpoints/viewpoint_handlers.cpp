// Viewpoint calls on a scene: adding (from the caller's record, or from the camera as
// it stands), deleting with its confirmation, going to one, and the Viewpoints submenu
// that mirrors the list.
#include "view/viewpoints/viewpoints.h"

#include <windows.h>

#include <new>
#include <string>

#include "guard/msgbox.h"
#include "math/vecmath.h"
#include "tessarin.h"
#include "view/pass/pass.h"
#include "view/pass/scene_gl.h"
#include "view/pass/vecmath_gl.h"
#include "view/scene/camera.h"
#include "view/scene/cscene.h"
#include "view/viewpoints/viewpoint_prompt.h"

static_assert(cVPList::kFirstId == TS_CMD_FIRST_VIEWPOINT, "viewpoint entries start where the header says");

namespace ts {
namespace {

constexpr const char* kDeleteTitle = "Delete Viewpoint";

// The first submenu of the first popup of the context menu.
HMENU viewpointMenu(const cScene* s) {
    if (s->menu == nullptr) return nullptr;
    return GetSubMenu(GetSubMenu(s->menu, 0), 0);
}

void insertMenuEntry(const cScene* s, const cViewpoint& vp) {
    HMENU menu = viewpointMenu(s);
    if (menu == nullptr) return;
    MENUITEMINFOA item = {};
    item.cbSize = sizeof(item);
    item.fMask = MIIM_ID | MIIM_TYPE;
    item.fType = MFT_STRING;
    item.wID = vp.id;
    item.dwTypeData = const_cast<char*>(vp.name);
    InsertMenuItemA(menu, vp.id - cVPList::kFirstId, TRUE, &item);
}

// The camera as it stands: the orientation from the rotation matrix in TS_ROTATE,
// from the look vectors otherwise. A look camera's eye is stored turned by its
// orientation, as applying the viewpoint turns it back.
void captureCamera(cScene* s, cViewpoint* vp) {
    for (int k = 0; k < 3; ++k) vp->pos[k] = s->pos[k];
    vp->viewAngle = s->angle;
    if (s->action_mode == 0) {
        matrixToAngleAxis(s->rotMatrix, &vp->rotAngle, vp->axis);
    } else {
        makeSceneCurrent(s);
        lookToAngleAxis(s->dir, s->up, vp->pos, &vp->rotAngle, vp->axis);
    }
}

int deleteCurrentViewpoint(cScene* s) {
    const unsigned id = s->viewpoints.deleteCurrent();
    if (s->menu != nullptr) DeleteMenu(s->menu, id, MF_BYCOMMAND);
    return 1;
}

bool confirmDelete(const cScene* s) {
    const std::string question = std::string("Do you want to delete viewpoint: ") + s->viewpoints.current->name;
    return messageBox(question.c_str(), kDeleteTitle, MB_YESNO | kSetForeground) == IDYES;
}

}  // namespace

int addViewpoint(cScene* s, const char* name, const ViewpointRecord* record) {
    stopMotion(s);
    char typed[64] = {};
    if (name == nullptr && record == nullptr) {
        if (!promptViewpointName(s->window, typed, sizeof(typed))) return 0;
        name = typed;
    }
    cViewpoint* vp = new (std::nothrow) cViewpoint;
    if (vp == nullptr) return 0;
    if (record != nullptr) {
        vp->assign(*record);
    } else {
        vp->setName(name);
        captureCamera(s, vp);
    }
    s->viewpoints.append(vp);
    insertMenuEntry(s, *vp);
    return 1;
}

int deleteViewpoint(cScene* s, const char* name) {
    stopMotion(s);
    if (s->viewpoints.first == nullptr) {
        messageBox("No viewpoint to delete.", kDeleteTitle, kSetForeground);
        return 0;
    }
    if (name == nullptr) {
        if (s->viewpoints.current == nullptr || !confirmDelete(s)) return 0;
        return deleteCurrentViewpoint(s);
    }
    cViewpoint* vp = s->viewpoints.findByName(name);
    if (vp == nullptr) return 0;
    s->viewpoints.current = vp;
    return deleteCurrentViewpoint(s);
}

int setViewpoint(cScene* s, const char* name) {
    stopMotion(s);
    cViewpoint* vp = s->viewpoints.findByName(name);
    if (vp == nullptr) return 0;
    s->viewpoints.current = vp;
    applyViewpoint(s, *vp);
    return 1;
}

bool viewpointCommand(cScene* s, unsigned id) {
    cViewpoint* vp = s->viewpoints.findById(id);
    if (vp == nullptr) return false;
    stopMotion(s);
    s->viewpoints.current = vp;
    applyViewpoint(s, *vp);
    return true;
}

void applyViewpoint(cScene* s, const cViewpoint& vp) {
    for (int k = 0; k < 3; ++k) s->pos[k] = vp.pos[k];
    s->angle = vp.viewAngle;
    if (s->action_mode == 1 || s->action_mode == 2) {
        makeSceneCurrent(s);
        angleAxisToLook(vp.rotAngle, vp.axis, s->pos, s->dir, s->up, s->right);
    } else if (s->action_mode == 0) {
        s->rotAngle = vp.rotAngle;
        for (int k = 0; k < 3; ++k) s->rotAxis[k] = vp.axis[k];
    }
    // The pass folds the one rotation into the identity: the accumulated rotation
    // becomes exactly the viewpoint's.
    for (int k = 0; k < 16; ++k) s->rotMatrix[k] = (k % 5 == 0) ? 1.0f : 0.0f;
    renderScene(s);
    s->rotAngle = 0.0f;
}

}  // namespace ts
