/** \file tessarin.h
 * tessarin.h - the public interface of Tessarin20b.dll.
 *
 * Contents
 *   1. Conventions, platform notes and handle types
 *   2. Constants: version, class codes, modes, switches, menu commands
 *   3. sw  - library windows and events
 *   4. se  - handlers for scenes in application windows
 *   5. sm  - scene manager: node lists, modes, camera, lights, viewpoints
 *   6. sn  - scene node constructors
 *   7. randstd / srandstd - the library's random numbers
 *   8. dib - device-independent bitmaps, BMP and GIF files
 *
 * 1. Conventions
 * --------------
 * - Every function has C linkage and the default (cdecl) calling convention; the names
 *   in the export table are exactly the names below, undecorated.
 * - No function returns an error code or throws. The sm/sn/sw/se calls are guarded:
 *   a pointer argument that is named in its function's documentation is probed by
 *   reading one byte; if that read faults (NULL included), a message box
 *   "Pointer to inaccessible memory: <label>" is shown and the process ends at once
 *   with exit code 1 (TerminateProcess: no atexit handlers, no destructors, no DLL
 *   detach work). Any fault or C++ exception escaping the body of a guarded call shows
 *   "Unhandled exception in: <label>" and ends the process the same way. Processor
 *   faults (access violation, integer division by zero, ...) are caught too.
 * - Every library message box has the title "Tessarin Error Message", no owner window
 *   and the single style MB_SETFOREGROUND (0x10000), unless a function says otherwise.
 * - Internal invariants are checked with the C runtime's assert, active in release
 *   builds too; a failure reports the expression, a file "..\source\<name>.cpp" and a
 *   line, then aborts.
 * - The dib functions are not guarded: each refusal shows "<function>: <message>" in a
 *   message box and returns 0, FALSE or a null handle.
 * - Coordinates, sizes and angles are 32-bit floats; angles are degrees; colours are
 *   float red, green, blue in 0..1.
 *
 * Win64 notes (the library was designed for 32-bit Windows; on Win64):
 * - A node handle (cNode*) is 64 bits wide and does not fit a 32-bit OpenGL selection
 *   name. Every node therefore carries its own 32-bit name, never 0 and never given to
 *   another node while it lives; picking reports that name, and tsNodeFromName() maps
 *   it back to the node handle. On Win32 the name is the node's address, as before.
 * - Request parameters (WPARAM/LPARAM) are 64 bits wide; pointers travel unchanged.
 *   The angle of smRotation still travels as a 32-bit count of hundredths of a degree.
 * - The waitable event record keeps its 78-byte packed layout on Win32 (checked at
 *   compile time); on Win64 its scene pointer field widens to 8 bytes (see swEventRecord).
 */
#ifndef TESSARIN_H
#define TESSARIN_H

#include <windows.h>

/** Marks an export: __declspec(dllimport) for applications, empty inside the library
 * and in programs that link the library's static form instead of the DLL (they define
 * TESSARIN_STATIC: the library's own white-box tests). Such a program carries the
 * library's resources (resources/tessarin.rc) itself; the library then takes them, and
 * registers its window classes, from the program's module. */
#if defined(TESSARIN_BUILDING_DLL) || defined(TESSARIN_STATIC)
#define TS_API
#else
#define TS_API __declspec(dllimport)
#endif

#ifdef __cplusplus
extern "C" {
class cNode;
class cScene;
class cWind;
#else
/** Node handle returned by every sn call; the caller passes it back to edit, remove or
 * reuse the node. The scene owns the node once it is added. */
typedef struct cNode cNode;
/** Scene handle (swCreateScene, seOnCreate): one scene bound to one window. */
typedef struct cScene cScene;
/** Library window handle returned by swCreateWind; owned by the library. */
typedef struct cWind cWind;
#endif

/* ======================================================================================
 * 2. Constants
 * ==================================================================================== */

/** The version of the library: 2.0 (Tessarin20b.dll, settings file "Tessarin20.ini"). @{ */
#define TESSARIN_VERSION_MAJOR    2
#define TESSARIN_VERSION_MINOR    0
#define TESSARIN_VERSION_STRING   "2.0"
/** @} */

/** Class codes: the value of a node's type. 3D nodes are below 3000, 2D nodes above. @{ */
#define TS_CLASS_AXIS3D           1001
#define TS_CLASS_BITMAP3D         1002
#define TS_CLASS_BOX3D            1003
#define TS_CLASS_CYLINDER3D       1004
#define TS_CLASS_DISK3D           1005
#define TS_CLASS_ELEVATIONGRID3D  1006
#define TS_CLASS_GROUP            1007
#define TS_CLASS_INDEXEDFACESET3D 1008
#define TS_CLASS_LINE3D           1009
#define TS_CLASS_POINT3D          1012
#define TS_CLASS_PRIMITIVE3D      1013
#define TS_CLASS_SPHERE3D         1015
#define TS_CLASS_TETRAGON3D       1016
#define TS_CLASS_TRIANGLE3D       1017
#define TS_CLASS_TEXTBMP3D        1018
#define TS_CLASS_TEXTEXT3D        1019
#define TS_CLASS_USE3D            1020
#define TS_CLASS_COLOR3D          2001
#define TS_CLASS_ENABLE3D         2002
#define TS_CLASS_ROTATE3D         2007
#define TS_CLASS_POPMATRIX3D      2008
#define TS_CLASS_PUSHMATRIX3D     2009
#define TS_CLASS_SCALE3D          2010
#define TS_CLASS_TRANSLATE3D      2011
#define TS_CLASS_ARC2D            3001
#define TS_CLASS_BITMAP2D         3002
#define TS_CLASS_CIRCLE2D         3003
#define TS_CLASS_LINETO2D         3004
#define TS_CLASS_LINE2D           3005
#define TS_CLASS_RECTANGLE2D      3006
#define TS_CLASS_PIE2D            3007
#define TS_CLASS_PIXEL2D          3008
#define TS_CLASS_POLYBEZIER2D     3009
#define TS_CLASS_POLYGON2D        3010
#define TS_CLASS_POLYLINE2D       3011
#define TS_CLASS_TEXT2D           3012
#define TS_CLASS_TEXTBLOCK2D      3013
#define TS_CLASS_BKCOL2D          4001
#define TS_CLASS_BKMOD2D          4002
#define TS_CLASS_BRUSH2D          4003
#define TS_CLASS_FONT2D           4004
#define TS_CLASS_FRMIX2D          4005
#define TS_CLASS_MOVETO2D         4006
#define TS_CLASS_PEN2D            4007
/** @} */
/** 3D and 2D nodes are told apart by comparing the class code with this value. */
#define TS_CLASS_2D_LIMIT         3000

/** Modes shared by the calls, the settings file and the context menu. @{ */
#define TS_DRAW_POINTS   100010
#define TS_DRAW_LINES    100011
#define TS_DRAW_FILLED   100012
#define TS_SHADE_SMOOTH  100000
#define TS_SHADE_FLAT    100001
#define TS_SHADE_NONE    100002
#define TS_ROTATE        0
#define TS_FLY           1
#define TS_WALK          2
#define TS_PERSPECTIVE   0
#define TS_ORTHOGONAL    1
/** @} */

/** Scene switches set by snEnable and snDisable. Drawing the node writes the switch of
 * the current scene; the rendering pass, navigation and picking read it. Defaults of a
 * new scene: on, except TS_SWITCH_PICKING and TS_SWITCH_FORCE_REDRAW. @{ */
#define TS_SWITCH_LIGHTING         1 /**< the pass enables GL_LIGHTING */
#define TS_SWITCH_CULL_FACE        2 /**< back-face culling; also switched at once in GL */
#define TS_SWITCH_DEPTH_TEST       3 /**< the pass enables GL_DEPTH_TEST */
#define TS_SWITCH_COLOR_MATERIAL   4 /**< the pass enables GL_COLOR_MATERIAL */
#define TS_SWITCH_PICKING          5 /**< a left click runs a picking pass */
#define TS_SWITCH_FORCE_REDRAW     6 /**< keep repainting even when nothing moves */
#define TS_SWITCH_MOUSE_NAVIGATION 7 /**< navigation with the mouse */
#define TS_SWITCH_KEY_NAVIGATION   8 /**< navigation with the keyboard */
#define TS_SWITCH_CONTEXT_MENU     9 /**< a right click opens the context menu */
/** @} */

/** Command identifiers of the context menu of a scene window, as its WM_COMMAND events
 * carry them in wParam (swGetEvent). The menu's first popup serves scenes with 3D
 * content, the second (save and help entries only) scenes with 2D content alone.
 *
 * The context menu. A right click in a scene window (while the TS_SWITCH_CONTEXT_MENU
 * switch is on, as it is when a scene is created) is queued as an event, then opens the
 * first popup ("3D") when the 3D list is not empty and the second ("2D") otherwise, at
 * the click, with the arrow cursor (TrackPopupMenu, TPM_RIGHTBUTTON). The menu is the
 * library's menu resource, loaded once per scene; exactly one item of each mode group
 * (shade, drawing, action, projection) is checked, the one of the scene's mode, after
 * every mode change. A chosen item arrives as WM_COMMAND on the scene window (in an
 * application window: pass it to seOnCommand); the command is queued as an event, then
 * runs: a viewpoint entry applies that viewpoint; the modes are set as smDrawMode,
 * smShadeMode and smActionMode set them; a projection keeps the view angle and the
 * clipping planes; "Add Viewpoint" and "Delete Viewpoint" ask as smViewpointAdd(NULL,
 * NULL) and smViewpointDel(NULL) do; "View Setting" and "Ligth Setting" open the
 * dialogs of smViewDialog and smLightDialog; the help entries call smOpenDocu with
 * "fsSetting3D.html", "fsKeyboard.html" and "fsWelcome_e.html"; "QVA Homepage (WWW)"
 * calls smOpenDocu with the address of the key "homepage" of the settings file
 * "Tessarin20.ini". That key is the library's own addition to the classic file: the
 * template it writes carries it last, in a group of its own, as
 * `homepage          http://www.example.com/tessarin/ (Address of the library's home page on the web)`
 * (the library ships without a web site: the default is a placeholder for whoever
 * deploys it); it is one word of at most 199 characters, and a file without it keeps
 * the default. "Bitmap file *.bmp" copies the window's pixels (as smDIBfromScene), then
 * asks for a file name in the save dialog (owned by the scene window, filter
 * "Bitmap (*.bmp)", starting in the current folder, OFN_OVERWRITEPROMPT |
 * OFN_HIDEREADONLY); a name chosen with that filter that does not end in ".bmp" (in
 * any case) gets ".bmp" appended, then dibWrite writes the file; Cancel writes nothing.
 * The window is drawn once more before its pixels are taken, so that the menu just
 * closed leaves no trace in the picture.
 * After any command a rendering pass runs, unless motion is going on, which paints
 * anyway. A WM_COMMAND that carries a control window in lParam (a child control's
 * notification) is queued but runs no command. @{ */
#define TS_CMD_ADD_VIEWPOINT          20001 /**< Viewpoints / "Add Viewpoint" */
#define TS_CMD_DELETE_VIEWPOINT       20002 /**< Viewpoints / "Delete Viewpoint" */
#define TS_CMD_DRAW_FILLED            20003 /**< Drawing Mode / "Filled" */
#define TS_CMD_SHADE_FLAT             20004 /**< Shade Mode / "Flat" */
#define TS_CMD_ACTION_FLY             20005 /**< Action Mode / "Fly" */
#define TS_CMD_HELP_3D_CONTROL        20006 /**< Help / "Help for 3D Control" */
#define TS_CMD_HELP_KEYBOARD_MOUSE    20007 /**< Help / "Help for Keyboard / Mouse" */
#define TS_CMD_HOMEPAGE               20008 /**< Help / "QVA Homepage (WWW)" */
#define TS_CMD_LIGHT_SETTING          20009 /**< Setting Dialogs / "Ligth Setting" */
#define TS_CMD_DRAW_LINES             20010 /**< Drawing Mode / "Lines" */
#define TS_CMD_SHADE_NONE             20011 /**< Shade Mode / "None" */
#define TS_CMD_PROJECTION_ORTHOGONAL  20013 /**< Projection Mode / "Orthogonal" */
#define TS_CMD_PROJECTION_PERSPECTIVE 20014 /**< Projection Mode / "Perspective" */
#define TS_CMD_DRAW_POINTS            20015 /**< Drawing Mode / "Points" */
#define TS_CMD_ACTION_ROTATE          20016 /**< Action Mode / "Rotate" */
#define TS_CMD_SAVE_BITMAP            20017 /**< SaveAs / "Bitmap file *.bmp" */
#define TS_CMD_SHADE_SMOOTH           20018 /**< Shade Mode / "Smooth" */
#define TS_CMD_STOP_MOTION            20019 /**< "Stop Motion" */
#define TS_CMD_VIEW_SETTING           20020 /**< Setting Dialogs / "View Setting" */
#define TS_CMD_ACTION_WALK            20021 /**< Action Mode / "Walk" */
#define TS_CMD_HELP_WELCOME           20022 /**< Help / "Welcome to QVA" */
/** @} */
/** The first viewpoint entry of the Viewpoints submenu; each viewpoint added to a scene
 * takes this value plus the number of viewpoints before it (see smViewpointAdd). */
#define TS_CMD_FIRST_VIEWPOINT        20200

/* ======================================================================================
 * 3. sw - library windows and events
 *
 * Library windows belong to the library's scene thread, started by the first
 * swCreateWind; every sw call reaches it as a synchronous request. Before that thread
 * runs, every sw call except swCreateWind shows "Tessarin Window is not initialized!"
 * and returns 0 / NULL / nothing; the process continues. The thread ends when a window
 * that carries a scene is destroyed, and is never started again. After that the
 * requests find no window: swCreateWind shows "swCreateWind: Window creation failed!"
 * and returns NULL, swWaitForEvent waits for ever (no input can come), and the other
 * sw calls do nothing and return 0 / NULL, without a message.
 * ==================================================================================== */

/** Waitable event record, returned by swWaitForEvent. Packed (byte alignment): 78 bytes
 * on Win32 at the offsets noted; on Win64 only the scene pointer widens to 8 bytes and
 * every later field moves by 4 (82 bytes). One record serves the whole library. Fields
 * are never cleared between events: a field that an input does not write keeps the
 * value of an earlier one. The camera fields are written by every rendering pass of a
 * scene with 3D content (any scene, waited on or not; a pass of an empty 3D list paints
 * the background only and writes nothing): pos always, rotAxis and rotAngle in
 * TS_ROTATE, dir and up in TS_FLY and TS_WALK. The input fields are written only while
 * a swWaitForEvent asks for that kind of input. */
#pragma pack(push, 1)
typedef struct swEventRecord {
    cScene* scene;            /**<  0: scene where the event happened */
    float pos[3];             /**<  4: eye position of the last rendering pass */
    float rotAxis[3];         /**< 16: incremental rotation axis of the last TS_ROTATE pass */
    float rotAngle;           /**< 28: its angle in degrees, as that pass applied it (0 when
                               * nothing turns; the spin angle or the keypad's rotate_drot
                               * while the scene keeps turning) */
    float dir[3];             /**< 32: viewing direction of the last TS_FLY/TS_WALK pass;
                               * smActionMode writes it too: 0, 0, 0 on going to TS_ROTATE */
    float up[3];              /**< 44: up vector, written with dir */
    int mouseX;               /**< 56: client x of a button-down or drag (low word of lParam) */
    int mouseY;               /**< 60: client y (high word of lParam) */
    char button;              /**< 64: 1 left, 2 middle, 3 right (button-down events) */
    int hits;                 /**< 65: hit records of the last picking pass; 0 after a left
                               * click with the picking switch off, and for char, middle
                               * and right button events; a left click in a scene without
                               * 3D content leaves it as it was */
    unsigned int pickedName;  /**< 69: selection name of the picked node (see tsNodeFromName),
                               * set with hits; a click that hits nothing keeps the earlier
                               * name */
    char character;           /**< 73: character code; 0 for a key without character */
    int virtualKey;           /**< 74: virtual-key code of the last key-down noted */
} swEventRecord;
#pragma pack(pop)

/** Wait masks of swWaitForEvent. @{ */
#define TS_WAIT_KEYS    1  /**< key-down (completed by its character, if any; a key without
                            * character when the next message arrives); not while Ctrl
                            * or Shift is held */
