/* screenshot.h - writes the client area of a window to a 24-bit BMP file (the examples' --screenshot option). */
#ifndef TESSARIN_EXAMPLE_SCREENSHOT_H
#define TESSARIN_EXAMPLE_SCREENSHOT_H

#include <windows.h>

/* Returns nonzero on success. */
int saveWindowBmp(HWND window, const char* path);

#endif
