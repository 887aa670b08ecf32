// Vector helpers without OpenGL: normalisation, face normals, matrix to angle and axis,
// and look vectors from a matrix.
#include "math/vecmath.h"

#include <cmath>

#include <gtest/gtest.h>

namespace {

constexpr double kPi = 3.14159265358979323846;

TEST(Normalize, MultipliesByTheFloatReciprocal) {
    float v[3] = {0.37f, 0.11f, 3.71f};
    const float length = std::sqrt(v[0] * v[0] + v[1] * v[1] + v[2] * v[2]);
    const float reciprocal = 1.0f / length;
    const float expected[3] = {0.37f * reciprocal, 0.11f * reciprocal, 3.71f * reciprocal};
    // Dividing by the length would round differently for this vector.
    ASSERT_NE(0.37f / length, expected[0]);
    ts::normalize(v);
    EXPECT_EQ(expected[0], v[0]);
    EXPECT_EQ(expected[1], v[1]);
    EXPECT_EQ(expected[2], v[2]);
}

TEST(Normalize, GivesAUnitVector) {
    float v[3] = {3.0f, 0.0f, -4.0f};
    ts::normalize(v);
    EXPECT_FLOAT_EQ(0.6f, v[0]);
    EXPECT_FLOAT_EQ(0.0f, v[1]);
    EXPECT_FLOAT_EQ(-0.8f, v[2]);
}

TEST(Normalize, ZeroVectorBecomesNonFinite) {
    float v[3] = {0.0f, 0.0f, 0.0f};
    ts::normalize(v);
    EXPECT_FALSE(std::isfinite(v[0]));
    EXPECT_FALSE(std::isfinite(v[1]));
    EXPECT_FALSE(std::isfinite(v[2]));
}

TEST(FaceNormal, CounterClockwiseFacesTheViewer) {
    const float p0[3] = {0, 0, 0}, p1[3] = {1, 0, 0}, p2[3] = {0, 1, 0};
    float n[3];
    ts::faceNormal(p0, p1, p2, n);
    EXPECT_FLOAT_EQ(0.0f, n[0]);
    EXPECT_FLOAT_EQ(0.0f, n[1]);
    EXPECT_FLOAT_EQ(1.0f, n[2]);
    ts::faceNormal(p0, p2, p1, n);
    EXPECT_FLOAT_EQ(-1.0f, n[2]);
}

TEST(FaceNormal, IsTheNormalisedCrossProductOfTheEdges) {
    const float p0[3] = {1, 2, 3}, p1[3] = {-2, 0.5f, 4}, p2[3] = {0.25f, -1, 2};
    const double a[3] = {3, 1.5, -1}, b[3] = {-2.25, 1.5, 2};
    const double c[3] = {a[1] * b[2] - a[2] * b[1], a[2] * b[0] - a[0] * b[2],
                         a[0] * b[1] - a[1] * b[0]};
    const double len = std::sqrt(c[0] * c[0] + c[1] * c[1] + c[2] * c[2]);
    float n[3];
    ts::faceNormal(p0, p1, p2, n);
    for (int k = 0; k < 3; ++k) EXPECT_NEAR(c[k] / len, n[k], 1e-6) << k;
}

TEST(FaceNormal, DegenerateFaceIsNonFinite) {
    const float p[3] = {2, 2, 2};
    float n[3];
    ts::faceNormal(p, p, p, n);
    EXPECT_FALSE(std::isfinite(n[0]));
}

TEST(RotateByMatrix, UsesColumnMajorElements) {
    float m[16] = {};
    for (int k = 0; k < 16; ++k) m[k] = static_cast<float>(k + 1);
    float v[3] = {1, 10, 100};
    ts::rotateByMatrix(m, v, v);
    EXPECT_FLOAT_EQ(1 * 1 + 10 * 5 + 100 * 9, v[0]);
    EXPECT_FLOAT_EQ(1 * 2 + 10 * 6 + 100 * 10, v[1]);
    EXPECT_FLOAT_EQ(1 * 3 + 10 * 7 + 100 * 11, v[2]);
}

struct AngleAxis {
    float angle;
    float axis[3];
};

AngleAxis fromMatrix(const float* m) {
    AngleAxis r{};
    ts::matrixToAngleAxis(m, &r.angle, r.axis);
    return r;
}

// Column-major matrix with the given upper 3 x 3 rows.
void setRows(float* m, const double (&rows)[3][3]) {
    for (int k = 0; k < 16; ++k) m[k] = 0.0f;
    m[15] = 1.0f;
    for (int r = 0; r < 3; ++r)
        for (int c = 0; c < 3; ++c) m[c * 4 + r] = static_cast<float>(rows[r][c]);
}

TEST(MatrixToAngleAxis, IdentityGivesZeroAngleAndNoAxis) {
    float m[16];
    setRows(m, {{1, 0, 0}, {0, 1, 0}, {0, 0, 1}});
    const AngleAxis r = fromMatrix(m);
    EXPECT_EQ(0.0f, r.angle);
    EXPECT_EQ(0.0f, r.axis[0]);
    EXPECT_EQ(0.0f, r.axis[1]);
    EXPECT_EQ(0.0f, r.axis[2]);
}

TEST(MatrixToAngleAxis, QuarterTurnAboutZ) {
    float m[16];
    setRows(m, {{0, -1, 0}, {1, 0, 0}, {0, 0, 1}});
    const AngleAxis r = fromMatrix(m);
    EXPECT_NEAR(90.0f, r.angle, 1e-4);
    EXPECT_NEAR(0.0f, r.axis[0], 1e-6);
    EXPECT_NEAR(0.0f, r.axis[1], 1e-6);
    EXPECT_NEAR(1.0f, r.axis[2], 1e-6);
}

TEST(MatrixToAngleAxis, GeneralRotationRoundTrips) {
    // 50 degrees about (2, -1, 3) / |.|, built by Rodrigues' formula.
    const double len = std::sqrt(14.0), x = 2 / len, y = -1 / len, z = 3 / len;
    const double c = std::cos(50 * kPi / 180), s = std::sin(50 * kPi / 180), t = 1 - c;
    float m[16];
    setRows(m, {{t * x * x + c, t * x * y - s * z, t * x * z + s * y},
                {t * x * y + s * z, t * y * y + c, t * y * z - s * x},
                {t * x * z - s * y, t * y * z + s * x, t * z * z + c}});
    const AngleAxis r = fromMatrix(m);
    EXPECT_NEAR(50.0, r.angle, 1e-3);
    EXPECT_NEAR(x, r.axis[0], 1e-5);
    EXPECT_NEAR(y, r.axis[1], 1e-5);
    EXPECT_NEAR(z, r.axis[2], 1e-5);
}

// A half turn has T = 0 and takes the branches that put 0.5 / S in the dominant
// component: the axis comes out scaled, as the camera has always read it.
TEST(MatrixToAngleAxis, HalfTurnsTakeTheLowTraceBranches) {
    float m[16];
    setRows(m, {{1, 0, 0}, {0, -1, 0}, {0, 0, -1}});
    AngleAxis r = fromMatrix(m);
    EXPECT_FLOAT_EQ(180.0f, r.angle);
    EXPECT_FLOAT_EQ(0.125f, r.axis[0]);
    EXPECT_FLOAT_EQ(0.0f, r.axis[1]);
    EXPECT_FLOAT_EQ(0.0f, r.axis[2]);

    setRows(m, {{-1, 0, 0}, {0, 1, 0}, {0, 0, -1}});
    r = fromMatrix(m);
    EXPECT_FLOAT_EQ(180.0f, r.angle);
    EXPECT_FLOAT_EQ(0.0f, r.axis[0]);
    EXPECT_FLOAT_EQ(0.125f, r.axis[1]);
    EXPECT_FLOAT_EQ(0.0f, r.axis[2]);

    setRows(m, {{-1, 0, 0}, {0, -1, 0}, {0, 0, 1}});
    r = fromMatrix(m);
    EXPECT_FLOAT_EQ(180.0f, r.angle);
    EXPECT_FLOAT_EQ(0.0f, r.axis[0]);
    EXPECT_FLOAT_EQ(0.0f, r.axis[1]);
    EXPECT_FLOAT_EQ(0.125f, r.axis[2]);
}

// The low-trace formulas on matrices with distinct off-diagonal elements, worked out
// by hand in double precision: (x, y, z, w) and then angle and axis.
void expectLowTrace(const float* m, double qx, double qy, double qz, double qw) {
    const AngleAxis r = fromMatrix(m);
    const double h = std::sqrt(1 - qw * qw);
    EXPECT_NEAR(std::acos(qw) * 2 * 57.295779513093144, r.angle, 1e-3);
    EXPECT_NEAR(qx / h, r.axis[0], 1e-5);
    EXPECT_NEAR(qy / h, r.axis[1], 1e-5);
    EXPECT_NEAR(qz / h, r.axis[2], 1e-5);
}

TEST(MatrixToAngleAxis, LowTraceBranchOfM0) {
    float m[16];
    setRows(m, {{-0.2, 0.3, 0.15}, {0.1, -0.4, 0.35}, {0.05, 0.25, -0.6}});
    const double s = 2 * std::sqrt(1 - 0.2 + 0.4 + 0.6);
    expectLowTrace(m, 0.5 / s, (0.3 + 0.1) / s, (0.15 + 0.05) / s, (0.35 + 0.25) / s);
}

TEST(MatrixToAngleAxis, LowTraceBranchOfM5) {
    float m[16];
    setRows(m, {{-0.5, 0.3, 0.15}, {0.1, -0.2, 0.35}, {0.05, 0.25, -0.6}});
    const double s = 2 * std::sqrt(1 - 0.2 + 0.5 + 0.6);
    expectLowTrace(m, (0.3 + 0.1) / s, 0.5 / s, (0.35 + 0.25) / s, (0.15 + 0.05) / s);
}

TEST(MatrixToAngleAxis, LowTraceBranchOfM10) {
    float m[16];
    setRows(m, {{-0.5, 0.3, 0.15}, {0.1, -0.6, 0.35}, {0.05, 0.25, -0.2}});
    const double s = 2 * std::sqrt(1 - 0.2 + 0.5 + 0.6);
    expectLowTrace(m, (0.15 + 0.05) / s, (0.35 + 0.25) / s, 0.5 / s, (0.3 + 0.1) / s);
}

TEST(MatrixToAngleAxis, TiesFavourTheEarlierBranch) {
    // 180 degrees about (1, 1, 0) / sqrt 2: m0 equals m5, so the m0 branch is taken.
    float m[16];
    setRows(m, {{0, 1, 0}, {1, 0, 0}, {0, 0, -1}});
    const double s = 2 * std::sqrt(2.0);
    expectLowTrace(m, 0.5 / s, 2 / s, 0, 0);
}

TEST(LookVectorsFromMatrix, QuarterTurnAboutY) {
    float m[16];
    // Rotation by +90 degrees about y: x goes to -z, z goes to x.
    setRows(m, {{0, 0, 1}, {0, 1, 0}, {-1, 0, 0}});
    float dir[3], up[3], right[3], pos[3] = {1, 2, 3};
    ts::lookVectorsFromMatrix(m, dir, up, right, pos);
    const float eDir[3] = {-1, 0, 0}, eUp[3] = {0, 1, 0}, eRight[3] = {0, 0, -1},
                ePos[3] = {3, 2, -1};
    for (int k = 0; k < 3; ++k) {
        EXPECT_FLOAT_EQ(eDir[k], dir[k]) << k;
        EXPECT_FLOAT_EQ(eUp[k], up[k]) << k;
        EXPECT_FLOAT_EQ(eRight[k], right[k]) << k;
        EXPECT_FLOAT_EQ(ePos[k], pos[k]) << k;
    }
}

}  // namespace
