// Emitting the faces of an indexed face set: one walk over the index list for the
// three forms, which differ only in where normals come from.
#include "tsobj3d/mesh/face_set_emit.h"

#include "tsobj3d/mesh/crease_normals.h"
#include "tsobj3d/mesh/face_normals.h"
#include "tsobj3d/mesh/mesh_topology.h"

namespace ts::mesh {

namespace {

enum class NormalSource { PerFace, PerCoordinate, Given };

// Entry `which` of an optional index list, or `which` itself without the list; -1
// beyond the list.
int32_t throughIndex(const int32_t* index, int32_t indexCount, int32_t which) {
    if (index == nullptr) return which;
    return which < indexCount ? index[which] : -1;
}

class FaceEmitter {
public:
    FaceEmitter(const FaceSetView& set, NormalSource source, const float* normals, MeshSink& sink)
        : set_(set), source_(source), normals_(normals), sink_(sink) {}

    void face(int32_t face, int32_t first, int32_t end) {
        sink_.begin(kGlPolygon);
        const bool colors = set_.colors != nullptr;
        if (colors && !set_.colorPerVertex) color(throughIndex(set_.colorIndex, set_.colorIndexCount, face));
        if (source_ == NormalSource::PerFace) sink_.normal(normals_ + 3 * int64_t(face));
        if (source_ == NormalSource::Given && !set_.normalPerVertex)
            given(throughIndex(set_.normalIndex, set_.normalIndexCount, face));
        for (int32_t k = first; k < end; ++k, ++occurrence_) {
            const int32_t index = set_.mesh.coordIndex[k];
            const bool drawn = namesCoord(index, set_.mesh.coordCount);
            if (colors && set_.colorPerVertex)
                color(set_.colorIndex != nullptr ? throughIndex(set_.colorIndex, set_.colorIndexCount, k) : occurrence_);
            if (source_ == NormalSource::PerCoordinate && drawn) sink_.normal(normals_ + 3 * int64_t(index));
            if (source_ == NormalSource::Given && set_.normalPerVertex)
                given(set_.normalIndex != nullptr ? throughIndex(set_.normalIndex, set_.normalIndexCount, k) : occurrence_);
            if (drawn) sink_.vertex(set_.mesh.coords + 3 * int64_t(index));
        }
        sink_.end();
    }

private:
    void color(int32_t which) {
        if (which >= 0 && which < set_.colorCount) sink_.color(set_.colors + 3 * int64_t(which));
    }
    void given(int32_t which) {
        if (which >= 0 && which < set_.normalCount) sink_.normal(set_.normals + 3 * int64_t(which));
    }

    const FaceSetView& set_;
    NormalSource source_;
    const float* normals_;
    MeshSink& sink_;
    int32_t occurrence_ = 0;
};

void emit(const FaceSetView& set, NormalSource source, const float* normals, MeshSink& sink) {
    FaceEmitter emitter(set, source, normals, sink);
    forEachFace(set.mesh.coordIndex, set.mesh.coordIndexCount,
                [&](int32_t face, int32_t first, int32_t end) { emitter.face(face, first, end); });
}

}  // namespace

void emitFacetedFaceSet(const FaceSetView& set, const float* faceNormals, MeshSink& sink) {
    emit(set, NormalSource::PerFace, faceNormals, sink);
}

void emitSmoothFaceSet(const FaceSetView& set, const float* vertexNormals, MeshSink& sink) {
    emit(set, NormalSource::PerCoordinate, vertexNormals, sink);
}

void emitGivenNormalsFaceSet(const FaceSetView& set, MeshSink& sink) {
    emit(set, NormalSource::Given, nullptr, sink);
}

bool emitFaceSet(const FaceSetView& set, bool smoothShading, float creaseAngleDegrees, MeshSink& sink) {
    const int32_t faces = countFaces(set.mesh.coordIndex, set.mesh.coordIndexCount);
    Buffer<float> faceNormalArray = allocateBuffer<float>(3 * int64_t(faces));
    if (!faceNormalArray) return false;
    faceNormals(set.mesh, faceNormalArray.get());
    if (!smoothShading) {
        emitFacetedFaceSet(set, faceNormalArray.get(), sink);
        return true;
    }
    if (set.normals != nullptr) {
        emitGivenNormalsFaceSet(set, sink);
        return true;
    }
    Buffer<float> vertexNormals = allocateBuffer<float>(3 * int64_t(set.mesh.coordCount));
    if (!vertexNormals || !creaseNormals(set.mesh, faceNormalArray.get(), creaseAngleDegrees, vertexNormals.get())) {
        emitFacetedFaceSet(set, faceNormalArray.get(), sink);
        return false;
    }
    emitSmoothFaceSet(set, vertexNormals.get(), sink);
    return true;
}

}  // namespace ts::mesh