#define TS_WAIT_BUTTONS 2  /**< left, middle, right button down; with the picking switch
                            * on, a left click runs a picking pass: of the hit records
                            * (2 x 2 pixels) the last one nearer than the first is taken,
                            * else the first. The selection buffer starts at the settings'
                            * selectBufSize; a pass with more records grows it to one
                            * record per node drawn and selects again, so every record
                            * counts (only when that memory cannot be had is the count
                            * negative and the first record taken) */
#define TS_WAIT_DRAGS   4  /**< mouse moves during a left-button drag of the navigation
                            * (mouse navigation on, 3D content in the scene) */
/** @} */

/** Opens a top-level library window (hidden unless style asks for WS_VISIBLE): title (cut
 * to 63 characters), window size width x height in pixels (frame included), position
 * x, y, window style used unchanged. The first call starts the scene thread and waits
 * until it runs. Returns the window record, or NULL: with "Tessarin Window is not
 * initialized!" when the thread could not be started (the next call tries again), or
 * with "swCreateWind: Window creation failed!" once the scene thread has ended; either
 * way nothing is kept. A window that the system refuses to create while the thread runs
 * (for example WS_CHILD, which needs a parent) fails the scene thread's assertion
 * "hWin != NULL" (`..\source\cwind_wm_user.cpp`, line 39) and the process aborts.
 * Not guarded. */
TS_API cWind* swCreateWind(const char* title, int width, int height, int x, int y, DWORD style);

/** Creates a scene in the window (settings file, pixel format, GL context, lists) and
 * makes it the current scene. Returns the scene, or NULL with "Tessarin Window is not
 * initialized!" before the thread runs or when window is NULL. Probes a non-NULL window
 * ("swCreateScene(window)"). */
TS_API cScene* swCreateScene(cWind* window);

/** Shows the window, brings it to the foreground; a second call does nothing. Probes
 * window ("swShowWind(window)"). */
TS_API void swShowWind(cWind* window);

/** Hides the window; a call on a hidden window does nothing. Probes ("swHideWind(window)"). */
TS_API void swHideWind(cWind* window);

/** Moves and sizes a visible window (position first, then size, in pixels) and raises
 * it. On a hidden window the call is dropped: showing it later uses the creation
 * rectangle. Probes ("swSizeWind(window)"). */
TS_API void swSizeWind(cWind* window, int x, int y, int width, int height);

/** Hides and destroys the window. The record is not freed: the handle must not be used
 * again. Destroying a window that carries a scene destroys the scene and ends the scene
 * thread. Probes ("swDeleteWind(window)"). */
TS_API void swDeleteWind(cWind* window);

/** 1 if the current scene's event list holds an event of type (a window-message number:
 * 0x100 WM_KEYDOWN, 0x102 WM_CHAR, 0x111 WM_COMMAND, 0x201 WM_LBUTTONDOWN,
 * 0x202 WM_LBUTTONUP, 0x204 WM_RBUTTONDOWN, 0x207 WM_MBUTTONDOWN), or of any type for 0;
 * else 0. The list keeps the newest 20 events. */
TS_API int swEventExists(int type);

/** Takes the newest event of type (the newest of any type for 0) off the current scene's
 * list and returns a pointer to three 32-bit values: type, wParam, lParam (overwritten
 * by the next successful get). NULL when none. Type 0x303 (WM_CLEAR) empties the list
 * and returns NULL. Events come back newest first. */
TS_API int* swGetEvent(int type);

/** Blocks the calling thread until an input of the kinds in mask (TS_WAIT_*) arrives in
 * a scene window, then returns a copy of the event record. filter, when not 0, is
 * compared with the virtual-key code and applies to key events only. No time-out. The
 * mask is set just before the wait and cleared after it (the filter stays): input that
 * arrives between two waits is queued (swGetEvent) but not noted in the record. Mask,
 * filter and record are library-wide, so one thread waits at a time. Before the scene
 * thread runs: "Tessarin Window is not initialized!" and the last record is returned at
 * once; after it has ended the wait never returns. */
TS_API swEventRecord swWaitForEvent(int mask, int filter);

/** Resets the console of a console application that opens scene windows: sets the
 * console title to title, clears the console (the command interpreter runs "cls"), and,
 * on the NT family only, sets the console window to columns x rows character cells
 * (rectangle 0, 0, columns - 1, rows - 1 on standard output), the screen buffer to
 * bufferColumns x bufferRows cells, and moves the console window to the screen pixel x, y
 * (size kept, shown, placed on top). A buffer size of 0 or below the window's is raised
 * to the window's. Then it stores the same layout in the user's console settings, so
 * that the console opens that way next time: under HKEY_CURRENT_USER, key "CONSOLE"
 * followed by the console title of the process's start-up information (the title its
 * starter gave it, by default the program's path) with each backslash replaced by "_",
 * three REG_DWORD values with the second number in the high 16 bits: "WindowPosition"
 * = y * 65536 + x, "WindowSize" = rows * 65536 + columns, "ScreenBufferSize" =
 * bufferRows * 65536 + bufferColumns (32-bit unsigned arithmetic). The key is flushed
 * and, as it always was, not closed (one registry handle per call).
 * On a system outside the NT family only the title and the clearing happen.
 * The console window is the top-level window of class "ConsoleWindowClass" ("tty"
 * outside NT) whose caption was the console title when the scene thread started; where
 * there is none (a program without a console, or wine's own console window class) the
 * move is skipped. Messages, none of which ends the process: "Tessarin Window is not
 * initialized!" before the first swCreateWind (nothing else happens); "Resizing console
 * failed!" (the window rectangle was refused, for example without a console or when the
 * window is larger than the current buffer), "Resetting console buffer failed!" and
 * "Resetting console position failed!", each of which skips the rest of the resizing but
 * not the settings; "Registration of console failed!" when the key cannot be opened or
 * created. Probes title ("swResetConsole(title)"); catch-all "swResetConsole". Runs on
 * the caller's thread. */
TS_API void swResetConsole(const char* title, int x, int y, int columns, int rows, int bufferColumns,
                           int bufferRows);


/* ======================================================================================
 * 4. se - handlers for scenes in application windows
 *
 * Call these from the window procedure of a window that the application owns, one per
 * message, on the thread that owns the window; the scene calls then run directly on
 * that thread. Each handler carries the catch-all under its own name and asserts that
 * hWnd is not NULL. Not to be used while library windows exist.
 * ==================================================================================== */

/** WM_CREATE: creates a scene named scenename on hWnd (pixel format, OpenGL context,
 * node lists, registry entry) and makes it the current and active scene. Returns the
 * scene, or NULL: with the message "Don't use Tessarin event handlers with Tessarin
 * windows!" once the library's scene thread runs, or "Scene creation failed in
 * seOnCreate." when no memory is left. A pixel format that cannot be chosen or set
 * shows "ChoosePixelFormat failed" / "SetPixelFormat failed" (title "Error") and ends
 * the process with exit(1). */
TS_API cScene* seOnCreate(HWND hWnd, const char* scenename);

/** WM_PAINT: runs a rendering pass of the window's scene; returns 0. Without a scene
 * for hWnd: "No active scene found in seOnPaint!" and 1. */
TS_API LRESULT seOnPaint(HWND hWnd);

/** WM_DESTROY: removes the window's registry entry, posts WM_QUIT (code 0) to the
 * calling thread and destroys the active scene (the scene of the latest handler call);
 * returns 0. Without an active scene: "No active scene found in seOnDestroy!" and 1.
 * Beyond the original design, three guards keep later calls safe: the current scene is
 * cleared when it is the scene destroyed, a scene that the registry already destroyed
 * with its entry is not destroyed twice, and removing the last registry entry no
 * longer leaves it behind as the list's tail (the next scene created would have been
 * linked through it). */
TS_API LRESULT seOnDestroy(HWND hWnd);

/** The input handlers below look the window's scene up (it becomes the active scene),
 * queue the input as an event where it is one of the queued kinds (key down, character,
 * command, left down and up, middle and right down; at most 20, newest first), note it
 * in the waitable event record when a swWaitForEvent asks for its kind, then navigate
 * (when the scene's mouse or key navigation switch is on and its 3D list is not empty)
 * and return 0. Without a scene for hWnd each shows "No active scene found in <handler
 * name>!" and returns 1. seOnRButtonDown opens the scene's context menu and seOnCommand
 * carries out its commands, as described with the TS_CMD_* identifiers.
 * Mouse navigation (x grows to the right, y downwards, in client pixels; dx = previous x
 * - x, dy = y - previous y; the first move after a button-down only takes its position):
 * - TS_ROTATE: a left drag turns the scene with a virtual trackball: the angle is 90
 *   degrees times the distance between the unit trackball vectors of the two points,
 *   times sensib_rotate, about their cross product. A release within frame time plus
 *   auto_delay clock ticks of the last move leaves the scene spinning by that angle on
 *   every pass; a later release stops it. Ctrl held pans: the rotation centre moves by
 *   (dx * 0.01 * sensib_x_fly, dy * 0.01 * sensib_y_fly, 0); Shift held zooms: it moves
 *   along z by -dy * 0.01 * sensib_y_fly.
 * - TS_FLY: the pitch rate grows by dy * 0.01 * sensib_y_fly, the yaw rate by
 *   (1 - yaw_roll_ratio) * dx * 0.01 * sensib_x_fly and the roll rate shrinks by
 *   yaw_roll_ratio times the same share (degrees per pass); rates and speed go on after
 *   the release.
 * - TS_WALK: the yaw rate grows by dx * 0.01 * sensib_x_walk and the speed by -dy * 0.0005
 *   * sensib_y_walk; the release stops rates and speed.
 * Keys (after any key in TS_ROTATE the motion stops first): Page Up / Page Down move the
 * eye by -/+ rotate_dpos along y; Home and keypad 0 restore the start camera; keypad 1,
 * 2, 3, 4, 6, 8 set the spin of TS_ROTATE: rotate_drot degrees on every pass about z, x,
 * -z, -y, y, -x, until another key or a click (in TS_FLY and TS_WALK they turn nothing);
 * keypad + and - widen and narrow the view angle by one degree. Left and
 * Right: TS_ROTATE moves the eye by +/- rotate_dpos along x, TS_FLY nothing, TS_WALK one
 * turn of +/- walk_drot. Up and Down: TS_ROTATE moves the eye by +/- rotate_dpos along z,
 * TS_FLY changes the speed by +/- fly_dspeed, TS_WALK makes one step of walk_dpos forward
 * or back. Any other key stops the turning. While Ctrl or Shift is held a key changes
 * the camera without a redraw. Cursors: rotate, pan, zoom, fly, walk, and the arrow
 * while the 3D list is empty. @{ */
