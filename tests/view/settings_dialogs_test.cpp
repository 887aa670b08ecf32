// The View Settings and Light Settings dialogs driven as a user drives them: found by
// title, edit texts set, the focus moved, buttons pressed and trackbars moved with the
// keyboard, on a library window (the dialogs run on the scene thread) and in an
// application window. The scene's camera and lights are read back from the scene.
#include <windows.h>
#include <commctrl.h>
#include <GL/glu.h>

#include <cmath>
#include <cstdio>
#include <memory>
#include <string>

#include <gtest/gtest.h>

#include "resource_ids.h"
#include "support/child_process.h"
#include "support/gl_window.h"
#include "support/gui_objects.h"
#include "support/host_window.h"
#include "support/menu_watch.h"
#include "support/thread_watch.h"
#include "tessarin.h"
#include "view/scene/cscene.h"

namespace {

void expectCleanChild(const tst::ChildResult& r) { EXPECT_EQ(r.exitCode, 0u) << r.output; }

std::string shotsFolder() { return TESSARIN_SHOTS_DIR; }

// A library window with a lit white box.
struct DialogScene {
    explicit DialogScene(const char* title = "Dialog scene", int x = 40) {
        window = swCreateWind(title, 240, 180, x, 40, WS_OVERLAPPEDWINDOW);
        swShowWind(window);
        scene = swCreateScene(window);
        hwnd = smGetHWND(scene);
        float light[3] = {0.0f, 0.0f, 1.0f};
        smLightDirection(0, 1, 1, light);
        snColorRGB(nullptr, 1.0f, 1.0f, 1.0f);
        snBox(nullptr, -1.0f, -1.0f, -1.0f, 1.0f, 1.0f, 1.0f, GLU_OUTSIDE);
        smRefreshScene(scene);
    }
    void barrier() { SendMessageA(hwnd, WM_NULL, 0, 0); }

    cWind* window = nullptr;
    cScene* scene = nullptr;
    HWND hwnd = nullptr;
};

HWND viewDialog(cScene* scene) {
    smViewDialog(scene);
    return FindWindowA("#32770", "View Settings");
}

HWND lightDialog(cScene* scene) {
    smLightDialog(scene);
    return FindWindowA("#32770", "Light Settings");
}

std::string text(HWND dialog, int id) {
    char buffer[128] = "";
    GetDlgItemTextA(dialog, id, buffer, sizeof(buffer));
    return buffer;
}

void type(HWND dialog, int id, const char* value) {
    SendMessageA(GetDlgItem(dialog, id), WM_SETTEXT, 0, reinterpret_cast<LPARAM>(value));
}

// The keyboard focus moves to control id, as Tab or a click would move it.
void focus(HWND dialog, int id) { SendMessageA(dialog, WM_NEXTDLGCTL, reinterpret_cast<WPARAM>(GetDlgItem(dialog, id)), TRUE); }

void click(HWND dialog, int id) { SendMessageA(GetDlgItem(dialog, id), BM_CLICK, 0, 0); }

bool checked(HWND dialog, int id) { return IsDlgButtonChecked(dialog, id) == BST_CHECKED; }

bool visible(HWND dialog, int id) { return IsWindowVisible(GetDlgItem(dialog, id)) != FALSE; }

// A key pressed on a control that has the focus.
void key(HWND dialog, int id, WORD virtualKey) {
    focus(dialog, id);
    HWND control = GetDlgItem(dialog, id);
    SendMessageA(control, WM_KEYDOWN, virtualKey, 1);
    SendMessageA(control, WM_KEYUP, virtualKey, 0xC0000001);
}

int slider(HWND dialog, int id) { return static_cast<int>(SendDlgItemMessageA(dialog, id, TBM_GETPOS, 0, 0)); }

void expectSlider(HWND dialog, int id, int maximum, int ticks) {
    EXPECT_EQ(SendDlgItemMessageA(dialog, id, TBM_GETRANGEMIN, 0, 0), 0) << id;
    EXPECT_EQ(SendDlgItemMessageA(dialog, id, TBM_GETRANGEMAX, 0, 0), maximum) << id;
    // The first and the last position count as ticks too.
    EXPECT_EQ(SendDlgItemMessageA(dialog, id, TBM_GETNUMTICS, 0, 0), ticks) << id;
}

// The dialog painted in full now (its controls paint on their own thread otherwise),
// then written as a picture for the help pages.
bool savePicture(HWND dialog, const char* name) {
    RedrawWindow(dialog, nullptr, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_FRAME | RDW_UPDATENOW | RDW_ALLCHILDREN);
    CreateDirectoryA(shotsFolder().c_str(), nullptr);
    return tst::saveWindowsBmp({dialog}, shotsFolder() + "/" + name);
}

std::string hex(const void* p) {
    char buffer[24];
    std::snprintf(buffer, sizeof(buffer), "%llX", static_cast<unsigned long long>(reinterpret_cast<uintptr_t>(p)));
    return buffer;
}

void expectVector(const float* v, float x, float y, float z) {
    EXPECT_NEAR(v[0], x, 1e-5f);
    EXPECT_NEAR(v[1], y, 1e-5f);
    EXPECT_NEAR(v[2], z, 1e-5f);
}

const int kPos[3] = {TS_IDC_VIEW_POS_X, TS_IDC_VIEW_POS_Y, TS_IDC_VIEW_POS_Z};
const int kSecond[3] = {TS_IDC_VIEW_COL2_X, TS_IDC_VIEW_COL2_Y, TS_IDC_VIEW_COL2_Z};
const int kThird[3] = {TS_IDC_VIEW_COL3_X, TS_IDC_VIEW_COL3_Y, TS_IDC_VIEW_COL3_Z};

void typeVector(HWND dialog, const int (&ids)[3], const char* x, const char* y, const char* z) {
    type(dialog, ids[0], x);
    type(dialog, ids[1], y);
    type(dialog, ids[2], z);
}

// The sum of red, green and blue at the middle of the client area.
int brightness(HWND window) {
    RECT client;
    GetClientRect(window, &client);
    const tst::Rgb c = tst::screenPixel(window, client.right / 2, client.bottom / 2);
    return c.r + c.g + c.b;
}

}  // namespace

