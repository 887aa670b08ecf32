// Fuzz target of the parameter checks of the indexed face set and the elevation grid:
// any arguments end in a message and an empty node, or in copies that draw only their
// own points in every form.
//
// Input: byte 0 even for a face set, odd for a grid.
// Face set: byte 1 flags (bit 0 colours per vertex, 1 normals per vertex, 2 colours
// given, 3 colour index given, 4 normals given, 5 normal index given, 6 no coordinates,
// 7 no coordinate index), six signed bytes of counts (coordinates, coordinate index,
// colours, colour index, normals, normal index; negative counts pass with empty
// arrays), then the arrays in that order, a signed byte per value (coordinates / 4,
// colours / 127, normals / 64; zeros where the input runs out).
// Grid: bytes 1 and 2 the dimensions, 3 and 4 the spacings (signed, / 4), byte 5 flags
// (bit 0 colours per point, 1 normals per point, 2 colours given, 3 normals given,
// 4 no heights), then heights, colours and normals as above, in the counts the grid
// reads.
#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <vector>

#include "checking_sink.h"
#include "tsobj3d/mesh/elevation_grid.h"
#include "tsobj3d/mesh/face_set_emit.h"
#include "tsobj3d/mesh/face_set_params.h"

namespace {

class Reader {
public:
    Reader(const uint8_t* data, size_t size) : data_(data), size_(size) {}
    int8_t next() { return at_ < size_ ? int8_t(data_[at_++]) : 0; }
    std::vector<float> floats(int64_t count, float scale) {
        std::vector<float> v(size_t(std::max<int64_t>(count, 0)) + 1, 0.0f);
        for (int64_t i = 0; i < count; ++i) v[size_t(i)] = next() / scale;
        return v;
    }
    std::vector<int32_t> ints(int64_t count) {
        std::vector<int32_t> v(size_t(std::max<int64_t>(count, 0)) + 1, 0);
        for (int64_t i = 0; i < count; ++i) v[size_t(i)] = next();
        return v;
    }

private:
    const uint8_t* data_;
    size_t size_;
    size_t at_ = 0;
};

void emitAll(const ts::mesh::FaceSetData& data) {
    const ts::mesh::FaceSetView view = data.view();
    if (view.faceCount != ts::mesh::countFaces(view.mesh.coordIndex, view.mesh.coordIndexCount)) std::abort();
    for (bool smooth : {false, true}) {
        meshfuzz::CheckingSink sink(view.mesh.coords, view.mesh.coordCount);
        ts::mesh::emitFaceSet(view, smooth, 45.0f, sink);
    }
}

void faceSet(Reader& in) {
    const uint8_t flags = uint8_t(in.next());
    int32_t counts[6];
    for (int32_t& c : counts) c = in.next();
    const std::vector<float> coords = in.floats(3 * int64_t(counts[0]), 4.0f);
    const std::vector<int32_t> coordIndex = in.ints(counts[1]);
    const std::vector<float> colors = in.floats(3 * int64_t(counts[2]), 127.0f);
    const std::vector<int32_t> colorIndex = in.ints(counts[3]);
    const std::vector<float> normals = in.floats(3 * int64_t(counts[4]), 64.0f);
    const std::vector<int32_t> normalIndex = in.ints(counts[5]);
    ts::mesh::FaceSetArgs a;
    a.coord = flags & 64 ? nullptr : coords.data();
    a.coordCount = counts[0];
    a.coordIndex = flags & 128 ? nullptr : coordIndex.data();
    a.coordIndexCount = counts[1];
    a.colorPerVertex = flags & 1;
    a.normalPerVertex = (flags >> 1) & 1;
    a.color = flags & 4 ? colors.data() : nullptr;
    a.colorCount = counts[2];
    a.colorIndex = flags & 8 ? colorIndex.data() : nullptr;
    a.colorIndexCount = counts[3];
    a.normal = flags & 16 ? normals.data() : nullptr;
    a.normalCount = counts[4];
    a.normalIndex = flags & 32 ? normalIndex.data() : nullptr;
    a.normalIndexCount = counts[5];
    ts::mesh::FaceSetData data;
    if (ts::mesh::setFaceSet(a, data) != nullptr) {
        if (!data.coords.empty() || !data.coordIndex.empty() || !data.colors.empty() || !data.normals.empty())
            std::abort();
        return;
    }
    emitAll(data);
}

void grid(Reader& in) {
    ts::mesh::GridArgs a;
    a.xDimension = in.next();
    a.zDimension = in.next();
    a.xSpacing = in.next() / 4.0f;
    a.zSpacing = in.next() / 4.0f;
    const uint8_t flags = uint8_t(in.next());
    ts::mesh::GridData shape;  // the counts the grid reads
    shape.xDimension = a.xDimension;
    shape.zDimension = a.zDimension;
    const int64_t points = shape.pointCount(), cells = shape.cellCount();
    const std::vector<float> heights = in.floats(points, 4.0f);
    const std::vector<float> colors = in.floats(3 * ((flags & 1) ? points : cells), 127.0f);
    const std::vector<float> normals = in.floats(3 * ((flags & 2) ? points : cells), 64.0f);
    a.height = flags & 16 ? nullptr : heights.data();
    a.colorPerVertex = flags & 1;
    a.normalPerVertex = (flags >> 1) & 1;
    a.color = flags & 4 ? colors.data() : nullptr;
    a.normal = flags & 8 ? normals.data() : nullptr;
    ts::mesh::GridData data;
    if (ts::mesh::setElevationGrid(a, data) != nullptr) {
        if (!data.heights.empty() || !data.colors.empty() || !data.normals.empty()) std::abort();
        return;
    }
    for (bool smooth : {false, true}) {
        meshfuzz::CheckingSink sink(nullptr, 0);
        ts::mesh::emitGrid(data, smooth, 45.0f, sink);
    }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    if (size < 1) return 0;
    Reader in(data + 1, size - 1);
    if (data[0] & 1) grid(in);
    else faceSet(in);
    return 0;
}
