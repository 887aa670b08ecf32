// Mesh display lists in OpenGL: the compile frame, culling around the call, deletion.
#include "tsobj3d/visible/mesh_list.h"

#include <windows.h>
#include <GL/gl.h>

#include <string>

#include "guard/msgbox.h"
#include "tsobj3d/draw_context.h"

namespace ts {
namespace {

class GlMeshSink final : public mesh::MeshSink {
public:
    void begin(uint32_t mode) override { glBegin(mode); }
    void normal(const float* n) override { glNormal3fv(n); }
    void vertex(const float* v) override { glVertex3fv(v); }
    void end() override { glEnd(); }
    void color(const float* rgb) override { glColor3fv(rgb); }
};

// Back faces culled for a solid mesh, drawn for any other; put back as it was.
class CullingFor {
public:
    explicit CullingFor(bool solid) : change_(mesh::cullChangeFor(solid, glIsEnabled(GL_CULL_FACE) == GL_TRUE)) {
        if (change_ == mesh::CullChange::Enable) glEnable(GL_CULL_FACE);
        if (change_ == mesh::CullChange::Disable) glDisable(GL_CULL_FACE);
    }
    ~CullingFor() {
        if (change_ == mesh::CullChange::Enable) glDisable(GL_CULL_FACE);
        if (change_ == mesh::CullChange::Disable) glEnable(GL_CULL_FACE);
    }
    CullingFor(const CullingFor&) = delete;
    CullingFor& operator=(const CullingFor&) = delete;

private:
    mesh::CullChange change_;
};

void emitInFrame(const MeshList& list, bool smooth, MeshSource& source) {
    if (list.keepCurrentColor) glPushAttrib(GL_CURRENT_BIT);
    glShadeModel(GL_SMOOTH);
    GlMeshSink sink;
    source.emit(smooth, sink);
    glShadeModel(GL_FLAT);
    if (list.keepCurrentColor) glPopAttrib();
}

bool compilingAnotherList() {
    GLint index = 0;
    glGetIntegerv(GL_LIST_INDEX, &index);
    return index != 0;
}

}  // namespace

std::mutex& meshLock() {
    static std::mutex* lock = new std::mutex;  // outlives every node destroyed at exit
    return *lock;
}

void drawMeshList(DrawContext& context, const MeshList& list, int32_t& compiledFor, MeshSource& source) {
    const int mode = context.shadeMode();
    if (compilingAnotherList()) {
        std::lock_guard<std::mutex> hold(meshLock());
        CullingFor culling(list.solid);
        emitInFrame(list, mode == kShadeSmooth, source);
        return;
    }
    {
        std::lock_guard<std::mutex> hold(meshLock());
        if (compiledFor != mode) {
            glDeleteLists(list.name, 1);
            glNewList(list.name, GL_COMPILE);
            emitInFrame(list, mode == kShadeSmooth, source);
            glEndList();
            compiledFor = mode;
        }
    }
    if (glIsList(list.name) == GL_TRUE) {
        CullingFor culling(list.solid);
        glCallList(list.name);
    }
}

void meshErrorBox(const char* prefix, const char* error) { errorBox((std::string(prefix) + error).c_str()); }

void deleteMeshList(uint32_t name, int32_t compiledFor) {
    if (compiledFor != 0 && wglGetCurrentContext() != nullptr) glDeleteLists(name, 1);
}

}  // namespace ts