// --- View Settings -------------------------------------------------------------------

TST_SCENARIO(ViewOpens) {
    DialogScene s;
    HWND d = viewDialog(s.scene);
    ASSERT_NE(d, nullptr);
    EXPECT_EQ(s.scene->viewDialog, d);
    EXPECT_EQ(GetWindow(d, GW_OWNER), s.hwnd);
    EXPECT_EQ(text(d, TS_IDC_VIEW_POS_X), "  0.00");
    EXPECT_EQ(text(d, TS_IDC_VIEW_POS_Y), "  0.00");
    EXPECT_EQ(text(d, TS_IDC_VIEW_POS_Z), "  5.00");
    EXPECT_EQ(text(d, TS_IDC_VIEW_COL2_CAPTION), "Rotation Axis");
    EXPECT_TRUE(visible(d, TS_IDC_VIEW_ANGLE));
    EXPECT_FALSE(visible(d, TS_IDC_VIEW_COL3_X));
    EXPECT_EQ(text(d, TS_IDC_VIEW_FOV), "45.00");
    EXPECT_EQ(slider(d, TS_IDC_VIEW_FOV_SLIDER), 45);
    expectSlider(d, TS_IDC_VIEW_FOV_SLIDER, 180, 7);
    EXPECT_EQ(text(d, TS_IDC_VIEW_NEAR), "0.01");
    EXPECT_EQ(text(d, TS_IDC_VIEW_FAR), "1000");
    char fps[32];
    std::snprintf(fps, sizeof(fps), "%3.2f", 1000.0 / static_cast<double>(s.scene->frameTime));
    EXPECT_EQ(text(d, TS_IDC_VIEW_FPS), fps);
    EXPECT_TRUE(checked(d, TS_IDC_UPDATE));
    EXPECT_TRUE(checked(d, TS_IDC_VIEW_ROTATE));
    EXPECT_FALSE(checked(d, TS_IDC_VIEW_FLY));
    // The scene travels as hexadecimal text in a hidden edit.
    EXPECT_EQ(text(d, TS_IDC_SCENE_HANDLE), hex(s.scene));
    EXPECT_FALSE(visible(d, TS_IDC_SCENE_HANDLE));
    // A second call raises the same dialog.
    EXPECT_EQ(viewDialog(s.scene), d);
    EXPECT_EQ(s.scene->viewDialog, d);
    EXPECT_TRUE(savePicture(d, "view_settings.bmp"));
    click(d, IDCANCEL);
    EXPECT_FALSE(IsWindow(d));
    EXPECT_EQ(s.scene->viewDialog, nullptr);
}
TEST(ViewSettings, OpensWithTheCameraItsCaptionsAndUpdateChecked) { expectCleanChild(tst::runScenario("ViewOpens")); }

