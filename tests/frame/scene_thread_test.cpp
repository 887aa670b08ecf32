// The scene thread, the request protocol, library windows, scene creation and the
// event queue, with the library linked in. Each scenario runs in a child process of its
// own, because the scene thread starts once per process and never again.
#include <gtest/gtest.h>

#include <windows.h>
#include <tlhelp32.h>

#include <thread>
#include <vector>

#include "support/child_process.h"
#include "support/host_window.h"
#include "support/thread_watch.h"
#include "tessarin.h"
#include "thread/cwind.h"
#include "tsobj3d/cgroup.h"
#include "view/scene/cscene.h"

namespace {

constexpr UINT kSetForeground = 0x10000;

void expectCleanChild(const tst::ChildResult& r) { EXPECT_EQ(r.exitCode, 0u) << r.output; }

int threadCount() {
    HANDLE snapshot = CreateToolhelp32Snapshot(TH32CS_SNAPTHREAD, 0);
    THREADENTRY32 entry = {};
    entry.dwSize = sizeof(entry);
    int count = 0;
    for (BOOL more = Thread32First(snapshot, &entry); more; more = Thread32Next(snapshot, &entry)) {
        if (entry.th32OwnerProcessID == GetCurrentProcessId()) ++count;
    }
    CloseHandle(snapshot);
    return count;
}

HWND hwndOf(cWind* window) { return window->hWnd; }
DWORD sceneThreadOf(cWind* window) { return GetWindowThreadProcessId(window->hWnd, nullptr); }

cWind* openSceneWindow(cScene** scene = nullptr, int x = 50) {
    cWind* window = swCreateWind("Scene window", 200, 150, x, 40, WS_OVERLAPPEDWINDOW);
    swShowWind(window);
    cScene* s = swCreateScene(window);
    if (scene != nullptr) *scene = s;
    return window;
}

LPARAM position(int x, int y) { return MAKELPARAM(x, y); }

}  // namespace

// --- thread start and end ----------------------------------------------------------------

TST_SCENARIO(LoadingCreatesNoThreadOrClass) {
    HMODULE library = tst::libraryModule();
    WNDCLASSA info;
    EXPECT_FALSE(GetClassInfoA(library, "TESSARIN", &info));
    EXPECT_FALSE(GetClassInfoA(library, "DummyThread", &info));
    const int before = threadCount();
    cWind* window = swCreateWind("First", 100, 100, 10, 10, WS_OVERLAPPEDWINDOW);
    ASSERT_NE(window, nullptr);
    EXPECT_EQ(threadCount(), before + 1);
    EXPECT_TRUE(GetClassInfoA(library, "TESSARIN", &info));
    EXPECT_EQ(info.style, static_cast<UINT>(CS_HREDRAW | CS_VREDRAW | CS_OWNDC));
    EXPECT_TRUE(GetClassInfoA(library, "DummyThread", &info));
    EXPECT_EQ(info.style, static_cast<UINT>(CS_HREDRAW | CS_VREDRAW));
    HWND dummy = FindWindowA("DummyThread", "Dummy");
    ASSERT_NE(dummy, nullptr);
    EXPECT_FALSE(IsWindowVisible(dummy));
    EXPECT_NE(GetWindowThreadProcessId(dummy, nullptr), GetCurrentThreadId());
}
TEST(SceneThread, LoadingCreatesNoThreadAndTheFirstWindowStartsIt) {
    expectCleanChild(tst::runScenario("LoadingCreatesNoThreadOrClass"));
}

TST_SCENARIO(LinkedInTheLibraryIsTheProgram) {
    cScene* scene = nullptr;
    openSceneWindow(&scene);
    ASSERT_NE(scene, nullptr);
    WNDCLASSA info;
    EXPECT_TRUE(GetClassInfoA(GetModuleHandleA(nullptr), "TESSARIN", &info));
    EXPECT_EQ(tst::libraryModule(), GetModuleHandleA(nullptr));
    EXPECT_NE(scene->menu, nullptr);  // the menu resource of the program itself
    EXPECT_EQ(GetModuleHandleA("Tessarin20b.dll"), nullptr);
}
TEST(SceneThread, LinkedIntoAProgramTheLibraryUsesItsModuleAndNeverLoadsTheDll) {
    expectCleanChild(tst::runScenario("LinkedInTheLibraryIsTheProgram"));
}

