// A square OpenGL window for drawing single nodes: an orthographic view of the
// square [-1, 1] x [-1, 1] (z from -10 to 10), cleared to black, and read-back of the
// pixels just drawn.
#pragma once

#include <windows.h>
#include <GL/gl.h>

#include <memory>

#include <gtest/gtest.h>

#include "view/pass/scene_draw_context.h"
#include "view/scene/cscene.h"

namespace tst {

class GlWindow;

struct Pixel {
    int r, g, b;
    bool black() const { return r < 16 && g < 16 && b < 16; }
    bool lit() const { return r > 96 || g > 96 || b > 96; }
};

class GlCanvas {
public:
    explicit GlCanvas(int size = 64);
    ~GlCanvas();
    GlCanvas(const GlCanvas&) = delete;
    GlCanvas& operator=(const GlCanvas&) = delete;

    // Clears colour and depth to black and far, resets every matrix to the view above,
    // and switches off lighting, depth test and culling.
    void reset();
    // The pixel under the scene point (x, y) of the last drawing, read back from the
    // buffer drawn into.
    Pixel at(float x, float y);
    int size() const { return size_; }
    // The whole picture, bottom-up rows of r, g, b bytes.
    std::unique_ptr<unsigned char[]> readAll();

private:
    int size_;
    std::unique_ptr<GlWindow> window_;
};

// A fixture whose tests share one canvas per suite (a GL context is slow to make under
// wine), reset before each test.
class CanvasTest : public ::testing::Test {
protected:
    static void SetUpTestSuite() { shared().reset(new GlCanvas(64)); }
    static void TearDownTestSuite() { shared().reset(); }
    void SetUp() override { canvas.reset(); }

    static std::unique_ptr<GlCanvas>& shared() {
        static std::unique_ptr<GlCanvas> canvas;
        return canvas;
    }
    GlCanvas& canvas = *shared();
    cScene drawnScene;  // the scene the nodes are drawn into: default modes, no picking
    ts::SceneDrawContext context{drawnScene};
};

}  // namespace tst
