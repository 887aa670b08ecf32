// The adjacency listing: each coordinate's faces put in ring order by walking from its
// first face across shared edges, one way and then the other.
#include "tsobj3d/mesh/adjacency_dump.h"

#include <vector>

#include "tsobj3d/mesh/mesh_topology.h"

namespace ts::mesh {

namespace {

// The next unvisited corner across the edge to `key`, or -1; `key` becomes the
// corner's other edge.
int32_t across(const std::vector<Corner>& corners, std::vector<bool>& visited, int32_t& key) {
    if (key == kNoEdge) return -1;
    for (size_t j = 0; j < corners.size(); ++j) {
        if (visited[j] || (corners[j].key[0] != key && corners[j].key[1] != key)) continue;
        visited[j] = true;
        key = corners[j].key[0] == key ? corners[j].key[1] : corners[j].key[0];
        return int32_t(j);
    }
    return -1;
}

// Faces of the ring from the first corner: forward across its edge after the
// coordinate, then, unless that came round, backward across the edge before it.
// Corners the walk cannot reach (a second fan, a non-manifold edge) follow in order.
std::vector<int32_t> ring(const std::vector<Corner>& corners, bool& closed) {
    std::vector<int32_t> order;
    closed = false;
    if (corners.empty()) return order;
    std::vector<bool> visited(corners.size(), false);
    visited[0] = true;
    order.push_back(0);
    int32_t key = corners[0].key[1];
    for (int32_t j; (j = across(corners, visited, key)) >= 0;) order.push_back(j);
    closed = key != kNoEdge && key == corners[0].key[0] && order.size() == corners.size();
    if (!closed) {
        key = corners[0].key[0];
        for (int32_t j; (j = across(corners, visited, key)) >= 0;) order.insert(order.begin(), j);
    }
    for (size_t j = 0; j < corners.size(); ++j)
        if (!visited[j]) order.push_back(int32_t(j));
    for (int32_t& c : order) c = corners[c].face;
    return order;
}

}  // namespace

bool dumpAdjacency(const MeshView& mesh, std::FILE* out) {
    MeshTopology topology;
    if (!topology.build(mesh)) return false;
    forEachFace(mesh.coordIndex, mesh.coordIndexCount, [&](int32_t face, int32_t first, int32_t end) {
        std::fprintf(out, "\nface[%d] = ", face);
        for (int32_t k = first; k < end; ++k) std::fprintf(out, "%d ", mesh.coordIndex[k]);
    });
    std::vector<Corner> corners;
    for (int32_t v = 0; v < mesh.coordCount; ++v) {
        corners.resize(topology.cornerCount(v));
        topology.corners(v, nullptr, corners.data());
        bool closed = false;
        std::fprintf(out, "\nvertex[%d] = ", v);
        for (int32_t face : ring(corners, closed)) std::fprintf(out, "%d ", face);
        if (closed) std::fprintf(out, " - closed");
    }
    std::fprintf(out, "\n");
    return true;
}

}  // namespace ts::mesh
