// Camera maths on the scene's own fields, in single precision as the camera has always
// computed them.
#include "view/scene/camera.h"

#include <algorithm>
#include <cmath>
#include <cstdint>

#include "view/scene/cscene.h"

namespace ts {
namespace {

constexpr double kRadiansPerDegree = 0.01745329251994;

}  // namespace

void trackballVector(const cScene& scene, int x, int y, float v[3]) {
    const float width = static_cast<float>(scene.clientRect.right);
    const float height = static_cast<float>(std::max<int32_t>(scene.clientRect.bottom, 1));
    const float h = static_cast<float>(std::tan(scene.angle * 0.5 * kRadiansPerDegree) * (scene.pos[2] * 2.0));
    const float w = width / height * h;
    const float cy = height * (h * 0.5f + scene.pos[1]) / h;
    const float cx = width * (w * 0.5f - scene.pos[0]) / w;
    v[0] = (x - cx) * 2.0f / width;
    v[1] = (cy - y) * 2.0f / height;
    const float d = std::sqrt(v[0] * v[0] + v[1] * v[1]);
    v[2] = std::cos(std::min(d, 1.0f) * 1.5707963f);
    const float length = std::sqrt(v[0] * v[0] + v[1] * v[1] + v[2] * v[2]);
    if (length > 0.0f) {
        for (int i = 0; i < 3; ++i) v[i] /= length;
    }
}

void turnTrackball(cScene& scene, int x, int y) {
    float v[3];
    trackballVector(scene, x, y, v);
    const float* b = scene.lastBall;
    const float dx = b[0] - v[0], dy = b[1] - v[1], dz = b[2] - v[2];
    scene.rotAngle = std::sqrt(dx * dx + dy * dy + dz * dz) * 90.0f * scene.sensib_rotate;
    scene.rotAxis[0] = b[1] * v[2] - b[2] * v[1];
    scene.rotAxis[1] = b[2] * v[0] - b[0] * v[2];
    scene.rotAxis[2] = b[0] * v[1] - b[1] * v[0];
    std::copy(v, v + 3, scene.lastBall);
    scene.pending[0] = scene.pending[1] = scene.pending[2] = 0.0f;
}

double orthoHalfHeight(const cScene& scene) {
    return std::tan(kRadiansPerDegree * scene.angle * 0.5) * scene.pos[2];
}

void steerRates(cScene& scene) {
    scene.pitchRate += scene.pending[1];
    if (scene.action_mode == 1) {
        scene.yawRate += (1.0f - scene.yaw_roll_ratio) * scene.pending[0];
        scene.rollRate -= scene.yaw_roll_ratio * scene.pending[0];
    } else {
        scene.yawRate += scene.pending[0];
    }
}

void stopMotion(cScene* s) {
    s->motionRunning = 0;
    s->rotAngle = 0.0f;
    s->pending[0] = s->pending[1] = 0.0f;
    s->pitchRate = s->rollRate = s->yawRate = 0.0f;
    s->speed = 0.0f;
}

}  // namespace ts
