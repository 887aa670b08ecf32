/* dib_gif.c - the bitmap library on its own: builds a 24-bit colour wheel in a bitmap
 * handle, reduces it to 16 colours by median cut with error diffusion, writes it as a
 * GIF file, reads the file back and shows both in a window. With "--screenshot FILE" it
 * writes the window to FILE (BMP) and exits. Uses only the public header. */
#include <math.h>
#include <stdio.h>
#include <string.h>

#include <windows.h>

#include "screenshot.h"
#include "tessarin.h"

#define SIDE 160

static HGLOBAL original, fromGif;

static void wheelColour(int x, int y, BYTE* bgr) {
    const double dx = x - SIDE / 2.0, dy = y - SIDE / 2.0;
    const double angle = atan2(dy, dx), radius = sqrt(dx * dx + dy * dy) / (SIDE / 2.0);
    const double fade = radius > 1.0 ? 0.0 : 1.0 - radius * 0.5;
    for (int c = 0; c < 3; ++c) {
        const double v = 0.5 + 0.5 * cos(angle - c * 2.0943951);
        bgr[c] = (BYTE)(255.0 * v * fade);
    }
}

/* A bitmap handle is a movable global block: header, then bottom-up rows padded to 4 bytes. */
static HGLOBAL makeWheel(void) {
    const int stride = (SIDE * 3 + 3) & ~3;
    HGLOBAL block = GlobalAlloc(GMEM_MOVEABLE | GMEM_ZEROINIT, sizeof(BITMAPINFOHEADER) + (SIZE_T)stride * SIDE);
    if (block == NULL) return NULL;
    BITMAPINFOHEADER* header = (BITMAPINFOHEADER*)GlobalLock(block);
    header->biSize = sizeof(BITMAPINFOHEADER);
    header->biWidth = SIDE;
    header->biHeight = SIDE;
    header->biPlanes = 1;
    header->biBitCount = 24;
    header->biSizeImage = (DWORD)(stride * SIDE);
    BYTE* rows = (BYTE*)(header + 1);
    for (int y = 0; y < SIDE; ++y)
        for (int x = 0; x < SIDE; ++x) wheelColour(x, y, rows + y * stride + x * 3);
    GlobalUnlock(block);
    return block;
}

static int convert(const char* gifFile) {
    original = makeWheel();
    HGLOBAL reduced = original != NULL ? dibReduceColors(original, 4, 3) : NULL;
    if (reduced == NULL || !dibWriteGIF(gifFile, reduced, 89, FALSE)) return 0;
    GlobalFree(reduced);
    fromGif = dibReadGIF(gifFile);
    if (fromGif != NULL)
        printf("%s: %ld x %ld, %d bits\n", gifFile, dibGetWidth(fromGif), dibGetHeight(fromGif), dibGetBitPerPixel(fromGif));
    return fromGif != NULL;
}

static LRESULT CALLBACK windowProc(HWND hwnd, UINT msg, WPARAM wParam, LPARAM lParam) {
    if (msg == WM_PAINT) {
        PAINTSTRUCT ps;
        HDC dc = BeginPaint(hwnd, &ps);
        dibDraw(dc, original, NULL, 10, 10);
        HPALETTE palette = dibCreatePalette(fromGif);
        dibDraw(dc, fromGif, palette, 20 + SIDE, 10);
        if (palette != NULL) DeleteObject(palette);
        EndPaint(hwnd, &ps);
        return 0;
    }
    if (msg == WM_DESTROY) {
        PostQuitMessage(0);
        return 0;
    }
    return DefWindowProcA(hwnd, msg, wParam, lParam);
}

static HWND createWindow(void) {
    WNDCLASSA wc;
    memset(&wc, 0, sizeof wc);
    wc.lpfnWndProc = windowProc;
    wc.hInstance = GetModuleHandleA(NULL);
    wc.hCursor = LoadCursorA(NULL, (LPCSTR)IDC_ARROW);
    wc.hbrBackground = (HBRUSH)GetStockObject(WHITE_BRUSH);
    wc.lpszClassName = "TessarinDibGif";
    if (!RegisterClassA(&wc)) return NULL;
    RECT rc = {0, 0, 30 + 2 * SIDE, 20 + SIDE};
    AdjustWindowRect(&rc, WS_OVERLAPPEDWINDOW, FALSE);
    return CreateWindowA("TessarinDibGif", "24 bits and the 16-colour GIF", WS_OVERLAPPEDWINDOW, 120, 120,
                         rc.right - rc.left, rc.bottom - rc.top, NULL, NULL, wc.hInstance, NULL);
}

int main(int argc, char** argv) {
    if (!convert("wheel.gif")) return 1;
    HWND hwnd = createWindow();
    if (hwnd == NULL) return 1;
    ShowWindow(hwnd, SW_SHOW);
    UpdateWindow(hwnd);
    int status = 0;
    if (argc == 3 && strcmp(argv[1], "--screenshot") == 0) {
        status = saveWindowBmp(hwnd, argv[2]) ? 0 : 1;
        DestroyWindow(hwnd);
    } else {
        MSG msg;
        while (GetMessageA(&msg, NULL, 0, 0) > 0) DispatchMessageA(&msg);
    }
    GlobalFree(original);
    GlobalFree(fromGif);
    return status;
}
