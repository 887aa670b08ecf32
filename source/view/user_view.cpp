// Exported scene-view calls: modes, camera, lights and viewpoints. Thin: the guard,
// the packing of a request, the forward.
#include <windows.h>

#include <cstdint>

#include "guard/guard.h"
#include "library/globals.h"
#include "requests/requests.h"
#include "tessarin.h"
#include "view/camera/camera_ops.h"
#include "view/scene/cscene.h"
#include "view/scene/cviewpoint.h"

static_assert(sizeof(smViewpointRecord) == sizeof(ViewpointRecord), "the public record is the library's record");

namespace {

WPARAM addressOf(const void* p) { return reinterpret_cast<WPARAM>(p); }

}  // namespace

extern "C" {

void smShadeMode(int mode) {
    ts::guarded("smShadeMode", [&] { ts::forward(TSM_SHADE_MODE, static_cast<WPARAM>(mode), 0); });
}

void smDrawMode(int mode) {
    ts::guarded("smDrawMode", [&] { ts::forward(TSM_DRAW_MODE, static_cast<WPARAM>(mode), 0); });
}

void smProjectionMode(int mode, double angle, double clipnear, double clipfar) {
    ts::guarded("smProjectionMode", [&] {
        const double values[3] = {angle, clipnear, clipfar};
        ts::forward(TSM_PROJECTION_MODE, static_cast<WPARAM>(mode), static_cast<LPARAM>(addressOf(values)));
    });
}

int smActionMode(int mode) {
    return ts::guarded("smActionMode", [&] {
        return static_cast<int>(ts::forward(TSM_ACTION_MODE, static_cast<WPARAM>(mode), 0));
    });
}

void smResetPos(void) {
    ts::guarded("smResetPos", [] { ts::forward(TSM_RESET_POS, 0, 0); });
}

void smStopMotion(void) {
    ts::guarded("smStopMotion", [] { ts::forward(TSM_STOP_MOTION, 0, 0); });
}

void smTranslation(float x, float y, float z) {
    ts::guarded("smTranslation", [&] {
        const float xyz[3] = {x, y, z};
        ts::forward(TSM_TRANSLATION, addressOf(xyz), 0);
    });
}

void smRotation(float angle, float x, float y, float z) {
    ts::guarded("smRotation", [&] {
        const float axis[3] = {x, y, z};
        if (THREAD_ACTIVE == 0) {
            ts::rotateScene(CURRENT_SCENE, angle, axis);
            return;
        }
        const int32_t hundredths = static_cast<int32_t>(angle * 100.0);
        SendMessageA(hDummy, TSM_ROTATION, static_cast<WPARAM>(static_cast<uint32_t>(hundredths)),
                     static_cast<LPARAM>(addressOf(axis)));
    });
}

void smLookAt(float eyeX, float eyeY, float eyeZ, float dirX, float dirY, float dirZ, float upX, float upY,
              float upZ) {
    const float values[9] = {eyeX, eyeY, eyeZ, dirX, dirY, dirZ, upX, upY, upZ};
    ts::forward(TSM_LOOK_AT, addressOf(values), 0);
}

}  // extern "C"