TST_SCENARIO(KeyBeforeSceneIsDropped) {
    cWind* window = swCreateWind("No scene yet", 200, 150, 50, 40, WS_OVERLAPPEDWINDOW);
    swShowWind(window);
    tst::MessageWatch watch(sceneThreadOf(window));
    EXPECT_TRUE(watch.postAndWait(hwndOf(window), WM_KEYDOWN, 'A', 1));
    EXPECT_TRUE(watch.postAndWait(hwndOf(window), WM_LBUTTONDOWN, 0, position(5, 5)));
    ASSERT_NE(swCreateScene(window), nullptr);
    EXPECT_EQ(swEventExists(0), 0);
    EXPECT_TRUE(watch.postAndWait(hwndOf(window), WM_LBUTTONDOWN, 0, position(6, 6)));
    EXPECT_EQ(swEventExists(WM_LBUTTONDOWN), 1);
}
TEST(SceneThread, InputBeforeTheSceneExistsIsNotSeen) {
    expectCleanChild(tst::runScenario("KeyBeforeSceneIsDropped"));
}

TST_SCENARIO(ThreadEndsWithTheSceneWindow) {
    cWind* other = swCreateWind("Other", 120, 100, 300, 40, WS_OVERLAPPEDWINDOW);
    cWind* window = openSceneWindow();
    HANDLE thread = OpenThread(SYNCHRONIZE, FALSE, sceneThreadOf(window));
    ASSERT_NE(thread, nullptr);
    tst::MessageBoxCapture capture;
    swDeleteWind(window);
    EXPECT_EQ(WaitForSingleObject(thread, 10000), WAIT_OBJECT_0);
    CloseHandle(thread);
    swShowWind(other);
    EXPECT_EQ(capture.count(), 0u);
    EXPECT_FALSE(IsWindowVisible(other->hWnd));
    EXPECT_EQ(swCreateWind("Never", 100, 100, 0, 0, 0), nullptr);  // no restart
    EXPECT_EQ(capture.count(), 1u);
}
TEST(SceneThread, DeletingTheSceneWindowEndsTheThreadForGood) {
    const tst::ChildResult r = tst::runScenario("ThreadEndsWithTheSceneWindow");
    expectCleanChild(r);
    ASSERT_EQ(r.boxes.size(), 1u);
    EXPECT_EQ(r.boxes[0].text, "swCreateWind: Window creation failed!");
}

namespace {
BOOL WINAPI versionOfWindows98(OSVERSIONINFOA* info) {
    info->dwPlatformId = VER_PLATFORM_WIN32_WINDOWS;
    return TRUE;
}
std::string consoleClassAsked;
HWND WINAPI recordFindWindow(LPCSTR className, LPCSTR) {
    consoleClassAsked = className != nullptr ? className : "";
    return nullptr;
}
}  // namespace

TST_SCENARIO(ConsoleClassOutsideNt) {
    HMODULE library = tst::libraryModule();
    tst::ImportPatch version(library, "kernel32.dll", "GetVersionExA", reinterpret_cast<void*>(versionOfWindows98));
    tst::ImportPatch find(library, "user32.dll", "FindWindowA", reinterpret_cast<void*>(recordFindWindow));
    swCreateWind("Console", 100, 100, 0, 0, WS_OVERLAPPEDWINDOW);
    EXPECT_EQ(consoleClassAsked, "tty");
}
TEST(SceneThread, OutsideTheNtFamilyTheConsoleIsSearchedAsTty) {
    expectCleanChild(tst::runScenario("ConsoleClassOutsideNt"));
}

