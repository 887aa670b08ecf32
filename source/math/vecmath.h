// Vector helpers shared by the nodes and the camera: normalisation, face normals,
// rotation by a column-major matrix and the conversions between a rotation matrix,
// an angle with an axis, and the look vectors dir, up and right.
#pragma once

namespace ts {

// Degrees per radian, as the camera code has always used it.
constexpr double kDegreesPerRadian = 57.295779513093144;

// v := v / |v| for a 3-vector, in place. The reciprocal is formed once, as a float,
// and multiplied into each component. A zero vector gives non-finite components.
void normalize(float* v);

// Unit normal of the face p0, p1, p2 (three floats each): (p0 - p1) x (p1 - p2),
// normalised as above. Counter-clockwise points seen from the viewer give a normal
// towards the viewer; a degenerate face gives a non-finite normal.
void faceNormal(const float* p0, const float* p1, const float* p2, float* n);

// out := v rotated by the column-major matrix m (its upper 3 x 3 part):
// out[k] = v[0] m[k] + v[1] m[4 + k] + v[2] m[8 + k]. out may be v.
void rotateByMatrix(const float* m, const float* v, float* out);

// Angle (degrees) and axis of the rotation held in the column-major matrix m. The
// identity gives angle 0 and the axis (0, 0, 0); so does any angle whose axis part is
// too short to divide by.
void matrixToAngleAxis(const float* m, float* angle, float* axis);

// The look vectors of a camera turned by m: dir = m (0, 0, -1), up = m (0, 1, 0),
// right = m (1, 0, 0); pos is rotated by m in place.
void lookVectorsFromMatrix(const float* m, float* dir, float* up, float* right, float* pos);

}  // namespace ts
