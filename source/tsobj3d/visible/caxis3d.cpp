// cAxis3D: parameters and drawing. The current colour is saved and restored around
// the node, so the axes do not recolour what follows them.
#include "tsobj3d/visible/caxis3d.h"

#include "tsobj3d/visible/axis_geometry.h"

namespace {

const float kAxisColour[3][3] = {{1, 0, 0}, {0, 1, 0}, {0, 0, 1}};

ts::AxisParams axisParams(const float* p) { return {{p[0], p[1], p[2]}, p[3], p[4], p[5]}; }

}  // namespace

void cAxis3D::set(float xLength, float yLength, float zLength, float coneLength,
                  float coneSize, float letterSize) {
    const float given[6] = {xLength, yLength, zLength, coneLength, coneSize, letterSize};
    for (int k = 0; k < 6; ++k) params[k] = given[k];
}

void cAxis3D::draw(ts::DrawContext&) {
    glPushAttrib(GL_CURRENT_BIT);
    ts::AxisSegment segments[ts::kAxisSegments];
    ts::axisSegments(axisParams(params), segments);
    glBegin(GL_LINES);
    for (int s = 0; s < ts::kAxisSegments; ++s) {
        if (s == 0 || segments[s].axis != segments[s - 1].axis)
            glColor3fv(kAxisColour[segments[s].axis]);
        glVertex3fv(segments[s].from);
        glVertex3fv(segments[s].to);
    }
    glEnd();
    drawCones();
    glPopAttrib();
}

// Four-sided cones, each closed at its base by a disk that faces away from the tip.
void cAxis3D::drawCones() {
    if (!quadric || !capQuadric) return;
    gluQuadricDrawStyle(quadric.get(), GLU_FILL);
    gluQuadricOrientation(capQuadric.get(), GLU_INSIDE);
    const ts::AxisParams p = axisParams(params);
    const float radius = 0.5f * p.coneSize;
    ts::AxisCone cones[ts::kAxisCones];
    ts::axisCones(p, cones);
    for (const ts::AxisCone& c : cones) {
        glColor3fv(kAxisColour[c.axis]);
        glPushMatrix();
        if (c.angle != 0.0f) glRotatef(c.angle, c.turn[0], c.turn[1], c.turn[2]);
        glTranslatef(0, 0, c.offset);
        gluCylinder(quadric.get(), radius, 0, p.coneLength, 4, 1);
        gluDisk(capQuadric.get(), 0, radius, 4, 1);
        glPopMatrix();
    }
}