TST_SCENARIO(ConsoleClassOnNt) {
    HMODULE library = tst::libraryModule();
    tst::ImportPatch find(library, "user32.dll", "FindWindowA", reinterpret_cast<void*>(recordFindWindow));
    swCreateWind("Console", 100, 100, 0, 0, WS_OVERLAPPEDWINDOW);
    EXPECT_EQ(consoleClassAsked, "ConsoleWindowClass");
}
TEST(SceneThread, OnNtTheConsoleIsSearchedAsConsoleWindowClass) {
    expectCleanChild(tst::runScenario("ConsoleClassOnNt"));
}

// --- not initialised ---------------------------------------------------------------------

TST_SCENARIO(CallsBeforeTheThread) {
    cWind fake = {};
    swShowWind(&fake);
    swHideWind(&fake);
    swSizeWind(&fake, 1, 2, 3, 4);
    swDeleteWind(&fake);
    EXPECT_EQ(swCreateScene(&fake), nullptr);
    EXPECT_EQ(swEventExists(0), 0);
    EXPECT_EQ(swGetEvent(0), nullptr);
    const swEventRecord record = swWaitForEvent(1, 0);
    EXPECT_EQ(record.scene, nullptr);
    printf("STILL RUNNING\n");
}
TEST(SceneThread, SwCallsBeforeTheThreadReportNotInitialisedAndReturn) {
    const tst::ChildResult r = tst::runScenario("CallsBeforeTheThread");
    expectCleanChild(r);
    EXPECT_NE(r.output.find("STILL RUNNING"), std::string::npos);
    ASSERT_EQ(r.boxes.size(), 8u);
    for (const tst::ChildBox& box : r.boxes) {
        EXPECT_EQ(box.title, "Tessarin Error Message");
        EXPECT_EQ(box.text, "Tessarin Window is not initialized!");
        EXPECT_EQ(box.style, kSetForeground);
    }
}

TST_SCENARIO(CreateSceneNullWhileRunning) {
    swCreateWind("Running", 100, 100, 0, 0, WS_OVERLAPPEDWINDOW);
    EXPECT_EQ(swCreateScene(nullptr), nullptr);
}
TEST(SceneThread, CreateSceneOfNullReportsNotInitialisedEvenWhileRunning) {
    const tst::ChildResult r = tst::runScenario("CreateSceneNullWhileRunning");
    expectCleanChild(r);
    ASSERT_EQ(r.boxes.size(), 1u);
    EXPECT_EQ(r.boxes[0].text, "Tessarin Window is not initialized!");
}

TST_SCENARIO(ShowWindNullProbes) { swShowWind(nullptr); }
TEST(SceneThread, WindowCallsProbeTheirWindow) {
    const tst::ChildResult r = tst::runScenario("ShowWindNullProbes");
    EXPECT_EQ(r.exitCode, 1u);
    ASSERT_EQ(r.boxes.size(), 1u);
    EXPECT_EQ(r.boxes[0].text, "Pointer to inaccessible memory: swShowWind(window)");
}

TST_SCENARIO(HandlersRefusedWithLibraryWindows) {
    swCreateWind("Library window", 100, 100, 0, 0, WS_OVERLAPPEDWINDOW);
    tst::GlWindow own;
    EXPECT_EQ(seOnCreate(own.hwnd, "Mine"), nullptr);
}
TEST(SceneThread, SeOnCreateIsRefusedOnceLibraryWindowsExist) {
    const tst::ChildResult r = tst::runScenario("HandlersRefusedWithLibraryWindows");
    expectCleanChild(r);
    ASSERT_EQ(r.boxes.size(), 1u);
    EXPECT_EQ(r.boxes[0].text, "Don't use Tessarin event handlers with Tessarin windows!");
}

// --- request protocol --------------------------------------------------------------------

