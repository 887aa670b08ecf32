// Camera maths of a scene that needs neither windows.h nor OpenGL: the virtual
// trackball, the rates of the look modes, the orthogonal extent, stopping motion.
// The conversions built on the GL matrix stack live in view/pass/vecmath_gl.h.
#pragma once

class cScene;

namespace ts {

// The unit vector on the virtual trackball under window point x, y (the sphere fills
// the view of the scene's eye height and angle, centred under the eye).
void trackballVector(const cScene& scene, int x, int y, float v[3]);
// A drag of the trackball to x, y: rotAngle and rotAxis turn lastBall into the new
// vector (scaled by sensib_rotate), which becomes lastBall; pending deltas go to 0.
void turnTrackball(cScene& scene, int x, int y);

// Half the height of the orthogonal view: tan(angle / 2) times the eye's distance, so
// that moving the eye along z zooms the orthogonal view.
double orthoHalfHeight(const cScene& scene);

// TS_FLY and TS_WALK: the pending mouse deltas steer the rates, which persist from pass
// to pass (in TS_FLY yaw_roll_ratio shares horizontal motion between yaw and roll).
void steerRates(cScene& scene);

// Stops continuous motion: rates, speed, pending deltas and rotAngle to 0.
void stopMotion(cScene* scene);

}  // namespace ts