TST_SCENARIO(ViewAppliesInRotate) {
    DialogScene s;
    HWND d = viewDialog(s.scene);
    ASSERT_NE(d, nullptr);
    s.scene->motionRunning = 1;
    focus(d, TS_IDC_VIEW_POS_X);
    typeVector(d, kPos, "1", "2", "8");
    typeVector(d, kSecond, "0", "1", "0");
    type(d, TS_IDC_VIEW_ANGLE, "90");
    type(d, TS_IDC_VIEW_NEAR, "0.5");
    type(d, TS_IDC_VIEW_FAR, "50");
    type(d, TS_IDC_VIEW_FOV, "200");
    focus(d, TS_IDC_VIEW_POS_Y);  // the first edit loses the focus: everything applies
    cScene* c = s.scene;
    expectVector(c->pos, 1.0f, 2.0f, 8.0f);
    expectVector(c->rotAxis, 0.0f, 1.0f, 0.0f);
    EXPECT_EQ(c->rotAngle, 0.0f);  // folded into the matrix by the pass, then cleared
    EXPECT_EQ(c->motionRunning, 0);
    const float expected[16] = {0, 0, -1, 0, 0, 1, 0, 0, 1, 0, 0, 0, 0, 0, 0, 1};
    for (int k = 0; k < 16; ++k) EXPECT_NEAR(c->rotMatrix[k], expected[k], 1e-6f) << k;
    EXPECT_EQ(c->clipnear, 0.5);
    EXPECT_EQ(c->clipfar, 50.0);
    EXPECT_EQ(c->angle, 180.0);  // clamped
    // The pass showed what it used.
    EXPECT_EQ(text(d, TS_IDC_VIEW_POS_Z), "  8.00");
    EXPECT_EQ(text(d, TS_IDC_VIEW_ANGLE), " 90.00");
    EXPECT_EQ(text(d, TS_IDC_VIEW_FOV), "180.00");
    // Unchecked "Update": nothing applies, not even "OK"; checking it again applies.
    click(d, TS_IDC_UPDATE);
    EXPECT_FALSE(checked(d, TS_IDC_UPDATE));
    focus(d, TS_IDC_VIEW_POS_Z);
    type(d, TS_IDC_VIEW_POS_Z, "3");
    focus(d, TS_IDC_VIEW_POS_X);
    EXPECT_EQ(c->pos[2], 8.0f);
    click(d, TS_IDC_UPDATE);
    EXPECT_TRUE(checked(d, TS_IDC_UPDATE));
    EXPECT_EQ(c->pos[2], 3.0f);
    // Cancel closes and applies nothing.
    focus(d, IDOK);
    type(d, TS_IDC_VIEW_POS_Z, "4");
    click(d, IDCANCEL);
    EXPECT_FALSE(IsWindow(d));
    EXPECT_EQ(c->pos[2], 3.0f);
    // OK applies, then closes.
    d = viewDialog(s.scene);
    focus(d, IDOK);
    type(d, TS_IDC_VIEW_POS_Z, "6");
    type(d, TS_IDC_VIEW_FOV, "abc");  // no number: the angle stays
    click(d, IDOK);
    EXPECT_FALSE(IsWindow(d));
    EXPECT_EQ(c->pos[2], 6.0f);
    EXPECT_EQ(c->angle, 180.0);
}
TEST(ViewSettings, RotateFieldsApplyOnFocusLossUpdateAndOkOnlyWhileUpdateIsChecked) {
    expectCleanChild(tst::runScenario("ViewAppliesInRotate"));
}

