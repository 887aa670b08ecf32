// The context menu of a library window, driven as a user drives it: a right click
// posted to the scene window opens the popup, which the test reads (MN_GETHMENU,
// GetMenuItemInfo) and closes; commands are chosen by id or with the keyboard, and
// their effect is checked in the window's pixels. Each scenario runs in a child process
// (one scene thread each) against the DLL, through the public header only.
#include <windows.h>
#include <GL/glu.h>

#include <algorithm>
#include <memory>
#include <set>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "support/child_process.h"
#include "support/gl_window.h"
#include "support/gui_objects.h"
#include "support/html_viewer.h"
#include "support/menu_watch.h"
#include "support/thread_watch.h"
#include "tessarin.h"

namespace {

void expectCleanChild(const tst::ChildResult& r) { EXPECT_EQ(r.exitCode, 0u) << r.output; }

// A library window with a scene, watched on its thread.
struct MenuScene {
    explicit MenuScene(const char* title = "Menu scene", int x = 60) {
        window = swCreateWind(title, 240, 180, x, 60, WS_OVERLAPPEDWINDOW);
        swShowWind(window);
        scene = swCreateScene(window);
        hwnd = smGetHWND(scene);
        const DWORD thread = GetWindowThreadProcessId(hwnd, nullptr);
        menus = std::make_unique<tst::MenuWatch>(thread);
        messages = std::make_unique<tst::MessageWatch>(thread);
    }
    // A red box facing the viewer, lit from the front.
    void addBox() {
        float light[3] = {0.0f, 0.0f, 1.0f};
        smLightDirection(0, 1, 1, light);
        snColorRGB(nullptr, 1.0f, 0.0f, 0.0f);
        snBox(nullptr, -1.0f, -1.0f, -1.0f, 1.0f, 1.0f, 1.0f, GLU_OUTSIDE);
        smRefreshScene(scene);
    }
    // The popup a right click at (x, y) opens, or null.
    // Under wine a focus change that arrives late from the display (after a dialog has
    // closed) may cancel a menu as soon as it opens; the click is then given again.
    HWND open(int x = 120, int y = 90) {
        for (int attempt = 0; attempt < 5; ++attempt) {
            menus->arm();
            PostMessageA(hwnd, WM_RBUTTONDOWN, MK_RBUTTON, MAKELPARAM(x, y));
            if (HWND popup = menus->waitForPopup()) return popup;
            barrier();
        }
        return nullptr;
    }
    void close() {
        SendMessageA(hwnd, WM_CANCELMODE, 0, 0);
        barrier();
    }
    // What the popup shows, read while it is open.
    std::vector<tst::MenuItem> items() {
        HWND popup = open();
        EXPECT_NE(popup, nullptr) << "menu loops " << menus->menuLoops() << ", popups initialised "
                                  << menus->popupsInitialised() << ", visible popups " << tst::visiblePopups().size();
        std::vector<tst::MenuItem> read = popup != nullptr ? tst::readMenu(tst::popupMenu(popup)) : std::vector<tst::MenuItem>{};
        close();
        return read;
    }
    // A command as the menu delivers it; returns once it has run.
    void command(UINT id) { SendMessageA(hwnd, WM_COMMAND, id, 0); }
    // Returns once the window of the last closed menu is gone (wine may keep it a few
    // messages longer), so that object counts see only what stays.
    void settle() {
        for (int round = 0; round < 100 && tst::popupWindows() > 0; ++round) {
            PostMessageA(hwnd, WM_NULL, 0, 0);
            barrier();
        }
        EXPECT_EQ(tst::popupWindows(), 0);
    }
    // Returns once the scene thread has finished what it was given before.
    void barrier() { SendMessageA(hwnd, WM_NULL, 0, 0); }
    // The window as a fresh pass draws it. A popup just closed leaves its area to an
    // expose that wine handles on the scene thread whenever it reads the display's
    // events, possibly after a pass: so passes are drawn until two readings agree.
    tst::Picture picture() {
        tst::Picture last;
        for (int pass = 0; pass < 20; ++pass) {
            barrier();
            smRefreshScene(scene);
            barrier();
            tst::Picture now = tst::capture(hwnd);
            if (pass > 0 && now.pixels == last.pixels) return now;
            last = std::move(now);
        }
        return last;
    }

