// The drawing context: everything a node may know of the scene it is drawn into. The
// rendering pass hands one to the 3D list, to the 2D list and to the display-list
// compile; nodes never see the scene, its window or the viewer themselves.
//
//   3D nodes  shadeMode, picking, loadName (groups, before each 3D child), listName
//             (meshes that compile a display list of their own), hasFontLists (text),
//             currentSceneSwitch (the enable node)
//   2D nodes  state2D: the device context and the 2D state of the scene
#pragma once

#include <cstdint>

#include "platform/handles.h"

class cNode;

namespace ts {

// The 2D drawing state of a scene as the 2D nodes read and keep it. The pointers lead
// into the scene and stay valid while the context lives.
struct State2D {
    HDC dc = nullptr;               // the scene window's device context: GDI draws here
    int* currentPos2D = nullptr;    // pen position x, y in window pixels (move-to, line-to)
    int relToPos2D = 1;             // a node's coordinates count from currentPos2D when set
    int initDraw2D = 1;             // a 2D node draws at once when it is set
    HGDIOBJ* pen = nullptr;         // the scene's current pen, brush and font (stock
    HGDIOBJ* brush = nullptr;       // objects until a state node selects the caller's)
    HGDIOBJ* font = nullptr;
    float* backColor = nullptr;     // the scene's record of the background colour (r, g, b),
    int* backMode = nullptr;        // background mode and mix mode, kept by the state nodes
    int* foreMix = nullptr;
    int clientWidth = 0;            // the window's client size in pixels, now
    int clientHeight = 0;
};

class DrawContext {
public:
    // The scene's shading mode: 100000 smooth, 100001 flat, 100002 none. Meshes keep the
    // mode their display list was compiled for and compile again when it changes.
    virtual int shadeMode() const = 0;
    // True while a picking pass draws (OpenGL selection mode).
    virtual bool picking() const = 0;
    // In a picking pass, loads node's 32-bit selection name (its address on Win32, its
    // own name on Win64, which tsNodeFromName maps back); otherwise does nothing.
    virtual void loadName(const cNode& node) = 0;
    // The name of node's own display list: its handle value on Win32; on Win64 its 32-bit
    // name with the top bit set, clear of the scenes' list names (1, 2, ...).
    virtual uint32_t listName(const cNode& node) const = 0;
    // True when the 256 font lists from base exist in the scene drawn (smCreateFontBMP
    // made them there); a text node draws nothing otherwise.
    virtual bool hasFontLists(uint32_t base) const = 0;
    // The field of switch `number` (TS_SWITCH_* 1 to 9) of the library's current scene,
    // which need not be the scene drawn; null for another number or without a scene.
    virtual int* currentSceneSwitch(int number) = 0;
    // The 2D state of the scene drawn, valid while the context lives.
    virtual const State2D& state2D() = 0;

protected:
    ~DrawContext() = default;
};

}  // namespace ts
