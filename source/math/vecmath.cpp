// Vector helpers: normalisation, face normals and the rotation conversions that need
// no OpenGL. All arithmetic is single-precision, as the camera code has always done it.
#include "math/vecmath.h"

#include <cmath>

namespace ts {

void normalize(float* v) {
    const float length = std::sqrt(v[0] * v[0] + v[1] * v[1] + v[2] * v[2]);
    const float reciprocal = 1.0f / length;
    v[0] *= reciprocal;
    v[1] *= reciprocal;
    v[2] *= reciprocal;
}

void faceNormal(const float* p0, const float* p1, const float* p2, float* n) {
    const float a[3] = {p0[0] - p1[0], p0[1] - p1[1], p0[2] - p1[2]};
    const float b[3] = {p1[0] - p2[0], p1[1] - p2[1], p1[2] - p2[2]};
    n[0] = a[1] * b[2] - a[2] * b[1];
    n[1] = a[2] * b[0] - a[0] * b[2];
    n[2] = a[0] * b[1] - a[1] * b[0];
    normalize(n);
}

void rotateByMatrix(const float* m, const float* v, float* out) {
    const float x = v[0], y = v[1], z = v[2];
    for (int k = 0; k < 3; ++k) out[k] = x * m[k] + y * m[4 + k] + z * m[8 + k];
}

namespace {

// The quaternion-like (x, y, z, w) of a matrix whose trace term T is not positive.
// The dominant component takes 0.5 / S and w the sum of an off-diagonal pair: that is
// how the camera has always read such matrices, and saved viewpoints depend on it.
void lowTraceComponents(const float* m, float* q) {
    if (m[0] >= m[5] && m[0] >= m[10]) {
        const float s = 2.0f * std::sqrt(1.0f + m[0] - m[5] - m[10]);
        q[0] = 0.5f / s;
        q[1] = (m[4] + m[1]) / s;
        q[2] = (m[8] + m[2]) / s;
        q[3] = (m[9] + m[6]) / s;
    } else if (m[5] >= m[0] && m[5] >= m[10]) {
        const float s = 2.0f * std::sqrt(1.0f + m[5] - m[0] - m[10]);
        q[0] = (m[4] + m[1]) / s;
        q[1] = 0.5f / s;
        q[2] = (m[9] + m[6]) / s;
        q[3] = (m[8] + m[2]) / s;
    } else {
        const float s = 2.0f * std::sqrt(1.0f + m[10] - m[0] - m[5]);
        q[0] = (m[8] + m[2]) / s;
        q[1] = (m[9] + m[6]) / s;
        q[2] = 0.5f / s;
        q[3] = (m[4] + m[1]) / s;
    }
}

}  // namespace

void matrixToAngleAxis(const float* m, float* angle, float* axis) {
    const float t = m[0] + m[5] + m[10] + 1.0f;
    float q[4];
    if (t > 0.0f) {
        const float s = 0.5f / std::sqrt(t);
        q[3] = 0.25f / s;
        q[0] = (m[6] - m[9]) * s;
        q[1] = (m[8] - m[2]) * s;
        q[2] = (m[1] - m[4]) * s;
    } else {
        lowTraceComponents(m, q);
    }
    const float w = q[3];
    *angle = static_cast<float>(std::acos(static_cast<double>(w)) * 2.0 * kDegreesPerRadian);
    const float h = std::sqrt(1.0f - w * w);
    if (std::fabs(h) < 5e-5f) {
        axis[0] = axis[1] = axis[2] = 0.0f;
    } else {
        axis[0] = q[0] / h;
        axis[1] = q[1] / h;
        axis[2] = q[2] / h;
    }
}

void lookVectorsFromMatrix(const float* m, float* dir, float* up, float* right, float* pos) {
    const float forward[3] = {0.0f, 0.0f, -1.0f};
    const float upward[3] = {0.0f, 1.0f, 0.0f};
    const float side[3] = {1.0f, 0.0f, 0.0f};
    rotateByMatrix(m, forward, dir);
    rotateByMatrix(m, upward, up);
    rotateByMatrix(m, side, right);
    rotateByMatrix(m, pos, pos);
}

}  // namespace ts
