// cDisk3D: parameters and drawing.
#include "tsobj3d/visible/cdisk3d.h"

void cDisk3D::set(float inner, float outer, int sl, int lp, float start, float sweep, int style,
                  int norms, int orient) {
    innerRadius = inner;
    outerRadius = outer;
    slices = sl;
    loops = lp;
    startAngle = start;
    sweepAngle = sweep;
    drawStyle = style;
    normals = norms;
    orientation = orient;
}

void cDisk3D::draw(ts::DrawContext&) {
    if (!quadric) return;
    ts::setQuadricStyle(quadric.get(), drawStyle, normals, orientation);
    gluPartialDisk(quadric.get(), innerRadius, outerRadius, slices, loops, startAngle,
                   sweepAngle);
}
