// The elevation grid: parameters, points, triangle normals, smoothing through the
// indexed face set's core, and the emitted sequence.
#include "tsobj3d/mesh/elevation_grid.h"

#include <algorithm>

#include "tsobj3d/mesh/array_copy.h"
#include "tsobj3d/mesh/crease_normals.h"
#include "tsobj3d/mesh/face_normals.h"
#include "tsobj3d/mesh/mesh_topology.h"

namespace ts::mesh {

int64_t GridData::points() const { return int64_t(xDimension) * zDimension; }

int64_t GridData::cells() const {
    if (xDimension < 2 || zDimension < 2) return 0;
    return int64_t(xDimension - 1) * (zDimension - 1);
}

void GridData::clear() {
    heights.reset();
    triangleCount = 0;
    pointCount = 0;
    colorPerVertex = 0;
    colors.reset();
    normalPerVertex = 0;
    normals.reset();
}

namespace {

// The record counts points and triangles in 32 bits.
bool fitsTheRecord(const GridData& d) { return d.points() <= INT32_MAX && d.triangles() <= INT32_MAX; }

}  // namespace

const char* setElevationGrid(const GridArgs& a, GridData& d) {
    d.clear();
    d.xDimension = a.xDimension;
    d.zDimension = a.zDimension;
    d.xSpacing = a.xSpacing;
    d.zSpacing = a.zSpacing;
    const char* error = nullptr;
    if (!(a.height != nullptr && a.xSpacing > 0 && a.zSpacing > 0 && d.points() >= 4))
        error = "Invalid input parameter(s)";
    else if (!fitsTheRecord(d) || !copyArray(d.heights, a.height, d.points()))
        error = "Allocation of height array failed";
    else
        d.pointCount = int32_t(d.points());
    if (error == nullptr && a.color != nullptr) {
        d.colorPerVertex = a.colorPerVertex != 0;
        const int64_t triples = d.colorPerVertex ? d.points() : d.cells();
        if (!d.heights || !copyArray(d.colors, a.color, 3 * triples)) error = "Allocation of array col failed";
    }
    if (error == nullptr && a.normal != nullptr) {
        d.normalPerVertex = a.normalPerVertex != 0;
        const int64_t triples = d.normalPerVertex ? d.points() : d.cells();
        if (!copyArray(d.normals, a.normal, 3 * triples)) error = "Allocation of normal array failed";
    }
    if (error != nullptr) d.clear();
    return error;
}

void gridPoint(const GridData& grid, int64_t i, int64_t j, float* out) {
    out[0] = float(i) * grid.xSpacing;
    out[1] = grid.heights[size_t(j * grid.xDimension + i)];
    out[2] = float(j) * grid.zSpacing;
}

namespace {

// Calls visit(cell, corner points) for every cell in order; the six points are the
// two triangles' corners as (i, j) pairs.
template <typename Visit>
void forEachCell(const GridData& grid, Visit&& visit) {
    if (!grid.heights || grid.cells() == 0) return;
    int64_t cell = 0;
    for (int64_t j = 0; j + 1 < grid.zDimension; ++j)
        for (int64_t i = 0; i + 1 < grid.xDimension; ++i) {
            const int64_t corners[6][2] = {{i, j}, {i, j + 1}, {i + 1, j}, {i, j + 1}, {i + 1, j + 1}, {i + 1, j}};
            visit(cell++, corners);
        }
}

enum class GridNormals { PerTriangle, PerPoint, Given };

void emitCells(const GridData& grid, GridNormals source, const float* normals, MeshSink& sink) {
    if (!grid.heights || grid.cells() == 0) return;
    const bool cellColors = grid.colors && !grid.colorPerVertex;
    const bool pointColors = grid.colors && grid.colorPerVertex;
    const bool given = source == GridNormals::Given && grid.normals;
    sink.begin(kGlTriangles);
    forEachCell(grid, [&](int64_t cell, const int64_t (&corners)[6][2]) {
        if (cellColors) sink.color(&grid.colors[size_t(3 * cell)]);
        if (given && !grid.normalPerVertex) sink.normal(&grid.normals[size_t(3 * cell)]);
        for (int t = 0; t < 6; ++t) {
            if (t % 3 == 0 && source == GridNormals::PerTriangle) sink.normal(normals + 3 * (2 * cell + t / 3));
            const int64_t point = corners[t][1] * grid.xDimension + corners[t][0];
            if (pointColors) sink.color(&grid.colors[size_t(3 * point)]);
            if (source == GridNormals::PerPoint) sink.normal(normals + 3 * point);
            if (given && grid.normalPerVertex) sink.normal(&grid.normals[size_t(3 * point)]);
            float p[3];
            gridPoint(grid, corners[t][0], corners[t][1], p);
            sink.vertex(p);
        }
    });
    sink.end();
}

}  // namespace

void gridTriangleNormals(const GridData& grid, float* out) {
    forEachCell(grid, [&](int64_t cell, const int64_t (&corners)[6][2]) {
        float p[6][3];
        for (int t = 0; t < 6; ++t) gridPoint(grid, corners[t][0], corners[t][1], p[t]);
        triangleNormal(p[0], p[1], p[2], out + 6 * cell);
        triangleNormal(p[3], p[4], p[5], out + 6 * cell + 3);
    });
}

// The grid as an indexed face set of its triangles, in the same order, so that its
// triangle normals serve as the face normals.
bool gridCreaseNormals(const GridData& grid, float creaseAngleDegrees, float* out) {
    const int64_t points = !grid.heights ? 0 : grid.points();
    const int64_t cells = grid.cells();
    std::fill(out, out + 3 * std::max<int64_t>(points, 0), 0.0f);
    if (points <= 0 || cells == 0) return true;
    if (points > INT32_MAX || 8 * cells > INT32_MAX) return false;
    Buffer<float> coords = allocateBuffer<float>(3 * points);
    Buffer<int32_t> index = allocateBuffer<int32_t>(8 * cells);
    Buffer<float> triangleNormals = allocateBuffer<float>(6 * cells);
    if (!coords || !index || !triangleNormals) return false;
    for (int64_t j = 0; j < grid.zDimension; ++j)
        for (int64_t i = 0; i < grid.xDimension; ++i) gridPoint(grid, i, j, &coords[3 * (j * grid.xDimension + i)]);
    int32_t* entry = index.get();
    forEachCell(grid, [&](int64_t, const int64_t (&corners)[6][2]) {
        for (int t = 0; t < 6; ++t) {
            *entry++ = int32_t(corners[t][1] * grid.xDimension + corners[t][0]);
            if (t % 3 == 2) *entry++ = kFaceEnd;
        }
    });
    gridTriangleNormals(grid, triangleNormals.get());
    const MeshView mesh{coords.get(), int32_t(points), index.get(), int32_t(8 * cells)};
    return creaseNormals(mesh, triangleNormals.get(), creaseAngleDegrees, out);
}

void emitFacetedGrid(const GridData& grid, const float* triangleNormals, MeshSink& sink) {
    emitCells(grid, GridNormals::PerTriangle, triangleNormals, sink);
}

void emitSmoothGrid(const GridData& grid, const float* pointNormals, MeshSink& sink) {
    emitCells(grid, GridNormals::PerPoint, pointNormals, sink);
}

void emitGivenNormalsGrid(const GridData& grid, MeshSink& sink) {
    emitCells(grid, GridNormals::Given, nullptr, sink);
}

bool emitGrid(const GridData& grid, bool smoothShading, float creaseAngleDegrees, MeshSink& sink) {
    if (!grid.heights || grid.cells() == 0) return true;
    Buffer<float> triangleNormals = allocateBuffer<float>(6 * grid.cells());
    if (!triangleNormals) return false;
    gridTriangleNormals(grid, triangleNormals.get());
    if (!smoothShading) {
        emitFacetedGrid(grid, triangleNormals.get(), sink);
        return true;
    }
    if (grid.normals) {
        emitGivenNormalsGrid(grid, sink);
        return true;
    }
    Buffer<float> pointNormals = allocateBuffer<float>(3 * grid.points());
    if (!pointNormals || !gridCreaseNormals(grid, creaseAngleDegrees, pointNormals.get())) {
        emitFacetedGrid(grid, triangleNormals.get(), sink);
        return false;
    }
    emitSmoothGrid(grid, pointNormals.get(), sink);
    return true;
}

}  // namespace ts::mesh