TS_API LRESULT seOnCommand(HWND hWnd, WPARAM wParam, LPARAM lParam);     /* WM_COMMAND */
TS_API LRESULT seOnChar(HWND hWnd, WPARAM wParam, LPARAM lParam);        /* WM_CHAR */
TS_API LRESULT seOnKeyDown(HWND hWnd, WPARAM wParam, LPARAM lParam);     /* WM_KEYDOWN */
TS_API LRESULT seOnKeyUp(HWND hWnd, WPARAM wParam, LPARAM lParam);       /* WM_KEYUP */
TS_API LRESULT seOnLButtonDown(HWND hWnd, WPARAM wParam, LPARAM lParam); /* WM_LBUTTONDOWN */
TS_API LRESULT seOnMButtonDown(HWND hWnd, WPARAM wParam, LPARAM lParam); /* WM_MBUTTONDOWN */
TS_API LRESULT seOnRButtonDown(HWND hWnd, WPARAM wParam, LPARAM lParam); /* WM_RBUTTONDOWN */
TS_API LRESULT seOnLButtonUp(HWND hWnd, WPARAM wParam, LPARAM lParam);   /* WM_LBUTTONUP */
TS_API LRESULT seOnMouseMove(HWND hWnd, WPARAM wParam, LPARAM lParam);   /* WM_MOUSEMOVE */
/** @} */

/** WM_ERASEBKGND: runs a pass of the window's scene; returns 1 (also without a scene). */
TS_API LRESULT seOnEraseBkgnd(HWND hWnd);
/** WM_SIZE: new viewport and projection, then a pass; returns 0, or 1 without a scene. */
TS_API LRESULT seOnSize(HWND hWnd);
/** WM_MOVE: stores the window rectangle, then a pass; returns 0, or 1 without a scene. */
TS_API LRESULT seOnMove(HWND hWnd);

/* ======================================================================================
 * 5. sm - scene manager
 * ==================================================================================== */

/* --- the current scene -----------------------------------------------------------------*/

/** Makes scene the current scene of the following calls, on the caller's thread (no
 * request). Probes scene ("smCurrentScene(scene)"). */
TS_API void smCurrentScene(cScene* scene);

/** Runs a rendering pass of SceneToRefresh (on the scene thread; on the direct path of
 * the current scene, whatever the argument). Asserts that the argument is not NULL. */
TS_API void smRefreshScene(cScene* SceneToRefresh);

/** Sets the current scene's background colour (red, green, blue in 0..1) and its 2D
 * background brush RGB(c * 255 truncated, masked to 8 bits). Does not redraw. */
TS_API void smBackground(float red, float green, float blue);

/** The device context, window and OpenGL context of scene (on the direct path: of the
 * current scene). Each asserts that scene is not NULL. @{ */
TS_API HDC smGetHDC(cScene* scene);
TS_API HWND smGetHWND(cScene* scene);
TS_API HGLRC smGetHGLRC(cScene* scene);
/** @} */

/* --- help pages ---------------------------------------------------------------------*/

/** Opens the help page file (a file name such as "fsKeyboard.html") with the viewer the
 * system associates with it (verb "open"). The help folder is the string "DocuPath"
 * (at most 259 characters) under HKEY_LOCAL_MACHINE
 * `Software\Halvern Software\Tessarin\TessarinPath`, a key the call opens, or
 * creates, with full access; the installer writes it (with a final backslash). The
 * page opens with that folder as the working folder, shown as SW_SHOW, owned by the
 * current scene's window (none without a current scene). Where the value is missing, is not a string, or the page does not open, the
 * call shows "HTML file not found.\nPlease check DocuPath in the registry" and then the
 * open-file dialog (owned by the current scene's window; filter "HTML-File (*.html)",
 * starting in the current directory; flags OFN_OVERWRITEPROMPT | OFN_SHOWHELP). When
 * the user chooses a file, its folder with the final backslash (`C:\help\` for
 * `C:\help\x.html`) is written as the string "SceneDocuPath", and the requested file, not
 * the chosen one, is opened from that folder (SW_SHOWNORMAL, no owner); a failure shows
 * "File not found!", "Path not found!" or BEL + " The operatingsystem is out of memory!"
 * (other failures are silent). Cancelling ends the call silently. The dialog's answer is
 * stored under another name than the one read, so a later call still finds no
 * "DocuPath" and asks again; the library keeps it that way. When the key cannot be
 * opened nothing happens. As it always was, the key is not closed (one registry handle
 * per call). A NULL file does nothing. Writing under HKEY_LOCAL_MACHINE needs an
 * administrator on current Windows; a 32-bit program on Win64 reads and writes the
 * 32-bit view of the registry, which its own installer writes. Catch-all "smOpenDocu";
 * runs on the caller's thread (no request). */
TS_API void smOpenDocu(const char* file);

/* --- node lists ------------------------------------------------------------------------
 * All list calls act on the current scene (smCurrentScene, swCreateScene, seOnCreate).
 * While the library's scene thread runs they are sent to it as synchronous requests;
 * otherwise they run directly on the caller's thread. */

/** Appends NodeToAdd to the current group of the current scene (or, after
 * smInsertAfter, places it behind the insertion point). The node then belongs to the
 * scene. Probes NodeToAdd ("smAddNode(NodeToAdd)"); with no current scene the process
 * ends with "Pointer to inaccessible memory: Current Scene is not defined!".
 * Catch-all label "smAddNode". */
TS_API void smAddNode(cNode* NodeToAdd);

/** Sets the insertion point of the current group to Node and the insertion mode to
 * InsertAfter. With InsertAfter TRUE every following add goes directly behind Node (a
 * run of adds therefore ends up in reverse order); with FALSE only the next add does,
 * later adds append at the end again. Node is not probed and not checked to belong to
 * the group. Catch-all "smInsertAfter". */
TS_API void smInsertAfter(cNode* Node, BOOL InsertAfter);

/** Removes Node from the current group and destroys it. Returns the node that now
 * follows Node's predecessor, or NULL. The first node of a list of two or more nodes
 * cannot be removed: the call returns NULL and changes nothing. Removing the only node
 * empties the group and resets its count. A mesh's display list is deleted with it, in
 * the scene's rendering context. Node is not probed: NULL faults inside and
 * ends the process through the catch-all "smDelNode". */
TS_API cNode* smDelNode(cNode* Node);

/** Destroys every node of the current group (and the display lists of its meshes),
 * clears the scene's has-3D flag, sets the empty-scene cursor and redraws the scene.
 * Catch-all "smClearScene". */
TS_API int smClearScene(void);  /* returns 1 */

/** Closes the group opened by the latest snGroup: its parent becomes the current group.
 * At the root group it does nothing. Runs on the caller's thread. Catch-all
 * "smGroupEnd". */
TS_API void smGroupEnd(void);

/** Compiles the current group into the scene's display list and from then on draws the
 * scene from that list: later edits, adds and deletes do not show until the next
 * smUseDisplayList. The list holds no selection names: while it is used a picking
 * pass reports at most one hit, named 0 (no node). Catch-all "smUseDisplayList". */
TS_API int smUseDisplayList(void);  /* returns 0 */

/** Appends NodeToAdd (a 2D node) to the 2D list of the current scene. Probes
 * NodeToAdd ("smAddNode2D(NodeToAdd)"); with no current scene the process ends with
 * "Pointer to inaccessible memory: Current Scene is not defined!". Catch-all
 * "smAddNode2D". */
TS_API void smAddNode2D(cNode* NodeToAdd);

/* --- the 2D list -------------------------------------------------------------------------
 * Every scene keeps a flat list of 2D nodes (no groups), drawn with GDI straight onto
 * the window after each 3D frame, in list order, with the pen first moved to (0, 0) and
 * the mix mode set to R2_COPYPEN. The list obeys the same insertion and removal rules as
 * the 3D lists (see smInsertAfter and smDelNode). Like those, these calls are sent to
 * the scene thread while it runs and run on the caller's thread otherwise; on the
 * caller's thread with no current scene they fault and end the process through their
 * catch-all. */

/** Sets the insertion point of the 2D list to NodeBefore and the insertion mode to
 * InsertAfter, as smInsertAfter does for the current group. NodeBefore is not checked to
 * belong to the list. Probes NodeBefore ("smInsertAfter2D(NodeBefore)"). Catch-all
 * "smInsertAfter2D". */
TS_API void smInsertAfter2D(cNode* NodeBefore, BOOL InsertAfter);

/** Removes NodeToDelete from the 2D list and destroys it. Returns the node that now
 * follows its predecessor, or NULL. The first node of a list of two or more cannot be
 * removed (NULL, nothing changes); removing the only node empties the list. The GDI
 * objects a node uses are the caller's and stay. Probes NodeToDelete
 * ("smDelNode2D(NodeToDelete)"). Catch-all "smDelNode2D". */
TS_API cNode* smDelNode2D(cNode* NodeToDelete);

/** Destroys every 2D node, moves the pen of the scene's device context and its 2D
 * position to (0, 0), clears the scene's has-2D flag and redraws the scene, also when
 * the list was empty already. Catch-all "smClearScene2D". */
TS_API int smClearScene2D(void);  /* returns 1 */

/** Sets whether the coordinates of the 2D drawing nodes made or edited from now on in the
 * current scene count from its 2D position (TRUE, the default of a new scene and of the
 * settings file's "relToPos2D") or from the window's top-left corner (FALSE). The 2D
 * position is where the latest snMoveTo2D, snLineTo2D or from-current curve left the
 * pen; each frame starts it at (0, 0) and walks the 2D list again, so after a frame it
 * is where the list leaves it. A node takes the position once, when it is made or
 * edited, not at each frame. Catch-all "smRelToPos2D". */
TS_API void smRelToPos2D(BOOL flag);

/* --- GDI objects for the 2D nodes --------------------------------------------------------
 * Made on the caller's thread (no request, no scene needed); they belong to the caller,
 * who keeps them alive while nodes use them and deletes them with smDelGDIObj (or
 * DeleteObject) afterwards: the nodes never delete an object. Colours are float red,
 * green, blue; each component is multiplied by 255.0f, truncated toward zero and cut to
 * its low 8 bits, so values above 1.0 wrap around (1.5 gives 126) instead of being
 * clamped, as the library has always done (values beyond the integer range give 0).
 * GDI failures are passed back as they are (a NULL handle). */

/** CreatePen(style, width, colour): style PS_SOLID, PS_DASH, ...; width in pixels. Not
 * guarded. */
TS_API HPEN smCreatePen2D(float r, float g, float b, int width, int style);

/** CreateBrushIndirect of a brush with style (BS_SOLID, BS_HATCHED, BS_NULL, ...), the
 * colour and hatch (HS_* for BS_HATCHED). Not guarded. */
TS_API HBRUSH smCreateBrush2D(float r, float g, float b, UINT style, LONG hatch);

/** CreateFontA(height, 0, 0, 0, weight, italic, underline, 0, ANSI_CHARSET, OUT_TT_PRECIS,
 * CLIP_DEFAULT_PRECIS, DRAFT_QUALITY, 0, font): font is the face name, height in pixels
 * as CreateFont takes it (negative: character height), weight FW_NORMAL, FW_BOLD, ...
 * Probes font ("smCreateFont2D(font)"); no catch-all. */
TS_API HFONT smCreateFont2D(const char* font, int height, int weight, DWORD italic, DWORD underline);

/** DeleteObject(object); returns its result. Not guarded. */
TS_API BOOL smDelGDIObj(HGDIOBJ object);

/* --- fonts for text in the 3D scene ------------------------------------------------------
 * A font for snTextBMP or snTextEXT is a run of 256 OpenGL display lists, one per
 * character code, made in the current scene's OpenGL context and valid in that scene
 * only. Each font takes the scene's next 256 list names: the first font of a scene
 * starts at 1000, the next at 1256, and so on; the names are never given back. */

/** Makes bitmap glyphs of the characters 0 to 255 of font (wglUseFontBitmapsA) in the
 * current scene and returns the first list name, for snTextBMP. The font stays selected
 * in the scene window's device context; it belongs to the caller (the lists do not need
 * it any more). Sent to the scene thread while it runs. Asserts "font != NULL" (file
 * user3d_uti, line 251; the process aborts with exit code 3). Catch-all
 * "smCreateFontBMP". */
TS_API unsigned int smCreateFontBMP(HFONT font);

/** The outline font record that smCreateFontEXT fills and snTextEXT reads: 6156 bytes
 * on Win32 and Win64 alike (its fields are 32-bit; checked at compile time and by the
 * tests on both). */
typedef struct smOutlineFontRecord {
    unsigned int listBase;          /**< first of the font's 256 display lists */
    float deviation;                /**< the deviation the outlines were made with */
    float extrusion;                /**< the extrusion the outlines were made with */
    GLYPHMETRICSFLOAT glyphs[256];  /**< metrics of each character code, in em units */
} smOutlineFontRecord;

/** Makes real 3D outline glyphs of the characters 0 to 255 of font in the current scene
 * with wglUseFontOutlinesA (filled polygons, WGL_FONT_POLYGONS) and returns a new record
 * with their list base and metrics, for snTextEXT. deviation is the largest distance of
 * the polygons from the true outlines, in em units (0 lets the system choose);
 * extrusion is the depth of the glyphs along -z, in em units (0 gives flat glyphs).
 * The glyphs measure about 1 unit per em: a character is about one unit high.
 * The record is a fixed global memory block (GlobalAlloc(GPTR)); it belongs to the
 * caller, who may free it with GlobalFree once no snTextEXT call needs it any more (the
 * nodes keep what they need of it). The font stays selected in the scene window's device
 * context. Sent to the scene thread while it runs. Asserts "font != NULL" (user3d_uti,
 * line 260). When the outlines cannot be made (font is not a font, the system refuses,
 * or the record cannot be allocated) the call ends in the assertion "FontCreation==TRUE"
 * (user3d_uti, line 268; exit code 3). The library was first built without outline
 * fonts, and that call always ended in this assertion; the record's layout is what it
 * always was. Catch-all "smCreateFontEXT". */
TS_API smOutlineFontRecord* smCreateFontEXT(HFONT font, float deviation, float extrusion);

