/* app_menu.c - a scene in a window that the application owns, with a menu bar of the
 * application's own beside the library's context menu. The window procedure handles
 * the commands of its menu bar and hands every other WM_COMMAND, and the right mouse
 * button, to the library (seOnCommand, seOnRButtonDown), so the context menu with its
 * modes, viewpoints, settings dialogs, bitmap saving and help works in the
 * application's window too. The message loop gives the library's settings dialogs their
 * keyboard. With "--screenshot FILE" it draws once, writes the whole window (menu bar
 * included) to FILE (BMP) and exits. Uses only the public header. */
#include <string.h>

#include <windows.h>
#include <GL/glu.h>

#include "screenshot.h"
#include "tessarin.h"

/* The application's own commands: far below the library's (20001 and up). */
enum {
    APP_SAVE = 100,
    APP_EXIT,
    APP_RESET_VIEW,
    APP_WIREFRAME,
    APP_VIEW_SETTINGS,
    APP_LIGHT_SETTINGS,
    APP_HELP_KEYS,
    APP_ABOUT
};

static cScene* scene;
static HWND mainWindow;
static int wireframe;

static void addScene(void) {
    float light[3] = {-1.0f, 1.0f, 1.0f};
    smLightDirection(0, 1, 1, light);
    smBackground(0.12f, 0.14f, 0.2f);
    snRotate(NULL, 30.0f, 1.0f, 1.0f, 0.0f, 0.0f);
    snColorRGB(NULL, 0.3f, 0.75f, 0.4f);
    snBox(NULL, -1.4f, -0.3f, -0.8f, -0.2f, 0.9f, 0.4f, GLU_OUTSIDE);
    snColorRGB(NULL, 0.95f, 0.55f, 0.2f);
    snTranslate(NULL, 0.8f, 0.2f, 0.0f);
    snSphere(NULL, 0.7f, 32, 16, GLU_FILL, GLU_SMOOTH, GLU_OUTSIDE);
}

static HMENU createMenuBar(void) {
    HMENU bar = CreateMenu(), file = CreatePopupMenu(), view = CreatePopupMenu(), help = CreatePopupMenu();
    AppendMenuA(file, MF_STRING, APP_SAVE, "&Save as Bitmap...");
    AppendMenuA(file, MF_SEPARATOR, 0, NULL);
    AppendMenuA(file, MF_STRING, APP_EXIT, "E&xit");
    AppendMenuA(view, MF_STRING, APP_RESET_VIEW, "&Reset View");
    AppendMenuA(view, MF_STRING, APP_WIREFRAME, "&Wireframe");
    AppendMenuA(view, MF_SEPARATOR, 0, NULL);
    AppendMenuA(view, MF_STRING, APP_VIEW_SETTINGS, "View &Settings...");
    AppendMenuA(view, MF_STRING, APP_LIGHT_SETTINGS, "&Light Settings...");
    AppendMenuA(help, MF_STRING, APP_HELP_KEYS, "&Keyboard and Mouse");
    AppendMenuA(help, MF_STRING, APP_ABOUT, "&About");
    AppendMenuA(bar, MF_POPUP, (UINT_PTR)file, "&File");
    AppendMenuA(bar, MF_POPUP, (UINT_PTR)view, "&View");
    AppendMenuA(bar, MF_POPUP, (UINT_PTR)help, "&Help");
    return bar;
}

