// cSphere3D: parameters and drawing.
#include "tsobj3d/visible/csphere3d.h"

void cSphere3D::set(float r, int sl, int st, int style, int norms, int orient) {
    radius = r;
    slices = sl;
    stacks = st;
    drawStyle = style;
    normals = norms;
    orientation = orient;
}

void cSphere3D::draw(ts::DrawContext&) {
    if (!quadric) return;
    ts::setQuadricStyle(quadric.get(), drawStyle, normals, orientation);
    gluSphere(quadric.get(), radius, slices, stacks);
}
