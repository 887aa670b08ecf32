/* screenshot.c - copies a window's client area, or the whole window, with GDI and writes it as a BMP file. */
#include "screenshot.h"

#include <stdio.h>
#include <stdlib.h>

/* Copies width x height pixels of dc (a client or a whole-window DC of window). */
static int saveDcBmp(HWND window, HDC windowDc, int width, int height, const char* path) {
    const int stride = ((width * 24 + 31) / 32) * 4;
    BITMAPINFOHEADER info = {0};
    info.biSize = sizeof(info);
    info.biWidth = width;
    info.biHeight = height;
    info.biPlanes = 1;
    info.biBitCount = 24;
    info.biSizeImage = (DWORD)(stride * height);
    unsigned char* pixels = malloc(info.biSizeImage);
    if (pixels == NULL) {
        ReleaseDC(window, windowDc);
        return 0;
    }

    HDC memoryDc = CreateCompatibleDC(windowDc);
    HBITMAP bitmap = CreateCompatibleBitmap(windowDc, width, height);
    HGDIOBJ old = SelectObject(memoryDc, bitmap);
    BitBlt(memoryDc, 0, 0, width, height, windowDc, 0, 0, SRCCOPY);
    SelectObject(memoryDc, old);
    const int lines = GetDIBits(memoryDc, bitmap, 0, (UINT)height, pixels, (BITMAPINFO*)&info, DIB_RGB_COLORS);
    DeleteObject(bitmap);
    DeleteDC(memoryDc);
    ReleaseDC(window, windowDc);

    int ok = 0;
    FILE* file = lines == height ? fopen(path, "wb") : NULL;
    if (file != NULL) {
        BITMAPFILEHEADER head = {0};
        head.bfType = 0x4D42;
        head.bfOffBits = sizeof(head) + sizeof(info);
        head.bfSize = head.bfOffBits + info.biSizeImage;
        ok = fwrite(&head, sizeof(head), 1, file) == 1 && fwrite(&info, sizeof(info), 1, file) == 1 &&
             fwrite(pixels, info.biSizeImage, 1, file) == 1;
        fclose(file);
    }
    free(pixels);
    return ok;
}

int saveWindowBmp(HWND window, const char* path) {
    RECT rc;
    GetClientRect(window, &rc);
    return saveDcBmp(window, GetDC(window), rc.right, rc.bottom, path);
}

int saveWholeWindowBmp(HWND window, const char* path) {
    RECT rc;
    GetWindowRect(window, &rc);
    return saveDcBmp(window, GetWindowDC(window), rc.right - rc.left, rc.bottom - rc.top, path);
}