/** Win64 (see the notes above): the node handle of a 32-bit selection name, or NULL if
 * no living node carries that name. On Win32 it returns the name as a handle. Not
 * guarded; runs on any thread. */
TS_API cNode* tsNodeFromName(unsigned int name);

/* --- settings file ---------------------------------------------------------------------
 * Every new scene reads "Tessarin20.ini" (current directory first, then the Windows
 * directory): one "key value (comment)" per line after two header lines, keys in any
 * order, the last of repeated keys winning, unknown keys skipped, missing keys taking
 * their defaults. With no file at all the defaults are used and a commented template is
 * written to the Windows directory ("Save Tessarin.ini file failed" if it cannot be);
 * an existing file is never rewritten. Unlike the original design, words longer than
 * 199 characters are cut rather than overrunning the reader's buffers, and the initial
 * viewpoint name keeps at most 99 characters (63 of them reach the viewpoint). */

/* --- modes and camera ------------------------------------------------------------------
 * These calls act on the current scene. While the library's scene thread runs they are
 * sent to it as synchronous requests and run there; otherwise they run directly on the
 * caller's thread. Each carries the catch-all under its own name unless said otherwise;
 * a call made before any scene exists faults inside and ends the process through it.
 * Mode values outside their set are ignored without a message. */

/** Shade mode: TS_SHADE_SMOOTH (100000), TS_SHADE_FLAT (100001) or TS_SHADE_NONE
 * (100002, which switches depth test, culling, lighting and colour material off and
 * leaves the lights untouched). Updates the context menu's check marks; no redraw. */
TS_API void smShadeMode(int mode);

/** Polygon mode: TS_DRAW_POINTS (100010), TS_DRAW_LINES (100011) or TS_DRAW_FILLED
 * (100012). Updates the check marks; no redraw. */
TS_API void smDrawMode(int mode);

/** Projection: mode TS_PERSPECTIVE (0) or TS_ORTHOGONAL (1), with the vertical view
 * angle in degrees and the near and far clipping distances. Any other mode ignores the
 * whole call. The orthogonal view's height is that of the perspective view at the
 * eye's distance pos.z, so moving the eye along z zooms it. No redraw. */
TS_API void smProjectionMode(int mode, double angle, double clipnear, double clipfar);

/** Action mode TS_ROTATE (0), TS_FLY (1) or TS_WALK (2); not range-checked. Stops the
 * rates and the speed; from TS_ROTATE to TS_FLY/TS_WALK the accumulated rotation
 * becomes the look vectors (and turns the eye position with it), the other way the
 * look vectors become the rotation. The event record's dir and up take the look vectors
 * the switch leaves (0, 0, 0 on going to TS_ROTATE). Redraws once. Returns 1. */
TS_API int smActionMode(int mode);

/** Restores the start camera from the settings (iniPos, iniRot, iniAxis) and the initial
 * look vectors, stops all motion and resets the accumulated rotation. An iniRot other
 * than 0 then turns the scene by that angle on every pass. No redraw. */
TS_API void smResetPos(void);

/** Stops continuous motion (spinning after a quick release, flying, walking). */
TS_API void smStopMotion(void);

/** Sets the eye position (world units) and redraws. */
TS_API void smTranslation(float x, float y, float z);

/** Stops motion and turns the camera once by angle (degrees) about the axis (x, y, z);
 * in TS_FLY/TS_WALK the look vectors and the eye position turn. Redraws once.
 * Through the scene thread the angle travels as a 32-bit count of hundredths of a
 * degree read back unsigned: it is quantised to 0.01 degree and a negative angle
 * arrives as a large positive one (-10 turns by 42949662.96 degrees, at float
 * precision). Without the scene thread the float angle is used unchanged. */
TS_API void smRotation(float angle, float x, float y, float z);

/** Stops motion and sets the eye position, the viewing direction and the up vector; in
 * TS_ROTATE they become the rotation of the scene (the eye position is turned with it).
 * Redraws once. Not guarded. */
TS_API void smLookAt(float eyeX, float eyeY, float eyeZ, float dirX, float dirY, float dirZ,
                     float upX, float upY, float upZ);

/* --- lights ---------------------------------------------------------------------------
 * Eight lights, numbered 0 to 7 (GL_LIGHT0 to GL_LIGHT7), all off at first. These calls
 * change the current scene's light in place on the caller's thread, without a request
 * and without a redraw: the change shows at the next pass. A LightNo outside 0..7 fails
 * the assertion "LightNo>=0 && LightNo <8" (the process aborts). Catch-all under each
 * call's name. */

/** Switches the light on or off and makes it directional (w = 0) from direction
 * (x, y, z; NULL: 1, 1, 1); spot values stay. worldPos 1: the light is placed as seen
 * from the initial eye point and keeps its place relative to the viewer; 0: it is fixed
 * in the scene and turns with it. */
TS_API void smLightDirection(int LightNo, int on, int worldPos, float* direction);

/** Sets the ambient, diffuse and specular colours from red, green, blue triples (alpha
 * 1). NULL gives a grey: ambient 0.2, diffuse 0.5, specular 0.5. A colour whose three
 * components differ clears the colour's grey flag (the "equal " box of the Light Settings
 * dialog, smLightDialog); a later grey colour does not set it again. */
TS_API void smLightColor(int LightNo, float* ambient, float* diffuse, float* specular);

/** Makes the light a positional spot (w = 1) with the spot direction (NULL: 0, 0, -1).
 * cutoff (degrees) is taken only within 0..180 and exponent only within 0..1; values
 * outside keep the old ones, without a message. */
TS_API void smLightSpot(int LightNo, float* direction, float cutoff, float exponent);

/* --- viewpoints -----------------------------------------------------------------------
 * Named camera settings, each also entered in the Viewpoints submenu of the scene's
 * context menu. Each call stops motion first;
 * requests to the scene thread when it runs, else direct on the current scene.
 * Catch-all under each call's name. */

/** A viewpoint as the caller passes it. Only the first 63 characters of name are kept. */
typedef struct smViewpointRecord {
    char name[100];   /**< name shown in the Viewpoints submenu */
    float pos[3];      /**< eye position */
    float axis[3];     /**< rotation axis */
    float rotAngle;    /**< degrees */
    double viewAngle;  /**< vertical view angle, degrees */
} smViewpointRecord;

/** Adds a viewpoint at the end of the list and makes it current: a copy of viewpoint
 * when given (name is then ignored); otherwise the camera as it stands (in TS_ROTATE the
 * accumulated rotation as angle and axis; in TS_FLY and TS_WALK the look vectors as
 * angle and axis, and the eye turned by that rotation, which going to the viewpoint
 * turns back, so the camera returns exactly), named name, or,
 * with both NULL, named by the user in the dialog "Enter viewpoint name:" (owned by the
 * scene window). Its menu identifier is TS_CMD_FIRST_VIEWPOINT (20200) plus the number
 * of viewpoints before it; identifiers are not renumbered when one is deleted, so two
 * entries may share one.
 * Returns 1, or 0 when the user cancels. */
TS_API int smViewpointAdd(char* name, smViewpointRecord* viewpoint);

/** Deletes the first viewpoint named name (case-sensitive; 0 if none), or, with name
 * NULL, the current one after the question "Do you want to delete viewpoint: <name>"
 * (title "Delete Viewpoint", Yes/No; No returns 0). An empty list shows "No viewpoint
 * to delete." (title "Delete Viewpoint") and returns 0. Its predecessor (or successor)
 * becomes current. Returns 1 when one was deleted. */
TS_API int smViewpointDel(char* name);

/** Goes to the first viewpoint named name: eye position, view angle and orientation
 * replace the camera's; redraws once. Returns 1, or 0 if no viewpoint has that name.
 * Probes name ("smViewpointSet(name)"). */
TS_API int smViewpointSet(char* name);
/* --- settings dialogs and the scene's image ----------------------------------------------
 * The two settings dialogs are modeless, one of each per scene, owned by the scene
 * window and run by the thread that owns it (the scene thread, whose message loop also
 * gives them their keyboard: Tab, Enter for "OK", Escape for "Cancel"; in an
 * application window the application's loop would have to call IsDialogMessage). Each
 * keeps its scene as hexadecimal text in a hidden edit control and reads it back on
 * every message; on Win64 that text holds all 64 bits of the pointer. Opening a dialog
 * that is open already raises it. Both close with their scene window, and a scene that
 * ends before its window closes them first. */

/** Opens the View Settings dialog of the scene (title "View Settings"): the eye
 * position ("Position", X, Y, Z, shown "%6.2f"); in TS_ROTATE the rotation axis
 * ("Rotation Axis") and "Angle:", in TS_FLY and TS_WALK the look direction ("Look at")
 * and the up vector ("Look up"); "View Angle" ("%3.2f") with a trackbar from 0 to 180
 * (a tick every 30); "Clipping Planes" "Near:" and "Far:" (shown with six significant
 * digits, so that a near plane of 0.001 survives being applied); "Frames per Sec." as
 * 1000 / the last frame time in clock ticks ("%3.2f"); the radio buttons "Rotate", "Fly"
 * and "Walk", which switch the action mode at once as smActionMode does; the push-like
 * check box "Update" (checked when the dialog opens); "Cancel", "Help"
 * (smOpenDocu("fsSettingView.html")) and "OK".
 * While "Update" is checked every rendering pass of a 3D scene shows the camera that
 * pass used; an edit that has the keyboard focus is left as the user is typing it.
 * Applying happens when an edit loses the focus, on "Update" and on "OK" ("OK" then
 * closes; "Cancel" only closes), and does nothing while "Update" is unchecked. It takes
 * the position; in TS_FLY/TS_WALK the look direction and the up vector (the library also
 * sets the side vector to their normalised cross product, so that pitching turns about
 * it); in TS_ROTATE the axis and the angle, then motion stops and the accumulated
 * rotation becomes the identity, so that the entered angle and axis are the whole
 * orientation; the clipping planes; the view angle, clamped to 0..180; the action mode
 * of the radio buttons, stored as it is. Then a rendering pass runs and the incremental
 * angle returns to 0. An edit that holds no number leaves its value as it was. Moving
 * the trackbar shows its position in the view-angle edit and, while "Update" is
 * checked, makes it the view angle in whole degrees and redraws.
 * Asserts "SceneWindow != NULL" (`..\source\user3d_uti.cpp`, line 242). Through the
 * scene thread the dialog is the scene's; on the direct path of an application window
 * it is the current scene's, whatever the argument. Catch-all "smViewDialog". */
TS_API void smViewDialog(cScene* SceneWindow);

/** Opens the Light Settings dialog of the scene (title "Light Settings"): the eight
 * lights listed as " LIGHT 0" to " LIGHT 7" (each item's data is its number; light 0 is
 * selected when the dialog opens) and, for the selected light: "Light on"; " Parallel"
 * or " Point"; " Worldpos."; "Source Dir./Pos." and "Target Direction" (X, Y, Z);
 * "Ambient Color", "Diffuse Color" and "Specular Color", each with R, G, B edits, three
 * trackbars from 0 to 100 (a tick every 10) and a check box "equal " that is the
 * colour's grey flag; "Spot Light" "Cut:" with a trackbar from 0 to 180 (a tick every
 * 15) and "Exp.:"; "Light Attenuation" "Const.:", "Linear:" and "Quad.:"; "Update"
 * (checked when the dialog opens), "OK", "Cancel" and "Help"
 * (smOpenDocu("fsSettingLight.html")). Values are shown with "%3.2f".
 * The library's choices: a colour trackbar at position p means the component p / 100
 * (a component is shown at the position nearest 100 x its value); the cut-off trackbar
 * means whole degrees. While "Update" is checked, moving a trackbar changes that value
 * of the light at once and redraws; with the colour's "equal " box checked it moves all
 * three components and their trackbars together. A number typed into a colour edit
 * whose "equal " box is checked is copied to the other two when the edit loses the
 * focus. Every other change applies the whole selected light, only while "Update" is
 * checked: when an edit loses the focus, when a check box or radio button is clicked,
 * on "Update" and on "OK" ("OK" then closes; "Cancel" closes and applies nothing more:
 * what was applied stays). The apply order is: on; parallel or point (w of the
 * position 0 or 1 with it); world position; position; spot direction; ambient,
 * diffuse and specular (each component clamped to 0..1, the grey flag from "equal ");
 * cut-off clamped to 0..180; exponent clamped to 0..1 (the range smLightSpot takes);
 * the three attenuations, negative values raised to 0. The fields are then shown again
 * from the light and a rendering pass runs. An edit that holds no number leaves its
 * value as it was. Selecting another light in the list shows that light.
 * Asserts "SceneWindow != NULL" (`..\source\user3d_uti.cpp`, line 233); the scene as
 * for smViewDialog. Catch-all "smLightDialog". */
TS_API void smLightDialog(cScene* SceneWindow);

/** A new 24-bit bitmap handle (no colour table) of what the current scene's window
 * shows: a memory DC and a device bitmap of the size of the scene's OpenGL viewport
 * (its client area), filled by BitBlt, then converted with dibDDBToDIB(bitmap, NULL,
 * 24, 0). The pixels are taken as they stand: the last frame with the 2D layer drawn
 * over it, and, where another window covers part of the scene window, that window as
 * the screen shows it. The library's choice: the BitBlt reads the screen at the
 * window's client area rather than the window's own DC, since on a composited desktop,
 * and under Wine, a window's DC holds only the window's own pixels (or nothing) where
 * it is covered. A part of the window off the screen therefore comes out as the screen
 * has it there. The caller frees the handle with GlobalFree. NULL when the bitmap
 * cannot be made, described or selected, or when BitBlt fails (and when there is no
 * current scene); the memory DC and the device bitmap are released in every case.
 * Through the scene thread when it runs, else directly on the current scene. Catch-all
 * "smDIBCreateScene". */
