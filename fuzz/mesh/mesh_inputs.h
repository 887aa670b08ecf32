// The mesh fuzz targets' input formats decoded into plain arguments, so that the same
// bytes can be fed to the mesh cores (the fuzzers) and to the exported calls (the
// corpus test under wine). Needs nothing of the library.
//
// Parameters (fuzz_mesh_params), byte 0 even for a face set, odd for a grid.
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
//
// Smoothing (fuzz_crease_normals): byte 0 the crease angle (0 .. 250 times 1.5 degrees;
// 251 NaN, 252 -30, 253 infinity, 254 180, 255 90), byte 1 the coordinate count, byte 2
// the coordinate form (even: one signed byte per component, divided by 4; odd:
// little-endian floats), the coordinates (zeros where the input runs out), then the
// index list, one signed byte per entry (-1 ends a face).
#pragma once

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <limits>
#include <vector>

namespace meshinput {

class Reader {
public:
    Reader(const uint8_t* data, size_t size) : data_(data), size_(size) {}
    int8_t next() { return at_ < size_ ? int8_t(data_[at_++]) : 0; }
    // count values (one more, so that an empty array still has an address).
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

// The arguments of snIndexedFaceSet; the pointers lead into the vectors.
struct FaceSetInput {
    int32_t counts[6] = {};  // coordinates, coordinate index, colours, colour index, normals, normal index
    std::vector<float> coords, colors, normals;
    std::vector<int32_t> coordIndex, colorIndex, normalIndex;
    bool colorPerVertex = false, normalPerVertex = false;
    const float *coord = nullptr, *color = nullptr, *normal = nullptr;
    const int32_t *coordIndexArg = nullptr, *colorIndexArg = nullptr, *normalIndexArg = nullptr;
};

inline void readFaceSet(Reader& in, FaceSetInput& f) {
    const uint8_t flags = uint8_t(in.next());
    for (int32_t& c : f.counts) c = in.next();
    f.coords = in.floats(3 * int64_t(f.counts[0]), 4.0f);
    f.coordIndex = in.ints(f.counts[1]);
    f.colors = in.floats(3 * int64_t(f.counts[2]), 127.0f);
    f.colorIndex = in.ints(f.counts[3]);
    f.normals = in.floats(3 * int64_t(f.counts[4]), 64.0f);
    f.normalIndex = in.ints(f.counts[5]);
    f.colorPerVertex = flags & 1;
    f.normalPerVertex = (flags >> 1) & 1;
    f.color = flags & 4 ? f.colors.data() : nullptr;
    f.colorIndexArg = flags & 8 ? f.colorIndex.data() : nullptr;
    f.normal = flags & 16 ? f.normals.data() : nullptr;
    f.normalIndexArg = flags & 32 ? f.normalIndex.data() : nullptr;
    f.coord = flags & 64 ? nullptr : f.coords.data();
    f.coordIndexArg = flags & 128 ? nullptr : f.coordIndex.data();
}

// The arguments of snElevationGrid.
struct GridInput {
    int32_t xDimension = 0, zDimension = 0;
    float xSpacing = 0, zSpacing = 0;
    std::vector<float> heights, colors, normals;
    bool colorPerVertex = false, normalPerVertex = false;
    const float *height = nullptr, *color = nullptr, *normal = nullptr;
};

inline void readGrid(Reader& in, GridInput& g) {
    g.xDimension = in.next();
    g.zDimension = in.next();
    g.xSpacing = in.next() / 4.0f;
    g.zSpacing = in.next() / 4.0f;
    const uint8_t flags = uint8_t(in.next());
    const int64_t points = int64_t(g.xDimension) * g.zDimension;
    const int64_t cells = g.xDimension < 2 || g.zDimension < 2 ? 0 : int64_t(g.xDimension - 1) * (g.zDimension - 1);
    g.heights = in.floats(points, 4.0f);
    g.colors = in.floats(3 * ((flags & 1) ? points : cells), 127.0f);
    g.normals = in.floats(3 * ((flags & 2) ? points : cells), 64.0f);
    g.colorPerVertex = flags & 1;
    g.normalPerVertex = (flags >> 1) & 1;
    g.height = flags & 16 ? nullptr : g.heights.data();
    g.color = flags & 4 ? g.colors.data() : nullptr;
    g.normal = flags & 8 ? g.normals.data() : nullptr;
}

// A mesh for the smoothing: crease angle, coordinates and index list.
struct SmoothingInput {
    float angle = 0;
    std::vector<float> coords;
    std::vector<int32_t> index;
};

inline float angleOf(uint8_t b) {
    switch (b) {
        case 251: return std::numeric_limits<float>::quiet_NaN();
        case 252: return -30.0f;
        case 253: return std::numeric_limits<float>::infinity();
        case 254: return 180.0f;
        case 255: return 90.0f;
        default: return b * 1.5f;
    }
}

// False for an input too short to hold a mesh.
inline bool readSmoothing(const uint8_t* data, size_t size, SmoothingInput& s) {
    if (size < 3) return false;
    s.angle = angleOf(data[0]);
    const bool rawFloats = data[2] & 1;
    size_t at = 3;
    s.coords.assign(3 * size_t(data[1]), 0.0f);
    for (float& c : s.coords) {
        if (rawFloats && at + 4 <= size) {
            std::memcpy(&c, data + at, 4);
            at += 4;
        } else if (!rawFloats && at < size) {
            c = int8_t(data[at++]) / 4.0f;
        }
    }
    s.index.clear();
    for (; at < size; ++at) s.index.push_back(int8_t(data[at]));
    return true;
}

}  // namespace meshinput
