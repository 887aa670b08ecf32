/* screenshot.h - writes the client area of a window, or the whole window, to a 24-bit BMP file (the
 * examples' --screenshot option). */
#ifndef TESSARIN_EXAMPLE_SCREENSHOT_H
#define TESSARIN_EXAMPLE_SCREENSHOT_H

#include <windows.h>

/* Returns nonzero on success. */
int saveWindowBmp(HWND window, const char* path);
/* The whole window, caption and menu bar included. Returns nonzero on success. */
int saveWholeWindowBmp(HWND window, const char* path);

#endif
