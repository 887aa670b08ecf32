/* screenshot.h - writes the client area of a window to a 24-bit BMP file. */
#ifndef DEMO_SCREENSHOT_H
#define DEMO_SCREENSHOT_H

#include <windows.h>

/* Returns nonzero on success. */
int saveWindowBmp(HWND window, const char* path);

#endif
