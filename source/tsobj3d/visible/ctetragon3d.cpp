// cTetragon3D: parameters and drawing. Unlike the triangle it leaves culling alone.
#include "tsobj3d/visible/ctetragon3d.h"

#include <windows.h>
#include <GL/gl.h>

#include "math/vecmath.h"

void cTetragon3D::set(float x1, float y1, float z1, float x2, float y2, float z2, float x3,
                      float y3, float z3, float x4, float y4, float z4) {
    const float given[4][3] = {{x1, y1, z1}, {x2, y2, z2}, {x3, y3, z3}, {x4, y4, z4}};
    for (int v = 0; v < 4; ++v)
        for (int k = 0; k < 3; ++k) p[v][k] = given[v][k];
}

void cTetragon3D::draw(ts::DrawContext&) {
    static const int kTriangles[2][3] = {{0, 1, 2}, {0, 2, 3}};
    glBegin(GL_TRIANGLES);
    for (const auto& t : kTriangles) {
        float n[3];
        ts::faceNormal(p[t[0]], p[t[1]], p[t[2]], n);
        glNormal3fv(n);
        for (int v : t) glVertex3fv(p[v]);
    }
    glEnd();
}
