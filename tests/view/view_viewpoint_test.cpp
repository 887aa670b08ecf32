// Viewpoints through the exports: the first one, numbering kept as it stands, the
// Viewpoints submenu read back from the menu, the name prompt, the delete question,
// and applying a viewpoint in each action mode.
#include <gtest/gtest.h>

#include <cmath>
#include <string>
#include <vector>

#include "support/msgbox_capture.h"
#include "tessarin.h"
#include "view/scene/cscene.h"
#include "view/viewpoints/viewpoints.h"
#include "view_fixture.h"

namespace {

using vt::ViewTest;

struct MenuEntry {
    unsigned id;
    std::string text;
    bool operator==(const MenuEntry& o) const { return id == o.id && text == o.text; }
};

std::ostream& operator<<(std::ostream& out, const MenuEntry& e) { return out << e.id << ":" << e.text; }

class Viewpoints : public ViewTest {
protected:
    HMENU submenu() const { return GetSubMenu(GetSubMenu(scene()->menu, 0), 0); }
    // The viewpoint entries: every item above the separator.
    std::vector<MenuEntry> entries() const {
        std::vector<MenuEntry> result;
        const int count = GetMenuItemCount(submenu());
        for (int i = 0; i < count; ++i) {
            const UINT id = GetMenuItemID(submenu(), i);
            if (id == 0) break;  // the separator
            char text[128] = {};
            GetMenuStringA(submenu(), i, text, sizeof(text), MF_BYPOSITION);
            result.push_back({id, text});
        }
        return result;
    }
    static smViewpointRecord record(const char* name, float angle, float ax, float ay, float az) {
        smViewpointRecord r = {};
        snprintf(r.name, sizeof(r.name), "%s", name);
        r.pos[2] = 8.0f;
        r.axis[0] = ax;
        r.axis[1] = ay;
        r.axis[2] = az;
        r.rotAngle = angle;
        r.viewAngle = 30.0;
        return r;
    }
    int add(const char* name) { return smViewpointAdd(const_cast<char*>(name), nullptr); }
};

using Entries = std::vector<MenuEntry>;

}  // namespace

TEST_F(Viewpoints, SceneStartsWithTheInitialViewpoint) {
    ASSERT_NE(scene()->viewpoints.first, nullptr);
    EXPECT_STREQ(scene()->viewpoints.first->name, "Default");
    EXPECT_EQ(scene()->viewpoints.first->id, 20200u);
    EXPECT_EQ(entries(), (Entries{{20200, "Default"}}));
    // The two commands stay below the entries.
    EXPECT_EQ(GetMenuItemID(submenu(), 2), 20001u);
    EXPECT_EQ(GetMenuItemID(submenu(), 3), 20002u);
}

TEST_F(Viewpoints, IdsAreKeptAsTheyStandAfterADelete) {
    EXPECT_EQ(add("one"), 1);
    EXPECT_EQ(add("two"), 1);
    EXPECT_EQ(entries(), (Entries{{20200, "Default"}, {20201, "one"}, {20202, "two"}}));
    EXPECT_EQ(smViewpointDel(const_cast<char*>("Default")), 1);
    EXPECT_EQ(add("three"), 1);
    EXPECT_EQ(entries(), (Entries{{20201, "one"}, {20202, "two"}, {20202, "three"}}));
    EXPECT_STREQ(scene()->viewpoints.current->name, "three");
    // Choosing either entry with 20202 goes to the first viewpoint with that id.
    EXPECT_TRUE(ts::viewpointCommand(scene(), 20202));
    EXPECT_STREQ(scene()->viewpoints.current->name, "two");
    EXPECT_FALSE(ts::viewpointCommand(scene(), 20299));
}

TEST_F(Viewpoints, DeleteByNameTakesTheFirstAndUnknownNamesChangeNothing) {
    add("same");
    add("same");
    EXPECT_EQ(smViewpointDel(const_cast<char*>("nothing")), 0);
    EXPECT_EQ(smViewpointDel(const_cast<char*>("Same")), 0);
    EXPECT_EQ(smViewpointDel(const_cast<char*>("same")), 1);
    EXPECT_EQ(entries(), (Entries{{20200, "Default"}, {20202, "same"}}));
    EXPECT_STREQ(scene()->viewpoints.current->name, "Default");  // the predecessor
}

