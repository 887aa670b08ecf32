// cPrimitive3D: parameters and drawing through the primitive emitter.
#include "tsobj3d/visible/cprimitive3d.h"

#include <cstdint>
#include <cstring>
#include <new>

#include "tsobj3d/visible/gl_sink.h"
#include "tsobj3d/visible/primitive_emit.h"

void cPrimitive3D::set(int newMode, const float* vects, int newCount) {
    vertices.reset();
    count = 0;
    mode = 0;
    if (vects == nullptr || newCount < 0) return;
    // A count whose byte size does not fit the address space cannot be allocated; above
    // PTRDIFF_MAX bytes a nothrow new throws std::bad_array_new_length instead of failing.
    if (static_cast<uint64_t>(newCount) > static_cast<uint64_t>(PTRDIFF_MAX) / (3 * sizeof(float))) return;
    const size_t floats = static_cast<size_t>(newCount) * 3;
    vertices.reset(new (std::nothrow) float[floats > 0 ? floats : 1]);
    if (!vertices) return;
    std::memcpy(vertices.get(), vects, floats * sizeof(float));
    count = newCount;
    mode = static_cast<uint32_t>(newMode);
}

// An empty primitive still brackets nothing with glBegin and glEnd.
void cPrimitive3D::draw(ts::DrawContext&) {
    ts::GlSink sink;
    ts::emitPrimitive(mode, vertices.get(), count, sink);
}
