// Scene-side input handlers: each queues its event for the caller, feeds the event
// record, then does the scene's own work (navigation, menu, cursor). A right click
// opens the context menu while the scene's switch allows it; a command runs the menu's
// command of that id.
#pragma once

#include <windows.h>

class cScene;

namespace ts {

void onKeyDown(cScene* scene, WPARAM wParam, LPARAM lParam);
void onKeyUp(cScene* scene, WPARAM wParam, LPARAM lParam);
void onChar(cScene* scene, WPARAM wParam, LPARAM lParam);
void onCommand(cScene* scene, WPARAM wParam, LPARAM lParam);
void onLButtonDown(cScene* scene, WPARAM wParam, LPARAM lParam);
void onLButtonUp(cScene* scene, WPARAM wParam, LPARAM lParam);
void onMButtonDown(cScene* scene, WPARAM wParam, LPARAM lParam);
void onRButtonDown(cScene* scene, WPARAM wParam, LPARAM lParam);
void onMouseMove(cScene* scene, WPARAM wParam, LPARAM lParam);

}  // namespace ts
