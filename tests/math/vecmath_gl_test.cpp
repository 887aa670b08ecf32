// The rotation conversions that build their matrices with OpenGL: angle and axis to a
// matrix and to look vectors, and look vectors back to angle and axis.
#include "view/pass/vecmath_gl.h"

#include <GL/gl.h>

#include <cmath>

#include <gtest/gtest.h>

#include "math/gl_canvas.h"

namespace {

constexpr double kPi = 3.14159265358979323846;

class VecMathGl : public tst::CanvasTest {
protected:
};

TEST_F(VecMathGl, RotationMatrixIsWhatGlRotateMakes) {
    const float axis[3] = {0, 0, 2};
    float m[16];
    ts::rotationMatrix(90, axis, m);
    const float expected[16] = {0, 1, 0, 0, -1, 0, 0, 0, 0, 0, 1, 0, 0, 0, 0, 1};
    for (int k = 0; k < 16; ++k) EXPECT_NEAR(expected[k], m[k], 1e-6) << k;
}

TEST_F(VecMathGl, RotationMatrixLeavesTheMatricesAlone) {
    glMatrixMode(GL_MODELVIEW);
    glTranslatef(1, 2, 3);
    glMatrixMode(GL_PROJECTION);
    const float axis[3] = {1, 0, 0};
    float m[16];
    ts::rotationMatrix(30, axis, m);
    GLint mode = 0;
    glGetIntegerv(GL_MATRIX_MODE, &mode);
    EXPECT_EQ(GL_PROJECTION, mode);
    float mv[16];
    glGetFloatv(GL_MODELVIEW_MATRIX, mv);
    EXPECT_FLOAT_EQ(1, mv[12]);
    EXPECT_FLOAT_EQ(3, mv[14]);
    EXPECT_NEAR(std::cos(30 * kPi / 180), m[5], 1e-6);
    EXPECT_EQ(static_cast<GLenum>(GL_NO_ERROR), glGetError());
}

TEST_F(VecMathGl, AngleAxisToLookRotatesByTheNegativeAngle) {
    const float axis[3] = {0, 1, 0};
    float pos[3] = {1, 2, 3}, dir[3], up[3], right[3];
    ts::angleAxisToLook(90, axis, pos, dir, up, right);
    const float eDir[3] = {1, 0, 0}, eUp[3] = {0, 1, 0}, eRight[3] = {0, 0, 1},
                ePos[3] = {-3, 2, 1};
    for (int k = 0; k < 3; ++k) {
        EXPECT_NEAR(eDir[k], dir[k], 1e-6) << k;
        EXPECT_NEAR(eUp[k], up[k], 1e-6) << k;
        EXPECT_NEAR(eRight[k], right[k], 1e-6) << k;
        EXPECT_NEAR(ePos[k], pos[k], 1e-5) << k;
    }
}

TEST_F(VecMathGl, LookVectorsRoundTrip) {
    const double len = std::sqrt(6.0);
    const float axis[3] = {static_cast<float>(1 / len), static_cast<float>(2 / len),
                           static_cast<float>(-1 / len)};
    float pos[3] = {0.5f, -1, 4}, dir[3], up[3], right[3];
    ts::angleAxisToLook(50, axis, pos, dir, up, right);
    float angle = 0, back[3];
    ts::lookToAngleAxis(dir, up, pos, &angle, back);
    EXPECT_NEAR(50.0f, angle, 1e-3);
    for (int k = 0; k < 3; ++k) EXPECT_NEAR(axis[k], back[k], 1e-4) << k;
    EXPECT_NEAR(0.5f, pos[0], 1e-4);
    EXPECT_NEAR(-1.0f, pos[1], 1e-4);
    EXPECT_NEAR(4.0f, pos[2], 1e-4);
}

TEST_F(VecMathGl, StraightAheadIsNoRotation) {
    const float dir[3] = {0, 0, -1}, up[3] = {0, 1, 0};
    float pos[3] = {1, 2, 3}, angle = 1, axis[3] = {1, 1, 1};
    ts::lookToAngleAxis(dir, up, pos, &angle, axis);
    EXPECT_EQ(0.0f, angle);
    EXPECT_EQ(0.0f, axis[0]);
    EXPECT_EQ(0.0f, axis[1]);
    EXPECT_EQ(0.0f, axis[2]);
    EXPECT_FLOAT_EQ(1.0f, pos[0]);
    EXPECT_FLOAT_EQ(3.0f, pos[2]);
}

}  // namespace
