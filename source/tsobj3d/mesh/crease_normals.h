// Crease-angle smoothing: one normal per coordinate of a polygon mesh, from the
// normals of the faces around it, without smoothing over edges sharper than the
// crease angle. Arrays in, normals out; no OpenGL, no Windows.
//
// The faces around a coordinate form its ring: two of them are neighbours when they
// share an edge through the coordinate (whichever way round each face runs). The ring
// is closed when the faces go all the way round and open at a border. Two neighbours
// are joined when the dot product of their unit normals is at least
// cos(creaseAngle * 0.01745329251994); otherwise the edge between them is a crease.
// The walk starts at the first face, in index-list order, that uses the coordinate;
// the coordinate's normal is the normalised sum of the normals of the run of joined
// faces that contains that face. So a corner of a cube at 30 degrees takes the normal
// of its first face, at 100 degrees the diagonal; a rim point of a cylinder takes the
// side's normal or the cap's, whichever face comes first.
//
// Degenerate input, and what it gets:
//  - Face normals follow faceNormal() (face_normals.h): never NaN; a face without area
//    (zero length, fewer than three usable entries, non-finite points) has (0, 0, 0).
//  - A face without area is not a crease: it joins the faces on both of its sides, and
//    the crease test across it compares the real faces on either side (a sliver left by
//    a collapsed edge does not split the shading). It adds nothing to the sum and is
//    never the walk's start: that is the first face with area.
//  - A coordinate that no face uses, or whose faces all lack area: (0, 0, 0).
//  - Faces that cancel (two faces folded back onto each other at a crease angle of 180
//    degrees or more): the start face's normal.
//  - An edge shared by three or more faces (non-manifold): the faces around that edge
//    are neighbours in index-list order, each to the next one, so the walk can pass
//    through the fan but no face is skipped.
//  - A face that names the coordinate more than once counts once; an edge from the
//    coordinate to itself is no edge.
//  - Index entries that name no coordinate (negative values other than -1, values not
//    below coordCount) belong to no ring and make no edge; entries after the last -1
//    belong to no face.
//  - Faces of any size, from 3 to many thousands of vertices, and coordinates used by
//    any number of faces: time and memory grow linearly (a coordinate with k faces
//    costs k log k at worst). Results do not depend on the number of faces.
//  - Crease angle NaN: every edge is a crease.
//
// Memory besides the output: 4 bytes per face, per coordinate and per corner (index
// entry), and 12 bits per index entry; the variant without given face normals adds
// 12 bytes per face.
#pragma once

#include <cstdint>

#include "tsobj3d/mesh/face_list.h"

namespace ts::mesh {

// cos(creaseAngle * 0.01745329251994), degrees in, as float.
float creaseCosine(float creaseAngleDegrees);

// Vertex normals from the face normals that faceNormals() gives for this mesh:
// out receives 3 * mesh.coordCount floats, finite, each of unit length or (0, 0, 0).
// Returns false when the working memory cannot be had; out then holds zeros.
bool creaseNormals(const MeshView& mesh, const float* faceNormals, float creaseAngleDegrees, float* out);

// The same, computing the face normals itself.
bool creaseNormals(const MeshView& mesh, float creaseAngleDegrees, float* out);

}  // namespace ts::mesh