    cWind* window = nullptr;
    cScene* scene = nullptr;
    HWND hwnd = nullptr;
    std::unique_ptr<tst::MenuWatch> menus;
    std::unique_ptr<tst::MessageWatch> messages;
};

// The expected shape of a menu: text (empty for a separator), id, submenu items.
struct Want {
    std::string text;
    UINT id = 0;
    std::vector<Want> items;
    bool submenu = false;
};
Want item(const char* text, UINT id) { return {text, id, {}, false}; }
Want popup(const char* text, std::vector<Want> items) { return {text, 0, std::move(items), true}; }
Want separator() { return {"", 0, {}, false}; }

std::vector<Want> helpItems() {
    return {item("Help for 3D Control", TS_CMD_HELP_3D_CONTROL),
            item("Help for Keyboard / Mouse", TS_CMD_HELP_KEYBOARD_MOUSE),
            item("Welcome to QVA", TS_CMD_HELP_WELCOME), item("QVA Homepage (WWW)", TS_CMD_HOMEPAGE)};
}

std::vector<Want> menu3D() {
    return {popup("Viewpoints", {item("Default", TS_CMD_FIRST_VIEWPOINT), separator(),
                                 item("Add Viewpoint", TS_CMD_ADD_VIEWPOINT),
                                 item("Delete Viewpoint", TS_CMD_DELETE_VIEWPOINT)}),
            item("Stop Motion", TS_CMD_STOP_MOTION),
            separator(),
            popup("Shade Mode", {item("Smooth", TS_CMD_SHADE_SMOOTH), item("Flat", TS_CMD_SHADE_FLAT),
                                 item("None", TS_CMD_SHADE_NONE)}),
            popup("Drawing Mode", {item("Filled", TS_CMD_DRAW_FILLED), item("Lines", TS_CMD_DRAW_LINES),
                                   item("Points", TS_CMD_DRAW_POINTS)}),
            popup("Action Mode", {item("Rotate", TS_CMD_ACTION_ROTATE), item("Fly", TS_CMD_ACTION_FLY),
                                  item("Walk", TS_CMD_ACTION_WALK)}),
            popup("Projection Mode", {item("Perspective", TS_CMD_PROJECTION_PERSPECTIVE),
                                      item("Orthogonal", TS_CMD_PROJECTION_ORTHOGONAL)}),
            popup("Setting Dialogs", {item("View Setting", TS_CMD_VIEW_SETTING),
                                      item("Ligth Setting", TS_CMD_LIGHT_SETTING)}),
            separator(),
            popup("SaveAs", {item("Bitmap file *.bmp", TS_CMD_SAVE_BITMAP)}),
            separator(),
            popup("Help", helpItems())};
}

std::vector<Want> menu2D() {
    return {popup("SaveAs", {item("Bitmap file *.bmp", TS_CMD_SAVE_BITMAP)}), separator(), popup("Help", helpItems())};
}

void expectShape(const std::vector<tst::MenuItem>& got, const std::vector<Want>& want, const std::string& where) {
    ASSERT_EQ(got.size(), want.size()) << where;
    for (size_t i = 0; i < want.size(); ++i) {
        const std::string at = where + "/" + std::to_string(i) + " " + want[i].text;
        EXPECT_EQ(got[i].text, want[i].text) << at;
        EXPECT_EQ(got[i].submenu, want[i].submenu) << at;
        EXPECT_EQ(got[i].separator(), want[i].text.empty()) << at;
        if (!want[i].submenu && !want[i].text.empty()) {
            EXPECT_EQ(got[i].id, want[i].id) << at;
        }
        // Only the Help popup stands at the right.
        EXPECT_EQ((got[i].type & MFT_RIGHTJUSTIFY) != 0, want[i].text == "Help") << at;
        expectShape(got[i].items, want[i].items, at);
    }
}

// The checked items of a group of command ids.
std::vector<UINT> checkedOf(const std::vector<tst::MenuItem>& items, const std::vector<UINT>& group) {
    std::vector<UINT> checked;
    for (UINT id : group) {
        const tst::MenuItem* found = tst::findItem(items, id);
        if (found != nullptr && found->checked()) checked.push_back(id);
    }
    return checked;
}

const std::vector<UINT> kShade = {TS_CMD_SHADE_SMOOTH, TS_CMD_SHADE_FLAT, TS_CMD_SHADE_NONE};
const std::vector<UINT> kDraw = {TS_CMD_DRAW_FILLED, TS_CMD_DRAW_LINES, TS_CMD_DRAW_POINTS};
const std::vector<UINT> kAction = {TS_CMD_ACTION_ROTATE, TS_CMD_ACTION_FLY, TS_CMD_ACTION_WALK};
const std::vector<UINT> kProjection = {TS_CMD_PROJECTION_PERSPECTIVE, TS_CMD_PROJECTION_ORTHOGONAL};

void expectChecks(MenuScene& s, UINT shade, UINT draw, UINT action, UINT projection) {
    const std::vector<tst::MenuItem> items = s.items();
    EXPECT_EQ(checkedOf(items, kShade), std::vector<UINT>{shade});
    EXPECT_EQ(checkedOf(items, kDraw), std::vector<UINT>{draw});
    EXPECT_EQ(checkedOf(items, kAction), std::vector<UINT>{action});
    EXPECT_EQ(checkedOf(items, kProjection), std::vector<UINT>{projection});
}

bool isBackground(const tst::Rgb& c) { return c.r == 0 && c.g == 0 && c.b == 0; }

int coloredPixels(const tst::Picture& p) {
    return static_cast<int>(std::count_if(p.pixels.begin(), p.pixels.end(), [](const tst::Rgb& c) { return !isBackground(c); }));
}

int distinctColors(const tst::Picture& p) {
    std::set<int> colors;
    for (const tst::Rgb& c : p.pixels) colors.insert((c.r << 16) | (c.g << 8) | c.b);
    return static_cast<int>(colors.size());
}

// Rows of the centre column that are not background.
int heightOfScene(const tst::Picture& p) {
    int rows = 0;
    for (int y = 0; y < p.height; ++y) rows += isBackground(p.at(p.width / 2, y)) ? 0 : 1;
    return rows;
}

std::string shotsFolder() { return TESSARIN_SHOTS_DIR; }

struct DialogCount {
    const char* title;
    int found;
};

BOOL CALLBACK countDialog(HWND w, LPARAM data) {
    auto* c = reinterpret_cast<DialogCount*>(data);
    char text[64] = "", cls[16] = "";
    GetWindowTextA(w, text, sizeof(text));
    GetClassNameA(w, cls, sizeof(cls));
    DWORD process = 0;
    GetWindowThreadProcessId(w, &process);
    if (process == GetCurrentProcessId() && IsWindowVisible(w) && std::string(cls) == "#32770" &&
        std::string(text) == c->title) {
        ++c->found;
    }
    return TRUE;
}

// Visible dialog windows of this process with the title.
int visibleDialogs(const char* title) {
    DialogCount count = {title, 0};
    EnumWindows(countDialog, reinterpret_cast<LPARAM>(&count));
    return count.found;
}

}  // namespace

