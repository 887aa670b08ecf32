// The viewpoint-name dialog: a modal dialog of the library's own resources.
#include "view/viewpoints/viewpoint_prompt.h"

#include "library/globals.h"
#include "resource_ids.h"

namespace ts {
namespace {

struct PromptState {
    char* name;
    int size;
};

INT_PTR CALLBACK promptProc(HWND dialog, UINT message, WPARAM wParam, LPARAM lParam) {
    if (message == WM_INITDIALOG) {
        SetWindowLongPtrA(dialog, DWLP_USER, lParam);
        // A stored name holds 63 characters.
        SendDlgItemMessageA(dialog, TS_IDC_VIEWPOINT_NAME, EM_LIMITTEXT, 63, 0);
        return TRUE;
    }
    if (message != WM_COMMAND) return FALSE;
    const int command = LOWORD(wParam);
    if (command == IDOK) {
        auto* state = reinterpret_cast<PromptState*>(GetWindowLongPtrA(dialog, DWLP_USER));
        GetDlgItemTextA(dialog, TS_IDC_VIEWPOINT_NAME, state->name, state->size);
        EndDialog(dialog, IDOK);
        return TRUE;
    }
    if (command == IDCANCEL) {
        EndDialog(dialog, IDCANCEL);
        return TRUE;
    }
    return FALSE;
}

}  // namespace

bool promptViewpointName(HWND owner, char* name, int size) {
    PromptState state = {name, size};
    const INT_PTR result = DialogBoxParamA(libraryInstance(), MAKEINTRESOURCEA(TS_IDD_VIEWPOINT_NAME), owner,
                                           promptProc, reinterpret_cast<LPARAM>(&state));
    return result == IDOK;
}

}  // namespace ts
