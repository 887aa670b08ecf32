// cCylinder3D: parameters and drawing. The caps face away from the tube's inside when
// the tube faces outwards: the bottom one down, the top one up.
#include "tsobj3d/visible/ccylinder3d.h"

void cCylinder3D::set(float h, float base, float top, int wantBottom, int wantTop, int sl,
                      int st, int style, int norms, int orient) {
    height = h;
    baseRadius = base;
    topRadius = top;
    slices = sl;
    stacks = st;
    drawStyle = style;
    normals = norms;
    orientation = orient;
    bottomCap.reset();
    topCap.reset();
    if (wantBottom) bottomCap = ts::newQuadric();
    if (wantTop) topCap = ts::newQuadric();
}

void cCylinder3D::draw(ts::DrawContext&) {
    if (quadric) {
        ts::setQuadricStyle(quadric.get(), drawStyle, normals, orientation);
        gluCylinder(quadric.get(), baseRadius, topRadius, height, slices, stacks);
    }
    drawCaps();
}

// The caps keep GLU's default normals; only their orientation and draw style follow
// the tube.
void cCylinder3D::drawCaps() {
    const bool outside = orientation == GLU_OUTSIDE;
    if (bottomCap) {
        gluQuadricOrientation(bottomCap.get(), outside ? GLU_INSIDE : GLU_OUTSIDE);
        gluQuadricDrawStyle(bottomCap.get(), static_cast<GLenum>(drawStyle));
        gluDisk(bottomCap.get(), 0, baseRadius, slices, 1);
    }
    if (topCap) {
        gluQuadricOrientation(topCap.get(), outside ? GLU_OUTSIDE : GLU_INSIDE);
        gluQuadricDrawStyle(topCap.get(), static_cast<GLenum>(drawStyle));
        glPushMatrix();
        glTranslatef(0, 0, height);
        gluDisk(topCap.get(), 0, topRadius, slices, 1);
        glPopMatrix();
    }
}