TST_SCENARIO(PopupsHoldEveryItem) {
    MenuScene s;
    s.addBox();
    HWND popup = s.open();
    ASSERT_NE(popup, nullptr);
    char cls[16] = "";
    GetClassNameA(popup, cls, sizeof(cls));
    EXPECT_STREQ(cls, "#32768");
    expectShape(tst::readMenu(tst::popupMenu(popup)), menu3D(), "3D");
    CreateDirectoryA(shotsFolder().c_str(), nullptr);
    EXPECT_TRUE(tst::saveWindowsBmp({s.hwnd, popup}, shotsFolder() + "/menu.bmp"));
    s.close();
    MenuScene flat("Flat scene", 320);  // nothing in its 3D list: the second popup
    popup = flat.open();
    ASSERT_NE(popup, nullptr);
    expectShape(tst::readMenu(tst::popupMenu(popup)), menu2D(), "2D");
    flat.close();
    // The right click came back as an event first.
    int* event = swGetEvent(WM_RBUTTONDOWN);
    ASSERT_NE(event, nullptr);
    EXPECT_EQ(event[2], MAKELPARAM(120, 90));
}
TEST(ContextMenu, ARightClickOpensThePopupOfTheSceneWithEveryItemOfTheResource) {
    expectCleanChild(tst::runScenario("PopupsHoldEveryItem"));
}

