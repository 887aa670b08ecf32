/* tessarin.h - the public interface of Tessarin20b.dll.
 *
 * Contents
 *   1. Conventions, platform notes and handle types
 *   2. Constants: class codes, modes, switches, messages
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

#ifdef TESSARIN_BUILDING_DLL
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
typedef struct cNode cNode;
typedef struct cScene cScene;
typedef struct cWind cWind;
#endif

/* ======================================================================================
 * 2. Constants
 * ==================================================================================== */

/* Class codes: the value of a node's type. 3D nodes are below 3000, 2D nodes above. */
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
/* 3D and 2D nodes are told apart by comparing the class code with this value. */
#define TS_CLASS_2D_LIMIT         3000

/* Modes shared by the calls, the settings file and the context menu. */
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

/* ======================================================================================
 * 3. sw - library windows and events
 * ==================================================================================== */

/* ======================================================================================
 * 4. se - handlers for scenes in application windows
 *
 * Call these from the window procedure of a window that the application owns, one per
 * message, on the thread that owns the window; the scene calls then run directly on
 * that thread. Each handler carries the catch-all under its own name and asserts that
 * hWnd is not NULL. Not to be used while library windows exist.
 * ==================================================================================== */

/* WM_CREATE: creates a scene named scenename on hWnd (pixel format, OpenGL context,
 * node lists, registry entry) and makes it the current and active scene. Returns the
 * scene, or NULL: with the message "Don't use Tessarin event handlers with Tessarin
 * windows!" once the library's scene thread runs, or "Scene creation failed in
 * seOnCreate." when no memory is left. A pixel format that cannot be chosen or set
 * shows "ChoosePixelFormat failed" / "SetPixelFormat failed" (title "Error") and ends
 * the process with exit(1). */
TS_API cScene* seOnCreate(HWND hWnd, const char* scenename);

/* WM_PAINT: runs a rendering pass of the window's scene; returns 0. Without a scene
 * for hWnd: "No active scene found in seOnPaint!" and 1. */
TS_API LRESULT seOnPaint(HWND hWnd);

/* WM_DESTROY: removes the window's registry entry, posts WM_QUIT (code 0) to the
 * calling thread and destroys the active scene (the scene of the latest handler call);
 * returns 0. Without an active scene: "No active scene found in seOnDestroy!" and 1.
 * Unlike the original design, the current scene is cleared when it is the scene
 * destroyed, and a scene that the registry already destroyed with its entry is not
 * destroyed twice. */
TS_API LRESULT seOnDestroy(HWND hWnd);

/* ======================================================================================
 * 5. sm - scene manager
 * ==================================================================================== */

/* --- node lists ------------------------------------------------------------------------
 * All list calls act on the current scene (smCurrentScene, swCreateScene, seOnCreate).
 * While the library's scene thread runs they are sent to it as synchronous requests;
 * otherwise they run directly on the caller's thread. */

/* Appends NodeToAdd to the current group of the current scene (or, after
 * smInsertAfter, places it behind the insertion point). The node then belongs to the
 * scene. Probes NodeToAdd ("smAddNode(NodeToAdd)"); with no current scene the process
 * ends with "Pointer to inaccessible memory: Current Scene is not defined!".
 * Catch-all label "smAddNode". */
TS_API void smAddNode(cNode* NodeToAdd);

/* Sets the insertion point of the current group to Node and the insertion mode to
 * InsertAfter. With InsertAfter TRUE every following add goes directly behind Node (a
 * run of adds therefore ends up in reverse order); with FALSE only the next add does,
 * later adds append at the end again. Node is not probed and not checked to belong to
 * the group. Catch-all "smInsertAfter". */
TS_API void smInsertAfter(cNode* Node, BOOL InsertAfter);

/* Removes Node from the current group and destroys it. Returns the node that now
 * follows Node's predecessor, or NULL. The first node of a list of two or more nodes
 * cannot be removed: the call returns NULL and changes nothing. Removing the only node
 * empties the group and resets its count. Node is not probed: NULL faults inside and
 * ends the process through the catch-all "smDelNode". */
TS_API cNode* smDelNode(cNode* Node);