TS_API HGLOBAL smDIBfromScene(void);

/* --- vector maths ----------------------------------------------------------------------
 * Runs on the caller's thread; needs no scene. */

/** Scales the 3-vector v (three floats) to unit length in place: the reciprocal 1/|v| is
 * formed once, as a float, and multiplied into each component. A zero vector, which the
 * library once turned into NaNs, is left unchanged (0, 0, 0). v is not probed; a bad
 * pointer faults inside and ends the process through the catch-all "smNormalize". */
TS_API void smNormalize(float* v);

/* ======================================================================================
 * 6. sn - scene node constructors
 *
 * Create or edit: with Node NULL a new node is made from the arguments, added to the
 * current scene with smAddNode and returned. With Node a handle of the same class, the
 * node's parameters are replaced in place (on the caller's thread, no redraw) and Node is
 * returned. With a handle of another class the result is NULL and nothing changes.
 * ==================================================================================== */

/** Creates a group node whose parent is the current group, adds it with smAddNode and
 * makes it the current group, so that the following nodes go into it until
 * smGroupEnd. Returns the group. Catch-all "snGroup". */
TS_API cNode* snGroup(void);

/** Creates a node that draws ParentNode again at its own place in the list, under the
 * state in force there, and adds it with smAddNode. ParentNode is not owned; it may be
 * any node, also a group. Probes ParentNode ("snUse(ParentNode)"). Catch-all "snUse". */
TS_API cNode* snUse(cNode* ParentNode);

/* --- simple geometry ---------------------------------------------------------------------
 * All of these follow create-or-edit (above): the node is built on the caller's thread
 * and added with smAddNode (sent to the scene thread when it runs), or an existing node
 * of the same class is changed in place on the caller's thread. Coordinates and lengths
 * are floats in scene units. Apart from the point and the axis, the nodes set no colour
 * or material: they take the colour, material, lighting and matrix in force from the
 * nodes before them. Each call carries the catch-all under its own name; creating a
 * node with no current scene ends the process with "Pointer to inaccessible memory:
 * Current Scene is not defined!", and a node that cannot be allocated ends it with
 * "Pointer to inaccessible memory: smAddNode(NodeToAdd)". */

/** A point at (x, y, z). color names three floats r, g, b in 0..1, or is NULL for none; a
 * point with a colour sets it as the current colour, which stays in force for the nodes
 * after it. color is read without a pointer test (a bad pointer ends the process
 * through the catch-all "snPoint"). */
TS_API cNode* snPoint(cNode* Node, float x, float y, float z, const float* color);

/** A line segment from (x1, y1, z1) to (x2, y2, z2). Catch-all "snLine". */
TS_API cNode* snLine(cNode* Node, float x1, float y1, float z1, float x2, float y2, float z2);

/** A flat triangle with one face normal; counter-clockwise points, seen from the viewer,
 * face the viewer. Drawing it switches back-face culling on (glEnable(GL_CULL_FACE)) and
 * leaves it on: back faces of everything drawn after the first triangle are culled. Three
 * equal points give a non-finite normal and still draw without a fault. Catch-all
 * "snTriangle". */
TS_API cNode* snTriangle(cNode* Node, float x1, float y1, float z1, float x2, float y2,
                         float z2, float x3, float y3, float z3);

/** A quadrilateral drawn as the triangles (p1, p2, p3) and (p1, p3, p4), each with its own
 * face normal. It does not touch face culling. Catch-all "snTetragon". */
TS_API cNode* snTetragon(cNode* Node, float x1, float y1, float z1, float x2, float y2,
                         float z2, float x3, float y3, float z3, float x4, float y4,
                         float z4);

/** An axis-aligned box spanned by the opposite corners (x1, y1, z1) and (x2, y2, z2), in
 * either order. orientation GLU_OUTSIDE gives outward normals and faces wound
 * counter-clockwise seen from outside; any other value (GLU_INSIDE) faces the inside.
 * Catch-all "snBox". */
TS_API cNode* snBox(cNode* Node, float x1, float y1, float z1, float x2, float y2, float z2,
                    int orientation);

/** count points (x, y, z triples at vects) drawn as one OpenGL primitive of mode mode, with
 * one flat normal per face (the shade model is left alone):
 *   GL_TRIANGLES, GL_TRIANGLE_STRIP, GL_TRIANGLE_FAN, GL_QUAD_STRIP, GL_POLYGON: as
 *     OpenGL draws them; strip and fan normals face the same side as the first face.
 *   GL_QUADS: each quad is given in zigzag order (p0 p1 bottom, p2 p3 top); the node
 *     draws p0 p1 p3 p2, so (0,0,0) (1,0,0) (0,1,0) (1,1,0) is the untwisted unit square.
 *   GL_LINE_LOOP, GL_LINE_STRIP: the points without normals.
 *   GL_POINTS, GL_LINES and any other mode: nothing (glBegin and glEnd only).
 * The points are copied (count x 12 bytes); the caller may free its array. Faces that
 * would need points beyond count (a last incomplete quad, a strip, fan or polygon of
 * fewer than three points, a quad strip of fewer than four) are left out; the library
 * once read past the array there. When count is negative or the copy cannot be
 * allocated, the node is left empty (mode 0, count 0) without a message.
 * Probes vects ("snPrimitive(vects)") before anything else, so NULL ends the process
 * with "Pointer to inaccessible memory: snPrimitive(vects)". Catch-all "snPrimitive". */
TS_API cNode* snPrimitive(cNode* Node, int mode, const float* vects, int count);

/** A GLU sphere of the given radius around the origin, with slices and stacks as GLU
 * takes them. drawStyle, normals and orientation go unchanged to gluQuadricDrawStyle,
 * gluQuadricNormals and gluQuadricOrientation (e.g. GLU_FILL, GLU_SMOOTH, GLU_OUTSIDE).
 * Catch-all "snSphere". */
TS_API cNode* snSphere(cNode* Node, float radius, int slices, int stacks, int drawStyle,
                       int normals, int orientation);

/** A GLU cylinder (or cone) along +z from z = 0 to z = height, radius baseRadius at z = 0
 * and topRadius at z = height, with the quadric settings as for snSphere. bottomCap and
 * topCap add a disk at either end; with orientation GLU_OUTSIDE the caps face away from
 * the tube (bottom down, top up), otherwise into it. The caps take the tube's draw style
 * and GLU's default normals. An edit releases the caps the node had and makes those now
 * asked for, so an edit to no caps leaves an open tube. Catch-all "snCylinder". */
TS_API cNode* snCylinder(cNode* Node, float height, float baseRadius, float topRadius,
                         BOOL bottomCap, BOOL topCap, int slices, int stacks, int drawStyle,
                         int normals, int orientation);

/** A GLU partial disk in the z = 0 plane between innerRadius and outerRadius, from
 * startAngle over sweepAngle (degrees, clockwise from +y as GLU measures them), with
 * slices and loops as GLU takes them and the quadric settings as for snSphere. A full
 * disk is startAngle 0, sweepAngle 360. Catch-all "snDisk". */
TS_API cNode* snDisk(cNode* Node, float innerRadius, float outerRadius, int slices, int loops,
                     float startAngle, float sweepAngle, int drawStyle, int normals,
                     int orientation);

/** The coordinate axes: the x axis in red, y in green, z in blue, each a line from -length
 * to +length through the origin, with a four-sided arrow cone at both ends (tip on the
 * end, height coneLength, base width coneSize) and its letter X, Y or Z, letterSize high,
 * just past the positive end. The current colour is saved and restored around the node.
 * Catch-all "snAxis". */
TS_API cNode* snAxis(cNode* Node, float xLength, float yLength, float zLength,
                     float coneLength, float coneSize, float letterSize);

/* --- attributes and transforms -----------------------------------------------------------
 * What these set stays in force for everything drawn after them, also after the end of
 * the group they are in; only the matrix can be bracketed, with snPushMatrix and
 * snPopMatrix. Create-or-edit as above. */

/** Sets the current colour to the three floats r, g, b (0..1) at rgb. rgb is read without
 * a pointer test: a bad pointer ends the process through the catch-all "snColor". Makes
 * the same class as snColorRGB: either call may edit a node made by the other. */
TS_API cNode* snColor(cNode* Node, const float* rgb);

/** Sets the current colour to r, g, b (0..1). Catch-all "snColorRGB". */
TS_API cNode* snColorRGB(cNode* Node, float r, float g, float b);

/** Moves what follows by (x, y, z) (glTranslatef). Catch-all "snTranslate". */
TS_API cNode* snTranslate(cNode* Node, float x, float y, float z);

/** Scales what follows by (x, y, z) (glScalef). Catch-all "snScale". */
TS_API cNode* snScale(cNode* Node, float x, float y, float z);

/** Turns what follows by angle degrees about the axis (x, y, z) (glRotatef); every time
 * the node is drawn, increment degrees are then added to its angle, so a non-zero
 * increment keeps turning the geometry a little further each frame (and on each extra
 * pass, such as picking). The angle grows without wrap-around. An edit sets a new angle,
 * axis and increment. Catch-all "snRotate". */
TS_API cNode* snRotate(cNode* Node, float angle, float x, float y, float z, float increment);

/** Turns the scene switch number sw (TS_SWITCH_*) on when the node is drawn. The switch
 * written is that of the library's current scene at drawing time, which need not be the
 * scene being drawn; TS_SWITCH_CULL_FACE also takes effect in OpenGL at once, the others
 * at the next pass. Other numbers are stored and ignored. Makes the same class as
 * snDisable, so either call may edit a node made by the other. Catch-all "snEnable". */
TS_API cNode* snEnable(cNode* Node, int sw);

/** As snEnable, but turns the switch off. Catch-all "snDisable". */
TS_API cNode* snDisable(cNode* Node, int sw);

/** Pushes the model-view matrix (glPushMatrix). Always makes a new node and cannot be
 * edited. Not guarded: with no current scene the process ends in smAddNode's guard.
 * Unbalanced push and pop nodes are passed to OpenGL as they are. */
TS_API cNode* snPushMatrix(void);

/** Pops the model-view matrix (glPopMatrix). As snPushMatrix. */
TS_API cNode* snPopMatrix(void);

/* --- meshes ------------------------------------------------------------------------------
 * snIndexedFaceSet and snElevationGrid follow create-or-edit (above). Every array is
 * copied on the caller's thread; the caller keeps its own. A parameter error shows one
 * box in the library's error box (title "Tessarin Error Message", no owner,
 * MB_SETFOREGROUND), the prefix `Error in IndexedFaceSet:\n` or `Error in
 * ElevationGrid:\n` followed by the error's text, on the caller's thread; the node is
 * still made (or kept) and added, but holds no arrays and draws nothing. The process
 * goes on. Only the first error of a call is reported.
 *
 * Display lists. A mesh compiles itself into an OpenGL display list of its own the
 * first time it is drawn, and again whenever it is drawn under another shading mode
 * than the one its list holds (smShadeMode) or after an edit; otherwise a redraw costs
 * one glCallList. The list's name is the node's handle on Win32. On Win64 a handle does
 * not fit the 32-bit list name: the list is named by the node's 32-bit selection name
 * (the one picking reports, tsNodeFromName) with the top bit set (name | 0x80000000),
 * which keeps it clear of the scenes' own list names. The list is deleted when the node
 * is destroyed (smDelNode, smClearScene, destruction of its group or scene), in the
 * scene's rendering context, and when the node is edited on the thread that draws its
 * scene (a scene hosted in an application window); edited from another thread, the old
 * list is replaced at the next drawing. Setting the parameters asserts that no list of
 * the node's name exists in the OpenGL context current on the calling thread:
 * "!glIsList(IndexedFaceSetList)" (source `..\source\tsobj3d\visible\cindexedfaceset3d.cpp`) or
 * "!glIsList(ElevationGridList)" (`..\source\tsobj3d\visible\celevationgrid3d.cpp`);
 * a failure aborts the process. While smUseDisplayList compiles the scene's list, a mesh
 * puts its geometry into that list instead of calling its own, so the scene's list keeps
 * it even after the node is destroyed. Picking names a mesh like any other node.
 *
 * What the list does. Each face or triangle is drawn with glShadeModel(GL_SMOOTH) set
 * before the mesh and glShadeModel(GL_FLAT) left behind it (the nodes after a mesh are
 * drawn flat unless the pass or a node sets the model again). Solid TRUE draws the mesh
 * with back faces culled, FALSE with both sides drawn; the culling state in force is
 * saved before the list is called and put back after it, at every drawing, so a mesh
 * never changes the culling of the nodes around it. The indexed face set saves and
 * restores the current colour (glPushAttrib(GL_CURRENT_BIT)); the elevation grid does
 * not, so its last colour stays in force.
 *
 * Normals by shading mode. Flat and none (TS_SHADE_FLAT, TS_SHADE_NONE): one normal per
 * face or triangle from its first three points (p0 - p1) x (p1 - p2), normalised;
 * given normals are not used. Smooth (TS_SHADE_SMOOTH): the given normals when there are
 * any; otherwise one normal per coordinate (per grid point) from the crease angle: the
 * faces around a coordinate form its ring, two faces being neighbours when they share an
 * edge through it; the walk starts at the first face, in index-list order, that uses the
 * coordinate, and the normal is the normalised sum of the normals of the run of
 * neighbouring faces whose normals differ by no more than CreaseAngle degrees (dot
 * product at least cos(CreaseAngle * 0.01745329251994)) that contains that face. A cube
 * at 30 degrees therefore takes each corner's normal from its first face, at 100 degrees
 * the diagonal; a point where a cylinder's side meets its cap takes the side's normal or
 * the cap's, whichever face comes first; CreaseAngle 180 or more smooths over every
 * edge (the plain sum). Where one coordinate should show a crease on both sides, give
 * each side its own coordinates.
 *
 * Degenerate meshes are drawn without a fault, and no normal is ever NaN:
 *  - a face without area (zero length, fewer than three usable entries, repeated or
 *    collinear points where no other entries give it an area, non-finite points) has the
 *    normal (0, 0, 0); in the smoothing it is no crease: it joins the faces on both of
 *    its sides, adds nothing to the sum and is never the walk's start;
 *  - a coordinate that no face uses, or whose faces all lack area: (0, 0, 0);
 *  - faces that cancel (folded back onto each other, crease 180 or more): the start
 *    face's normal;
 *  - an edge shared by three or more faces: those faces are neighbours in index-list
 *    order, each to the next;
 *  - a face that names a coordinate twice counts once for it;
 *  - index entries that name no coordinate (negative values other than -1, which pass
 *    the checks) belong to no ring, draw no vertex and make no edge; entries after the
 *    last -1 belong to no face and are not drawn;
 *  - faces of 3 to many thousands of vertices; time and memory grow linearly with the
 *    mesh (working memory at most 16 bytes per face, per coordinate and per index
 *    entry besides the mesh's own arrays);
 *  - CreaseAngle NaN: every edge is a crease.
 * When the working memory for the normals cannot be had, the list holds the faceted form
 * (or nothing, when even the face normals cannot be had); no message is shown. */

