// The elevation grid through the DLL, in a real window: the unit square of a 2 by 2
// grid, heights, colours per cell against per point, and grids that draw nothing.
#include <windows.h>

#include <vector>

#include "mesh_scene.h"
#include "support/msgbox_capture.h"

namespace {

class GridPixels : public mt::MeshScene {
protected:
    // The grid's x-z plane turned to face the viewer: (x, y, z) shows at (x, -z, y).
    void faceTheViewer() { snRotate(nullptr, 90.0f, 1.0f, 0.0f, 0.0f, 0.0f); }
};

TEST_F(GridPixels, TwoByTwoCoversTheUnitSquare) {
    unlit();
    faceTheViewer();
    snColorRGB(nullptr, 1.0f, 1.0f, 0.0f);
    const float flat[4] = {0, 0, 0, 0};
    ASSERT_NE(snElevationGrid(nullptr, 2, 2, 1.0f, 1.0f, flat, 0, TRUE, FALSE, nullptr, FALSE, nullptr), nullptr);
    paint();
    const tst::Rgb yellow{255, 255, 0};
    EXPECT_EQ(at(0.25f, -0.25f), yellow);  // first triangle (0,0) (0,1) (1,0)
    EXPECT_EQ(at(0.75f, -0.75f), yellow);  // second triangle (0,1) (1,1) (1,0)
    EXPECT_EQ(at(0.05f, -0.95f), yellow);
    EXPECT_EQ(at(0.95f, -0.05f), yellow);
    for (const auto& p : {std::pair<float, float>{-0.1f, -0.5f}, {1.1f, -0.5f}, {0.5f, 0.1f}, {0.5f, -1.1f}}) {
        EXPECT_TRUE(background(p.first, p.second)) << p.first << ", " << p.second;
    }
}

// Seen from the side, a flat grid is edge-on and shows nothing; rows at height 0 and 1
// make a slope that covers the square x 0..1, y 0..1 between z = 0 and z = 1.
TEST_F(GridPixels, HeightsRaiseTheRowsAlongZ) {
    unlit();
    snColorRGB(nullptr, 1.0f, 1.0f, 0.0f);
    const float flat[4] = {0, 0, 0, 0};
    cNode* grid = snElevationGrid(nullptr, 2, 2, 1.0f, 1.0f, flat, 0, FALSE, FALSE, nullptr, FALSE, nullptr);
    paint();
    EXPECT_TRUE(background(0.5f, 0.5f, 0.5f));
    const float slope[4] = {0, 0, 1, 1};
    snElevationGrid(grid, 2, 2, 1.0f, 1.0f, slope, 0, FALSE, FALSE, nullptr, FALSE, nullptr);
    paint();
    EXPECT_EQ(at(0.5f, 0.5f, 0.5f), (tst::Rgb{255, 255, 0}));
    EXPECT_EQ(at(0.1f, 0.9f, 0.9f), (tst::Rgb{255, 255, 0}));
    EXPECT_TRUE(background(0.5f, 1.1f, 1.0f));
    EXPECT_TRUE(background(1.1f, 0.5f, 0.5f));
}

// A 3 by 3 grid of spacing 0.6, centred: cell (i, j) spans x -0.6 + 0.6 i .. + 0.6 and
// y 0.6 - 0.6 j .. - 0.6.
class ThreeByThree : public GridPixels {
protected:
    void SetUp() override {
        unlit();
        snTranslate(nullptr, -0.6f, 0.6f, 0.0f);
        faceTheViewer();
    }
    cNode* grid(BOOL perPoint, const float* colors) {
        const float flat[9] = {};
        return snElevationGrid(nullptr, 3, 3, 0.6f, 0.6f, flat, 0, TRUE, perPoint, colors, FALSE, nullptr);
    }
    tst::Rgb cell(float i, float j) const { return at(-0.6f + 0.6f * i, 0.6f - 0.6f * j); }
};

TEST_F(ThreeByThree, PerCellColoursTakeFourTriplesAndFillEachCell) {
    const std::vector<float> four = {1, 0, 0, 0, 1, 0, 0, 0, 1, 1, 1, 1};
    grid(FALSE, mt::floatsBeforeGuardPage(four));  // a fifth triple would fault
    paint();
    EXPECT_EQ(cell(0.5f, 0.5f), (tst::Rgb{255, 0, 0}));
    EXPECT_EQ(cell(1.5f, 0.5f), (tst::Rgb{0, 255, 0}));
    EXPECT_EQ(cell(0.5f, 1.5f), (tst::Rgb{0, 0, 255}));
    EXPECT_EQ(cell(1.5f, 1.5f), (tst::Rgb{255, 255, 255}));
    EXPECT_EQ(cell(0.2f, 0.8f), (tst::Rgb{255, 0, 0}));  // both triangles of a cell
    EXPECT_EQ(cell(0.8f, 0.2f), (tst::Rgb{255, 0, 0}));
}

// Per-point colours red = i / 2, green = j / 2 are interpolated across the cells.
TEST_F(ThreeByThree, PerPointColoursTakeNineTriplesAndBlendAcrossTheCells) {
    std::vector<float> nine;
    for (int j = 0; j < 3; ++j)
        for (int i = 0; i < 3; ++i) nine.insert(nine.end(), {i / 2.0f, j / 2.0f, 0.0f});
    grid(TRUE, mt::floatsBeforeGuardPage(nine));
    paint();
    for (float j : {0.5f, 1.5f}) {
        for (float i : {0.5f, 1.5f}) {
            const tst::Rgb c = cell(i, j);
            EXPECT_NEAR(c.r, i / 2 * 255, 8) << i << ", " << j;
            EXPECT_NEAR(c.g, j / 2 * 255, 8) << i << ", " << j;
            EXPECT_EQ(c.b, 0);
        }
    }
    EXPECT_NEAR(cell(1.9f, 1.9f).r, 242, 8);
}

// The dimensions are not tested one by one: 1 by 4 passes without a box and has no
// cells to draw.
TEST_F(GridPixels, OneByFourPassesAndDrawsNothing) {
    unlit();
    faceTheViewer();
    snColorRGB(nullptr, 1.0f, 1.0f, 0.0f);
    tst::MessageBoxCapture capture;
    const float heights[4] = {0, 0, 0, 0};
    EXPECT_NE(snElevationGrid(nullptr, 1, 4, 1.0f, 1.0f, heights, 0, FALSE, FALSE, nullptr, FALSE, nullptr), nullptr);
    paint();
    EXPECT_EQ(capture.count(), 0u);
    for (float y : {-0.5f, -1.0f, -1.5f}) EXPECT_TRUE(background(0.02f, y));
}

// The grid does not save the current colour: its last colour stays in force.
TEST_F(GridPixels, TheGridsLastColourStaysInForce) {
    unlit();
    faceTheViewer();
    snColorRGB(nullptr, 1.0f, 0.0f, 0.0f);
    const float flat[4] = {0, 0, 0, 0};
    const float blue[3] = {0, 0, 1};
    snElevationGrid(nullptr, 2, 2, 1.0f, 1.0f, flat, 0, TRUE, FALSE, blue, FALSE, nullptr);
    snTranslate(nullptr, -1.5f, 0.0f, 0.0f);
    snElevationGrid(nullptr, 2, 2, 1.0f, 1.0f, flat, 0, TRUE, FALSE, nullptr, FALSE, nullptr);
    paint();
    EXPECT_EQ(at(0.5f, -0.5f), (tst::Rgb{0, 0, 255}));
    EXPECT_EQ(at(-1.0f, -0.5f), (tst::Rgb{0, 0, 255}));
}

}  // namespace