/* The application's commands; 0 for a command that is not the application's. */
static int appCommand(HWND hwnd, WORD id) {
    switch (id) {
    /* The library's own command does the saving: the window's pixels, the dialog, the file. */
    case APP_SAVE: seOnCommand(hwnd, TS_CMD_SAVE_BITMAP, 0); return 1;
    case APP_EXIT: DestroyWindow(hwnd); return 1;
    case APP_RESET_VIEW: smResetPos(); smRefreshScene(scene); return 1;
    case APP_WIREFRAME:
        wireframe = !wireframe;
        smDrawMode(wireframe ? TS_DRAW_LINES : TS_DRAW_FILLED);
        CheckMenuItem(GetMenu(hwnd), APP_WIREFRAME, wireframe ? MF_CHECKED : MF_UNCHECKED);
        smRefreshScene(scene);
        return 1;
    case APP_VIEW_SETTINGS: smViewDialog(scene); return 1;
    case APP_LIGHT_SETTINGS: smLightDialog(scene); return 1;
    case APP_HELP_KEYS: smOpenDocu("fsKeyboard.html"); return 1;
    case APP_ABOUT:
        MessageBoxA(hwnd, "A scene in the application's own window.\nRight-click it for the library's menu.",
                    "About", MB_OK);
        return 1;
    default: return 0;
    }
}

static LRESULT CALLBACK windowProc(HWND hwnd, UINT msg, WPARAM wParam, LPARAM lParam) {
    switch (msg) {
    case WM_CREATE:
        scene = seOnCreate(hwnd, "app menu");
        if (scene == NULL) return -1;
        addScene();
        return 0;
    case WM_COMMAND:
        if (lParam == 0 && appCommand(hwnd, LOWORD(wParam))) return 0;
        return seOnCommand(hwnd, wParam, lParam); /* the context menu's commands */
    case WM_RBUTTONDOWN: return seOnRButtonDown(hwnd, wParam, lParam);
    case WM_PAINT: return seOnPaint(hwnd);
    case WM_ERASEBKGND: return seOnEraseBkgnd(hwnd);
    case WM_SIZE: return seOnSize(hwnd);
    case WM_MOVE: return seOnMove(hwnd);
    case WM_LBUTTONDOWN: return seOnLButtonDown(hwnd, wParam, lParam);
    case WM_LBUTTONUP: return seOnLButtonUp(hwnd, wParam, lParam);
    case WM_MOUSEMOVE: return seOnMouseMove(hwnd, wParam, lParam);
    case WM_KEYDOWN: return seOnKeyDown(hwnd, wParam, lParam);
    case WM_KEYUP: return seOnKeyUp(hwnd, wParam, lParam);
    case WM_CHAR: return seOnChar(hwnd, wParam, lParam);
    case WM_DESTROY: return seOnDestroy(hwnd); /* posts the quit message */
    default: return DefWindowProcA(hwnd, msg, wParam, lParam);
    }
}

static HWND createWindow(void) {
    WNDCLASSA wc;
    memset(&wc, 0, sizeof wc);
    wc.style = CS_OWNDC | CS_HREDRAW | CS_VREDRAW; /* OpenGL keeps one device context */
    wc.lpfnWndProc = windowProc;
    wc.hInstance = GetModuleHandleA(NULL);
    wc.hCursor = LoadCursorA(NULL, (LPCSTR)IDC_ARROW);
    wc.lpszClassName = "TessarinAppMenu";
    if (!RegisterClassA(&wc)) return NULL;
    return CreateWindowA("TessarinAppMenu", "Tessarin with a menu of its own",
                         WS_OVERLAPPEDWINDOW | WS_CLIPCHILDREN | WS_CLIPSIBLINGS, 120, 120, 480, 360, NULL,
                         createMenuBar(), wc.hInstance, NULL);
}

int main(int argc, char** argv) {
    mainWindow = createWindow();
    if (mainWindow == NULL) return 1;
    ShowWindow(mainWindow, SW_SHOW);
    UpdateWindow(mainWindow);
    if (argc == 3 && strcmp(argv[1], "--screenshot") == 0) {
        const int saved = saveWholeWindowBmp(mainWindow, argv[2]);
        DestroyWindow(mainWindow);
        return saved ? 0 : 1;
    }
    MSG msg;
    while (GetMessageA(&msg, NULL, 0, 0) > 0) {
        /* The settings dialogs are the active window while the user works in them. */
        HWND active = GetActiveWindow();
        if (active != NULL && active != mainWindow && IsDialogMessageA(active, &msg)) continue;
        TranslateMessage(&msg);
        DispatchMessageA(&msg);
    }
    return 0;
}
