// Input handlers of a scene window: each queues its event and feeds the waitable
// record before navigation does its own work.
#include "view/navigation/scene_input.h"

#include "events/event_wait.h"
#include "events/navigation_state.h"
#include "view/navigation/navigation.h"
#include "view/menu/context_menu.h"
#include "view/navigation/scene_cursor.h"
#include "view/pass/picking.h"
#include "view/scene/cscene.h"

namespace ts {
namespace {

constexpr int kVkShift = 16;
constexpr int kVkControl = 17;

void queue(cScene* scene, UINT type, WPARAM wParam, LPARAM lParam) {
    scene->events.Add(static_cast<int32_t>(type), wParam, lParam);
}

}  // namespace

void onKeyDown(cScene* scene, WPARAM wParam, LPARAM lParam) {
    queue(scene, WM_KEYDOWN, wParam, lParam);
    NavigationState& nav = navigation();
    if (wParam == kVkControl && nav.pan == 0) {
        nav.pan = 1;
        updateSceneCursor(scene);
    }
    if (wParam == kVkShift && nav.zoom == 0) {
        nav.zoom = 1;
        updateSceneCursor(scene);
    }
    navigateKey(scene, static_cast<int>(wParam));
    noteKeyDown(scene, static_cast<int>(wParam));
}

void onKeyUp(cScene* scene, WPARAM wParam, LPARAM) {
    NavigationState& nav = navigation();
    if (wParam == kVkControl) nav.pan = 0;
    if (wParam == kVkShift) nav.zoom = 0;
    if (wParam == kVkControl || wParam == kVkShift) updateSceneCursor(scene);
}

void onChar(cScene* scene, WPARAM wParam, LPARAM lParam) {
    queue(scene, WM_CHAR, wParam, lParam);
    noteChar(static_cast<int>(wParam));
}

// Menus and accelerators carry no control window; a child control's notification is
// queued but runs no command.
void onCommand(cScene* scene, WPARAM wParam, LPARAM lParam) {
    queue(scene, WM_COMMAND, wParam, lParam);
    if (lParam == 0) runMenuCommand(scene, LOWORD(wParam));
}

void onLButtonDown(cScene* scene, WPARAM wParam, LPARAM lParam) {
    queue(scene, WM_LBUTTONDOWN, wParam, lParam);
    pickForClick(scene, LOWORD(lParam), HIWORD(lParam));
    noteButtonDown(scene, lParam, 1);
    navigateButtonDown(scene, LOWORD(lParam), HIWORD(lParam));
}

void onLButtonUp(cScene* scene, WPARAM wParam, LPARAM lParam) {
    queue(scene, WM_LBUTTONUP, wParam, lParam);
    navigateButtonUp(scene);
}

void onMButtonDown(cScene* scene, WPARAM wParam, LPARAM lParam) {
    queue(scene, WM_MBUTTONDOWN, wParam, lParam);
    noteButtonDown(scene, lParam, 2);
}

void onRButtonDown(cScene* scene, WPARAM wParam, LPARAM lParam) {
    queue(scene, WM_RBUTTONDOWN, wParam, lParam);
    noteButtonDown(scene, lParam, 3);
    if (scene->contextMenu != 0) openContextMenu(scene, lParam);
}

void onMouseMove(cScene* scene, WPARAM, LPARAM lParam) {
    updateSceneCursor(scene);
    if (navigation().buttonDown != 0 && scene->mouseNavigation != 0 && scene->has3D != 0) noteDrag(scene, lParam);
    navigateMouseMove(scene, LOWORD(lParam), HIWORD(lParam));
}

}  // namespace ts
