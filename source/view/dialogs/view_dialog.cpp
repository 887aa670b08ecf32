// The View Settings dialog: the camera of the last pass, the projection and the action
// mode, refreshed by every pass while "Update" is checked, and applied back to the
// scene on focus loss, "Update" and "OK".
#include <windows.h>

#include <algorithm>

#include "math/vecmath.h"
#include "resource_ids.h"
#include "tessarin.h"
#include "view/camera/camera_ops.h"
#include "view/dialogs/dialog_fields.h"
#include "view/dialogs/settings_dialogs.h"
#include "view/pass/pass.h"
#include "view/pass/render_steps.h"
#include "view/scene/cscene.h"

namespace ts {
namespace {

constexpr const char* kVectorFormat = "%6.2f";
constexpr const char* kAngleFormat = "%3.2f";
constexpr const char* kClipFormat = "%.6g";  // a near plane of 0.001 must survive a round trip
constexpr int kPosition[3] = {TS_IDC_VIEW_POS_X, TS_IDC_VIEW_POS_Y, TS_IDC_VIEW_POS_Z};
constexpr int kSecond[3] = {TS_IDC_VIEW_COL2_X, TS_IDC_VIEW_COL2_Y, TS_IDC_VIEW_COL2_Z};
constexpr int kThird[3] = {TS_IDC_VIEW_COL3_X, TS_IDC_VIEW_COL3_Y, TS_IDC_VIEW_COL3_Z};
constexpr int kThirdLabels[3] = {TS_IDC_VIEW_COL3_LX, TS_IDC_VIEW_COL3_LY, TS_IDC_VIEW_COL3_LZ};
constexpr int kModes[3] = {TS_IDC_VIEW_ROTATE, TS_IDC_VIEW_FLY, TS_IDC_VIEW_WALK};

bool isLookMode(int mode) { return mode == TS_FLY || mode == TS_WALK; }

void show(HWND dialog, int id, bool visible) { ShowWindow(GetDlgItem(dialog, id), visible ? SW_SHOW : SW_HIDE); }

// Captions, the third column and the angle edit follow the action mode.
void showMode(HWND dialog, int mode) {
    const bool look = isLookMode(mode);
    SetDlgItemTextA(dialog, TS_IDC_VIEW_COL2_CAPTION, look ? "Look at" : "Rotation Axis");
    SetDlgItemTextA(dialog, TS_IDC_VIEW_COL3_CAPTION, look ? "Look up" : "");
    for (int k = 0; k < 3; ++k) {
        show(dialog, kThird[k], look);
        show(dialog, kThirdLabels[k], look);
    }
    show(dialog, TS_IDC_VIEW_ANGLE_LABEL, !look);
    show(dialog, TS_IDC_VIEW_ANGLE, !look);
    for (int k = 0; k < 3; ++k) setChecked(dialog, kModes[k], k == mode);
}

// The camera: eye position, then rotation axis and angle, or look direction and up.
void showCamera(HWND dialog, int mode, const float* pos, const float* rotAxis, float rotAngle, const float* dir,
                const float* up) {
    showVector(dialog, kPosition, kVectorFormat, pos);
    if (isLookMode(mode)) {
        showVector(dialog, kSecond, kVectorFormat, dir);
        showVector(dialog, kThird, kVectorFormat, up);
    } else {
        showVector(dialog, kSecond, kVectorFormat, rotAxis);
        showNumber(dialog, TS_IDC_VIEW_ANGLE, kVectorFormat, rotAngle);
    }
}

void showProjection(HWND dialog, const cScene* s) {
    showNumber(dialog, TS_IDC_VIEW_FOV, kAngleFormat, s->angle);
    setSlider(dialog, TS_IDC_VIEW_FOV_SLIDER, static_cast<int>(s->angle));
    showNumber(dialog, TS_IDC_VIEW_NEAR, kClipFormat, s->clipnear);
    showNumber(dialog, TS_IDC_VIEW_FAR, kClipFormat, s->clipfar);
    showNumber(dialog, TS_IDC_VIEW_FPS, kAngleFormat, 1000.0 / static_cast<double>(s->frameTime));
    showMode(dialog, s->action_mode);
}

// After a pass: what that pass used.
void refresh(HWND dialog, cScene* s) {
    const CameraCopy& c = lastCamera();
    showCamera(dialog, s->action_mode, c.pos, c.rotAxis, c.rotAngle, c.dir, c.up);
    showProjection(dialog, s);
}

int checkedMode(HWND dialog, int fallback) {
    for (int k = 0; k < 3; ++k) {
        if (isChecked(dialog, kModes[k])) return k;
    }
    return fallback;
}

// The side vector follows the entered look vectors, so that pitching turns about it.
void alignRight(cScene* s) {
    const float* d = s->dir;
    const float* u = s->up;
    float right[3] = {d[1] * u[2] - d[2] * u[1], d[2] * u[0] - d[0] * u[2], d[0] * u[1] - d[1] * u[0]};
    if (right[0] != 0.0f || right[1] != 0.0f || right[2] != 0.0f) {
        normalize(right);
        std::copy(right, right + 3, s->right);
    }
}

void readProjection(HWND dialog, cScene* s) {
    readNumber(dialog, TS_IDC_VIEW_NEAR, &s->clipnear);
    readNumber(dialog, TS_IDC_VIEW_FAR, &s->clipfar);
    double angle = s->angle;
    if (readNumber(dialog, TS_IDC_VIEW_FOV, &angle)) s->angle = std::clamp(angle, 0.0, 180.0);
}

// Only while "Update" is checked: the fields become the camera; in TS_ROTATE the
// entered axis and angle become the whole orientation.
void apply(HWND dialog, cScene* s) {
    if (!isChecked(dialog, TS_IDC_UPDATE)) return;
    readVector(dialog, kPosition, s->pos);
    if (isLookMode(s->action_mode)) {
        readVector(dialog, kSecond, s->dir);
        readVector(dialog, kThird, s->up);
        alignRight(s);
    } else if (s->action_mode == TS_ROTATE) {
        readVector(dialog, kSecond, s->rotAxis);
        double angle = s->rotAngle;
        if (readNumber(dialog, TS_IDC_VIEW_ANGLE, &angle)) s->rotAngle = static_cast<float>(angle);
    }
    readProjection(dialog, s);
    s->action_mode = checkedMode(dialog, s->action_mode);
    if (s->action_mode == TS_ROTATE) {
        s->motionRunning = 0;
        std::fill(s->rotMatrix, s->rotMatrix + 16, 0.0f);
        s->rotMatrix[0] = s->rotMatrix[5] = s->rotMatrix[10] = s->rotMatrix[15] = 1.0f;
    }
    renderScene(s);
    s->rotAngle = 0.0f;
}

// The trackbar shows its position; while "Update" is checked it is the view angle.
void slide(HWND dialog, cScene* s, HWND slider) {
    const int position = sliderPosition(slider);
    showNumber(dialog, TS_IDC_VIEW_FOV, kAngleFormat, position);
    if (!isChecked(dialog, TS_IDC_UPDATE)) return;
    s->angle = position;
    renderScene(s);
}

void command(HWND dialog, cScene* s, int id, int code) {
    if (code == EN_KILLFOCUS) {
        apply(dialog, s);
    } else if (code == BN_CLICKED) {
        if (id == IDOK) apply(dialog, s);
        if (id == IDOK || id == IDCANCEL) DestroyWindow(dialog);
        if (id == TS_IDC_UPDATE) apply(dialog, s);
        if (id == TS_IDC_HELP) smOpenDocu("fsSettingView.html");
        for (int k = 0; k < 3; ++k) {
            if (id == kModes[k] && s->action_mode != k) switchActionMode(s, k);
        }
    }
}

void init(HWND dialog, cScene* s) {
    initSlider(dialog, TS_IDC_VIEW_FOV_SLIDER, 180, 30);
    showCamera(dialog, s->action_mode, s->pos, s->rotAxis, s->rotAngle, s->dir, s->up);
    showProjection(dialog, s);
}

constexpr DialogHandlers kViewDialog = {init, slide, command, refresh, &cScene::viewDialog};

INT_PTR CALLBACK viewDialogProc(HWND dialog, UINT message, WPARAM wParam, LPARAM lParam) {
    return dispatchDialog(kViewDialog, dialog, message, wParam, lParam);
}

}  // namespace

void openViewDialog(cScene* scene) {
    openModeless(scene, &cScene::viewDialog, TS_IDD_VIEW_SETTINGS, viewDialogProc);
}

}  // namespace ts
