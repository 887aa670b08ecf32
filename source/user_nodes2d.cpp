// Exports of the 2D nodes: the state nodes and the drawing nodes, in create-or-edit
// form, each set against the current scene's 2D state and drawn at once when that
// scene asks for it.
#include <windows.h>

#include "cobj_2d/carc2d.h"
#include "cobj_2d/cbitmap2d.h"
#include "cobj_2d/cbkcol2d.h"
#include "cobj_2d/cbkmod2d.h"
#include "cobj_2d/cbrush2d.h"
#include "cobj_2d/ccircle2d.h"
#include "cobj_2d/cfont2d.h"
#include "cobj_2d/cfrmix2d.h"
#include "cobj_2d/cline2d.h"
#include "cobj_2d/clineto2d.h"
#include "cobj_2d/cmoveto2d.h"
#include "cobj_2d/cpen2d.h"
#include "cobj_2d/cpie2d.h"
#include "cobj_2d/cpixel2d.h"
#include "cobj_2d/cpolybezier2d.h"
#include "cobj_2d/cpolygon2d.h"
#include "cobj_2d/cpolyline2d.h"
#include "cobj_2d/crectangle2d.h"
#include "cobj_2d/ctext2d.h"
#include "cobj_2d/ctextblock2d.h"
#include "guard/guard.h"
#include "library/globals.h"
#include "tessarin.h"
#include "tsobj3d/create_or_edit.h"
#include "view/pass/scene_draw_context.h"

namespace {

// Create-or-edit of a 2D node, set against the current scene's drawing context (none
// while no scene is current: the add then reports the missing scene).
template <class NodeClass, class... Args>
cNode* set2D(cNode* Node, Args... args) {
    cScene* scene = CURRENT_SCENE;
    if (scene == nullptr) return ts::createOrEdit<NodeClass>(Node, static_cast<ts::DrawContext*>(nullptr), args...);
    ts::SceneDrawContext context(*scene);
    return ts::createOrEdit<NodeClass>(Node, static_cast<ts::DrawContext*>(&context), args...);
}

const ts::Point2D* points2D(const POINT* points) { return reinterpret_cast<const ts::Point2D*>(points); }

}  // namespace