TST_SCENARIO(RequestsAndGaps) {
    cScene* first = nullptr;
    cScene* second = nullptr;
    cWind* w1 = openSceneWindow(&first, 20);
    cWind* w2 = openSceneWindow(&second, 260);
    EXPECT_EQ(smGetHWND(first), w1->hWnd);
    EXPECT_EQ(smGetHWND(second), w2->hWnd);
    EXPECT_EQ(smGetHDC(first), first->dc);
    EXPECT_EQ(smGetHGLRC(second), second->glrc);
    HWND dummy = FindWindowA("DummyThread", "Dummy");
    for (UINT gap : {WM_USER + 106, WM_USER + 110, WM_USER + 215, WM_USER + 216, WM_USER + 221}) {
        EXPECT_EQ(SendMessageA(dummy, gap, 1, 2), 0) << gap;
    }
    char caption[16] = {};
    EXPECT_EQ(SendMessageA(dummy, WM_GETTEXT, sizeof(caption), reinterpret_cast<LPARAM>(caption)), 5);
    EXPECT_STREQ(caption, "Dummy");
}
TEST(Requests, SceneArgumentsAndDefaultProcessing) { expectCleanChild(tst::runScenario("RequestsAndGaps")); }

TEST(Requests, DirectPathAnswersForTheCurrentScene) {
    tst::HostWindow first("first");
    tst::HostWindow second("second");
    EXPECT_EQ(smGetHWND(first.scene), second.hwnd);  // the current scene is the second
    smCurrentScene(first.scene);
    EXPECT_EQ(smGetHWND(second.scene), first.hwnd);
    EXPECT_EQ(smGetHDC(second.scene), first.scene->dc);
    EXPECT_EQ(smGetHGLRC(second.scene), first.scene->glrc);
}

namespace {
class Marker : public cNode {
public:
    explicit Marker(int i) : cNode(1003), index(i) {}
    void draw(ts::DrawContext&) override {}
    void hook() override {}
    int index;
};
}  // namespace

TST_SCENARIO(TwoThreadsInOrder) {
    cScene* scene = nullptr;
    openSceneWindow(&scene);
    constexpr int kPerThread = 300;
    auto sender = [](int base) {
        for (int i = 0; i < kPerThread; ++i) smAddNode(new Marker(base + i));
    };
    std::thread a(sender, 0), b(sender, 10000);
    a.join();
    b.join();
    int lastA = -1, lastB = 9999, count = 0;
    for (cNode* n = scene->list3D->head; n != nullptr; n = n->next, ++count) {
        const int index = static_cast<Marker*>(n)->index;
        int& last = index < 10000 ? lastA : lastB;
        EXPECT_EQ(index, last + 1);
        last = index;
    }
    EXPECT_EQ(count, 2 * kPerThread);
    EXPECT_EQ(scene->list3D->count, static_cast<uint32_t>(2 * kPerThread));
}
TEST(Requests, RequestsFromTwoThreadsAreServedInOrder) { expectCleanChild(tst::runScenario("TwoThreadsInOrder")); }

// --- windows and registry ----------------------------------------------------------------

TST_SCENARIO(SizeOfHiddenWindowIsDropped) {
    cWind* window = swCreateWind("Sized", 220, 160, 30, 50, WS_OVERLAPPEDWINDOW);
    swSizeWind(window, 400, 300, 100, 80);
    swShowWind(window);
    RECT r;
    GetWindowRect(window->hWnd, &r);
    EXPECT_EQ(r.left, 30);
    EXPECT_EQ(r.top, 50);
    EXPECT_EQ(r.right - r.left, 220);
    EXPECT_EQ(r.bottom - r.top, 160);
    swSizeWind(window, 60, 70, 180, 140);
    GetWindowRect(window->hWnd, &r);
    EXPECT_EQ(r.left, 60);
    EXPECT_EQ(r.top, 70);
    EXPECT_EQ(r.right - r.left, 180);
    EXPECT_EQ(window->left, 30);  // the creation rectangle is never updated
    swHideWind(window);
    EXPECT_FALSE(IsWindowVisible(window->hWnd));
    EXPECT_EQ(window->visible, 0);
}
TEST(Windows, SizingAHiddenWindowIsDroppedAndShowingUsesTheCreationRectangle) {
    expectCleanChild(tst::runScenario("SizeOfHiddenWindowIsDropped"));
}

