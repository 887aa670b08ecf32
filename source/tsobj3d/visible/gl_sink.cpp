// Immediate-mode OpenGL behind the geometry sink.
#include "tsobj3d/visible/gl_sink.h"

#include <windows.h>
#include <GL/gl.h>

namespace ts {

void GlSink::begin(uint32_t mode) { glBegin(mode); }
void GlSink::normal(const float* n) { glNormal3fv(n); }
void GlSink::vertex(const float* v) { glVertex3fv(v); }
void GlSink::end() { glEnd(); }

}  // namespace ts
