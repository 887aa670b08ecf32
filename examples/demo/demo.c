/* demo.c - Tessarin demo: a scene in a window, drawn until the window is closed; with
 * "--screenshot FILE" it draws a number of frames, prints the frame rate, writes the
 * window to FILE (BMP) and exits. */
#include <stdio.h>
#include <string.h>
#include <time.h>

#include <windows.h>

#include "screenshot.h"
#include "tessarin.h"

static LRESULT CALLBACK demoProc(HWND hwnd, UINT message, WPARAM wParam, LPARAM lParam) {
    switch (message) {
    case WM_CREATE:
        return seOnCreate(hwnd, "Tessarin demo") != NULL ? 0 : -1;
    case WM_PAINT:
        return seOnPaint(hwnd);
    case WM_ERASEBKGND:
        return 1;
    case WM_DESTROY:
        return seOnDestroy(hwnd);
    default:
        return DefWindowProcA(hwnd, message, wParam, lParam);
    }
}

static HWND openWindow(void) {
    WNDCLASSA wc;
    memset(&wc, 0, sizeof(wc));
    wc.style = CS_OWNDC | CS_HREDRAW | CS_VREDRAW;
    wc.lpfnWndProc = demoProc;
    wc.hInstance = GetModuleHandleA(NULL);
    wc.hCursor = LoadCursor(NULL, IDC_ARROW);
    wc.lpszClassName = "TessarinDemo";
    RegisterClassA(&wc);
    HWND hwnd = CreateWindowA("TessarinDemo", "Tessarin demo", WS_OVERLAPPEDWINDOW, 60, 60, 640, 480, NULL, NULL,
                              wc.hInstance, NULL);
    ShowWindow(hwnd, SW_SHOWNORMAL);
    UpdateWindow(hwnd);
    return hwnd;
}

static void buildScene(void) {
    snGroup();
    smGroupEnd();
}

static int runHeadless(HWND hwnd, const char* path) {
    const int frames = 120;
    const clock_t start = clock();
    for (int i = 0; i < frames; ++i) {
        InvalidateRect(hwnd, NULL, FALSE);
        UpdateWindow(hwnd);
    }
    const double seconds = (double)(clock() - start) / CLOCKS_PER_SEC;
    printf("frames: %d in %.2f s: %.1f frames per second\n", frames, seconds, seconds > 0 ? frames / seconds : 0.0);
    if (!saveWindowBmp(hwnd, path)) {
        fprintf(stderr, "could not write %s\n", path);
        return 1;
    }
    printf("screenshot: %s\n", path);
    DestroyWindow(hwnd);
    return 0;
}

int main(int argc, char** argv) {
    HWND hwnd = openWindow();
    buildScene();
    if (argc == 3 && strcmp(argv[1], "--screenshot") == 0) return runHeadless(hwnd, argv[2]);
    MSG msg;
    while (GetMessageA(&msg, NULL, 0, 0) > 0) {
        TranslateMessage(&msg);
        DispatchMessageA(&msg);
    }
    return 0;
}