/** An indexed face set: a polygon mesh from CoordCount points (x, y, z float triples at
 * Coord) and the index list CoordIndex of CoordIndexCount 32-bit entries, in which each
 * face lists its points' numbers (0-based) in order and is closed by -1, the last face
 * included: entries after the last -1 form no face and are not drawn. The number of
 * faces is the number of -1 entries. Faces are drawn as GL_POLYGON, counter-clockwise
 * seen from the front; a face needs three points, and its normal comes from its first
 * three.
 *
 * CreaseAngle (degrees) steers the smooth normals (above); Solid culls back faces.
 * Colours (optional; Color NULL or ColorCount 0 for none): ColorCount r, g, b triples
 * at Color. ColorPerVertex FALSE: one colour per face, Color[ColorIndex[face]], or
 * Color[face] without a colour index, set before the face. ColorPerVertex TRUE: one
 * colour before each vertex: Color[ColorIndex[k]] for the k-th entry of CoordIndex (the
 * -1 entries count as positions, so ColorIndex runs in step with CoordIndex), or,
 * without a colour index, colour j for the j-th vertex occurrence of the index list,
 * whichever point it names (as the library has always done: colours follow the
 * occurrences, not the points). Normals (optional; Normal NULL or NormalCount 0 for none),
 * used in the smooth mode only, follow the same rules as the colours: NormalPerVertex
 * FALSE one normal per face (through NormalIndex or in face order), TRUE one normal
 * before each vertex (through NormalIndex in step with CoordIndex, or normal j for the
 * j-th occurrence). Index arrays are taken only with their count not 0.
 *
 * Checks, in this order; the first that fails is reported and stops the rest:
 *  1. "Invalid input parameter": CoordCount or CoordIndexCount is 0 (Coord or CoordIndex
 *     NULL never get here: the probes end the process first).
 *  2. "Allocation of array ver failed" (the points), "Allocation of array veri failed"
 *     (the index list); then "Coord index > number of coords" for an index at or above
 *     CoordCount. Negative indices other than -1 are not rejected.
 *  3. With colours: "Allocation of array col failed"; with a colour index, "Allocation of
 *     array coli failed", then per vertex "NO. of color indexes <> NO. of coord. indexes"
 *     unless ColorIndexCount equals CoordIndexCount, per face "NO. of colors <> NO. of
 *     faces" unless it equals the number of faces, then "Color index > NO. of colors"
 *     for an index at or above ColorCount. Without a colour index: per face "Number of
 *     colors <> number of faces" unless ColorCount is the number of faces, per vertex
 *     "Number of colors <> number of vertices" unless it equals CoordCount.
 *  4. With normals, the same with "Allocation of normal array failed", "Allocation of
 *     array nori failed", "NO. of normal indexes <> NO. of coord. indexes", "NO. of
 *     normals <> NO. of faces", "Normal index > number of normals", "Number of normals
 *     <> number of faces", and per vertex without an index "Number of normals <> number
 *     of vertices" only when NormalCount is less than CoordCount (more normals than
 *     points pass: the looser test is kept).
 * A negative count fails its copy: "Allocation of array ... failed" for that array.
 * Index values of colour and normal indexes below 0 are not rejected; such an entry,
 * like an index or occurrence beyond its array, sets no colour or normal when drawn.
 *
 * Probes Coord ("snIndexedFaceSet(Coord)"), then CoordIndex
 * ("snIndexedFaceSet(CoordIndex)"), reading one byte each; a bad pointer ends the
 * process with exit code 1. The arrays are then read in full: an array shorter than its
 * count faults and ends the process through the catch-all "snIndexedFaceSet". */
TS_API cNode* snIndexedFaceSet(cNode* Node, const float* Coord, int CoordCount, const int* CoordIndex,
                               int CoordIndexCount, float CreaseAngle, BOOL Solid, BOOL ColorPerVertex,
                               const float* Color, int ColorCount, const int* ColorIndex, int ColorIndexCount,
                               BOOL NormalPerVertex, const float* Normal, int NormalCount, const int* NormalIndex,
                               int NormalIndexCount);

/** An elevation grid: xDimension by zDimension points in the x-z plane, point (i, j) at
 * (i * xSpacing, Height[j * xDimension + i], j * zSpacing), so Height runs row by row
 * along x. Each cell (i, j), i fastest inside j, is drawn as the two triangles
 * (i, j) (i, j+1) (i+1, j) and (i, j+1) (i+1, j+1) (i+1, j), which face +y for a flat
 * grid; a 2 by 2 grid with spacings 1 covers the unit square.
 *
 * Colours (Color NULL for none): ColorPerVertex TRUE reads xDimension * zDimension
 * triples, one before each point; FALSE reads (xDimension - 1) * (zDimension - 1)
 * triples, one per cell before its two triangles. Normals (Normal NULL for none) are
 * read by the same count rule under NormalPerVertex and used in the smooth mode only,
 * per point before each point or per cell once before the cell's triangles; without
 * them the smooth mode takes crease-angle normals per point (above). CreaseAngle in
 * degrees; Solid culls back faces. Exactly the counts above are read from Height, Color
 * and Normal.
 *
 * Checks, in this order, the first that fails being reported:
 *  1. "Invalid input parameter(s)" unless xSpacing > 0, zSpacing > 0 and
 *     xDimension * zDimension >= 4 (the product in 64 bits). The dimensions are not
 *     tested one by one: a 1 by 4 grid passes, keeps its heights and draws nothing (no
 *     cells); a 1 by 3 grid is refused.
 *  2. "Allocation of height array failed"; also, where the original design would have
 *     overflowed, when the points or triangles do not fit 32-bit counts.
 *  3. With Color: "Allocation of array col failed".
 *  4. With Normal: "Allocation of normal array failed".
 *
 * Probes Height ("snElevationGrid(Height)"); a bad pointer ends the process with exit
 * code 1. A fault afterwards (an array shorter than its count) ends it through the
 * catch-all, whose label is "snEvaluationGrid" (so spelled, as the library always
 * reported it). */
TS_API cNode* snElevationGrid(cNode* Node, int xDimension, int zDimension, float xSpacing, float zSpacing,
                              const float* Height, float CreaseAngle, BOOL Solid, BOOL ColorPerVertex,
                              const float* Color, BOOL NormalPerVertex, const float* Normal);

/* --- text and bitmaps in the 3D scene ----------------------------------------------------
 * Create-or-edit as above. The text and bitmap start at the origin of the current model
 * coordinates, placed by the transform nodes before them, and are drawn with the
 * current raster colour (the current colour, lit when lighting is on). */

/** Text drawn with the bitmap font whose first list name is listBase (smCreateFontBMP of
 * the same scene): glRasterPos3f(0, 0, 0), then the characters' lists under
 * glPushAttrib(0x20F3F) (list, current, point, line, polygon, polygon stipple, pixel
 * mode, depth buffer, accumulation buffer, stencil buffer and viewport groups), popped
 * afterwards. The glyphs are screen-aligned and keep their pixel size. The text is
 * copied. Nothing is drawn when listBase is 0 or names no font of the scene drawn.
 * Probes text ("snTextBMP(text)"). Catch-all "snTextBMP". */
TS_API cNode* snTextBMP(cNode* Node, const char* text, unsigned int listBase);

/** Text drawn in 3D with the outline font of the record font (smCreateFontEXT of the
 * same scene), scaled when set: with width 0 the font's own size is kept (about one unit
 * per em); otherwise the x scale is width divided by the sum of the characters' cell
 * increments, so that the text is width units wide. With height 0 the y scale equals
 * the x scale (the proportions are kept); otherwise it is height divided by the largest
 * black-box height of the characters. Drawn under glPushMatrix and glPushAttrib(0x20F3F),
 * both popped afterwards; the glyphs lie in the z = 0 plane, extruded along -z. The text
 * and the font's list base are copied, so the record may be freed afterwards. A NULL
 * font gives a node that draws nothing (the library used to fault there). Probes text
 * ("snTextEXT(text)"). Catch-all "snTextEXT". */
TS_API cNode* snTextEXT(cNode* Node, const char* text, const smOutlineFontRecord* font, float width,
                        float height);

/** A 24-bit bitmap (hDIB, a bitmap handle as the dib functions make them) drawn with
 * glDrawPixels at the raster position of the origin, zoomed by zoom in both directions
 * (glPixelZoom); rows are read with unpack alignment 4, so any width draws without
 * shear. format and type go to glDrawPixels as they are: pass GL_BGR_EXT (0x80E0) and
 * GL_UNSIGNED_BYTE for the blue-green-red bytes of a DIB. The unpack alignment and the
 * pixel zoom stay set for what is drawn after the node. further is accepted and not
 * used. The node keeps pointers into the block: the caller keeps the block allocated,
 * unchanged in size and unfreed while the node exists; the node never frees it. A block
 * whose header claims more rows than it holds, for the given format and type, or whose
 * format or type is not one of OpenGL 1.1's (or GL_BGR_EXT, GL_BGRA_EXT), or that is
 * no live block or shorter than a header, gives a node that draws nothing (the library
 * used to read past such a block). Asserts "hDIB!=NULL" and
 * "lpBMI->bmiHeader.biBitCount == 24" (file `..\source\tsobj3d\visible\cbitmap3d.cpp`; exit
 * code 3).
 * Catch-all "snBitmap". */
TS_API cNode* snBitmap(cNode* Node, HGLOBAL hDIB, float zoom, int further, unsigned int format,
                       unsigned int type);

/* --- 2D state nodes ----------------------------------------------------------------------
 * 2D nodes follow create-or-edit too, but go into the current scene's 2D list
 * (smAddNode2D) and are drawn with GDI on the scene window's device context, after the
 * 3D frame, in list order: a state node affects the drawing nodes after it, in this
 * frame and, since the window's device context keeps its state, until another state
 * node changes it (only the pen position and the mix mode are reset before each frame).
 * Setting a node, by making or editing it, also records the value as the scene's
 * current one and, while the scene draws 2D nodes as they are set (the settings file's
 * "initDraw2D", on by default), draws the node at once on the caller's thread, so that
 * it shows before the next frame. The objects a node selects are the caller's (see
 * smCreatePen2D): nodes never delete them. Each call carries the catch-all under its own
 * name; with no current scene the add ends the process with "Pointer to inaccessible
 * memory: Current Scene is not defined!". */

/** Selects pen into the device context (SelectObject). */
TS_API cNode* snPen2D(cNode* Node, HPEN pen);
/** Selects brush into the device context: it fills rectangles, polygons and pies. */
TS_API cNode* snBrush2D(cNode* Node, HBRUSH brush);
/** Selects font into the device context: snText2D and snTextBlock2D write with it. */
TS_API cNode* snFont2D(cNode* Node, HFONT font);
/** Sets the background colour (SetBkColor) to r, g, b, converted as by smCreatePen2D:
 * (1.0, 0.5, 0.0) gives red 255, green 127, blue 0. It shows behind text, hatches and
 * dashes in OPAQUE background mode. */
TS_API cNode* snBackColor2D(cNode* Node, float r, float g, float b);
/** Sets the background mode (SetBkMode): OPAQUE or TRANSPARENT (a new scene's mode). */
TS_API cNode* snBackMode2D(cNode* Node, int mode);
/** Sets the foreground mix mode (SetROP2): R2_COPYPEN, R2_XORPEN, R2_NOT, ... It holds
 * until the next frame, which starts with R2_COPYPEN again. */
TS_API cNode* snForeMix2D(cNode* Node, int rop2);
/** Moves the pen (MoveToEx) and the scene's 2D position to (x, y), window pixels. Always
 * absolute: the relative mode of smRelToPos2D is for the drawing nodes. */
TS_API cNode* snMoveTo2D(cNode* Node, int x, int y);

/* --- 2D drawing nodes --------------------------------------------------------------------
 * Coordinates are 32-bit window pixels, x to the right and y downwards from the client
 * area's top-left corner. While the scene's relative mode is on (smRelToPos2D, on by
 * default) every coordinate given is offset by the scene's 2D position at the moment the
 * node is made or edited (once, not at each frame). Lines and outlines use the selected
 * pen, fills the selected brush, text the selected font and background mode. Point
 * arrays and texts are copied. Colours are float r, g, b converted as by smCreatePen2D.
 * Create-or-edit, recording, drawing at once and the guards as for the state nodes. */