namespace {
int showMessages = 0;
HWND watchedWindow = nullptr;
LRESULT CALLBACK countShows(int code, WPARAM wParam, LPARAM lParam) {
    const CWPSTRUCT* call = reinterpret_cast<const CWPSTRUCT*>(lParam);
    if (code == HC_ACTION && call->hwnd == watchedWindow && call->message == WM_SHOWWINDOW && call->wParam) ++showMessages;
    return CallNextHookEx(nullptr, code, wParam, lParam);
}
}  // namespace

TST_SCENARIO(TwoShowsShowOnce) {
    cWind* window = swCreateWind("Shown", 120, 100, 30, 50, WS_OVERLAPPEDWINDOW);
    watchedWindow = window->hWnd;
    HHOOK hook = SetWindowsHookExA(WH_CALLWNDPROC, countShows, nullptr, sceneThreadOf(window));
    swShowWind(window);
    swShowWind(window);
    UnhookWindowsHookEx(hook);
    EXPECT_EQ(showMessages, 1);
    EXPECT_TRUE(IsWindowVisible(window->hWnd));
    EXPECT_EQ(window->visible, 1);
}
TEST(Windows, TwoShowCallsShowTheWindowOnce) { expectCleanChild(tst::runScenario("TwoShowsShowOnce")); }

TST_SCENARIO(LongTitleIsCut) {
    const std::string title(100, 'T');
    cWind* window = swCreateWind(title.c_str(), 120, 100, 30, 50, WS_OVERLAPPEDWINDOW);
    char caption[128] = {};
    GetWindowTextA(window->hWnd, caption, sizeof(caption));
    EXPECT_EQ(std::string(caption), std::string(63, 'T'));
}
TEST(Windows, TitlesLongerThan63CharactersAreCut) { expectCleanChild(tst::runScenario("LongTitleIsCut")); }

// --- scene creation ----------------------------------------------------------------------

TST_SCENARIO(ThirdSceneGetsListThree) {
    tst::HostWindow a("a"), b("b"), c("c");
    EXPECT_EQ(a.scene->displayList, 1u);
    EXPECT_EQ(b.scene->displayList, 2u);
    EXPECT_EQ(c.scene->displayList, 3u);
    EXPECT_STREQ(c.scene->name, "c");
}
TEST(SceneCreation, TheThirdSceneGetsDisplayListThree) { expectCleanChild(tst::runScenario("ThirdSceneGetsListThree")); }

TST_SCENARIO(BackgroundBrush) {
    cScene* scene = nullptr;
    cWind* window = openSceneWindow(&scene);
    smBackground(1.0f, 0.5f, 0.0f);
    LOGBRUSH brush = {};
    GetObjectA(scene->backgroundBrush, sizeof(brush), &brush);
    EXPECT_EQ(brush.lbColor, RGB(255, 127, 0));
    smRefreshScene(scene);
    const tst::Rgb shown = tst::screenPixel(window->hWnd, 20, 20);
    EXPECT_EQ(shown, (tst::Rgb{255, 127, 0}));
}
TEST(SceneCreation, BackgroundMakesATruncatedBrushAndAnEmptySceneShowsIt) {
    expectCleanChild(tst::runScenario("BackgroundBrush"));
}

TST_SCENARIO(SceneCursors) {
    cScene* scene = nullptr;
    openSceneWindow(&scene);
    HMODULE library = tst::libraryModule();
    const int ids[] = {112, 1, 2, 109, 110};
    for (int i = 0; i < 5; ++i) {
        EXPECT_NE(FindResourceA(library, MAKEINTRESOURCEA(ids[i]), MAKEINTRESOURCEA(12)), nullptr) << ids[i];
        EXPECT_NE(scene->cursors[i], nullptr) << i;
    }
    EXPECT_EQ(scene->cursors[5], LoadCursorA(nullptr, MAKEINTRESOURCEA(32512)));
    EXPECT_NE(LoadIconA(library, MAKEINTRESOURCEA(1)), nullptr);
}
TEST(SceneCreation, SixCursorsAreLoadedFromTheLibrary) { expectCleanChild(tst::runScenario("SceneCursors")); }