TST_SCENARIO(ChecksFollowEveryModeChange) {
    MenuScene s;
    s.addBox();
    expectChecks(s, TS_CMD_SHADE_SMOOTH, TS_CMD_DRAW_FILLED, TS_CMD_ACTION_ROTATE, TS_CMD_PROJECTION_PERSPECTIVE);
    s.command(TS_CMD_SHADE_FLAT);
    s.command(TS_CMD_DRAW_POINTS);
    s.command(TS_CMD_ACTION_WALK);
    s.command(TS_CMD_PROJECTION_ORTHOGONAL);
    expectChecks(s, TS_CMD_SHADE_FLAT, TS_CMD_DRAW_POINTS, TS_CMD_ACTION_WALK, TS_CMD_PROJECTION_ORTHOGONAL);
    s.command(TS_CMD_SHADE_NONE);
    s.command(TS_CMD_DRAW_LINES);
    s.command(TS_CMD_ACTION_FLY);
    expectChecks(s, TS_CMD_SHADE_NONE, TS_CMD_DRAW_LINES, TS_CMD_ACTION_FLY, TS_CMD_PROJECTION_ORTHOGONAL);
    // The calls of the modes move the marks too.
    smShadeMode(TS_SHADE_SMOOTH);
    smDrawMode(TS_DRAW_FILLED);
    smActionMode(TS_ROTATE);
    smProjectionMode(TS_PERSPECTIVE, 45.0, 0.01, 1000.0);
    expectChecks(s, TS_CMD_SHADE_SMOOTH, TS_CMD_DRAW_FILLED, TS_CMD_ACTION_ROTATE, TS_CMD_PROJECTION_PERSPECTIVE);
    smDrawMode(5);  // ignored: the marks stay
    expectChecks(s, TS_CMD_SHADE_SMOOTH, TS_CMD_DRAW_FILLED, TS_CMD_ACTION_ROTATE, TS_CMD_PROJECTION_PERSPECTIVE);
}
TEST(ContextMenu, ExactlyOneItemOfEachGroupIsCheckedAfterEveryModeChange) {
    expectCleanChild(tst::runScenario("ChecksFollowEveryModeChange"));
}

TST_SCENARIO(DrawingCommandsShowInPixels) {
    MenuScene s;
    s.addBox();
    const tst::Picture filled = s.picture();
    const tst::Rgb centre = filled.at(filled.width / 2, filled.height / 2);
    EXPECT_GT(centre.r, 200);
    EXPECT_NE(centre, (tst::Rgb{255, 0, 0}));  // lit: the light adds its highlight
    s.command(TS_CMD_DRAW_LINES);
    const tst::Picture lines = s.picture();
    EXPECT_TRUE(isBackground(lines.at(lines.width / 2, lines.height / 2)));
    EXPECT_GT(coloredPixels(lines), 50);
    s.command(TS_CMD_DRAW_POINTS);
    const tst::Picture points = s.picture();
    EXPECT_GT(coloredPixels(points), 0);
    EXPECT_LT(coloredPixels(points), coloredPixels(lines) / 4);
    s.command(TS_CMD_DRAW_FILLED);
    EXPECT_TRUE(tst::samePixels(s.picture(), filled));
    s.command(TS_CMD_SHADE_NONE);  // lighting off: the colour as given
    const tst::Picture unlit = s.picture();
    EXPECT_EQ(unlit.at(unlit.width / 2, unlit.height / 2), (tst::Rgb{255, 0, 0}));
    s.command(TS_CMD_SHADE_SMOOTH);
    s.command(TS_CMD_PROJECTION_ORTHOGONAL);
    const tst::Picture orthogonal = s.picture();
    EXPECT_LT(heightOfScene(orthogonal), heightOfScene(filled) - 10);
    s.command(TS_CMD_PROJECTION_PERSPECTIVE);
    EXPECT_TRUE(tst::samePixels(s.picture(), filled));
}
TEST(ContextMenu, DrawingModeShadingOffAndProjectionCommandsShowInThePixels) {
    expectCleanChild(tst::runScenario("DrawingCommandsShowInPixels"));
}