TST_SCENARIO(ViewInFly) {
    DialogScene s;
    HWND d = viewDialog(s.scene);
    ASSERT_NE(d, nullptr);
    click(d, TS_IDC_VIEW_FLY);  // switches at once, as smActionMode does
    cScene* c = s.scene;
    EXPECT_EQ(c->action_mode, TS_FLY);
    EXPECT_TRUE(checked(d, TS_IDC_VIEW_FLY));
    EXPECT_FALSE(checked(d, TS_IDC_VIEW_ROTATE));
    EXPECT_EQ(text(d, TS_IDC_VIEW_COL2_CAPTION), "Look at");
    EXPECT_EQ(text(d, TS_IDC_VIEW_COL3_CAPTION), "Look up");
    EXPECT_FALSE(visible(d, TS_IDC_VIEW_ANGLE));
    EXPECT_TRUE(visible(d, TS_IDC_VIEW_COL3_Y));
    EXPECT_EQ(text(d, TS_IDC_VIEW_COL2_Z), " -1.00");
    EXPECT_EQ(text(d, TS_IDC_VIEW_COL3_Y), "  1.00");
    focus(d, TS_IDC_VIEW_COL2_X);
    typeVector(d, kPos, "0", "0", "7");
    typeVector(d, kSecond, "-1", "0", "0");
    typeVector(d, kThird, "0", "0", "1");
    focus(d, TS_IDC_UPDATE);  // the edit loses the focus: the fields apply
    expectVector(c->pos, 0.0f, 0.0f, 7.0f);
    expectVector(c->dir, -1.0f, 0.0f, 0.0f);
    expectVector(c->up, 0.0f, 0.0f, 1.0f);
    expectVector(c->right, 0.0f, 1.0f, 0.0f);  // dir x up
    EXPECT_EQ(c->action_mode, TS_FLY);
    click(d, TS_IDC_VIEW_ROTATE);
    EXPECT_EQ(c->action_mode, TS_ROTATE);
    EXPECT_EQ(text(d, TS_IDC_VIEW_COL2_CAPTION), "Rotation Axis");
    EXPECT_TRUE(visible(d, TS_IDC_VIEW_ANGLE));
}
TEST(ViewSettings, FlyShowsAndAppliesTheLookVectors) { expectCleanChild(tst::runScenario("ViewInFly")); }

TST_SCENARIO(ViewTrackbar) {
    DialogScene s;
    HWND d = viewDialog(s.scene);
    ASSERT_NE(d, nullptr);
    key(d, TS_IDC_VIEW_FOV_SLIDER, VK_END);
    EXPECT_EQ(text(d, TS_IDC_VIEW_FOV), "180.00");
    EXPECT_EQ(s.scene->angle, 180.0);
    key(d, TS_IDC_VIEW_FOV_SLIDER, VK_HOME);
    key(d, TS_IDC_VIEW_FOV_SLIDER, VK_RIGHT);
    EXPECT_EQ(slider(d, TS_IDC_VIEW_FOV_SLIDER), 1);
    EXPECT_EQ(text(d, TS_IDC_VIEW_FOV), "1.00");
    EXPECT_EQ(s.scene->angle, 1.0);
    click(d, TS_IDC_UPDATE);
    key(d, TS_IDC_VIEW_FOV_SLIDER, VK_NEXT);
    const int moved = slider(d, TS_IDC_VIEW_FOV_SLIDER);
    EXPECT_GT(moved, 1);
    EXPECT_EQ(text(d, TS_IDC_VIEW_FOV), std::to_string(moved) + ".00");
    EXPECT_EQ(s.scene->angle, 1.0);  // shown, not applied
}
TEST(ViewSettings, TheTrackbarShowsItsPositionAndSetsTheViewAngleWhileUpdateIsChecked) {
    expectCleanChild(tst::runScenario("ViewTrackbar"));
}

TST_SCENARIO(ViewFollowsNavigation) {
    DialogScene s;
    HWND d = viewDialog(s.scene);
    ASSERT_NE(d, nullptr);
    tst::MessageWatch watch(GetWindowThreadProcessId(s.hwnd, nullptr));
    ASSERT_TRUE(watch.postAndWait(s.hwnd, WM_KEYDOWN, VK_NEXT, 1));  // Page Down: the eye moves up
    s.barrier();
    EXPECT_EQ(text(d, TS_IDC_VIEW_POS_Y), "  0.10");
    click(d, TS_IDC_UPDATE);  // unchecked: the fields stay
    ASSERT_TRUE(watch.postAndWait(s.hwnd, WM_KEYDOWN, VK_NEXT, 1));
    s.barrier();
    EXPECT_NEAR(s.scene->pos[1], 0.2f, 1e-6f);
    EXPECT_EQ(text(d, TS_IDC_VIEW_POS_Y), "  0.10");
}
TEST(ViewSettings, EveryPassRefreshesTheFieldsWhileUpdateIsChecked) {
    expectCleanChild(tst::runScenario("ViewFollowsNavigation"));
}