/** A line from (x1, y1) to (x2, y2); the pen and the scene's 2D position stay where they
 * were. Probes the current scene ("snLine2D(CurrentScene)"), so with no current scene
 * the process ends with "Pointer to inaccessible memory: snLine2D(CurrentScene)". */
TS_API cNode* snLine2D(cNode* Node, int x1, int y1, int x2, int y2);
/** A line from the pen to (x, y), which becomes the pen's and the scene's 2D position:
 * with the pen at (100, 50) and the relative mode on, snLineTo2D(NULL, 10, 0) draws to
 * (110, 50). */
TS_API cNode* snLineTo2D(cNode* Node, int x, int y);
/** A polyline through count points. With fromCurrent FALSE it starts at the first point
 * (Polyline) and leaves the pen alone; with TRUE it starts at the pen (PolylineTo), and
 * the last point becomes the pen's and the scene's 2D position. When count is negative
 * or the copy cannot be allocated, the error box shows "Error in cPolyLine2D: Allocation
 * failed" and the node draws nothing; the process continues. Probes points
 * ("snPolyLine2D(points)"). */
TS_API cNode* snPolyLine2D(cNode* Node, const POINT* points, int count, BOOL fromCurrent);
/** Cubic Bezier curves through count points (1 + 3 per curve; with fromCurrent 3 per
 * curve, the first starting at the pen), as PolyBezier and PolyBezierTo draw them; the
 * pen as for snPolyLine2D. A failed copy shows "Error in cPolyBezier2D: Allocation
 * failed". Probes points ("snPolyBezier2D(points)"). */
TS_API cNode* snPolyBezier2D(cNode* Node, const POINT* points, int count, BOOL fromCurrent);
/** A closed polygon through count points, outlined with the pen and filled with the brush
 * by fillMode (ALTERNATE or WINDING, SetPolyFillMode). A failed copy shows "Error in
 * cPolygon2D: Allocation failed". Probes points ("snPolygon2D(points)"). */
TS_API cNode* snPolygon2D(cNode* Node, const POINT* points, int count, int fillMode);
/** A rectangle with the corners (x1, y1) and (x2, y2), both inside it: (10, 10, 20, 20)
 * covers the pixels 10 to 20 in both directions (Rectangle(x1, y1, x2 + 1, y2 + 1)),
 * outlined with the pen and filled with the brush. No probe; its catch-all reports
 * "snRectangele2D", as it always has. */
TS_API cNode* snRectangle2D(cNode* Node, int x1, int y1, int x2, int y2);
/** One pixel at (x, y) in the colour r, g, b (SetPixel). */
TS_API cNode* snPixel2D(cNode* Node, int x, int y, float r, float g, float b);
/** An elliptic arc (Arc) of the ellipse in the box (left, top)-(right, bottom), counter-
 * clockwise from the ray towards (xStart, yStart) to the ray towards (xEnd, yEnd). */
TS_API cNode* snArc2D(cNode* Node, int left, int top, int right, int bottom, int xStart, int yStart,
                      int xEnd, int yEnd);
/** A pie wedge (Pie) with the same eight values as snArc2D, outlined with the pen and
 * filled with the brush. */
TS_API cNode* snPie2D(cNode* Node, int left, int top, int right, int bottom, int xStart, int yStart,
                      int xEnd, int yEnd);
/** An arc of the circle around (x, y) with the radius, from startAngle over sweepAngle
 * (degrees). Angles count from the +x axis (3 o'clock) and grow counter-clockwise as
 * the window shows them, like GDI's arcs: the end points are
 * (x + trunc(radius cos a), y - trunc(radius sin a)). A sweep of 360 draws the whole
 * circle; the radius is not offset by the relative mode. */
TS_API cNode* snCircle2D(cNode* Node, int x, int y, int radius, float startAngle, float sweepAngle);
/** The text str with its top-left corner at (x, y) (TextOutA), in the colour r, g, b
 * (SetTextColor), with the selected font and the background mode and colour. Probes str
 * ("snText2D(str)"). */
TS_API cNode* snText2D(cNode* Node, int x, int y, const char* str, float r, float g, float b);
/** The text str laid out in the rectangle (left, top, right, bottom) by DrawTextA's
 * format flags (DT_LEFT, DT_CENTER, DT_WORDBREAK, DT_SINGLELINE | DT_VCENTER, ...), in
 * the colour r, g, b. DT_MODIFYSTRING is ignored: the node's copy of the text stays as
 * it was given. Probes str ("snTextBlock2D(str)"). */
TS_API cNode* snTextBlock2D(cNode* Node, int left, int top, int right, int bottom, const char* str,
                            UINT format, float r, float g, float b);
/** The device-dependent bitmap (a GDI bitmap of the caller's, see dibDIBToDDB) with its
 * top-left corner at (x, y): as it is (dibDrawDDB) when stretch is FALSE, or stretched
 * (dibStretchDDB) to the window's client width minus a and height minus b at each
 * drawing, so a = b = 0 with (x, y) = (0, 0) fills the client area. a and b are not
 * offset by the relative mode. A NULL bitmap draws nothing; the node never deletes the
 * bitmap. */
TS_API cNode* snBitmap2D(cNode* Node, HBITMAP bitmap, int x, int y, int a, int b, BOOL stretch);

/* ======================================================================================
 * 7. randstd / srandstd
 * ==================================================================================== */

/* The library's own random numbers: a lagged subtractive generator over a table of 55
 * 32-bit words, with the same sequence for the same seed on every system. There is one
 * generator per process, shared by all threads without synchronisation: call it from
 * one thread, or serialise the calls yourself. Not guarded. */

/** Seeds the generator. The same seed always yields the same sequence. */
TS_API void srandstd(unsigned int seed);

/** Advances the generator one step and returns the new word reduced to 0 .. n - 1.
 * Before the first srandstd every call returns 0. n = 0 is a division by zero: the call
 * raises the processor's integer-division fault (EXCEPTION_INT_DIVIDE_BY_ZERO), which
 * ends the process unless the caller handles it. */
TS_API unsigned int randstd(unsigned int n);

/* ======================================================================================
 * 8. dib - device-independent bitmaps
 * ==================================================================================== */

/* --- bitmap handle, BMP files, conversions, reduction, image operations ---------------
 * A bitmap handle (HGLOBAL) is a movable global memory block (GMEM_MOVEABLE |
 * GMEM_ZEROINIT) holding one packed bitmap: a 40-byte BITMAPINFOHEADER, the colour table
 * (biClrUsed entries, or 2^biBitCount below 16 bits when biClrUsed is 0, else none), 12
 * bytes of red, green and blue masks when biCompression is BI_BITFIELDS (3), then the
 * rows, bottom row first for a positive biHeight, each padded to 4 bytes. Bitmaps the
 * library makes have 2953 pixels a metre (75 dpi) unless a function says otherwise.
 * Handles returned belong to the caller, who frees them with GlobalFree.
 *
 * All dib functions run on the calling thread, use no guard and share no state with the
 * scenes. Each refusal shows "<function>: <message>" in the library's error box (title
 * "Tessarin Error Message", MB_SETFOREGROUND only) and returns 0, FALSE or NULL. Only a
 * NULL handle is detected as "No DIB passed!"; a handle that is not a bitmap block is not
 * checked. Long operations show the wait cursor, then the arrow cursor.
 *
 * Module state and threads: the GIF functions' code tables and parameter record and the
 * median cut of dibReduceColors are the library's one module state, used under one lock.
 * A call on another thread that needs it waits; nothing else in the bitmap library waits.
 * The design left these functions unguarded against concurrent calls; the library guards
 * them, and shows no box while it holds the lock: a call's messages come once its work on
 * the module state is done (the GIF version question comes before it), so a window
 * procedure or hook that runs in a box's message loop may call any dib function.
 *
 * Pixel addresses: every function finds a bitmap's pixels where dibGetBits does, at 40 +
 * 4 x colour count (+ 12 for bit fields), true-colour bitmaps with a colour table
 * included; the BMP reader's placement of bit-field files (below) is the one exception.
 *
 * Damaged bitmaps: no bitmap can make a function, or GDI on its behalf, read or write
 * outside its blocks. A block shorter than its header says reads as zero past its end;
 * sizes that no block could hold (negative widths, rows beyond 4 GiB in total, colour
 * tables of more than 65,536 entries) fail with the function's "Not enough memory"
 * message without being allocated; a bit-field mask of 0 gives 0 for its channel;
 * run-length streams that run past a row, past the last row or past the block drop the
 * pixels that would fall outside. What GDI gets for drawing and device bitmaps is
 * bounded the same way: a run-length stream is cut at the end of the block (or at
 * biSizeImage when that is smaller; biSizeImage 0 means the whole block) and closed with
 * an end-of-bitmap code; a header whose biSize is not 40 is passed as a 40-byte one; and
 * since GDI reads bit-field masks right behind the header, a bitmap with masks and a
 * colour table reaches GDI with the masks first. Well-formed bitmaps give the results
 * described below. The source handle is never changed unless a function says so. */

/** Width (biWidth as stored) of the bitmap. 0 and "dibGetWidth: No DIB passed!" for
 * NULL. */
TS_API LONG dibGetWidth(HGLOBAL hDIB);
/** Row count: the absolute value of biHeight (top-down bitmaps count positive). 0 and
 * "dibGetHeight: No DIB passed!" for NULL. */
TS_API LONG dibGetHeight(HGLOBAL hDIB);
/** biBitCount. 0 and "dibGetBitPerPixel: No DIB passed!" for NULL. */
TS_API WORD dibGetBitPerPixel(HGLOBAL hDIB);
/** Horizontal / vertical resolution in pixels a metre. 0 and "dibGetXPelsPerMeter: No
 * DIB passed!" (or ...Y...) for NULL. @{ */
TS_API LONG dibGetXPelsPerMeter(HGLOBAL hDIB);
TS_API LONG dibGetYPelsPerMeter(HGLOBAL hDIB);
/** @} */
/** Stores a resolution in pixels a metre in the header. TRUE; FALSE and
 * "dibSetXPelsPerMeter: No DIB passed!" (or ...Y...) for NULL. @{ */
TS_API BOOL dibSetXPelsPerMeter(HGLOBAL hDIB, LONG value);
TS_API BOOL dibSetYPelsPerMeter(HGLOBAL hDIB, LONG value);
/** @} */
/** Colour count of a locked header (a pointer, not a handle): biClrUsed when non-zero,
 * else 2^biBitCount below 16 bits, else 0. 0 without a message when fewer than 40 bytes
 * are readable at lpbi. */
TS_API DWORD dibGetColorsInPalette(LPVOID lpbi);
/** Address of the first pixel byte of a locked header: 40 + 4 x colour count, + 12 for
 * bit fields, whatever biSize says. Every dib function addresses pixels this way. NULL
 * without a message when fewer than 40 bytes are readable. */
TS_API LPVOID dibGetBits(LPVOID lpbi);
/** A new GDI palette: the bitmap's colour table (flags 0), or for bitmaps without one a
 * fixed 256-entry cube (red = 32 x (i mod 8), green = 32 x ((i / 8) mod 8), blue =
 * 64 x (i / 64)). Messages: "No DIB passed!", "No support of OS/2 DIBs!" (biSize not 40),
 * "Not enough memory!" (also for a colour count above 65,535, more than a logical
 * palette can count). On success the bitmap's block is left locked once more (harmless
 * for a movable block). */
TS_API HPALETTE dibCreatePalette(HGLOBAL hDIB);
/** Draws the bitmap at its own size with its top-left corner at x, y of hDC
 * (SetDIBitsToDevice), realizing hPal first when given and restoring the previous
 * palette. Run-length bitmaps are drawn from their bounded stream (see above). TRUE;
 * FALSE and "dibDraw: No DIB passed!" for NULL; FALSE without a message when the bitmap's
 * bytes cannot be had. */
TS_API BOOL dibDraw(HDC hDC, HGLOBAL hDIB, HPALETTE hPal, int x, int y);
/** As dibDraw, stretched to width x height (COLORONCOLOR, StretchDIBits). It reports
 * under the drawing function's name: "dibDraw: No DIB passed!". */
TS_API BOOL dibStretch(HDC hDC, HGLOBAL hDIB, HPALETTE hPal, int x, int y, int width, int height);
/** Draws a device bitmap at its own size through a memory context (BitBlt, SRCCOPY),
 * hPal realized in both contexts when given. Messages: "dibDrawDDB: No DDB passed!",
 * "dibDrawDDB: No memory device contect!". */
TS_API BOOL dibDrawDDB(HDC hDC, HBITMAP hBitmap, HPALETTE hPal, int x, int y);
/** As dibDrawDDB, stretched to width x height (COLORONCOLOR, StretchBlt). Messages:
 * "dibStretchDDB: No DDB!", "dibStretchDDB: No memory device context!". */
TS_API BOOL dibStretchDDB(HDC hDC, HBITMAP hBitmap, HPALETTE hPal, int x, int y, int width, int height);
/** A new device bitmap of the screen's format with the bitmap's pixels (CreateDIBitmap),
 * hPal realized first when given. A run-length bitmap reaches GDI as its bounded stream:
 * GDI never decodes past the caller's block, however the runs end (the design passed
 * the stream as it is). NULL and "dibDIBToDDB: No DIB passed!" for NULL; NULL without a
 * message when GDI fails or the bitmap's bytes cannot be had. */