TST_SCENARIO(FlatAgainstSmooth) {
    MenuScene s;
    float light[3] = {1.0f, 1.0f, 1.0f};
    smLightDirection(0, 1, 1, light);
    snColorRGB(nullptr, 0.2f, 0.6f, 1.0f);
    snSphere(nullptr, 1.6f, 10, 8, GLU_FILL, GLU_SMOOTH, GLU_OUTSIDE);
    smRefreshScene(s.scene);
    const int smooth = distinctColors(s.picture());
    s.command(TS_CMD_SHADE_FLAT);
    const int flat = distinctColors(s.picture());
    EXPECT_LT(flat * 3, smooth) << "flat " << flat << ", smooth " << smooth;
}
TEST(ContextMenu, FlatShadingPaintsEachFacetInOneColour) { expectCleanChild(tst::runScenario("FlatAgainstSmooth")); }

TST_SCENARIO(KeyboardChoiceRunsItsCommand) {
    MenuScene s;
    s.addBox();
    const int before = heightOfScene(s.picture());
    HWND popup = s.open();
    ASSERT_NE(popup, nullptr);
    s.messages->expect(WM_COMMAND, TS_CMD_PROJECTION_ORTHOGONAL);
    // Viewpoints, Stop Motion, Shade, Drawing, Action, Projection Mode; open it; the second item.
    tst::pressKeys(popup, {VK_DOWN, VK_DOWN, VK_DOWN, VK_DOWN, VK_DOWN, VK_DOWN, VK_RIGHT, VK_DOWN, VK_RETURN});
    ASSERT_TRUE(s.messages->wait());
    EXPECT_LT(heightOfScene(s.picture()), before - 10);
    int* event = swGetEvent(WM_COMMAND);
    ASSERT_NE(event, nullptr);
    EXPECT_EQ(event[1], TS_CMD_PROJECTION_ORTHOGONAL);
    expectChecks(s, TS_CMD_SHADE_SMOOTH, TS_CMD_DRAW_FILLED, TS_CMD_ACTION_ROTATE, TS_CMD_PROJECTION_ORTHOGONAL);
}
TEST(ContextMenu, AnItemChosenWithTheKeyboardRunsItsCommand) {
    expectCleanChild(tst::runScenario("KeyboardChoiceRunsItsCommand"));
}

TST_SCENARIO(ViewpointEntries) {
    MenuScene s;
    s.addBox();
    const tst::Picture start = s.picture();
    smViewpointAdd(const_cast<char*>("Far"), nullptr);  // the camera as it stands
    smTranslation(0.0f, 0.0f, 12.0f);
    smViewpointAdd(const_cast<char*>("Farther"), nullptr);
    const tst::Picture farther = s.picture();
    EXPECT_FALSE(tst::samePixels(farther, start));
    const std::vector<tst::MenuItem> items = s.items();
    ASSERT_FALSE(items.empty());
    const std::vector<tst::MenuItem>& entries = items[0].items;
    ASSERT_EQ(entries.size(), 6u);
    EXPECT_EQ(entries[1].text, "Far");
    EXPECT_EQ(entries[1].id, TS_CMD_FIRST_VIEWPOINT + 1);
    EXPECT_EQ(entries[2].text, "Farther");
    EXPECT_EQ(entries[2].id, TS_CMD_FIRST_VIEWPOINT + 2);
    s.command(TS_CMD_FIRST_VIEWPOINT);  // "Default"
    EXPECT_TRUE(tst::samePixels(s.picture(), start));
    s.command(TS_CMD_FIRST_VIEWPOINT + 2);
    EXPECT_TRUE(tst::samePixels(s.picture(), farther));
    s.command(TS_CMD_FIRST_VIEWPOINT + 1);
    EXPECT_TRUE(tst::samePixels(s.picture(), start));
}
TEST(ContextMenu, AViewpointEntryAppliesItsViewpoint) { expectCleanChild(tst::runScenario("ViewpointEntries")); }