TST_SCENARIO(ViewSceneIsTheHiddenText) {
    DialogScene a("Scene A", 20);
    DialogScene b("Scene B", 300);
    HWND d = viewDialog(a.scene);
    ASSERT_NE(d, nullptr);
    // The dialog reads its scene back from the hidden edit on every message.
    type(d, TS_IDC_SCENE_HANDLE, hex(b.scene).c_str());
    type(d, TS_IDC_VIEW_POS_X, "2.5");
    click(d, TS_IDC_UPDATE);
    click(d, TS_IDC_UPDATE);
    EXPECT_EQ(b.scene->pos[0], 2.5f);
    EXPECT_EQ(a.scene->pos[0], 0.0f);
    type(d, TS_IDC_SCENE_HANDLE, hex(a.scene).c_str());
    click(d, IDCANCEL);
    EXPECT_EQ(a.scene->viewDialog, nullptr);
}
TEST(ViewSettings, TheDialogFindsItsSceneInTheHiddenEdit) {
    expectCleanChild(tst::runScenario("ViewSceneIsTheHiddenText"));
}

TST_SCENARIO(ViewNullScene) { smViewDialog(nullptr); }
TST_SCENARIO(LightNullScene) { smLightDialog(nullptr); }
TEST(SettingsDialogs, ANullSceneFailsTheAssertion) {
    tst::ChildResult r = tst::runScenario("ViewNullScene");
    EXPECT_EQ(r.exitCode, 3u) << r.output;
    EXPECT_NE(r.output.find("SceneWindow != NULL"), std::string::npos) << r.output;
    EXPECT_NE(r.output.find("..\\source\\user3d_uti.cpp"), std::string::npos) << r.output;
    EXPECT_NE(r.output.find("242"), std::string::npos) << r.output;
    r = tst::runScenario("LightNullScene");
    EXPECT_EQ(r.exitCode, 3u) << r.output;
    EXPECT_NE(r.output.find("233"), std::string::npos) << r.output;
}

TEST(SettingsDialogs, InAnApplicationWindowTheyOpenForTheCurrentScene) {
    tst::HostWindow host("Hosted dialogs");
    tst::HostWindow other("Other hosted");  // now the current scene
    HWND d = viewDialog(host.scene);      // the argument is not used on this path
    ASSERT_NE(d, nullptr);
    EXPECT_EQ(other.scene->viewDialog, d);
    EXPECT_EQ(host.scene->viewDialog, nullptr);
    EXPECT_EQ(GetWindow(d, GW_OWNER), other.hwnd);
    HWND l = lightDialog(host.scene);
    ASSERT_NE(l, nullptr);
    EXPECT_EQ(other.scene->lightDialog, l);
    click(d, IDCANCEL);
    click(l, IDCANCEL);
    EXPECT_EQ(other.scene->viewDialog, nullptr);
    EXPECT_EQ(other.scene->lightDialog, nullptr);
}

// --- Light Settings ------------------------------------------------------------------

namespace {

int colorEdit(int base, int k) { return base + k; }
int colorSlider(int base, int k) { return base + TS_IDC_LIGHT_COLOR_SLIDER + k; }
int colorEqual(int base) { return base + TS_IDC_LIGHT_COLOR_EQUAL; }

}  // namespace

