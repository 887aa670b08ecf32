// Owning handle of a GLU quadric, deleted with gluDeleteQuadric.
#pragma once

#include <memory>

#include <windows.h>
#include <GL/glu.h>

namespace ts {

struct QuadricDeleter {
    void operator()(GLUquadric* q) const { gluDeleteQuadric(q); }
};
using Quadric = std::unique_ptr<GLUquadric, QuadricDeleter>;

// A new quadric, or null when GLU could not allocate one (the node then draws
// nothing with it).
inline Quadric newQuadric() { return Quadric(gluNewQuadric()); }

// Sets the three properties that the quadric nodes pass through unchanged.
inline void setQuadricStyle(GLUquadric* q, int drawStyle, int normals, int orientation) {
    gluQuadricDrawStyle(q, static_cast<GLenum>(drawStyle));
    gluQuadricNormals(q, static_cast<GLenum>(normals));
    gluQuadricOrientation(q, static_cast<GLenum>(orientation));
}

}  // namespace ts