TS_API HBITMAP dibDIBToDDB(HGLOBAL hDIB, HPALETTE hPal);
/** A new bitmap handle with a device bitmap's pixels (GetDIBits, twice). bits 0 means the
 * device bitmap's planes x bits; compression is stored as given. NULL hPal means the
 * stock default palette. Messages: "No DDB passed!", "Not enough memory for DIB!",
 * "Error in GetDIBits with RLE-DIBs!" (GDI gave no size for a compressed request),
 * "Error in GetDIBits during data transfer!"; "Not enough memory for DIB!" also when GDI
 * gives no size and the rows would exceed what a 32-bit biSizeImage counts. For bit
 * fields GDI writes its three masks right behind the header and the rows follow them,
 * where dibGetBits finds them (the design put the rows at 40 + 4 x colour count, on top
 * of the masks). */
TS_API HGLOBAL dibDDBToDIB(HBITMAP hBitmap, HPALETTE hPal, WORD bits, DWORD compression);
/** A new handle holding a byte copy of the whole block (GlobalSize bytes). Messages:
 * "dibCopy: No DIB passed!", "dibCopy: Not enough memory for DIB!". */
TS_API HGLOBAL dibCopy(HGLOBAL hDIB);

/** Writes the block as a BMP file (created or truncated): a 14-byte file header, then
 * the whole block as GlobalSize reports it, trailing bytes included (bfSize counts them).
 * bfOffBits is 54 + 4 x colour count, plus 6 (not 12) for bit fields: files written
 * this way have always stated that offset. TRUE on success. Messages: "dibWrite: No DIB
 * passed!" (tested first), "No file name found!", "Error while creating file!", "Error
 * while writing file!" (the wait cursor then stays). Reading such files back (the
 * library's internal reader): 40- and 12-byte (OS/2) headers, the latter widened to 40
 * bytes; bit-field pixels are placed right behind the colour table, not behind masks;
 * a top-down file is sized by its row count. */
TS_API BOOL dibWrite(LPCSTR fileName, HGLOBAL hDIB);

/** Depth conversions. Each returns a new handle or NULL; the source is not changed. The
 * single steps make a 40-byte header with biHeight = |source biHeight| (a top-down
 * source thus comes out upside down), the source's resolutions and biSizeImage = new
 * stride x rows. Checks in this order, with the function's name: "No DIB passed!", "No
 * support for OS/2-Bitmaps!", the depth message, the compression message, "Not enough
 * memory for DIB!".
 * dib1To4: 16-entry table (source entries, rest black), biClrImportant = source colour
 *   count; compression is not tested. "This is not a 1-Bit-DIB!".
 * dib4To8: 256-entry table likewise. "This is not a 4-Bit-DIB!"; any compression: "This
 *   is not a RLE-DIB!".
 * dib8To24: each index gives its table entry's blue, green, red (entries past the block
 *   read black). "This is not a 8-Bit-DIB!", "This is a RLE-DIB!".
 * dib16To24 / dib32To24: channels through the masks behind the header for bit fields,
 *   else 5-5-5 (0x7C00, 0x03E0, 0x001F) / 8-8-8; a channel is the masked value shifted
 *   up to bit 31, top 8 bits (a 5-bit 31 gives 248). "This is not 16-Bit-DIB!" / "This
 *   is not a 32-Bit-DIB!", "This is a RLE-DIB!" (compression 1 or 2). @{ */
TS_API HGLOBAL dib1To4(HGLOBAL hDIB);
TS_API HGLOBAL dib4To8(HGLOBAL hDIB);
TS_API HGLOBAL dib8To24(HGLOBAL hDIB);
TS_API HGLOBAL dib16To24(HGLOBAL hDIB);
TS_API HGLOBAL dib32To24(HGLOBAL hDIB);
/** @} */
/** Chains of the steps above and of the reductions; a failing step has shown its own
 * message and the chain returns NULL. A NULL handle shows "<chain>: No DIB passed!".
 * dib1To24 = 1To4, 4To8, 8To24; dib4To24 = 4To8, 8To24; dib24To1 / dib24To4 = a copy
 * reduced to black and white / to the fixed 16-colour palette with error diffusion;
 * dib8To1, dib4To1, dib8To4 = to 24 bits first, then that reduction. @{ */
TS_API HGLOBAL dib1To24(HGLOBAL hDIB);
TS_API HGLOBAL dib4To24(HGLOBAL hDIB);
TS_API HGLOBAL dib24To1(HGLOBAL hDIB);
TS_API HGLOBAL dib8To1(HGLOBAL hDIB);
TS_API HGLOBAL dib4To1(HGLOBAL hDIB);
TS_API HGLOBAL dib24To4(HGLOBAL hDIB);
TS_API HGLOBAL dib8To4(HGLOBAL hDIB);
/** @} */
/** 24 to 8 bits: gray non-zero gives dibGray, else dibReduceColors(hDIB, 8, 3). Messages
 * (lower-case "to"): "dib24to8: No DIB passed!", "dib24to8: Not a 24-Bit-DIB!". */
TS_API HGLOBAL dib24To8(HGLOBAL hDIB, BOOL gray);

/** Reduces a 24-bit bitmap to an 8-bit one (always 8 bits, 256-entry table) with a
 * palette of 2^uBPP colours (uBPP 0..8; unused entries black) on a 32x32x32 histogram of
 * colour cells. mode bit 0 (1): error diffusion (right 3/8, below 3/8, below-right 1/4,
 * rounded toward zero, clamped), done on a copy; bit 1 (2): median cut, else popularity
 * (the most frequent cells; a chosen cell's count becomes 1, so a picture with few cells
 * repeats them). Messages: "No DIB passed!", "uBPP > 8!", "No support for
 * OS/2-Bitmaps!", "No support for RLE-Bitmaps!" (any compression), "Bitmap is already
 * reduced!" (not 24 bits), "Not enough memory for DIB!"; "MedianCut: Program error:
 * lPixels != 0" should never show. Sets the arrow cursor on every exit after the
 * histogram allocation. The median cut uses the module state: a median-cut call on
 * another thread waits for it (see above). */
TS_API HGLOBAL dibReduceColors(HGLOBAL hDIB, UINT uBPP, UINT mode);

/** A new bitmap of the width x height rectangle from column x and stored row y (from the
 * bottom row of a bottom-up bitmap); depth, compression, colour table and masks as the
 * source, biClrImportant 0, resolutions 2953. The rectangle is not checked against the
 * source: bytes are taken from the block where they lie in it and read as 0 beyond.
 * For bit fields the block holds all 12 mask bytes. Messages: "dibCrop: No DIB
 * passed!", "No support for OS/2-Bitmaps!", "No support for RLE-Bitmaps!", "Not enough
 * memory for DIB!" (also for a negative width or height). */
TS_API HGLOBAL dibCrop(HGLOBAL hDIB, int x, int y, int width, int height);
/** Gray version. Below 16 bits: a copy whose colour-table entries become their luminance
 * (77 R + 151 G + 28 B) >> 8, depth and pixels kept. 16, 24, 32 bits: an 8-bit bitmap
 * with a gray ramp (entry i = i, i, i) of each pixel's luminance. Messages: "dibGray: No
 * DIB passed!", "No support for OS/2-Bitmaps!", "No support for RLE-Bitmaps!", and for
 * the 8-bit block "dib24to8: Not enough memory for DIB!". */
TS_API HGLOBAL dibGray(HGLOBAL hDIB);
/** Half width and half height (integer division) by taking every second pixel of every
 * second row, no averaging; 1-bit rows write width/8 whole bytes, 4-bit rows width/2.
 * Colour table and masks copied, biClrUsed = biClrImportant = the colour count. For bit
 * fields the block holds all 12 mask bytes. Messages: "dibSmallSize: No DIB passed!",
 * "No support for OS/2-Bitmaps!", "It's a RLE-DIB!", "Not enough memory for DIB!". */
TS_API HGLOBAL dibSmallSize(HGLOBAL hDIB);
/** Expands an RLE8 (8 bits) or RLE4 (other depths) bitmap: runs, end of line, end of
 * bitmap, delta (dx right, dy rows up) and absolute mode. Result: compression 0, the
 * table copied, room for 2^depth entries, resolutions 2953. Pixels that would fall past
 * a row or above the last row are dropped. Messages: "dibRLEtoDIB: No DIB passed!", "No
 * support for OS/2-Bitmaps!", "Not a RLE-Bitmap!" (compression 0 or 3), "Not enough
 * memory for DIB!". */
TS_API HGLOBAL dibRLEtoDIB(HGLOBAL hDIB);

/* --- GIF files ------------------------------------------------------------------------
 * GIF 87a and 89a. The messages of these four functions are German, shown as they are
 * (without a function name) in the library's error box; the library passes their
 * umlauts to MessageBoxA as Windows-1252 bytes (written here in UTF-8). The decoder and
 * the encoder share the module state (code tables, parameter record); all four run on
 * the calling thread, calls on several threads wait for each other, and no box is shown
 * while the module is held (see the top of this section). Files are
 * handled with OpenFile, _hread and _hwrite; as always, only an OpenFile handle of 0
 * counts as "not opened": a missing file passes that test and fails when it is read,
 * and a file that cannot be created fails when it is written. */

/** Reads a GIF file into a new bitmap handle of the logical screen's size (biWidth,
 * biHeight = screen width and height, bottom row first) with 1 bit when the global
 * table size field gives 2 colours, 4 bits for 4 to 16, 8 bits for 32 to 256;
 * biClrUsed = 2^biBitCount, biClrImportant = the entries of the colour table read last,
 * 2953 pixels a metre. The block has room for 256 table entries; undrawn pixels and
 * unused entries are 0. Every image is drawn at its own position (left edge rounded down
 * to a byte of the depth, cut at the screen, images wholly outside skipped; the last
 * image wins where they overlap; interlaced rows in their proper order); a local colour
 * table replaces the first entries of the bitmap's table. Pixel indices are not masked
 * to the depth. Extensions are read over.
 * Refusals (result NULL): "GIF-Datei nicht lesbar!" (OpenFile gave 0), "Keine GIF-Datei!"
 * (no "GIF" at the start, also for a missing or empty file), "Zu wenig Speicher für
 * DIB vorhanden!" (also for a file too large to be held in memory). Version bytes other than 87a/89a ask "Unbekannte GIF-Version:
 * <v>\n\rWeiter?" in a box titled "CONV_GIFDLL" (OK and Cancel, question icon,
 * task-modal, style 0x2021): Cancel gives NULL, OK reads on.
 * Once the bitmap exists it is returned after any error, holding what was decoded: a
 * damaged image is drawn as far as its data went. Errors then: "Vorzeitiges Ende der
 * GIF-Datei!", "Illegaler GIF-Block!", "Falsche Farbinformation im Image Descriptor"
 * (local table larger than the depth), "Dieses GIF-Bild besitzt keine Farbtabelle!",
 * "Zu wenig Speicher für Bitmap vorhanden!", "Zu wenig Speicher für
 * Zuordnungstabelle vorhanden!", "Fehler in Leseschleife!" (short sub-block),
 * "Ungültiger LZW-Code <n>!", "Fehler im LZW-Teil des GIF-Bildes!" (wrong pixel
 * count at the terminator; also a minimum code size above 11, which this version
 * refuses rather than decode past the 12-bit table).
 * Damaged files are guarded beyond the classic reader without changing any well-formed
 * result: codes never write outside the tables (a full table writes a spare entry), a
 * string that loops on itself counts as an invalid code, output beyond width x height is
 * counted but not stored, an odd-width 4-bit image cut at the screen's right edge does
 * not write its last nibble past the row, and codes used before they are defined read
 * zeros rather than what an earlier file left. Shows the wait cursor while decoding. */
TS_API HGLOBAL dibReadGIF(LPCSTR fileName);
/** 1 when the file starts with "GIF87a" or "GIF89a", else 0 (also when it cannot be
 * opened or is NULL). No message. */
TS_API BOOL dibIsGIFFile(LPCSTR fileName);
/** The version of the GIF module: 512 (0x0200). */
TS_API WORD dibGIFGetVersion(void);
/** Writes hDIB as a single-image GIF: version 87 ("GIF87a") or 89 ("GIF89a"), interlaced
 * when interlace is non-zero. The logical screen and the image (at 0, 0) have the
 * bitmap's size (16 bits each; a top-down bitmap is written upright); a global table of
 * 2^bits entries (biClrUsed colours, padded with black; a biClrUsed above 2^bits writes
 * 2^bits); minimum code size = the depth,
 * 2 for 1 bit; a clear code whenever the 12-bit table is full; data in blocks of 255
 * bytes, a stream ending exactly on a block boundary closed by a block of length 0.
 * Bitmaps of 1, 4 and 8 bits are written as they are; others are converted first, the
 * caller's handle never changed: RLE8/RLE4 with dibRLEtoDIB; 16 and 32 bits with
 * dib16To24 / dib32To24, then dib24To8; 24 bits with dib24To8. True-colour bitmaps are
 * always written as the gray bitmap of dibGray. Returns 1 on success, 0 on failure.
 * Messages: "Keine DIB vorhanden!" (NULL, a handle that cannot be locked, or a bitmap
 * that after the conversions has another depth or compression or a block too short for
 * its rows), "GIF-Datei konnte nicht erzeugt werden!" (OpenFile gave 0), "Unbekanntes
 * GIF-Format!" (version not 87 or 89; the created file stays empty), "Fehler in
 * RLE-Bitmap!", "Fehler in 16-Bit-DIB!" (16 and 32 bits), "Fehler bei
 * Farbreduzierung!", "Zu wenig Speicher für Bitmap vorhanden!", "Zu wenig Speicher
 * für Zuordnungstabelle vorhanden!", "Zu wenig Speicher für Präfixtabelle
 * vorhanden!". After a failure past the signature the file keeps what was written.
 * Shows the wait cursor from the conversions to the end. */
TS_API BOOL dibWriteGIF(LPCSTR fileName, HGLOBAL hDIB, int version, BOOL interlace);

#ifdef __cplusplus
}
#endif

#endif /* TESSARIN_H */
