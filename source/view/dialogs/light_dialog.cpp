// The Light Settings dialog: the eight lights in a list, the selected light's switches,
// placement, colours, spot and attenuation. Values are shown with "%3.2f"; a colour
// trackbar position p stands for the component p / 100, the cut-off trackbar for whole
// degrees. While "Update" is checked a trackbar moves its value (and, with the colour's
// "equal " box, all three components) at once, and any other change applies the whole
// light when its edit loses the focus or a box is clicked.
#include <windows.h>

#include <algorithm>
#include <cmath>
#include <cstdio>

#include "resource_ids.h"
#include "tessarin.h"
#include "view/dialogs/dialog_fields.h"
#include "view/dialogs/settings_dialogs.h"
#include "view/pass/pass.h"
#include "view/scene/cscene.h"

namespace ts {
namespace {

constexpr const char* kFormat = "%3.2f";
constexpr int kLights = 8;
constexpr int kPosition[3] = {TS_IDC_LIGHT_POS_X, TS_IDC_LIGHT_POS_Y, TS_IDC_LIGHT_POS_Z};
constexpr int kDirection[3] = {TS_IDC_LIGHT_DIR_X, TS_IDC_LIGHT_DIR_Y, TS_IDC_LIGHT_DIR_Z};
constexpr int kColorBase[3] = {TS_IDC_LIGHT_AMBIENT, TS_IDC_LIGHT_DIFFUSE, TS_IDC_LIGHT_SPECULAR};

// One of the three colours of a light with its grey flag.
struct ColorRef {
    float* rgba;
    int* grey;
};

ColorRef colorOf(cLight& light, int which) {
    if (which == 0) return {light.ambient, &light.ambientGrey};
    if (which == 1) return {light.diffuse, &light.diffuseGrey};
    return {light.specular, &light.specularGrey};
}

int colorSlider(int which, int component) { return kColorBase[which] + TS_IDC_LIGHT_COLOR_SLIDER + component; }
int colorEqual(int which) { return kColorBase[which] + TS_IDC_LIGHT_COLOR_EQUAL; }
int sliderOf(float value) { return static_cast<int>(std::lround(std::clamp(value, 0.0f, 1.0f) * 100.0f)); }

// The light shown: the item data of the list's selection, or -1.
int selectedLight(HWND dialog) {
    const LRESULT index = SendDlgItemMessageA(dialog, TS_IDC_LIGHT_LIST, LB_GETCURSEL, 0, 0);
    if (index == LB_ERR) return -1;
    const LRESULT number = SendDlgItemMessageA(dialog, TS_IDC_LIGHT_LIST, LB_GETITEMDATA, index, 0);
    return number >= 0 && number < kLights ? static_cast<int>(number) : -1;
}

void showColor(HWND dialog, cLight& light, int which) {
    const ColorRef color = colorOf(light, which);
    for (int k = 0; k < 3; ++k) {
        showNumber(dialog, kColorBase[which] + k, kFormat, color.rgba[k]);
        setSlider(dialog, colorSlider(which, k), sliderOf(color.rgba[k]));
    }
    setChecked(dialog, colorEqual(which), *color.grey != 0);
}

void showLight(HWND dialog, cLight& light) {
    setChecked(dialog, TS_IDC_LIGHT_ON, light.on != 0);
    setChecked(dialog, TS_IDC_LIGHT_PARALLEL, light.pointLight == 0);
    setChecked(dialog, TS_IDC_LIGHT_POINT, light.pointLight != 0);
    setChecked(dialog, TS_IDC_LIGHT_WORLDPOS, light.worldPos != 0);
    showVector(dialog, kPosition, kFormat, light.position);
    showVector(dialog, kDirection, kFormat, light.spotDirection);
    for (int which = 0; which < 3; ++which) showColor(dialog, light, which);
    showNumber(dialog, TS_IDC_LIGHT_CUT, kFormat, light.spotCutoff);
    setSlider(dialog, TS_IDC_LIGHT_CUT_SLIDER, static_cast<int>(light.spotCutoff));
    showNumber(dialog, TS_IDC_LIGHT_EXP, kFormat, light.spotExponent);
    showNumber(dialog, TS_IDC_LIGHT_CONST, kFormat, light.constantAttenuation);
    showNumber(dialog, TS_IDC_LIGHT_LINEAR, kFormat, light.linearAttenuation);
    showNumber(dialog, TS_IDC_LIGHT_QUAD, kFormat, light.quadraticAttenuation);
}

// The number of an edit clamped to low..high; the old value when it holds no number.
void readClamped(HWND dialog, int id, float low, float high, float* value) {
    double number = *value;
    if (readNumber(dialog, id, &number)) *value = std::clamp(static_cast<float>(number), low, high);
}

void readColor(HWND dialog, cLight& light, int which) {
    const ColorRef color = colorOf(light, which);
    for (int k = 0; k < 3; ++k) readClamped(dialog, kColorBase[which] + k, 0.0f, 1.0f, &color.rgba[k]);
    *color.grey = isChecked(dialog, colorEqual(which)) ? 1 : 0;
}

// The apply order: switches, placement, the three colours, the spot, the attenuation.
void readLight(HWND dialog, cLight& light) {
    light.on = isChecked(dialog, TS_IDC_LIGHT_ON) ? 1 : 0;
    light.pointLight = isChecked(dialog, TS_IDC_LIGHT_POINT) ? 1 : 0;
    light.position[3] = light.pointLight != 0 ? 1.0f : 0.0f;
    light.worldPos = isChecked(dialog, TS_IDC_LIGHT_WORLDPOS) ? 1 : 0;
    readVector(dialog, kPosition, light.position);
    readVector(dialog, kDirection, light.spotDirection);
    for (int which = 0; which < 3; ++which) readColor(dialog, light, which);
    readClamped(dialog, TS_IDC_LIGHT_CUT, 0.0f, 180.0f, &light.spotCutoff);
    readClamped(dialog, TS_IDC_LIGHT_EXP, 0.0f, 1.0f, &light.spotExponent);
    const float kNoLimit = 1e30f;
    readClamped(dialog, TS_IDC_LIGHT_CONST, 0.0f, kNoLimit, &light.constantAttenuation);
    readClamped(dialog, TS_IDC_LIGHT_LINEAR, 0.0f, kNoLimit, &light.linearAttenuation);
    readClamped(dialog, TS_IDC_LIGHT_QUAD, 0.0f, kNoLimit, &light.quadraticAttenuation);
}

void apply(HWND dialog, cScene* s) {
    const int number = selectedLight(dialog);
    if (!isChecked(dialog, TS_IDC_UPDATE) || number < 0) return;
    readLight(dialog, s->lights[number]);
    showLight(dialog, s->lights[number]);
    renderScene(s);
}

// The colour whose R, G or B edit id is, or -1.
int colorOfEdit(int id) {
    for (int which = 0; which < 3; ++which) {
        if (id >= kColorBase[which] && id < kColorBase[which] + 3) return which;
    }
    return -1;
}

// With the colour's "equal " box checked, a component typed in one edit is all three.
void spreadGrey(HWND dialog, int id) {
    const int which = colorOfEdit(id);
    if (which < 0 || !isChecked(dialog, colorEqual(which))) return;
    char text[64] = "";
    GetDlgItemTextA(dialog, id, text, sizeof(text));
    for (int k = 0; k < 3; ++k) SetDlgItemTextA(dialog, kColorBase[which] + k, text);
}

void slideColor(HWND dialog, cScene* s, int which, int component, int position) {
    const float value = static_cast<float>(position) / 100.0f;
    const bool grey = isChecked(dialog, colorEqual(which));
    for (int k = 0; k < 3; ++k) {
        if (k != component && !grey) continue;
        showNumber(dialog, kColorBase[which] + k, kFormat, value);
        if (k != component) setSlider(dialog, colorSlider(which, k), position);
    }
    const int number = selectedLight(dialog);
    if (!isChecked(dialog, TS_IDC_UPDATE) || number < 0) return;
    const ColorRef color = colorOf(s->lights[number], which);
    for (int k = 0; k < 3; ++k) {
        if (k == component || grey) color.rgba[k] = value;
    }
    renderScene(s);
}

void slide(HWND dialog, cScene* s, HWND slider) {
    const int id = GetDlgCtrlID(slider);
    const int position = sliderPosition(slider);
    if (id == TS_IDC_LIGHT_CUT_SLIDER) {
        showNumber(dialog, TS_IDC_LIGHT_CUT, kFormat, position);
        const int number = selectedLight(dialog);
        if (!isChecked(dialog, TS_IDC_UPDATE) || number < 0) return;
        s->lights[number].spotCutoff = static_cast<float>(position);
        renderScene(s);
        return;
    }
    for (int which = 0; which < 3; ++which) {
        for (int k = 0; k < 3; ++k) {
            if (id == colorSlider(which, k)) slideColor(dialog, s, which, k, position);
        }
    }
}

void command(HWND dialog, cScene* s, int id, int code) {
    if (id == TS_IDC_LIGHT_LIST) {
        const int number = selectedLight(dialog);
        if (code == LBN_SELCHANGE && number >= 0) showLight(dialog, s->lights[number]);
        return;
    }
    if (code == EN_KILLFOCUS) {
        spreadGrey(dialog, id);
        apply(dialog, s);
        return;
    }
    if (code != BN_CLICKED) return;
    if (id == IDCANCEL) {
        DestroyWindow(dialog);
    } else if (id == TS_IDC_HELP) {
        smOpenDocu("fsSettingLight.html");
    } else {
        apply(dialog, s);  // OK, Update, the switches and the "equal " boxes
        if (id == IDOK) DestroyWindow(dialog);
    }
}

void init(HWND dialog, cScene* s) {
    for (int number = 0; number < kLights; ++number) {
        char item[16];
        std::snprintf(item, sizeof(item), " LIGHT %d", number);
        const LRESULT index = SendDlgItemMessageA(dialog, TS_IDC_LIGHT_LIST, LB_ADDSTRING, 0, reinterpret_cast<LPARAM>(item));
        SendDlgItemMessageA(dialog, TS_IDC_LIGHT_LIST, LB_SETITEMDATA, index, number);
    }
    SendDlgItemMessageA(dialog, TS_IDC_LIGHT_LIST, LB_SETCURSEL, 0, 0);
    for (int which = 0; which < 3; ++which) {
        for (int k = 0; k < 3; ++k) initSlider(dialog, colorSlider(which, k), 100, 10);
    }
    initSlider(dialog, TS_IDC_LIGHT_CUT_SLIDER, 180, 15);
    showLight(dialog, s->lights[0]);
}

constexpr DialogHandlers kLightDialog = {init, slide, command, nullptr, &cScene::lightDialog};

INT_PTR CALLBACK lightDialogProc(HWND dialog, UINT message, WPARAM wParam, LPARAM lParam) {
    return dispatchDialog(kLightDialog, dialog, message, wParam, lParam);
}

}  // namespace

void openLightDialog(cScene* scene) {
    openModeless(scene, &cScene::lightDialog, TS_IDD_LIGHT_SETTINGS, lightDialogProc);
}

}  // namespace ts