extern "C" {

// --- state nodes ----------------------------------------------------------------------

TS_API cNode* snPen2D(cNode* Node, HPEN pen) {
    return ts::guarded("snPen2D", [&] { return set2D<cPen2D>(Node, static_cast<HGDIOBJ>(pen)); });
}

TS_API cNode* snBrush2D(cNode* Node, HBRUSH brush) {
    return ts::guarded("snBrush2D", [&] { return set2D<cBrush2D>(Node, static_cast<HGDIOBJ>(brush)); });
}

TS_API cNode* snFont2D(cNode* Node, HFONT font) {
    return ts::guarded("snFont2D", [&] { return set2D<cFont2D>(Node, static_cast<HGDIOBJ>(font)); });
}

TS_API cNode* snBackColor2D(cNode* Node, float r, float g, float b) {
    return ts::guarded("snBackColor2D", [&] { return set2D<cBkCol2D>(Node, r, g, b); });
}

TS_API cNode* snBackMode2D(cNode* Node, int mode) {
    return ts::guarded("snBackMode2D", [&] { return set2D<cBkMod2D>(Node, mode); });
}

TS_API cNode* snForeMix2D(cNode* Node, int rop2) {
    return ts::guarded("snForeMix2D", [&] { return set2D<cFrMix2D>(Node, rop2); });
}

TS_API cNode* snMoveTo2D(cNode* Node, int x, int y) {
    return ts::guarded("snMoveTo2D", [&] { return set2D<cMoveTo2D>(Node, x, y); });
}

// --- drawing nodes --------------------------------------------------------------------

TS_API cNode* snLine2D(cNode* Node, int x1, int y1, int x2, int y2) {
    ts::probe(CURRENT_SCENE, "snLine2D(CurrentScene)");
    return ts::guarded("snLine2D", [&] { return set2D<cLine2D>(Node, x1, y1, x2, y2); });
}

TS_API cNode* snLineTo2D(cNode* Node, int x, int y) {
    return ts::guarded("snLineTo2D", [&] { return set2D<cLineTo2D>(Node, x, y); });
}

TS_API cNode* snPolyLine2D(cNode* Node, const POINT* points, int count, BOOL fromCurrent) {
    ts::probe(points, "snPolyLine2D(points)");
    return ts::guarded("snPolyLine2D", [&] {
        return set2D<cPolyLine2D>(Node, points2D(points), count, static_cast<int>(fromCurrent));
    });
}

TS_API cNode* snPolyBezier2D(cNode* Node, const POINT* points, int count, BOOL fromCurrent) {
    ts::probe(points, "snPolyBezier2D(points)");
    return ts::guarded("snPolyBezier2D", [&] {
        return set2D<cPolyBezier2D>(Node, points2D(points), count, static_cast<int>(fromCurrent));
    });
}

TS_API cNode* snPolygon2D(cNode* Node, const POINT* points, int count, int fillMode) {
    ts::probe(points, "snPolygon2D(points)");
    return ts::guarded("snPolygon2D", [&] { return set2D<cPolygon2D>(Node, points2D(points), count, fillMode); });
}

TS_API cNode* snRectangle2D(cNode* Node, int x1, int y1, int x2, int y2) {
    return ts::guarded("snRectangele2D", [&] { return set2D<cRectangle2D>(Node, x1, y1, x2, y2); });
}

TS_API cNode* snPixel2D(cNode* Node, int x, int y, float r, float g, float b) {
    return ts::guarded("snPixel2D", [&] { return set2D<cPixel2D>(Node, x, y, r, g, b); });
}

TS_API cNode* snArc2D(cNode* Node, int left, int top, int right, int bottom, int xStart, int yStart, int xEnd,
                      int yEnd) {
    return ts::guarded("snArc2D", [&] {
        return set2D<cArc2D>(Node, left, top, right, bottom, xStart, yStart, xEnd, yEnd);
    });
}

TS_API cNode* snPie2D(cNode* Node, int left, int top, int right, int bottom, int xStart, int yStart, int xEnd,
                      int yEnd) {
    return ts::guarded("snPie2D", [&] {
        return set2D<cPie2D>(Node, left, top, right, bottom, xStart, yStart, xEnd, yEnd);
    });
}

TS_API cNode* snCircle2D(cNode* Node, int x, int y, int radius, float startAngle, float sweepAngle) {
    return ts::guarded("snCircle2D",
                       [&] { return set2D<cCircle2D>(Node, x, y, radius, startAngle, sweepAngle); });
}

TS_API cNode* snText2D(cNode* Node, int x, int y, const char* str, float r, float g, float b) {
    ts::probe(str, "snText2D(str)");
    return ts::guarded("snText2D", [&] { return set2D<cText2D>(Node, x, y, str, r, g, b); });
}

TS_API cNode* snTextBlock2D(cNode* Node, int left, int top, int right, int bottom, const char* str,
                            UINT format, float r, float g, float b) {
    ts::probe(str, "snTextBlock2D(str)");
    return ts::guarded("snTextBlock2D", [&] {
        return set2D<cTextBlock2D>(Node, left, top, right, bottom, str, static_cast<unsigned>(format), r, g, b);
    });
}

TS_API cNode* snBitmap2D(cNode* Node, HBITMAP bitmap, int x, int y, int a, int b, BOOL stretch) {
    return ts::guarded("snBitmap2D", [&] {
        return set2D<cBitmap2D>(Node, static_cast<HBITMAP__*>(bitmap), x, y, a, b, static_cast<int>(stretch));
    });
}

}  // extern "C"