// A window handle that names no window has no device context to choose a format for.
TST_SCENARIO(PixelFormatFailure) {
    atexit([] { printf("ATEXIT RAN\n"); fflush(stdout); });
    seOnCreate(reinterpret_cast<HWND>(static_cast<uintptr_t>(0x7FF0)), "No window");
}
TEST(SceneCreation, NoPixelFormatEndsTheProcessNormally) {
    const tst::ChildResult r = tst::runScenario("PixelFormatFailure");
    EXPECT_EQ(r.exitCode, 1u);
    ASSERT_EQ(r.boxes.size(), 1u);
    EXPECT_EQ(r.boxes[0].title, "Error");
    EXPECT_EQ(r.boxes[0].text, "ChoosePixelFormat failed");
    EXPECT_EQ(r.boxes[0].style, 0u);
    EXPECT_NE(r.output.find("ATEXIT RAN"), std::string::npos);
}

TST_SCENARIO(BoxShowsAfterRefresh) {
    cScene* scene = nullptr;
    cWind* window = openSceneWindow(&scene);
    smRefreshScene(scene);
    const tst::Rgb background = tst::screenPixel(window->hWnd, 100, 60);
    EXPECT_EQ(background, (tst::Rgb{0, 0, 0}));
    snColorRGB(nullptr, 1.0f, 0.0f, 0.0f);
    snBox(nullptr, -1.0f, -1.0f, -1.0f, 1.0f, 1.0f, 1.0f, 100020 /* GLU_OUTSIDE */);
    EXPECT_EQ(tst::screenPixel(window->hWnd, 100, 60), background);  // adding does not draw
    smRefreshScene(scene);
    const tst::Rgb box = tst::screenPixel(window->hWnd, 100, 60);
    // No light is on: the box shows in the 0.2 ambient light of the light model.
    EXPECT_GT(box.r, 40);
    EXPECT_LT(box.g, box.r / 2);
    EXPECT_LT(box.b, box.r / 2);
    EXPECT_EQ(tst::screenPixel(window->hWnd, 3, 3), background);  // the box does not fill the window
}
TEST(SceneCreation, ABoxShowsInTheWindowOnlyAfterARefresh) {
    expectCleanChild(tst::runScenario("BoxShowsAfterRefresh"));
}

TST_SCENARIO(PaintVisitsEveryScene) {
    cScene* first = nullptr;
    cScene* second = nullptr;
    cWind* w1 = openSceneWindow(&first, 20);
    cWind* w2 = openSceneWindow(&second, 260);
    smRefreshScene(second);
    EXPECT_EQ(tst::screenPixel(w2->hWnd, 10, 10), (tst::Rgb{0, 0, 0}));
    smBackground(0.0f, 0.0f, 1.0f);  // the current scene is the second one
    second->idle = 0;                // a scene that is not idle is drawn by any paint
    tst::MessageWatch watch(GetWindowThreadProcessId(w1->hWnd, nullptr));
    watch.expect(WM_PAINT);
    InvalidateRect(w1->hWnd, nullptr, FALSE);
    EXPECT_TRUE(watch.wait());
    EXPECT_EQ(swEventExists(0), 0);  // a request after the paint: the paint is done
    EXPECT_EQ(tst::screenPixel(w2->hWnd, 10, 10), (tst::Rgb{0, 0, 255}));
}
TEST(Requests, APaintOfOneWindowVisitsEveryRegisteredScene) {
    expectCleanChild(tst::runScenario("PaintVisitsEveryScene"));
}
