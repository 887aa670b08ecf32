// Tessarin20b.dll as an application loads it, through the public header only: what
// loading does, the module its classes and resources come from, the menu's command
// identifiers, and one road through each family (a box in a scene window, an event, a
// guarded exit, a GIF written and read back). The white-box tests link the same code
// statically; this test keeps the DLL itself honest.
#include <gtest/gtest.h>

#include <windows.h>

#include <cstdio>
#include <set>
#include <string>

#include "support/child_process.h"
#include "support/host_window.h"
#include "tessarin.h"

namespace {

void expectCleanChild(const tst::ChildResult& r) { EXPECT_EQ(r.exitCode, 0u) << r.output; }

HMODULE dll() { return GetModuleHandleA("Tessarin20b.dll"); }

HWND sceneWindow(const char* title) { return FindWindowA("Tessarin", title); }

// Every command identifier of a menu and its submenus.
void collectCommands(HMENU menu, std::set<UINT>& ids) {
    for (int i = 0; i < GetMenuItemCount(menu); ++i) {
        if (HMENU sub = GetSubMenu(menu, i)) {
            collectCommands(sub, ids);
        } else if (GetMenuItemID(menu, i) != 0) {
            ids.insert(GetMenuItemID(menu, i));
        }
    }
}

}  // namespace

TEST(Dll, TheLibraryIsTheDllTheTestLoaded) {
    ASSERT_NE(dll(), nullptr);
    EXPECT_EQ(tst::libraryModule(), dll());
    EXPECT_STREQ(TESSARIN_VERSION_STRING, "2.0");
    EXPECT_EQ(TESSARIN_VERSION_MAJOR * 100 + TESSARIN_VERSION_MINOR, 200);
}

TST_SCENARIO(LoadingDoesNothingUntilTheFirstWindow) {
    WNDCLASSA info;
    EXPECT_FALSE(GetClassInfoA(dll(), "TESSARIN", &info));
    EXPECT_FALSE(GetClassInfoA(dll(), "DummyThread", &info));
    EXPECT_EQ(FindWindowA("DummyThread", "Dummy"), nullptr);
    cWind* window = swCreateWind("Dll window", 120, 100, 10, 10, WS_OVERLAPPEDWINDOW);
    ASSERT_NE(window, nullptr);
    EXPECT_TRUE(GetClassInfoA(dll(), "TESSARIN", &info));
    EXPECT_TRUE(GetClassInfoA(dll(), "DummyThread", &info));
    HWND dummy = FindWindowA("DummyThread", "Dummy");
    ASSERT_NE(dummy, nullptr);
    EXPECT_EQ(reinterpret_cast<HMODULE>(GetWindowLongPtrA(dummy, GWLP_HINSTANCE)), dll());
    HWND hwnd = sceneWindow("Dll window");
    ASSERT_NE(hwnd, nullptr);
    EXPECT_EQ(reinterpret_cast<HMODULE>(GetWindowLongPtrA(hwnd, GWLP_HINSTANCE)), dll());
}
TEST(Dll, LoadingRegistersNothingAndTheFirstWindowRegistersTheClassesOfTheDll) {
    expectCleanChild(tst::runScenario("LoadingDoesNothingUntilTheFirstWindow"));
}

TEST(Dll, IconCursorsAndMenuAreResourcesOfTheDll) {
    EXPECT_NE(LoadIconA(dll(), MAKEINTRESOURCEA(1)), nullptr);
    for (int id : {112, 1, 2, 109, 110}) {
        EXPECT_NE(FindResourceA(dll(), MAKEINTRESOURCEA(id), MAKEINTRESOURCEA(12)), nullptr) << id;
    }
    HMENU menu = LoadMenuA(dll(), MAKEINTRESOURCEA(1));
    ASSERT_NE(menu, nullptr);
    ASSERT_EQ(GetMenuItemCount(menu), 2);
    std::set<UINT> threeD, twoD;
    collectCommands(GetSubMenu(menu, 0), threeD);
    collectCommands(GetSubMenu(menu, 1), twoD);
    const std::set<UINT> expected3D = {
        TS_CMD_ADD_VIEWPOINT, TS_CMD_DELETE_VIEWPOINT, TS_CMD_DRAW_FILLED, TS_CMD_SHADE_FLAT,
        TS_CMD_ACTION_FLY, TS_CMD_HELP_3D_CONTROL, TS_CMD_HELP_KEYBOARD_MOUSE, TS_CMD_HOMEPAGE,
        TS_CMD_LIGHT_SETTING, TS_CMD_DRAW_LINES, TS_CMD_SHADE_NONE, TS_CMD_PROJECTION_ORTHOGONAL,
        TS_CMD_PROJECTION_PERSPECTIVE, TS_CMD_DRAW_POINTS, TS_CMD_ACTION_ROTATE, TS_CMD_SAVE_BITMAP,
        TS_CMD_SHADE_SMOOTH, TS_CMD_STOP_MOTION, TS_CMD_VIEW_SETTING, TS_CMD_ACTION_WALK,
        TS_CMD_HELP_WELCOME};
    EXPECT_EQ(threeD, expected3D);
    const std::set<UINT> expected2D = {TS_CMD_SAVE_BITMAP, TS_CMD_HELP_3D_CONTROL, TS_CMD_HELP_KEYBOARD_MOUSE,
                                       TS_CMD_HOMEPAGE, TS_CMD_HELP_WELCOME};
    EXPECT_EQ(twoD, expected2D);
    DestroyMenu(menu);
}

