// A diagnostic listing of a mesh's adjacency: the vertices of every face, then the
// faces around every coordinate in ring order, " - closed" after a closed ring. Built
// in but switched off: the compile step calls dumpAdjacencyIfOn(), which prints only
// in a build with kAdjacencyDumpOn set to true.
#pragma once

#include <cstdio>

#include "tsobj3d/mesh/face_list.h"

namespace ts::mesh {

constexpr bool kAdjacencyDumpOn = false;

// Writes "\nface[%d] = " and the face's vertex numbers for each face, then
// "\nvertex[%d] = " and the numbers of the faces around it for each coordinate, each
// number followed by a space, and a final newline. False when the working memory
// cannot be had (nothing is written).
bool dumpAdjacency(const MeshView& mesh, std::FILE* out);

// dumpAdjacency to standard output, only when kAdjacencyDumpOn.
inline void dumpAdjacencyIfOn(const MeshView& mesh) {
    if (kAdjacencyDumpOn) dumpAdjacency(mesh, stdout);
}

}  // namespace ts::mesh
