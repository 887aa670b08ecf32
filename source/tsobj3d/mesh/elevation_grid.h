// The elevation grid without OpenGL: its parameters with their messages, its points and
// triangles, and the immediate-mode sequence its display list is compiled from.
//
// Point (i, j) lies at (i * xSpacing, heights[j * xDimension + i], j * zSpacing). Cell
// (i, j), numbered j * (xDimension - 1) + i, runs i fastest inside j and holds two
// triangles, (i, j) (i, j+1) (i+1, j) and then (i, j+1) (i+1, j+1) (i+1, j).
//
// The sequence, between the same culling and shade-model frame as the indexed face
// set's (face_set_emit.h), without the attribute push: one begin(GL_TRIANGLES); per
// cell, with colours per cell, colors[cell]; per triangle, faceted, the triangle's
// normal; per point, with colours per point, colors[point], then, smooth, the point's
// normal, then the vertex; end(). In the smooth mode given normals take the place of
// the crease-angle ones: per point before each point, per cell once before the cell's
// triangles. Nothing is emitted without heights (after an error) or without cells
// (a 1 by 4 grid).
#pragma once

#include <cstdint>
#include "tsobj3d/mesh/array_copy.h"
#include "tsobj3d/mesh/mesh_sink.h"

namespace ts::mesh {

// The arguments of snElevationGrid (BOOL switches as 32-bit integers).
struct GridArgs {
    int32_t xDimension = 0;
    int32_t zDimension = 0;
    float xSpacing = 0;
    float zSpacing = 0;
    const float* height = nullptr;
    int32_t colorPerVertex = 0;
    const float* color = nullptr;
    int32_t normalPerVertex = 0;
    const float* normal = nullptr;
};

// The grid's fields in the order and widths of the node record (on Win32 eleven words).
class GridData {
public:
    int32_t xDimension = 0;
    int32_t zDimension = 0;
    float xSpacing = 0;
    float zSpacing = 0;
    Buffer<float> heights;      // pointCount heights, row by row along x
    int32_t triangleCount = 0;  // 2 * cells, set by the node when it compiles
    int32_t pointCount = 0;     // xDimension * zDimension, set with the heights
    int32_t colorPerVertex = 0;
    Buffer<float> colors;       // triples, per point or per cell
    int32_t normalPerVertex = 0;
    Buffer<float> normals;      // triples, per point or per cell

    // xDimension * zDimension, computed without overflow.
    int64_t points() const;
    // (xDimension - 1) * (zDimension - 1), 0 when either dimension is below 2.
    int64_t cells() const;
    int64_t triangles() const { return 2 * cells(); }
    // Frees every array and zeroes the counts: the grid then draws nothing.
    void clear();
};

// Frees data's arrays, stores the dimensions and spacings, then:
//  - "Invalid input parameter(s)" unless height is given, both spacings are above 0 and
//    xDimension * zDimension is at least 4 (the dimensions are not tested one by one:
//    1 by 4 passes and has no cells; the product is formed in 64 bits);
//  - "Allocation of height array failed" (xDimension * zDimension heights; also when
//    the grid's points or triangles do not fit the record's 32-bit counts);
//  - with color: "Allocation of array col failed" (a triple per point with
//    colorPerVertex, else per cell);
//  - with normal: "Allocation of normal array failed" (the same count rule under
//    normalPerVertex).
// The first error frees everything and returns its text; nullptr when all is well.
const char* setElevationGrid(const GridArgs& args, GridData& data);

// out := the point's coordinates.
void gridPoint(const GridData& grid, int64_t i, int64_t j, float* out);

// The two triangles' face normals of every cell, in cell order: 6 floats per cell.
void gridTriangleNormals(const GridData& grid, float* out);

// Crease-angle point normals (3 floats per point), the indexed face set's smoothing on
// the grid's triangles. False when the working memory cannot be had (out holds zeros).
bool gridCreaseNormals(const GridData& grid, float creaseAngleDegrees, float* out);

void emitFacetedGrid(const GridData& grid, const float* triangleNormals, MeshSink& sink);
void emitSmoothGrid(const GridData& grid, const float* pointNormals, MeshSink& sink);
void emitGivenNormalsGrid(const GridData& grid, MeshSink& sink);

// The whole compile step, as emitFaceSet() does it for the indexed face set.
bool emitGrid(const GridData& grid, bool smoothShading, float creaseAngleDegrees, MeshSink& sink);

}  // namespace ts::mesh