TEST_F(Viewpoints, DeletingTheCurrentOneAsksFirst) {
    tst::MessageBoxCapture capture(IDNO);
    add("kept");
    EXPECT_EQ(smViewpointDel(nullptr), 0);
    capture.setButton(IDYES);
    EXPECT_EQ(smViewpointDel(nullptr), 1);
    ASSERT_EQ(capture.count(), 2u);
    const tst::CapturedBox box = capture.boxes()[1];
    EXPECT_EQ(box.title, "Delete Viewpoint");
    EXPECT_EQ(box.text, "Do you want to delete viewpoint: kept");
    EXPECT_EQ(box.style, static_cast<UINT>(MB_YESNO | MB_SETFOREGROUND));
    EXPECT_EQ(box.owner, nullptr);
    EXPECT_EQ(entries(), (Entries{{20200, "Default"}}));
}

TEST_F(Viewpoints, DeletingFromAnEmptyListSaysSo) {
    tst::MessageBoxCapture capture(IDOK);
    EXPECT_EQ(smViewpointDel(const_cast<char*>("Default")), 1);
    EXPECT_TRUE(entries().empty());
    EXPECT_EQ(scene()->viewpoints.first, nullptr);
    EXPECT_EQ(smViewpointDel(nullptr), 0);
    EXPECT_EQ(smViewpointDel(const_cast<char*>("Default")), 0);
    ASSERT_EQ(capture.count(), 2u);
    EXPECT_EQ(capture.boxes()[0].text, "No viewpoint to delete.");
    EXPECT_EQ(capture.boxes()[0].title, "Delete Viewpoint");
    EXPECT_EQ(capture.boxes()[0].style, static_cast<UINT>(MB_SETFOREGROUND));
    EXPECT_EQ(add("fresh"), 1);
    EXPECT_EQ(entries(), (Entries{{20200, "fresh"}}));
}

TEST_F(Viewpoints, RecordIsCopiedWholeAndItsNameArgumentIgnored) {
    smViewpointRecord r = record("recorded", 90.0f, 0, 1, 0);
    EXPECT_EQ(smViewpointAdd(const_cast<char*>("ignored"), &r), 1);
    const cViewpoint* vp = scene()->viewpoints.last;
    EXPECT_STREQ(vp->name, "recorded");
    EXPECT_EQ(vp->pos[2], 8.0f);
    EXPECT_EQ(vp->rotAngle, 90.0f);
    EXPECT_EQ(vp->viewAngle, 30.0);
    EXPECT_EQ(entries().back(), (MenuEntry{20201, "recorded"}));
}

TEST_F(Viewpoints, SettingOneAppliesItInRotateMode) {
    addQuad(1, 1, 1);  // the rotation is folded by a pass that draws 3D content
    smViewpointRecord r = record("side", 90.0f, 0, 1, 0);
    smViewpointAdd(nullptr, &r);
    smRotation(45.0f, 1.0f, 0.0f, 0.0f);
    scene()->motionRunning = 1;
    EXPECT_EQ(smViewpointSet(const_cast<char*>("side")), 1);
    EXPECT_EQ(scene()->motionRunning, 0);
    EXPECT_EQ(scene()->pos[2], 8.0f);
    EXPECT_EQ(scene()->angle, 30.0);
    EXPECT_EQ(scene()->rotAngle, 0.0f);
    float expected[16];
    vt::rotation(90.0f, 0.0f, 1.0f, 0.0f, expected);
    vt::expectMatrixNear(scene()->rotMatrix, expected);
    EXPECT_EQ(smViewpointSet(const_cast<char*>("missing")), 0);
}

TEST_F(Viewpoints, SettingOneInFlyModeTurnsTheLookVectors) {
    smActionMode(TS_FLY);
    smViewpointRecord r = record("fly", 90.0f, 0, 1, 0);
    smViewpointAdd(nullptr, &r);
    EXPECT_EQ(smViewpointSet(const_cast<char*>("fly")), 1);
    // The camera turned by -90 about y: it looks along +x from (-8, 0, 0).
    EXPECT_NEAR(scene()->dir[0], 1.0f, 1e-5f);
    EXPECT_NEAR(scene()->pos[0], -8.0f, 1e-4f);
    EXPECT_NEAR(scene()->right[2], 1.0f, 1e-5f);
}

TEST_F(Viewpoints, AViewpointOfTheCameraRestoresIt) {
    addQuad(1, 0, 0, 0.4f, 1.0f, 0.0f);
    smShadeMode(TS_SHADE_NONE);
    smRotation(90.0f, 0.0f, 0.0f, 1.0f);
    const tst::Rgb above = paint(80, 60 - 24);
    EXPECT_EQ(above, (tst::Rgb{255, 0, 0}));
    EXPECT_EQ(add("turned"), 1);
    EXPECT_NEAR(scene()->viewpoints.last->rotAngle, 90.0f, 1e-3f);
    smResetPos();
    EXPECT_EQ(paint(80, 60 - 24), (tst::Rgb{0, 0, 0}));
    smViewpointSet(const_cast<char*>("turned"));
    EXPECT_EQ(pixel(80, 60 - 24), above);
}

