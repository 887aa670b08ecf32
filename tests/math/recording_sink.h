// A geometry sink that records every call as text, one entry per call, for comparing
// emitted sequences with the expected ones.
#pragma once

#include <cstdio>
#include <string>
#include <vector>

#include "tsobj3d/geometry_sink.h"

namespace tst {

class RecordingSink : public ts::GeometrySink {
public:
    void begin(uint32_t mode) override { calls.push_back("B" + std::to_string(mode)); }
    void normal(const float* n) override { calls.push_back("N" + triple(n)); }
    void vertex(const float* v) override { calls.push_back("V" + triple(v)); }
    void end() override { calls.push_back("E"); }

    // Negative zeros print as zeros: the sign of a zero component is not part of
    // what a normal means.
    static std::string triple(const float* v) {
        char text[96];
        std::snprintf(text, sizeof text, "(%g,%g,%g)", v[0] + 0.0, v[1] + 0.0, v[2] + 0.0);
        return text;
    }

    std::vector<std::string> calls;
};

}  // namespace tst
