// The receiver of a node's immediate-mode geometry: the OpenGL layer forwards each
// call to glBegin, glNormal3fv, glVertex3fv and glEnd; tests record them.
#pragma once

#include <cstdint>

namespace ts {

// OpenGL primitive modes and GLU orientations, by value, for code that does not
// include the OpenGL headers.
constexpr uint32_t kGlPoints = 0x0000;
constexpr uint32_t kGlLines = 0x0001;
constexpr uint32_t kGlLineLoop = 0x0002;
constexpr uint32_t kGlLineStrip = 0x0003;
constexpr uint32_t kGlTriangles = 0x0004;
constexpr uint32_t kGlTriangleStrip = 0x0005;
constexpr uint32_t kGlTriangleFan = 0x0006;
constexpr uint32_t kGlQuads = 0x0007;
constexpr uint32_t kGlQuadStrip = 0x0008;
constexpr uint32_t kGlPolygon = 0x0009;
constexpr int32_t kGluOutside = 100020;
constexpr int32_t kGluInside = 100021;

class GeometrySink {
public:
    virtual ~GeometrySink() = default;
    virtual void begin(uint32_t mode) = 0;
    virtual void normal(const float* n) = 0;
    virtual void vertex(const float* v) = 0;
    virtual void end() = 0;
};

}  // namespace ts
