// The mesh tests' hosted scene, camera mapping, test meshes and guarded arrays.
#include "mesh_scene.h"

#include <cmath>
#include <cstring>

namespace mt {

MeshScene::MeshScene() {
    smProjectionMode(TS_PERSPECTIVE, 45.0, 0.1, 100.0);
    smResetPos();
    smTranslation(0.0f, 0.0f, 5.0f);
}

void MeshScene::paint() {
    for (int pass = 0; pass < 2; ++pass) {
        InvalidateRect(host.hwnd, nullptr, FALSE);
        UpdateWindow(host.hwnd);
    }
}

tst::Rgb MeshScene::at(float x, float y, float z) const {
    const POINT p = project(x, y, z);
    return host.pixel(p.x, p.y);
}

POINT project(float x, float y, float z, int width, int height) {
    const double f = 1.0 / std::tan(22.5 * 0.01745329251994);
    const double depth = 5.0 - z, aspect = double(width) / height;
    const double nx = x * f / (depth * aspect), ny = y * f / depth;
    return POINT{static_cast<LONG>(std::lround((nx + 1.0) * 0.5 * width)),
                 static_cast<LONG>(std::lround((1.0 - ny) * 0.5 * height))};
}

Cube::Cube() {
    for (int k = 0; k < 8; ++k) {
        const float x = (k == 1 || k == 2 || k == 5 || k == 6) ? 0.5f : -0.5f;
        const float y = (k == 2 || k == 3 || k == 6 || k == 7) ? 0.5f : -0.5f;
        const float z = k >= 4 ? 0.5f : -0.5f;
        coords.insert(coords.end(), {x, y, z});
    }
    index = {0, 3, 2, 1, -1, 0, 1, 5, 4, -1, 0, 4, 7, 3, -1, 1, 2, 6, 5, -1, 3, 7, 6, 2, -1, 4, 5, 6, 7, -1};
}

cNode* faceSet(cNode* node, const std::vector<float>& coords, const std::vector<int>& index, int indexCount,
               BOOL solid, float creaseAngle) {
    return snIndexedFaceSet(node, coords.data(), static_cast<int>(coords.size() / 3), index.data(), indexCount,
                            creaseAngle, solid, FALSE, nullptr, 0, nullptr, 0, FALSE, nullptr, 0, nullptr, 0);
}

float* floatsBeforeGuardPage(const std::vector<float>& values) {
    const size_t bytes = values.size() * sizeof(float);
    const size_t pages = (bytes + 4095) / 4096 + 1;
    auto* base = static_cast<char*>(VirtualAlloc(nullptr, pages * 4096, MEM_RESERVE, PAGE_NOACCESS));
    VirtualAlloc(base, (pages - 1) * 4096, MEM_COMMIT, PAGE_READWRITE);
    char* start = base + (pages - 1) * 4096 - bytes;
    std::memcpy(start, values.data(), bytes);
    return reinterpret_cast<float*>(start);
}

uint32_t selectionName(cNode* node) {
#ifdef _WIN64
    // Names are handed out in rising order from 1; a test process makes few nodes.
    for (uint32_t name = 1; name < 1000000u; ++name) {
        if (tsNodeFromName(name) == node) return name;
    }
    ADD_FAILURE() << "no selection name for the node";
    return 0;
#else
    return static_cast<uint32_t>(reinterpret_cast<uintptr_t>(node));
#endif
}

uint32_t listName(cNode* node) {
#ifdef _WIN64
    return selectionName(node) | 0x80000000u;
#else
    return selectionName(node);
#endif
}

}  // namespace mt
