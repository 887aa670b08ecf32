// The window system's handle types by name only, for pure code that keeps handles
// without calling the system (the scene's data, the drawing context). They are declared
// exactly as windows.h declares them, so both may meet in one unit.
#pragma once

struct HWND__;
struct HDC__;
struct HGLRC__;
struct HMENU__;
struct HBRUSH__;
struct HICON__;

typedef HWND__* HWND;
typedef HDC__* HDC;
typedef HGLRC__* HGLRC;
typedef HMENU__* HMENU;
typedef HBRUSH__* HBRUSH;
typedef HICON__* HICON;
typedef HICON HCURSOR;
typedef void* HGDIOBJ;