TST_SCENARIO(LightOpens) {
    DialogScene s;
    HWND d = lightDialog(s.scene);
    ASSERT_NE(d, nullptr);
    EXPECT_EQ(s.scene->lightDialog, d);
    HWND list = GetDlgItem(d, TS_IDC_LIGHT_LIST);
    ASSERT_EQ(SendMessageA(list, LB_GETCOUNT, 0, 0), 8);
    for (int i = 0; i < 8; ++i) {
        char item[32] = "";
        SendMessageA(list, LB_GETTEXT, i, reinterpret_cast<LPARAM>(item));
        EXPECT_EQ(std::string(item), " LIGHT " + std::to_string(i));
        EXPECT_EQ(SendMessageA(list, LB_GETITEMDATA, i, 0), i);
    }
    EXPECT_EQ(SendMessageA(list, LB_GETCURSEL, 0, 0), 0);
    EXPECT_TRUE(checked(d, TS_IDC_LIGHT_ON));  // the scene switched light 0 on
    EXPECT_TRUE(checked(d, TS_IDC_LIGHT_PARALLEL));
    EXPECT_FALSE(checked(d, TS_IDC_LIGHT_POINT));
    EXPECT_TRUE(checked(d, TS_IDC_LIGHT_WORLDPOS));
    EXPECT_EQ(text(d, TS_IDC_LIGHT_POS_Z), "1.00");
    EXPECT_EQ(text(d, TS_IDC_LIGHT_DIR_Z), "-1.00");
    EXPECT_EQ(text(d, colorEdit(TS_IDC_LIGHT_AMBIENT, 0)), "0.10");
    EXPECT_EQ(slider(d, colorSlider(TS_IDC_LIGHT_AMBIENT, 2)), 10);
    EXPECT_EQ(text(d, colorEdit(TS_IDC_LIGHT_DIFFUSE, 1)), "0.60");
    EXPECT_EQ(slider(d, colorSlider(TS_IDC_LIGHT_DIFFUSE, 1)), 60);
    EXPECT_EQ(slider(d, colorSlider(TS_IDC_LIGHT_SPECULAR, 0)), 50);
    for (int base : {TS_IDC_LIGHT_AMBIENT, TS_IDC_LIGHT_DIFFUSE, TS_IDC_LIGHT_SPECULAR}) {
        EXPECT_TRUE(checked(d, colorEqual(base)));
        for (int k = 0; k < 3; ++k) expectSlider(d, colorSlider(base, k), 100, 11);
    }
    expectSlider(d, TS_IDC_LIGHT_CUT_SLIDER, 180, 13);
    EXPECT_EQ(text(d, TS_IDC_LIGHT_CUT), "180.00");
    EXPECT_EQ(slider(d, TS_IDC_LIGHT_CUT_SLIDER), 180);
    EXPECT_EQ(text(d, TS_IDC_LIGHT_EXP), "0.00");
    EXPECT_EQ(text(d, TS_IDC_LIGHT_CONST), "1.00");
    EXPECT_EQ(text(d, TS_IDC_LIGHT_LINEAR), "0.00");
    EXPECT_EQ(text(d, TS_IDC_LIGHT_QUAD), "0.00");
    EXPECT_TRUE(checked(d, TS_IDC_UPDATE));
    EXPECT_EQ(text(d, TS_IDC_SCENE_HANDLE), hex(s.scene));
    EXPECT_TRUE(savePicture(d, "light_settings.bmp"));
    // Another light, chosen in the list with the keyboard, shows its own values.
    float red[3] = {0.9f, 0.1f, 0.1f};
    smLightColor(3, nullptr, red, nullptr);
    float spot[3] = {0.0f, -1.0f, 0.0f};
    smLightSpot(3, spot, 30.0f, 0.25f);
    for (int i = 0; i < 3; ++i) key(d, TS_IDC_LIGHT_LIST, VK_DOWN);
    EXPECT_EQ(SendMessageA(list, LB_GETCURSEL, 0, 0), 3);
    EXPECT_FALSE(checked(d, TS_IDC_LIGHT_ON));
    EXPECT_TRUE(checked(d, TS_IDC_LIGHT_POINT));
    EXPECT_EQ(text(d, colorEdit(TS_IDC_LIGHT_DIFFUSE, 0)), "0.90");
    EXPECT_EQ(slider(d, colorSlider(TS_IDC_LIGHT_DIFFUSE, 0)), 90);
    EXPECT_FALSE(checked(d, colorEqual(TS_IDC_LIGHT_DIFFUSE)));
    EXPECT_TRUE(checked(d, colorEqual(TS_IDC_LIGHT_AMBIENT)));
    EXPECT_EQ(text(d, colorEdit(TS_IDC_LIGHT_AMBIENT, 0)), "0.20");
    EXPECT_EQ(text(d, TS_IDC_LIGHT_DIR_Y), "-1.00");
    EXPECT_EQ(text(d, TS_IDC_LIGHT_CUT), "30.00");
    EXPECT_EQ(slider(d, TS_IDC_LIGHT_CUT_SLIDER), 30);
    EXPECT_EQ(text(d, TS_IDC_LIGHT_EXP), "0.25");
    click(d, IDCANCEL);
    EXPECT_EQ(s.scene->lightDialog, nullptr);
}
TEST(LightSettings, ListsTheEightLightsAndShowsTheSelectedOne) { expectCleanChild(tst::runScenario("LightOpens")); }