/* Destroys every node of the current group, clears the scene's has-3D flag, sets the
 * empty-scene cursor and redraws the scene. Catch-all "smClearScene". */
TS_API int smClearScene(void);  /* returns 1 */

/* Closes the group opened by the latest snGroup: its parent becomes the current group.
 * At the root group it does nothing. Runs on the caller's thread. Catch-all
 * "smGroupEnd". */
TS_API void smGroupEnd(void);

/* Compiles the current group into the scene's display list and from then on draws the
 * scene from that list: later edits, adds and deletes do not show until the next
 * smUseDisplayList. The list holds no selection names, so picking finds nothing while
 * it is used. Catch-all "smUseDisplayList". */
TS_API int smUseDisplayList(void);  /* returns 0 */

/* Appends NodeToAdd (a 2D node) to the 2D list of the current scene. Probes
 * NodeToAdd ("smAddNode2D(NodeToAdd)"); with no current scene the process ends with
 * "Pointer to inaccessible memory: Current Scene is not defined!". Catch-all
 * "smAddNode2D". */
TS_API void smAddNode2D(cNode* NodeToAdd);

/* Win64 (see the notes above): the node handle of a 32-bit selection name, or NULL if
 * no living node carries that name. On Win32 it returns the name as a handle. Not
 * guarded; runs on any thread. */
TS_API cNode* tsNodeFromName(unsigned int name);

/* --- modes and camera ------------------------------------------------------------------
 * These calls act on the current scene. While the library's scene thread runs they are
 * sent to it as synchronous requests and run there; otherwise they run directly on the
 * caller's thread. Each carries the catch-all under its own name unless said otherwise;
 * a call made before any scene exists faults inside and ends the process through it.
 * Mode values outside their set are ignored without a message. */

/* Shade mode: TS_SHADE_SMOOTH (100000), TS_SHADE_FLAT (100001) or TS_SHADE_NONE
 * (100002, which switches depth test, culling, lighting and colour material off and
 * leaves the lights untouched). Updates the context menu's check marks; no redraw. */
TS_API void smShadeMode(int mode);

/* Polygon mode: TS_DRAW_POINTS (100010), TS_DRAW_LINES (100011) or TS_DRAW_FILLED
 * (100012). Updates the check marks; no redraw. */
TS_API void smDrawMode(int mode);

/* Projection: mode TS_PERSPECTIVE (0) or TS_ORTHOGONAL (1), with the vertical view
 * angle in degrees and the near and far clipping distances. Any other mode ignores the
 * whole call. The orthogonal view's height is that of the perspective view at the
 * eye's distance pos.z, so moving the eye along z zooms it. No redraw. */
TS_API void smProjectionMode(int mode, double angle, double clipnear, double clipfar);

/* Action mode TS_ROTATE (0), TS_FLY (1) or TS_WALK (2); not range-checked. Stops the
 * rates and the speed; from TS_ROTATE to TS_FLY/TS_WALK the accumulated rotation
 * becomes the look vectors (and turns the eye position with it), the other way the
 * look vectors become the rotation. Redraws once. Returns 1. */
TS_API int smActionMode(int mode);

/* Restores the start camera from the settings (iniPos, iniRot, iniAxis) and the initial
 * look vectors, stops all motion and resets the accumulated rotation. An iniRot other
 * than 0 then turns the scene by that angle on every pass. No redraw. */
TS_API void smResetPos(void);

/* Stops continuous motion (spinning after a quick release, flying, walking). */
TS_API void smStopMotion(void);

/* Sets the eye position (world units) and redraws. */
TS_API void smTranslation(float x, float y, float z);

/* Stops motion and turns the camera once by angle (degrees) about the axis (x, y, z);
 * in TS_FLY/TS_WALK the look vectors and the eye position turn. Redraws once.
 * Through the scene thread the angle travels as a 32-bit count of hundredths of a
 * degree read back unsigned: it is quantised to 0.01 degree and a negative angle
 * arrives as a large positive one (-10 turns by 42949662.96 degrees, at float
 * precision). Without the scene thread the float angle is used unchanged. */
TS_API void smRotation(float angle, float x, float y, float z);

