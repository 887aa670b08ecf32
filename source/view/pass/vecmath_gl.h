// Rotation conversions that build their matrices with OpenGL in the current context:
// angle and axis to a matrix and to look vectors, and look vectors back to angle and
// axis. Each needs a current rendering context and leaves its matrices as it found them.
#pragma once

namespace ts {

// m := the column-major matrix that glRotatef(angle, axis) makes of an identity
// model-view matrix (angle in degrees).
void rotationMatrix(float angle, const float* axis, float* m);

// Look vectors of a camera turned by angle about axis: with M the rotation by -angle,
// dir = M (0, 0, -1), up = M (0, 1, 0), right = M (1, 0, 0); pos is rotated by M in place.
void angleAxisToLook(float angle, const float* axis, float* pos, float* dir, float* up,
                     float* right);

// Angle (degrees) and axis of the camera at pos looking along dir with up: the rotation
// part of gluLookAt(pos, pos + dir, up). pos is rotated by that rotation in place.
void lookToAngleAxis(const float* dir, const float* up, float* pos, float* angle, float* axis);

}  // namespace ts
