// The display list of a mesh node (indexed face set, elevation grid): compiled from the
// mesh core's sequence once per shading mode, called with the node's culling around it,
// and deleted with the node.
//
// Compiled list: glPushAttrib(GL_CURRENT_BIT) (face sets only); glShadeModel(GL_SMOOTH);
// the sequence; glShadeModel(GL_FLAT); glPopAttrib() (face sets only). Culling is set
// from `solid` around each call of the list, at drawing time, and put back after it, so
// it is right whatever the culling was when the list was compiled.
#pragma once

#include <cstdint>
#include <mutex>

#include "tsobj3d/cnode.h"
#include "tsobj3d/mesh/mesh_sink.h"

namespace ts {

class DrawContext;

// The shading mode in which meshes are smoothed (the others draw them faceted).
constexpr int kShadeSmooth = 100000;

// Serialises a mesh's edit (caller's thread) against its compile (scene thread), so
// that a compile never reads arrays being freed. Held briefly; never across a message
// box or a request.
std::mutex& meshLock();

// Whatever emits a mesh's sequence into a sink, for the shading mode given.
class MeshSource {
public:
    virtual void emit(bool smoothShading, mesh::MeshSink& sink) = 0;

protected:
    ~MeshSource() = default;
};

template <class Emit>
class MeshSourceOf final : public MeshSource {
public:
    explicit MeshSourceOf(Emit emit) : emit_(emit) {}
    void emit(bool smoothShading, mesh::MeshSink& sink) override { emit_(smoothShading, sink); }

private:
    Emit emit_;
};

struct MeshList {
    uint32_t name;          // the node's listName
    bool solid;             // back faces culled while the mesh is drawn
    bool keepCurrentColor;  // the list saves and restores the current colour
};

// Draws the mesh: compiles its list when compiledFor differs from the scene's shading
// mode (and sets compiledFor), then calls the list if it exists. While another list is
// being compiled (smUseDisplayList), the sequence goes into that list instead, with the
// same frame, and the node's own list is left alone: a list cannot be made inside
// another, and the scene's list must keep the mesh even after the node is gone.
void drawMeshList(DrawContext& context, const MeshList& list, int32_t& compiledFor, MeshSource& source);

// Deletes the node's list in the OpenGL context current on this thread, when one is
// current and the node compiled a list (compiledFor not 0).
void deleteMeshList(uint32_t name, int32_t compiledFor);

// A parameter error of a mesh node: prefix and text in the library's error box.
void meshErrorBox(const char* prefix, const char* error);

// The set routine of every mesh node (construction and edit), under meshLock: the list
// the node compiled goes when this thread draws its scene (deleteMeshList), the list is
// named after the node and compiled afresh at the next drawing; then fill() stores and
// checks the parameters and returns the first error's text, or null. The error is shown
// after prefix once the lock is released.
template <class Fill>
void setMeshNode(const cNode& node, uint32_t& listName, int32_t& compiledFor, const char* prefix, Fill&& fill) {
    const char* error = nullptr;
    {
        std::lock_guard<std::mutex> hold(meshLock());
        deleteMeshList(listName, compiledFor);
        listName = node.ownListName();
        compiledFor = 0;
        error = fill();
    }
    if (error != nullptr) meshErrorBox(prefix, error);
}


}  // namespace ts
