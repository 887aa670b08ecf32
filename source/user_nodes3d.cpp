// Exports of the simple geometry, attribute and transform nodes: the sn constructors in
// create-or-edit form, each under the catch-all of its own name.
#include <new>

#include "guard/guard.h"
#include "tessarin.h"
#include "tsobj3d/create_or_edit.h"
#include "tsobj3d/visible/caxis3d.h"
#include "tsobj3d/visible/cbox3d.h"
#include "tsobj3d/visible/ccolor3d.h"
#include "tsobj3d/visible/ccylinder3d.h"
#include "tsobj3d/visible/cdisk3d.h"
#include "tsobj3d/visible/cenable3d.h"
#include "tsobj3d/visible/cline3d.h"
#include "tsobj3d/visible/cpoint3d.h"
#include "tsobj3d/visible/cpopmatrix3d.h"
#include "tsobj3d/visible/cprimitive3d.h"
#include "tsobj3d/visible/cpushmatrix3d.h"
#include "tsobj3d/visible/crotate3d.h"
#include "tsobj3d/visible/cscale3d.h"
#include "tsobj3d/visible/csphere3d.h"
#include "tsobj3d/visible/ctetragon3d.h"
#include "tsobj3d/visible/ctranslate3d.h"
#include "tsobj3d/visible/ctriangle3d.h"

namespace {

// The matrix nodes take no handle and carry no guard of their own: a failed allocation
// reaches smAddNode, whose probe reports it.
template <class NodeClass>
cNode* addNew() {
    cNode* node = new (std::nothrow) NodeClass();
    smAddNode(node);
    return node;
}

}  // namespace

extern "C" {

TS_API cNode* snPoint(cNode* Node, float x, float y, float z, const float* color) {
    return ts::guarded("snPoint", [&] { return ts::createOrEdit<cPoint3D>(Node, x, y, z, color); });
}

TS_API cNode* snLine(cNode* Node, float x1, float y1, float z1, float x2, float y2, float z2) {
    return ts::guarded("snLine",
                       [&] { return ts::createOrEdit<cLine3D>(Node, x1, y1, z1, x2, y2, z2); });
}

TS_API cNode* snTriangle(cNode* Node, float x1, float y1, float z1, float x2, float y2,
                         float z2, float x3, float y3, float z3) {
    return ts::guarded("snTriangle", [&] {
        return ts::createOrEdit<cTriangle3D>(Node, x1, y1, z1, x2, y2, z2, x3, y3, z3);
    });
}

TS_API cNode* snTetragon(cNode* Node, float x1, float y1, float z1, float x2, float y2,
                         float z2, float x3, float y3, float z3, float x4, float y4,
                         float z4) {
    return ts::guarded("snTetragon", [&] {
        return ts::createOrEdit<cTetragon3D>(Node, x1, y1, z1, x2, y2, z2, x3, y3, z3, x4, y4,
                                             z4);
    });
}

TS_API cNode* snBox(cNode* Node, float x1, float y1, float z1, float x2, float y2, float z2,
                    int orientation) {
    return ts::guarded("snBox", [&] {
        return ts::createOrEdit<cBox3D>(Node, x1, y1, z1, x2, y2, z2, orientation);
    });
}

TS_API cNode* snPrimitive(cNode* Node, int mode, const float* vects, int count) {
    ts::probe(vects, "snPrimitive(vects)");
    return ts::guarded("snPrimitive",
                       [&] { return ts::createOrEdit<cPrimitive3D>(Node, mode, vects, count); });
}

TS_API cNode* snSphere(cNode* Node, float radius, int slices, int stacks, int drawStyle,
                       int normals, int orientation) {
    return ts::guarded("snSphere", [&] {
        return ts::createOrEdit<cSphere3D>(Node, radius, slices, stacks, drawStyle, normals,
                                           orientation);
    });
}

TS_API cNode* snCylinder(cNode* Node, float height, float baseRadius, float topRadius,
                         BOOL bottomCap, BOOL topCap, int slices, int stacks, int drawStyle,
                         int normals, int orientation) {
    return ts::guarded("snCylinder", [&] {
        return ts::createOrEdit<cCylinder3D>(Node, height, baseRadius, topRadius, bottomCap,
                                             topCap, slices, stacks, drawStyle, normals,
                                             orientation);
    });
}

TS_API cNode* snDisk(cNode* Node, float innerRadius, float outerRadius, int slices, int loops,
                     float startAngle, float sweepAngle, int drawStyle, int normals,
                     int orientation) {
    return ts::guarded("snDisk", [&] {
        return ts::createOrEdit<cDisk3D>(Node, innerRadius, outerRadius, slices, loops,
                                         startAngle, sweepAngle, drawStyle, normals,
                                         orientation);
    });
}

TS_API cNode* snAxis(cNode* Node, float xLength, float yLength, float zLength,
                     float coneLength, float coneSize, float letterSize) {
    return ts::guarded("snAxis", [&] {
        return ts::createOrEdit<cAxis3D>(Node, xLength, yLength, zLength, coneLength, coneSize,
                                         letterSize);
    });
}

TS_API cNode* snColor(cNode* Node, const float* rgb) {
    return ts::guarded("snColor", [&] { return ts::createOrEdit<cColor3D>(Node, rgb); });
}

TS_API cNode* snColorRGB(cNode* Node, float r, float g, float b) {
    return ts::guarded("snColorRGB", [&] { return ts::createOrEdit<cColor3D>(Node, r, g, b); });
}

TS_API cNode* snTranslate(cNode* Node, float x, float y, float z) {
    return ts::guarded("snTranslate",
                       [&] { return ts::createOrEdit<cTranslate3D>(Node, x, y, z); });
}

TS_API cNode* snScale(cNode* Node, float x, float y, float z) {
    return ts::guarded("snScale", [&] { return ts::createOrEdit<cScale3D>(Node, x, y, z); });
}

TS_API cNode* snRotate(cNode* Node, float angle, float x, float y, float z, float increment) {
    return ts::guarded("snRotate", [&] {
        return ts::createOrEdit<cRotate3D>(Node, angle, x, y, z, increment);
    });
}

TS_API cNode* snEnable(cNode* Node, int sw) {
    return ts::guarded("snEnable", [&] { return ts::createOrEdit<cEnable3D>(Node, sw, 1); });
}

TS_API cNode* snDisable(cNode* Node, int sw) {
    return ts::guarded("snDisable", [&] { return ts::createOrEdit<cEnable3D>(Node, sw, 0); });
}

TS_API cNode* snPushMatrix(void) { return addNew<cPushMatrix3D>(); }

TS_API cNode* snPopMatrix(void) { return addNew<cPopMatrix3D>(); }

}  // extern "C"