namespace {

struct LookCamera {
    float pos[3], dir[3], up[3];
};

LookCamera lookCameraOf(const cScene* s) {
    LookCamera c;
    for (int k = 0; k < 3; ++k) c.pos[k] = s->pos[k], c.dir[k] = s->dir[k], c.up[k] = s->up[k];
    return c;
}

void expectSameCamera(const LookCamera& actual, const LookCamera& expected) {
    for (int k = 0; k < 3; ++k) {
        EXPECT_NEAR(actual.pos[k], expected.pos[k], 1e-4f) << "pos " << k;
        EXPECT_NEAR(actual.dir[k], expected.dir[k], 1e-5f) << "dir " << k;
        EXPECT_NEAR(actual.up[k], expected.up[k], 1e-5f) << "up " << k;
    }
}

}  // namespace

// A viewpoint taken of a flying or walking camera brings back that camera: eye, dir and
// up, after the camera has moved elsewhere.
TEST_F(Viewpoints, AViewpointAddedInFlyOrWalkModeRestoresThatCamera) {
    addQuad(1, 1, 1);
    for (int mode : {TS_FLY, TS_WALK}) {
        smActionMode(mode);
        // Looking down and to the left from off the axis: dir and up are orthonormal.
        const float d = 1.0f / std::sqrt(0.16f + 0.09f + 1.0f);
        const float dir[3] = {-0.4f * d, -0.3f * d, -1.0f * d};
        float up[3] = {-dir[1] * dir[0], 1.0f - dir[1] * dir[1], -dir[1] * dir[2]};
        const float n = std::sqrt(up[0] * up[0] + up[1] * up[1] + up[2] * up[2]);
        for (float& c : up) c /= n;
        smLookAt(1.5f, 2.0f, 4.0f, dir[0], dir[1], dir[2], up[0], up[1], up[2]);
        const LookCamera captured = lookCameraOf(scene());
        const char* name = mode == TS_FLY ? "flying" : "walking";
        ASSERT_EQ(add(name), 1);
        smLookAt(-3.0f, 0.5f, 1.0f, 1.0f, 0.0f, 0.0f, 0.0f, 0.0f, 1.0f);
        ASSERT_EQ(smViewpointSet(const_cast<char*>(name)), 1);
        SCOPED_TRACE(name);
        expectSameCamera(lookCameraOf(scene()), captured);
    }
}

namespace {

// Answers the name prompt from inside the thread that shows it: when the dialog is
// activated, its text and owner are noted, the name is typed and OK is pressed.
struct PromptAnswer {
    const char* name = nullptr;  // null: press Cancel
    std::string caption;
    std::string label;
    HWND owner = nullptr;
};
PromptAnswer* answer = nullptr;

BOOL CALLBACK findLabel(HWND child, LPARAM) {
    char text[64] = {};
    GetWindowTextA(child, text, sizeof(text));
    if (std::string(text).find("viewpoint") != std::string::npos) answer->label = text;
    return TRUE;
}

LRESULT CALLBACK onActivate(int code, WPARAM wParam, LPARAM lParam) {
    if (code == HCBT_ACTIVATE && answer != nullptr) {
        HWND dialog = reinterpret_cast<HWND>(wParam);
        char caption[64] = {};
        GetWindowTextA(dialog, caption, sizeof(caption));
        answer->caption = caption;
        answer->owner = GetWindow(dialog, GW_OWNER);
        EnumChildWindows(dialog, findLabel, 0);
        if (answer->name != nullptr) SetDlgItemTextA(dialog, 1001, answer->name);
        PostMessageA(dialog, WM_COMMAND, answer->name != nullptr ? IDOK : IDCANCEL, 0);
        answer = nullptr;
    }
    return CallNextHookEx(nullptr, code, wParam, lParam);
}

int addAnswering(PromptAnswer& a) {
    answer = &a;
    HHOOK hook = SetWindowsHookExA(WH_CBT, onActivate, nullptr, GetCurrentThreadId());
    const int result = smViewpointAdd(nullptr, nullptr);
    UnhookWindowsHookEx(hook);
    answer = nullptr;
    return result;
}

}  // namespace

TEST_F(Viewpoints, WithoutNameOrRecordTheUserNamesIt) {
    PromptAnswer typed;
    typed.name = "Typed name";
    EXPECT_EQ(addAnswering(typed), 1);
    EXPECT_EQ(typed.label, "Enter viewpoint name:");
    EXPECT_EQ(typed.owner, host.hwnd);
    EXPECT_EQ(entries().back(), (MenuEntry{20201, "Typed name"}));
    PromptAnswer cancelled;
    EXPECT_EQ(addAnswering(cancelled), 0);
    EXPECT_EQ(entries().size(), 2u);
}