TST_SCENARIO(LightApplies) {
    DialogScene s;
    HWND d = lightDialog(s.scene);
    ASSERT_NE(d, nullptr);
    key(d, TS_IDC_LIGHT_LIST, VK_DOWN);  // light 1
    const cLight& l = s.scene->lights[1];
    focus(d, TS_IDC_LIGHT_POS_X);
    typeVector(d, {TS_IDC_LIGHT_POS_X, TS_IDC_LIGHT_POS_Y, TS_IDC_LIGHT_POS_Z}, "0", "0.5", "2");
    typeVector(d, {TS_IDC_LIGHT_DIR_X, TS_IDC_LIGHT_DIR_Y, TS_IDC_LIGHT_DIR_Z}, "0", "0", "-2");
    click(d, colorEqual(TS_IDC_LIGHT_AMBIENT));  // off: three values
    typeVector(d, {TS_IDC_LIGHT_AMBIENT, TS_IDC_LIGHT_AMBIENT + 1, TS_IDC_LIGHT_AMBIENT + 2}, "0.3", "0.4", "1.5");
    type(d, TS_IDC_LIGHT_CUT, "200");
    type(d, TS_IDC_LIGHT_EXP, "0.5");
    type(d, TS_IDC_LIGHT_CONST, "2");
    type(d, TS_IDC_LIGHT_LINEAR, "0.25");
    type(d, TS_IDC_LIGHT_QUAD, "-1");
    click(d, TS_IDC_LIGHT_ON);
    click(d, TS_IDC_LIGHT_POINT);
    click(d, TS_IDC_LIGHT_WORLDPOS);  // off
    EXPECT_EQ(l.on, 1);
    EXPECT_EQ(l.pointLight, 1);
    EXPECT_EQ(l.worldPos, 0);
    expectVector(l.position, 0.0f, 0.5f, 2.0f);
    EXPECT_EQ(l.position[3], 1.0f);
    expectVector(l.spotDirection, 0.0f, 0.0f, -2.0f);
    expectVector(l.ambient, 0.3f, 0.4f, 1.0f);  // clamped to 0..1
    EXPECT_EQ(l.ambientGrey, 0);
    EXPECT_EQ(l.spotCutoff, 180.0f);
    EXPECT_EQ(l.spotExponent, 0.5f);
    EXPECT_EQ(l.constantAttenuation, 2.0f);
    EXPECT_EQ(l.linearAttenuation, 0.25f);
    EXPECT_EQ(l.quadraticAttenuation, 0.0f);
    EXPECT_EQ(text(d, TS_IDC_LIGHT_AMBIENT + 2), "1.00");  // shown as applied
    EXPECT_EQ(text(d, TS_IDC_LIGHT_QUAD), "0.00");
    // A grey colour: one typed value becomes all three when the edit loses the focus.
    focus(d, TS_IDC_LIGHT_DIFFUSE + 1);
    type(d, TS_IDC_LIGHT_DIFFUSE + 1, "0.7");
    focus(d, TS_IDC_LIGHT_EXP);
    expectVector(l.diffuse, 0.7f, 0.7f, 0.7f);
    EXPECT_EQ(text(d, TS_IDC_LIGHT_DIFFUSE), "0.70");
    type(d, TS_IDC_LIGHT_EXP, "3");
    click(d, TS_IDC_LIGHT_PARALLEL);
    EXPECT_EQ(l.spotExponent, 1.0f);  // the exponent range of smLightSpot
    EXPECT_EQ(l.pointLight, 0);
    EXPECT_EQ(l.position[3], 0.0f);
    // Unchecked "Update": nothing applies; OK with it checked applies and closes.
    click(d, TS_IDC_UPDATE);
    click(d, TS_IDC_LIGHT_ON);
    EXPECT_EQ(l.on, 1);
    click(d, TS_IDC_UPDATE);
    EXPECT_EQ(l.on, 0);
    focus(d, IDOK);
    type(d, TS_IDC_LIGHT_CONST, "3");
    click(d, IDCANCEL);
    EXPECT_EQ(l.constantAttenuation, 2.0f);
    d = lightDialog(s.scene);
    key(d, TS_IDC_LIGHT_LIST, VK_DOWN);
    focus(d, IDOK);
    type(d, TS_IDC_LIGHT_CONST, "3");
    click(d, IDOK);
    EXPECT_FALSE(IsWindow(d));
    EXPECT_EQ(l.constantAttenuation, 3.0f);
}
TEST(LightSettings, FieldsApplyToTheSelectedLightInTheirOrderOnlyWhileUpdateIsChecked) {
    expectCleanChild(tst::runScenario("LightApplies"));
}