TST_SCENARIO(AddAndDeleteFromTheMenu) {
    MenuScene s;
    s.addBox();
    tst::DialogWatch dialogs(GetWindowThreadProcessId(s.hwnd, nullptr));
    PostMessageA(s.hwnd, WM_COMMAND, TS_CMD_ADD_VIEWPOINT, 0);
    HWND prompt = dialogs.waitFor("Add Viewpoint");
    ASSERT_NE(prompt, nullptr);
    HWND edit = FindWindowExA(prompt, nullptr, "Edit", nullptr);
    ASSERT_NE(edit, nullptr);
    SendMessageA(edit, WM_SETTEXT, 0, reinterpret_cast<LPARAM>("Typed"));
    SendMessageA(prompt, WM_COMMAND, IDOK, 0);
    // The prompt's modal loop ends at the next message it takes from the queue; a right
    // click posted before that would reach the scene through the closing dialog's loop.
    for (int round = 0; round < 100 && IsWindow(prompt); ++round) {
        PostMessageA(s.hwnd, WM_NULL, 0, 0);
        s.barrier();
    }
    ASSERT_FALSE(IsWindow(prompt));
    std::vector<tst::MenuItem> items = s.items();
    ASSERT_FALSE(items.empty());
    ASSERT_EQ(items[0].items.size(), 5u);
    EXPECT_EQ(items[0].items[1].text, "Typed");
    tst::MessageBoxCapture boxes(IDYES);
    s.command(TS_CMD_DELETE_VIEWPOINT);
    ASSERT_EQ(boxes.count(), 1u);
    EXPECT_EQ(boxes.boxes()[0].title, "Delete Viewpoint");
    EXPECT_EQ(boxes.boxes()[0].text, "Do you want to delete viewpoint: Typed");
    items = s.items();
    ASSERT_FALSE(items.empty());
    ASSERT_EQ(items[0].items.size(), 4u);
    EXPECT_EQ(items[0].items[0].text, "Default");
}
TEST(ContextMenu, AddAndDeleteViewpointAskTheUser) { expectCleanChild(tst::runScenario("AddAndDeleteFromTheMenu")); }

TST_SCENARIO(DialogCommands) {
    MenuScene s;
    s.addBox();
    s.command(TS_CMD_VIEW_SETTING);
    s.command(TS_CMD_VIEW_SETTING);  // the open one is raised, not a second one made
    s.command(TS_CMD_LIGHT_SETTING);
    EXPECT_EQ(visibleDialogs("View Settings"), 1);
    EXPECT_EQ(visibleDialogs("Light Settings"), 1);
    EXPECT_EQ(GetWindow(FindWindowA("#32770", "View Settings"), GW_OWNER), s.hwnd);
}
TEST(ContextMenu, SettingCommandsOpenOneDialogOfEachKind) { expectCleanChild(tst::runScenario("DialogCommands")); }

TST_SCENARIO(SwitchedOff) {
    MenuScene s;
    s.addBox();
    snDisable(nullptr, TS_SWITCH_CONTEXT_MENU);
    smRefreshScene(s.scene);  // the switch node takes effect when drawn
    const int loops = s.menus->menuLoops();
    ASSERT_TRUE(s.messages->postAndWait(s.hwnd, WM_RBUTTONDOWN, MK_RBUTTON, MAKELPARAM(30, 30)));
    s.barrier();
    EXPECT_EQ(s.menus->menuLoops(), loops);
    EXPECT_EQ(swEventExists(WM_RBUTTONDOWN), 1);
    snEnable(nullptr, TS_SWITCH_CONTEXT_MENU);
    smRefreshScene(s.scene);
    ASSERT_NE(s.open(), nullptr);
    s.close();
    EXPECT_EQ(s.menus->menuLoops(), loops + 1);
}
TEST(ContextMenu, WithItsSwitchOffARightClickOpensNoMenu) { expectCleanChild(tst::runScenario("SwitchedOff")); }

