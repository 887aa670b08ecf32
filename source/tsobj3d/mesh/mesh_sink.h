// The receiver of a mesh's immediate-mode geometry: a geometry sink that also takes
// colours (glColor3fv in the OpenGL layer).
#pragma once

#include "tsobj3d/geometry_sink.h"

namespace ts::mesh {

class MeshSink : public GeometrySink {
public:
    virtual void color(const float* rgb) = 0;
};

// What the display list does to GL_CULL_FACE around a mesh: a solid mesh is drawn with
// back faces culled, any other without; the state is put back after the mesh.
enum class CullChange { None, Enable, Disable };

inline CullChange cullChangeFor(bool solid, bool cullingOn) {
    if (solid && !cullingOn) return CullChange::Enable;
    if (!solid && cullingOn) return CullChange::Disable;
    return CullChange::None;
}

}  // namespace ts::mesh