TST_SCENARIO(LightSliders) {
    DialogScene s;
    HWND d = lightDialog(s.scene);
    ASSERT_NE(d, nullptr);
    // Beside the scene window, so that the screen shows the scene.
    SetWindowPos(d, nullptr, 400, 40, 0, 0, SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE);
    smRefreshScene(s.scene);
    const cLight& l = s.scene->lights[0];
    const int lit = brightness(s.hwnd);
    EXPECT_GT(lit, 300);
    // "equal " checked: one trackbar moves the three components, live.
    key(d, colorSlider(TS_IDC_LIGHT_DIFFUSE, 1), VK_HOME);
    expectVector(l.diffuse, 0.0f, 0.0f, 0.0f);
    for (int k = 0; k < 3; ++k) {
        EXPECT_EQ(slider(d, colorSlider(TS_IDC_LIGHT_DIFFUSE, k)), 0);
        EXPECT_EQ(text(d, colorEdit(TS_IDC_LIGHT_DIFFUSE, k)), "0.00");
    }
    s.barrier();
    EXPECT_LT(brightness(s.hwnd), lit);
    key(d, colorSlider(TS_IDC_LIGHT_DIFFUSE, 1), VK_RIGHT);
    expectVector(l.diffuse, 0.01f, 0.01f, 0.01f);
    // Without "equal " only the component moves.
    click(d, colorEqual(TS_IDC_LIGHT_DIFFUSE));
    key(d, colorSlider(TS_IDC_LIGHT_DIFFUSE, 0), VK_END);
    expectVector(l.diffuse, 1.0f, 0.01f, 0.01f);
    EXPECT_EQ(text(d, colorEdit(TS_IDC_LIGHT_DIFFUSE, 0)), "1.00");
    EXPECT_EQ(slider(d, colorSlider(TS_IDC_LIGHT_DIFFUSE, 1)), 1);
    EXPECT_EQ(l.diffuseGrey, 0);
    // The cut-off trackbar in whole degrees.
    key(d, TS_IDC_LIGHT_CUT_SLIDER, VK_HOME);
    EXPECT_EQ(l.spotCutoff, 0.0f);
    EXPECT_EQ(text(d, TS_IDC_LIGHT_CUT), "0.00");
    key(d, TS_IDC_LIGHT_CUT_SLIDER, VK_END);
    EXPECT_EQ(l.spotCutoff, 180.0f);
    // Unchecked "Update": the trackbar shows its value but the light keeps its own.
    click(d, TS_IDC_UPDATE);
    key(d, colorSlider(TS_IDC_LIGHT_SPECULAR, 2), VK_HOME);
    EXPECT_EQ(text(d, colorEdit(TS_IDC_LIGHT_SPECULAR, 2)), "0.00");
    expectVector(l.specular, 0.5f, 0.5f, 0.5f);
    click(d, IDCANCEL);
}
TEST(LightSettings, TrackbarsMoveTheirValuesLiveWhileUpdateIsChecked) {
    expectCleanChild(tst::runScenario("LightSliders"));
}

TST_SCENARIO(ThousandDialogs) {
    DialogScene s;
    for (int i = 0; i < 5; ++i) {
        click(viewDialog(s.scene), IDCANCEL);
        click(lightDialog(s.scene), IDCANCEL);
    }
    const tst::GuiObjects before = tst::guiObjects();
    for (int i = 0; i < 1000; ++i) {
        HWND d = viewDialog(s.scene);
        ASSERT_NE(d, nullptr) << i;
        click(d, IDCANCEL);
        d = lightDialog(s.scene);
        ASSERT_NE(d, nullptr) << i;
        click(d, IDCANCEL);
    }
    EXPECT_TRUE(tst::noGrowth(before, tst::guiObjects(), 2000));
}
TEST(SettingsDialogs, AThousandOpenAndCloseCyclesLeaveNoGdiOrUserObjectBehind) {
    expectCleanChild(tst::runScenario("ThousandDialogs", IDOK, 600000));
}
