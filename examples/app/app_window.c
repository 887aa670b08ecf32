/* app_window.c - a scene in a window that the application owns: its window procedure
 * hands each message to the library's se* handlers, and its own message loop runs the
 * scene (no library thread). Left drag turns the scene. With "--screenshot FILE" it
 * draws once, writes the window to FILE (BMP) and exits. Uses only the public header. */
#include <string.h>

#include <windows.h>
#include <GL/glu.h>

#include "screenshot.h"
#include "tessarin.h"

static void addScene(void) {
    float light[3] = {-1.0f, 1.0f, 1.0f};
    smLightDirection(0, 1, 1, light);
    smBackground(0.15f, 0.2f, 0.25f);
    snRotate(NULL, 25.0f, 1.0f, 1.0f, 0.0f, 0.0f);
    snColorRGB(NULL, 0.95f, 0.6f, 0.2f);
    snCylinder(NULL, 1.2f, 0.6f, 0.0f, TRUE, TRUE, 24, 2, GLU_FILL, GLU_SMOOTH, GLU_OUTSIDE);
    snColorRGB(NULL, 0.6f, 0.8f, 1.0f);
    snDisk(NULL, 0.7f, 1.1f, 32, 1, 0.0f, 360.0f, GLU_FILL, GLU_SMOOTH, GLU_OUTSIDE);
}

static LRESULT CALLBACK windowProc(HWND hwnd, UINT msg, WPARAM wParam, LPARAM lParam) {
    switch (msg) {
    case WM_CREATE:
        if (seOnCreate(hwnd, "app window") == NULL) return -1;
        addScene();
        return 0;
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
    case WM_DESTROY: return seOnDestroy(hwnd);
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
    wc.lpszClassName = "TessarinAppWindow";
    if (!RegisterClassA(&wc)) return NULL;
    return CreateWindowA("TessarinAppWindow", "Tessarin in an application window",
                         WS_OVERLAPPEDWINDOW | WS_CLIPCHILDREN | WS_CLIPSIBLINGS,
                         100, 100, 480, 360, NULL, NULL, wc.hInstance, NULL);
}

int main(int argc, char** argv) {
    HWND hwnd = createWindow();
    if (hwnd == NULL) return 1;
    ShowWindow(hwnd, SW_SHOW);
    UpdateWindow(hwnd);
    if (argc == 3 && strcmp(argv[1], "--screenshot") == 0) {
        const int saved = saveWindowBmp(hwnd, argv[2]);
        DestroyWindow(hwnd);
        return saved ? 0 : 1;
    }
    MSG msg;
    while (GetMessageA(&msg, NULL, 0, 0) > 0) {
        TranslateMessage(&msg);
        DispatchMessageA(&msg);
    }
    return 0;
}
