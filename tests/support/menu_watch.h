// Popup menus as a user meets them: a watch on the thread that tracks a menu reports
// the popup window once the menu loop shows it and waits for input (WM_ENTERIDLE with
// MSGF_MENU), and the items of a menu are read with GetMenuItemInfo.
#pragma once

#include <windows.h>

#include <functional>
#include <string>
#include <vector>

namespace tst {

class MenuWatch {
public:
    // Watches the menus of thread threadId (the scene thread, or this thread).
    explicit MenuWatch(DWORD threadId);
    ~MenuWatch();
    MenuWatch(const MenuWatch&) = delete;
    MenuWatch& operator=(const MenuWatch&) = delete;

    // Forgets a popup seen before.
    void arm();
    // Waits for the next popup shown after arm(); its window (class "#32768"), or null
    // when the menu loop ended without showing one or nothing came within timeoutMs.
    // For menus of another thread.
    HWND waitForPopup(DWORD timeoutMs = 10000);
    // For menus tracked on the watching thread itself: action runs inside the menu loop
    // each time a popup is shown, and should end the menu (EndMenu) or choose from it.
    void onPopup(std::function<void(HWND popup)> action);
    // Menu loops entered (WM_ENTERMENULOOP) and popups initialised (WM_INITMENUPOPUP,
    // submenus included) since the watch began.
    int menuLoops() const;
    int popupsInitialised() const;

private:
    HHOOK hook_ = nullptr;
};

// Dialogs as they appear on a thread: a CBT hook notes each dialog window (class
// "#32770") when it is activated.
class DialogWatch {
public:
    explicit DialogWatch(DWORD threadId);
    ~DialogWatch();
    DialogWatch(const DialogWatch&) = delete;
    DialogWatch& operator=(const DialogWatch&) = delete;

    // Waits for a dialog titled title, activated since the watch began; null on time-out.
    HWND waitFor(const std::string& title, DWORD timeoutMs = 10000);

private:
    HHOOK hook_ = nullptr;
};

// The menu a popup window shows (MN_GETHMENU).
HMENU popupMenu(HWND popup);
// The visible popup menu windows of this process, top-level first shown first.
std::vector<HWND> visiblePopups();
// Popup menu windows of this process, shown or hidden: wine may destroy a closed
// menu's window only some messages later.
int popupWindows();

struct MenuItem {
    UINT id = 0;
    UINT type = 0;     // MFT_* (MFT_SEPARATOR, MFT_RIGHTJUSTIFY, ...)
    UINT state = 0;    // MFS_* (MFS_CHECKED, ...)
    std::string text;
    std::vector<MenuItem> items;  // of its submenu, if it opens one
    bool submenu = false;
    bool checked() const { return (state & MFS_CHECKED) != 0; }
    bool separator() const { return (type & MFT_SEPARATOR) != 0; }
};

// Every item of menu with its submenus, in order.
std::vector<MenuItem> readMenu(HMENU menu);
// The item with command id (depth first), or null.
const MenuItem* findItem(const std::vector<MenuItem>& items, UINT id);

// Presses keys in an open popup (WM_KEYDOWN and WM_KEYUP posted to it), as a user
// choosing with the keyboard does.
void pressKeys(HWND popup, const std::vector<WORD>& keys);

// Writes a picture of the screen area covered by the windows, each drawn from its own
// window DC at its place, later ones over earlier ones, as a 24-bit BMP file.
bool saveWindowsBmp(const std::vector<HWND>& windows, const std::string& path);

}  // namespace tst
