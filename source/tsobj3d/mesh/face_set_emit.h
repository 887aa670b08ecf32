// The faces of an indexed face set as an immediate-mode sequence, in the three forms
// the display list is compiled in. The OpenGL layer wraps the sequence in
//   glNewList; culling per cullChangeFor(solid, ...); glPushAttrib(GL_CURRENT_BIT);
//   glShadeModel(GL_SMOOTH); <sequence>; glShadeModel(GL_FLAT); glPopAttrib();
//   culling back as it was; glEndList.
//
// Every face is begin(GL_POLYGON) ... end(), faces in order, entries after the last -1
// not drawn. Colours, all forms alike:
//  - per face: before the face's normal, colors[colorIndex[face]], or colors[face]
//    without a colour index;
//  - per vertex: before each vertex, colors[colorIndex[k]] for index position k, or,
//    without a colour index, colour j for the j-th vertex occurrence of the list
//    (whichever coordinate it names: the list's j-th entry that is not -1).
// Normals:
//  - faceted: the face normal (faceNormals(), from the first three vertices) once per
//    face, after its colour; given normals are not used;
//  - smooth: before each vertex, after its colour, the crease-angle normal of the
//    coordinate the entry names;
//  - smooth with given normals: the colour rules again, normals for colours: per face
//    normals[normalIndex[face]] or normals[face], once per face; per vertex
//    normals[normalIndex[k]] or normal j of the j-th occurrence, before each vertex.
// Guards that change nothing for well-formed input: an entry that names no coordinate
// emits no vertex and no crease-angle normal (its colour and given normal are still
// emitted, and it still counts as an occurrence); a colour or normal index outside its array, or an occurrence j beyond
// the array, emits no colour or normal call, so the one before carries on.
#pragma once

#include "tsobj3d/mesh/face_set_params.h"
#include "tsobj3d/mesh/mesh_sink.h"

namespace ts::mesh {

// faceNormals: 3 floats per face, as faceNormals() gives them.
void emitFacetedFaceSet(const FaceSetView& set, const float* faceNormals, MeshSink& sink);

// vertexNormals: 3 floats per coordinate, as creaseNormals() gives them.
void emitSmoothFaceSet(const FaceSetView& set, const float* vertexNormals, MeshSink& sink);

// The given normals of the set, by the colour rules.
void emitGivenNormalsFaceSet(const FaceSetView& set, MeshSink& sink);

// The whole compile step: face normals, then the faceted form, or in the smooth shading
// mode the given normals or, without them, crease-angle normals. False when the working
// memory cannot be had: nothing is emitted if the face normals are missing, the faceted
// form if the crease-angle normals are.
bool emitFaceSet(const FaceSetView& set, bool smoothShading, float creaseAngleDegrees, MeshSink& sink);

}  // namespace ts::mesh
