// OpenSceneGraph's crease-angle smoothing, osgUtil::SmoothingVisitor::smooth(geometry,
// creaseAngle), on an osg::Geometry holding the mesh's vertices and one DrawElements
// of its triangles or quads. smooth() rewrites the geometry (it splits vertices at
// creases), so every run gets a fresh one.
#include <cstdio>

#include "methods.h"

#ifdef MESH_BENCH_HAVE_OSG
#include <osg/Geometry>
#include <osgUtil/SmoothingVisitor>

namespace meshbench {

namespace {

class OsgRun : public Run {
public:
    OsgRun(const BenchMesh& m, float degrees) : radians_(degrees == 180.0f ? osg::PI : osg::DegreesToRadians(double(degrees))) {
        geometry_ = new osg::Geometry;
        osg::ref_ptr<osg::Vec3Array> vertices = new osg::Vec3Array(m.coordCount());
        for (int32_t v = 0; v < m.coordCount(); ++v)
            (*vertices)[v].set(m.coords[3 * v], m.coords[3 * v + 1], m.coords[3 * v + 2]);
        const GLenum mode = m.vertsPerFace == 3 ? osg::PrimitiveSet::TRIANGLES : osg::PrimitiveSet::QUADS;
        osg::ref_ptr<osg::DrawElementsUInt> faces = new osg::DrawElementsUInt(mode);
        faces->reserve(size_t(m.faces) * m.vertsPerFace);
        for (int32_t i : m.index)
            if (i != -1) faces->push_back(GLuint(i));
        geometry_->setVertexArray(vertices.get());
        geometry_->addPrimitiveSet(faces.get());
    }
    void go() override { osgUtil::SmoothingVisitor::smooth(*geometry_, radians_); }

private:
    double radians_;
    osg::ref_ptr<osg::Geometry> geometry_;
};

}  // namespace

std::vector<Method> osgMethods() {
    return {{"OpenSceneGraph SmoothingVisitor::smooth",
             [](const BenchMesh& m, float d) { return std::unique_ptr<Run>(new OsgRun(m, d)); }, true}};
}

}  // namespace meshbench

#else

namespace meshbench {
std::vector<Method> osgMethods() {
    std::fprintf(stderr, "*** OpenSceneGraph was not found when the benchmark was built: its column is missing. "
                         "Run bench/mesh/install-peers.sh and build again. ***\n");
    return {};
}
}  // namespace meshbench

#endif
