// The geometry sink that issues the calls into the current OpenGL context.
#pragma once

#include "tsobj3d/geometry_sink.h"

namespace ts {

class GlSink : public GeometrySink {
public:
    void begin(uint32_t mode) override;
    void normal(const float* n) override;
    void vertex(const float* v) override;
    void end() override;
};

}  // namespace ts