namespace {

constexpr const char* kDocuKey = "Software\\Halvern Software\\Tessarin\\TessarinPath";

void writeFile(const std::string& path, const std::string& text) {
    FILE* f = std::fopen(path.c_str(), "w");
    ASSERT_NE(f, nullptr) << path;
    std::fputs(text.c_str(), f);
    std::fclose(f);
}

// The button of a dialog with that text.
HWND button(HWND dialog, const char* text) { return FindWindowExA(dialog, nullptr, "Button", text); }

}  // namespace

TST_SCENARIO(HelpEntries) {
    // The help pages and a home page in the help folder; a settings file naming the home
    // page in the current folder.
    const std::string folder = "C:\\tessarin_menu_help";
    CreateDirectoryA(folder.c_str(), nullptr);
    for (const char* page : {"fsSetting3D.html", "fsKeyboard.html", "fsWelcome_e.html", "fsSettingView.html",
                             "fsSettingLight.html", "home.html"}) {
        writeFile(folder + "\\" + page, "<html><body>page</body></html>\n");
    }
    const std::string current = "C:\\tessarin_menu_settings";
    CreateDirectoryA(current.c_str(), nullptr);
    writeFile(current + "\\Tessarin20.ini", "Initialization Parameters for Tessarin (v2.000, 27-FEB-99)\n\n"
                                              "homepage          home.html (Address of the library's home page on the web)\n");
    ASSERT_TRUE(SetCurrentDirectoryA(current.c_str()));
    const std::string docuPath = folder + "\\";
    RegSetKeyValueA(HKEY_LOCAL_MACHINE, kDocuKey, "DocuPath", REG_SZ, docuPath.c_str(),
                    static_cast<DWORD>(docuPath.size() + 1));
    tst::RecordingHtmlViewer viewer;
    MenuScene s;
    s.addBox();
    for (UINT id : {TS_CMD_HELP_3D_CONTROL, TS_CMD_HELP_KEYBOARD_MOUSE, TS_CMD_HELP_WELCOME, TS_CMD_HOMEPAGE}) {
        s.command(id);
    }
    s.command(TS_CMD_VIEW_SETTING);
    SendMessageA(button(FindWindowA("#32770", "View Settings"), "Help"), BM_CLICK, 0, 0);
    s.command(TS_CMD_LIGHT_SETTING);
    SendMessageA(button(FindWindowA("#32770", "Light Settings"), "Help"), BM_CLICK, 0, 0);
    const std::vector<tst::OpenedPage> opened = viewer.opened();
    RegDeleteKeyValueA(HKEY_LOCAL_MACHINE, kDocuKey, "DocuPath");
    const std::vector<std::string> expected = {"fsSetting3D.html", "fsKeyboard.html", "fsWelcome_e.html",
                                               "home.html", "fsSettingView.html", "fsSettingLight.html"};
    ASSERT_EQ(opened.size(), expected.size());
    for (size_t i = 0; i < expected.size(); ++i) {
        EXPECT_EQ(opened[i].file, expected[i]);
        EXPECT_EQ(_stricmp(opened[i].folder.c_str(), folder.c_str()), 0) << opened[i].folder;
    }
}
TEST(ContextMenu, HelpEntriesAndTheDialogsHelpButtonsOpenTheirPagesAndTheHomePageOfTheSettings) {
    expectCleanChild(tst::runScenario("HelpEntries"));
}

TST_SCENARIO(ThousandMenus) {
    MenuScene s;
    s.addBox();
    for (int i = 0; i < 10; ++i) {
        ASSERT_NE(s.open(), nullptr);
        s.close();
    }
    s.settle();
    const tst::GuiObjects before = tst::guiObjects();
    for (int i = 0; i < 1000; ++i) {
        ASSERT_NE(s.open(), nullptr) << "cycle " << i;
        s.close();
    }
    s.settle();
    EXPECT_TRUE(tst::noGrowth(before, tst::guiObjects(), 1000));
}
TEST(ContextMenu, AThousandMenusLeaveNoGdiOrUserObjectBehind) {
    expectCleanChild(tst::runScenario("ThousandMenus", IDOK, 600000));
}
