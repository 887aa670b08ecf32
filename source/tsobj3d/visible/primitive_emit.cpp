// Vertex and normal sequences of the primitive node, one routine per OpenGL mode.
// Every face gets one flat normal from its first three points, emitted before the
// vertex that completes it.
#include "tsobj3d/visible/primitive_emit.h"

#include "math/vecmath.h"

namespace ts {

namespace {

constexpr uint32_t kDrawModePoints = 100010;
constexpr uint32_t kDrawModeLines = 100011;

class Emitter {
public:
    Emitter(const float* points, GeometrySink& sink) : p_(points), sink_(sink) {}

    const float* at(int32_t i) const { return p_ + 3 * static_cast<int64_t>(i); }
    void normalOf(int32_t a, int32_t b, int32_t c) {
        float n[3];
        faceNormal(at(a), at(b), at(c), n);
        sink_.normal(n);
    }
    void vertex(int32_t i) { sink_.vertex(at(i)); }

private:
    const float* p_;
    GeometrySink& sink_;
};

void allVertices(Emitter& e, int32_t count) {
    for (int32_t i = 0; i < count; ++i) e.vertex(i);
}

void triangles(Emitter& e, int32_t count) {
    for (int32_t i = 0; i < count - 2; i += 3) {
        e.normalOf(i, i + 1, i + 2);
        e.vertex(i);
        e.vertex(i + 1);
        e.vertex(i + 2);
    }
}

// Callers give each quad in zigzag order; the last two points are swapped so that
// OpenGL draws the quad without a twist.
void quads(Emitter& e, int32_t count) {
    for (int32_t i = 0; i + 3 < count; i += 4) {
        e.normalOf(i, i + 1, i + 2);
        e.vertex(i);
        e.vertex(i + 1);
        e.vertex(i + 3);
        e.vertex(i + 2);
    }
}

// The odd triangles of a strip are wound the other way; their normal is taken from
// the points in reverse so that it still faces the front side.
void triangleStrip(Emitter& e, int32_t count) {
    if (count < 3) return;
    e.normalOf(0, 1, 2);
    allVertices(e, 3);
    for (int32_t i = 3; i < count; i += 2) {
        e.normalOf(i, i - 1, i - 2);
        e.vertex(i);
        if (i >= count - 1) break;
        e.normalOf(i - 1, i, i + 1);
        e.vertex(i + 1);
    }
}

void triangleFan(Emitter& e, int32_t count) {
    if (count < 3) return;
    e.normalOf(0, 1, 2);
    allVertices(e, 3);
    for (int32_t i = 2; i < count - 1; ++i) {
        e.normalOf(0, i, i + 1);
        e.vertex(i + 1);
    }
}

void quadStrip(Emitter& e, int32_t count) {
    if (count < 4) return;
    e.normalOf(0, 1, 2);
    allVertices(e, 4);
    for (int32_t i = 2; i + 3 < count; i += 2) {
        e.normalOf(i, i + 1, i + 2);
        e.vertex(i + 2);
        e.vertex(i + 3);
    }
}

void polygon(Emitter& e, int32_t count) {
    if (count < 3) return;
    e.normalOf(0, 1, 2);
    allVertices(e, count);
}

}  // namespace

void emitPrimitive(uint32_t mode, const float* points, int32_t count, GeometrySink& sink) {
    Emitter e(points, sink);
    sink.begin(mode);
    switch (mode) {
        case kGlLineLoop:
        case kGlLineStrip:
        case kDrawModePoints:
        case kDrawModeLines: allVertices(e, count); break;
        case kGlTriangles: triangles(e, count); break;
        case kGlQuads: quads(e, count); break;
        case kGlTriangleStrip: triangleStrip(e, count); break;
        case kGlTriangleFan: triangleFan(e, count); break;
        case kGlQuadStrip: quadStrip(e, count); break;
        case kGlPolygon: polygon(e, count); break;
        default: break;  // points, lines and anything else: nothing to draw
    }
    sink.end();
}

}  // namespace ts
