// Scene-side handlers of the mode, camera and viewpoint requests. Each acts on
// CURRENT_SCENE and unpacks what the sender packed in its own stack frame.
#include <windows.h>

#include <cstdint>

#include "library/globals.h"
#include "requests/request_handlers.h"
#include "view/camera/camera_ops.h"
#include "view/scene/camera.h"
#include "view/scene/cscene.h"
#include "view/viewpoints/viewpoints.h"

namespace ts {

LRESULT onShadeMode(WPARAM mode, LPARAM) {
    setShadeMode(CURRENT_SCENE, static_cast<int>(mode));
    return 1;
}

LRESULT onDrawMode(WPARAM mode, LPARAM) {
    setDrawMode(CURRENT_SCENE, static_cast<int>(mode));
    return 1;
}

LRESULT onProjectionMode(WPARAM mode, LPARAM values) {
    const double* v = reinterpret_cast<const double*>(values);
    setProjectionMode(CURRENT_SCENE, static_cast<int>(mode), v[0], v[1], v[2]);
    return 1;
}

LRESULT onResetRotation(WPARAM, LPARAM) {
    cScene* scene = CURRENT_SCENE;
    for (int k = 0; k < 16; ++k) scene->rotMatrix[k] = (k % 5 == 0) ? 1.0f : 0.0f;
    return 1;
}

LRESULT onResetPos(WPARAM, LPARAM) {
    resetPosition(CURRENT_SCENE);
    return 1;
}

LRESULT onStopMotion(WPARAM, LPARAM) {
    stopMotion(CURRENT_SCENE);
    return 1;
}

LRESULT onTranslation(WPARAM xyz, LPARAM) {
    translateScene(CURRENT_SCENE, reinterpret_cast<const float*>(xyz));
    return 1;
}

LRESULT onRotation(WPARAM hundredths, LPARAM axis) {
    // The angle travels as a 32-bit count of hundredths read back unsigned, so a
    // negative angle arrives as a large positive one; callers have always seen that.
    const uint32_t count = static_cast<uint32_t>(hundredths);
    const float angle = static_cast<float>(count * 0.01);
    rotateScene(CURRENT_SCENE, angle, reinterpret_cast<const float*>(axis));
    return 1;
}

LRESULT onLookAt(WPARAM nine, LPARAM) {
    lookAtScene(CURRENT_SCENE, reinterpret_cast<const float*>(nine));
    return 1;
}

LRESULT onActionMode(WPARAM mode, LPARAM) { return switchActionMode(CURRENT_SCENE, static_cast<int>(mode)); }

LRESULT onViewpointAdd(WPARAM record, LPARAM name) {
    return addViewpoint(CURRENT_SCENE, reinterpret_cast<const char*>(name),
                        reinterpret_cast<const ViewpointRecord*>(record));
}

LRESULT onViewpointDel(WPARAM name, LPARAM) {
    return deleteViewpoint(CURRENT_SCENE, reinterpret_cast<const char*>(name));
}

LRESULT onViewpointSet(WPARAM name, LPARAM) {
    return setViewpoint(CURRENT_SCENE, reinterpret_cast<const char*>(name));
}

}  // namespace ts