/* Stops motion and sets the eye position, the viewing direction and the up vector; in
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

/* Switches the light on or off and makes it directional (w = 0) from direction
 * (x, y, z; NULL: 1, 1, 1); spot values stay. worldPos 1: the light is placed as seen
 * from the initial eye point and keeps its place relative to the viewer; 0: it is fixed
 * in the scene and turns with it. */
TS_API void smLightDirection(int LightNo, int on, int worldPos, float* direction);

/* Sets the ambient, diffuse and specular colours from red, green, blue triples (alpha
 * 1). NULL gives a grey: ambient 0.2, diffuse 0.5, specular 0.5. A colour whose three
 * components differ clears the colour's grey flag (the light dialog's single slider);
 * a later grey colour does not set it again. */
TS_API void smLightColor(int LightNo, float* ambient, float* diffuse, float* specular);

/* Makes the light a positional spot (w = 1) with the spot direction (NULL: 0, 0, -1).
 * cutoff (degrees) is taken only within 0..180 and exponent only within 0..1; values
 * outside keep the old ones, without a message. */
TS_API void smLightSpot(int LightNo, float* direction, float cutoff, float exponent);

/* --- viewpoints -----------------------------------------------------------------------
 * Named camera settings, listed in the Viewpoints submenu of the context menu. Each call
 * stops motion first; requests to the scene thread when it runs, else direct on the
 * current scene. Catch-all under each call's name. */

/* A viewpoint as the caller passes it. Only the first 63 characters of name are kept. */
typedef struct smViewpointRecord {
    char name[100];
    float pos[3];      /* eye position */
    float axis[3];     /* rotation axis */
    float rotAngle;    /* degrees */
    double viewAngle;  /* vertical view angle, degrees */
} smViewpointRecord;

/* Adds a viewpoint at the end of the list and makes it current: a copy of viewpoint
 * when given (name is then ignored); otherwise the camera as it stands, named name, or,
 * with both NULL, named by the user in the dialog "Enter viewpoint name:" (owned by the
 * scene window). Its menu identifier is 20200 plus the number of viewpoints before it;
 * identifiers are not renumbered when one is deleted, so two entries may share one.
 * Returns 1, or 0 when the user cancels. */
TS_API int smViewpointAdd(char* name, smViewpointRecord* viewpoint);

/* Deletes the first viewpoint named name (case-sensitive; 0 if none), or, with name
 * NULL, the current one after the question "Do you want to delete viewpoint: <name>"
 * (title "Delete Viewpoint", Yes/No; No returns 0). An empty list shows "No viewpoint
 * to delete." (title "Delete Viewpoint") and returns 0. Its predecessor (or successor)
 * becomes current. Returns 1 when one was deleted. */
TS_API int smViewpointDel(char* name);

/* Goes to the first viewpoint named name: eye position, view angle and orientation
 * replace the camera's; redraws once. Returns 1, or 0 if no viewpoint has that name.
 * Probes name ("smViewpointSet(name)"). */
TS_API int smViewpointSet(char* name);

/* ======================================================================================
 * 6. sn - scene node constructors
 *
 * Create or edit: with Node NULL a new node is made from the arguments, added to the
 * current scene with smAddNode and returned. With Node a handle of the same class, the
 * node's parameters are replaced in place (on the caller's thread, no redraw) and Node is
 * returned. With a handle of another class the result is NULL and nothing changes.
 * ==================================================================================== */

/* Creates a group node whose parent is the current group, adds it with smAddNode and
 * makes it the current group, so that the following nodes go into it until
 * smGroupEnd. Returns the group. Catch-all "snGroup". */
TS_API cNode* snGroup(void);

/* Creates a node that draws ParentNode again at its own place in the list, under the
 * state in force there, and adds it with smAddNode. ParentNode is not owned; it may be
 * any node, also a group. Probes ParentNode ("snUse(ParentNode)"). Catch-all "snUse". */
TS_API cNode* snUse(cNode* ParentNode);

/* ======================================================================================
 * 7. randstd / srandstd
 * ==================================================================================== */

/* ======================================================================================
 * 8. dib - device-independent bitmaps
 * ==================================================================================== */

#ifdef __cplusplus
}
#endif

#endif /* TESSARIN_H */
