// What both settings dialogs share: the scene kept as text in a hidden edit, numbers
// shown in and read from edits, check boxes, trackbars and opening a dialog once.
#pragma once

#include <windows.h>

class cScene;

namespace ts {

// Writes scene as hexadecimal text ("%X"; on Win64 all 64 bits) into the dialog's
// hidden edit, and reads it back; null when the edit is missing or empty.
void storeScene(HWND dialog, const cScene* scene);
cScene* sceneOf(HWND dialog);

// Shows value in the edit with the printf format, unless the user is typing in it.
void showNumber(HWND dialog, int id, const char* format, double value);
// The number in the edit; false (and value unchanged) for text that is not a number.
bool readNumber(HWND dialog, int id, double* value);
// Three edits into three floats; an edit that holds no number keeps its float.
void readVector(HWND dialog, const int (&ids)[3], float* v);
void showVector(HWND dialog, const int (&ids)[3], const char* format, const float* v);

bool isChecked(HWND dialog, int id);
void setChecked(HWND dialog, int id, bool on);

// A trackbar from 0 to maximum with a tick every frequency positions.
void initSlider(HWND dialog, int id, int maximum, int frequency);
void setSlider(HWND dialog, int id, int position);
int sliderPosition(HWND slider);

// What one settings dialog does with the messages both kinds share.
struct DialogHandlers {
    void (*init)(HWND dialog, cScene* scene);
    void (*slide)(HWND dialog, cScene* scene, HWND slider);        // a trackbar moved
    void (*command)(HWND dialog, cScene* scene, int id, int code);  // WM_COMMAND
    void (*refresh)(HWND dialog, cScene* scene);                   // after a pass; may be null
    HWND cScene::*slot;                                            // where the scene keeps it
};

// The dialog procedure of both dialogs: WM_INITDIALOG stores the scene; every later
// message reads it back from the hidden edit and goes to the handler of its kind;
// WM_DESTROY clears the scene's slot.
INT_PTR dispatchDialog(const DialogHandlers& handlers, HWND dialog, UINT message, WPARAM wParam, LPARAM lParam);

// The modeless dialog `resource` of the library for scene, owned by the scene window,
// shown; when the scene's slot already holds one it is raised instead. The trackbar
// class is registered first.
void openModeless(cScene* scene, HWND cScene::*slot, int resource, DLGPROC procedure);

}  // namespace ts