TST_SCENARIO(BoxAndEventThroughTheDll) {
    cWind* window = swCreateWind("Dll scene", 200, 150, 50, 40, WS_OVERLAPPEDWINDOW);
    swShowWind(window);
    cScene* scene = swCreateScene(window);
    ASSERT_NE(scene, nullptr);
    HWND hwnd = smGetHWND(scene);
    EXPECT_EQ(hwnd, sceneWindow("Dll scene"));
    snColorRGB(nullptr, 1.0f, 0.0f, 0.0f);
    snBox(nullptr, -1.0f, -1.0f, -1.0f, 1.0f, 1.0f, 1.0f, 100020 /* GLU_OUTSIDE */);
    smRefreshScene(scene);
    const tst::Rgb box = tst::screenPixel(hwnd, 100, 60);
    EXPECT_GT(box.r, 40);
    EXPECT_LT(box.g, box.r / 2);
    EXPECT_EQ(tst::screenPixel(hwnd, 3, 3), (tst::Rgb{0, 0, 0}));
    SendMessageA(hwnd, WM_COMMAND, TS_CMD_STOP_MOTION, 0);
    int* event = swGetEvent(WM_COMMAND);
    ASSERT_NE(event, nullptr);
    EXPECT_EQ(event[0], WM_COMMAND);
    EXPECT_EQ(event[1], TS_CMD_STOP_MOTION);
}
TEST(Dll, ABoxShowsInALibraryWindowAndAMenuCommandComesBackAsAnEvent) {
    expectCleanChild(tst::runScenario("BoxAndEventThroughTheDll"));
}

TEST(Dll, AHostedSceneShowsItsBackground) {
    tst::HostWindow host("Dll host");
    ASSERT_NE(host.scene, nullptr);
    smBackground(0.0f, 0.0f, 1.0f);
    EXPECT_EQ(host.paintAndRead(80, 60), (tst::Rgb{0, 0, 255}));
}

TST_SCENARIO(NullNodeEndsTheProcess) { smAddNode(nullptr); }
TEST(Dll, TheGuardOfTheDllEndsTheProcessWithItsMessage) {
    const tst::ChildResult r = tst::runScenario("NullNodeEndsTheProcess");
    EXPECT_EQ(r.exitCode, 1u);
    ASSERT_EQ(r.boxes.size(), 1u);
    EXPECT_EQ(r.boxes[0].title, "Tessarin Error Message");
    EXPECT_EQ(r.boxes[0].text, "Pointer to inaccessible memory: smAddNode(NodeToAdd)");
}

TEST(Dll, AGifWrittenByTheDllReadsBack) {
    // A 2 x 2 bitmap of 8 bits with a two-colour palette: black, white / white, black.
    const DWORD size = 40 + 2 * 4 + 2 * 4;
    HGLOBAL block = GlobalAlloc(GMEM_MOVEABLE | GMEM_ZEROINIT, size);
    ASSERT_NE(block, nullptr);
    auto* info = static_cast<BITMAPINFO*>(GlobalLock(block));
    info->bmiHeader.biSize = 40;
    info->bmiHeader.biWidth = 2;
    info->bmiHeader.biHeight = 2;
    info->bmiHeader.biPlanes = 1;
    info->bmiHeader.biBitCount = 8;
    info->bmiHeader.biClrUsed = 2;
    info->bmiColors[1] = RGBQUAD{255, 255, 255, 0};
    BYTE* rows = reinterpret_cast<BYTE*>(info) + 40 + 2 * 4;
    rows[0] = 0, rows[1] = 1, rows[4] = 1, rows[5] = 0;
    GlobalUnlock(block);
    char path[MAX_PATH];
    GetTempPathA(MAX_PATH, path);
    const std::string file = std::string(path) + "tessarin_dll_test.gif";
    ASSERT_TRUE(dibWriteGIF(file.c_str(), block, 89, FALSE));
    EXPECT_TRUE(dibIsGIFFile(file.c_str()));
    EXPECT_EQ(dibGIFGetVersion(), 512);
    HGLOBAL back = dibReadGIF(file.c_str());
    ASSERT_NE(back, nullptr);
    EXPECT_EQ(dibGetWidth(back), 2);
    EXPECT_EQ(dibGetHeight(back), 2);
    EXPECT_EQ(dibGetBitPerPixel(back), 8);
    GlobalFree(back);
    GlobalFree(block);
    DeleteFileA(file.c_str());
}
