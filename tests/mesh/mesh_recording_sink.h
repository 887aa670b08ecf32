// A mesh sink that records every call as text ("B9", "C(r,g,b)", "N(x,y,z)",
// "V(x,y,z)", "E"), for comparing emitted sequences with the expected ones.
#pragma once

#include <string>
#include <vector>

#include "math/recording_sink.h"
#include "tsobj3d/mesh/mesh_sink.h"

namespace tst {

class MeshRecordingSink : public ts::mesh::MeshSink {
public:
    void begin(uint32_t mode) override { calls.push_back("B" + std::to_string(mode)); }
    void color(const float* c) override { calls.push_back("C" + RecordingSink::triple(c)); }
    void normal(const float* n) override { calls.push_back("N" + RecordingSink::triple(n)); }
    void vertex(const float* v) override { calls.push_back("V" + RecordingSink::triple(v)); }
    void end() override { calls.push_back("E"); }

    std::vector<std::string> calls;
};

inline std::string C(float r, float g, float b) {
    const float v[3] = {r, g, b};
    return "C" + RecordingSink::triple(v);
}
inline std::string N(float x, float y, float z) {
    const float v[3] = {x, y, z};
    return "N" + RecordingSink::triple(v);
}
inline std::string V(float x, float y, float z) {
    const float v[3] = {x, y, z};
    return "V" + RecordingSink::triple(v);
}

}  // namespace tst
