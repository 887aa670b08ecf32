// The settings dialogs' shared pieces: the scene's hidden edit, numbers in edits, check
// boxes, trackbars and the modeless opening.
#include "view/dialogs/dialog_fields.h"

#include <commctrl.h>

#include <cstdint>
#include <cstdio>
#include <cstdlib>

#include "library/globals.h"
#include "resource_ids.h"
#include "view/pass/render_steps.h"
#include "view/scene/cscene.h"

namespace ts {

void storeScene(HWND dialog, const cScene* scene) {
    char text[24];
    std::snprintf(text, sizeof(text), "%llX",
                  static_cast<unsigned long long>(reinterpret_cast<uintptr_t>(scene)));
    SetDlgItemTextA(dialog, TS_IDC_SCENE_HANDLE, text);
}

cScene* sceneOf(HWND dialog) {
    char text[24] = "";
    if (GetDlgItemTextA(dialog, TS_IDC_SCENE_HANDLE, text, sizeof(text)) == 0) return nullptr;
    return reinterpret_cast<cScene*>(static_cast<uintptr_t>(std::strtoull(text, nullptr, 16)));
}

void showNumber(HWND dialog, int id, const char* format, double value) {
    HWND edit = GetDlgItem(dialog, id);
    if (edit == nullptr || GetFocus() == edit) return;
    char text[64];
    std::snprintf(text, sizeof(text), format, value);
    SetWindowTextA(edit, text);
}

bool readNumber(HWND dialog, int id, double* value) {
    char text[64] = "";
    GetDlgItemTextA(dialog, id, text, sizeof(text));
    char* end = nullptr;
    const double number = std::strtod(text, &end);
    if (end == text) return false;
    *value = number;
    return true;
}

void readVector(HWND dialog, const int (&ids)[3], float* v) {
    for (int k = 0; k < 3; ++k) {
        double number = v[k];
        if (readNumber(dialog, ids[k], &number)) v[k] = static_cast<float>(number);
    }
}

void showVector(HWND dialog, const int (&ids)[3], const char* format, const float* v) {
    for (int k = 0; k < 3; ++k) showNumber(dialog, ids[k], format, v[k]);
}

bool isChecked(HWND dialog, int id) { return IsDlgButtonChecked(dialog, id) == BST_CHECKED; }
void setChecked(HWND dialog, int id, bool on) { CheckDlgButton(dialog, id, on ? BST_CHECKED : BST_UNCHECKED); }

void initSlider(HWND dialog, int id, int maximum, int frequency) {
    SendDlgItemMessageA(dialog, id, TBM_SETRANGE, TRUE, MAKELPARAM(0, maximum));
    SendDlgItemMessageA(dialog, id, TBM_SETTICFREQ, frequency, 0);
}

void setSlider(HWND dialog, int id, int position) { SendDlgItemMessageA(dialog, id, TBM_SETPOS, TRUE, position); }
int sliderPosition(HWND slider) { return static_cast<int>(SendMessageA(slider, TBM_GETPOS, 0, 0)); }

INT_PTR dispatchDialog(const DialogHandlers& handlers, HWND dialog, UINT message, WPARAM wParam, LPARAM lParam) {
    if (message == WM_INITDIALOG) {
        cScene* scene = reinterpret_cast<cScene*>(lParam);
        storeScene(dialog, scene);
        setChecked(dialog, TS_IDC_UPDATE, true);
        handlers.init(dialog, scene);
        return TRUE;
    }
    cScene* s = sceneOf(dialog);  // the scene travels with the dialog, as text
    if (s == nullptr) return FALSE;
    switch (message) {
    case kRefreshViewDialog:
        if (handlers.refresh != nullptr && isChecked(dialog, TS_IDC_UPDATE)) handlers.refresh(dialog, s);
        return TRUE;
    case WM_HSCROLL:
        if (LOWORD(wParam) != TB_ENDTRACK && lParam != 0) handlers.slide(dialog, s, reinterpret_cast<HWND>(lParam));
        return TRUE;
    case WM_COMMAND:
        handlers.command(dialog, s, LOWORD(wParam), HIWORD(wParam));
        return TRUE;
    case WM_DESTROY:
        if (s->*handlers.slot == dialog) s->*handlers.slot = nullptr;
        return TRUE;
    default: return FALSE;
    }
}

void openModeless(cScene* scene, HWND cScene::*slot, int resource, DLGPROC procedure) {
    if (scene->*slot != nullptr) {
        BringWindowToTop(scene->*slot);
        return;
    }
    INITCOMMONCONTROLSEX controls = {sizeof(controls), ICC_BAR_CLASSES};
    InitCommonControlsEx(&controls);
    HWND dialog = CreateDialogParamA(libraryInstance(), MAKEINTRESOURCEA(resource), scene->window, procedure,
                                     reinterpret_cast<LPARAM>(scene));
    scene->*slot = dialog;
    if (dialog != nullptr) ShowWindow(dialog, SW_SHOW);
}

}  // namespace ts
