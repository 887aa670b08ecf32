// Shared pieces of the scene-view tests: a hosted scene, test nodes drawn with the
// pass's own state, and matrix comparison.
#pragma once

#include <windows.h>
#include <GL/gl.h>

#include <gtest/gtest.h>

#include "support/host_window.h"
#include "tsobj3d/cnode.h"

class cScene;

namespace vt {

// A square facing +z (counter-clockwise seen from the viewer, normal +z) at centre
// (x, y, z) with half side `half`, in colour r, g, b. It changes no GL switch, so
// lighting, culling and shading are the pass's.
class QuadNode : public cNode {
public:
    QuadNode(float r, float g, float b, float half = 1.0f, float x = 0.0f, float y = 0.0f, float z = 0.0f);
    void draw(ts::DrawContext& context) override;
    void hook() override {}

private:
    float r_, g_, b_, half_, x_, y_, z_;
};

// A 2D node that fills the window rectangle (0, 0)-(20, 20) of dc with a colour.
class Fill2DNode : public cNode {
public:
    Fill2DNode(HDC dc, COLORREF color);
    void draw(ts::DrawContext& context) override;
    void hook() override {}

private:
    HDC dc_;
    COLORREF color_;
};

// A hosted scene, which seOnCreate made the current one.
class ViewTest : public ::testing::Test {
protected:
    cScene* scene() const { return host.scene; }
    // Runs a pass through WM_PAINT and reads a window pixel.
    tst::Rgb paint(int x, int y) { return host.paintAndRead(x, y); }
    tst::Rgb pixel(int x, int y) const { return host.pixel(x, y); }
    // Adds a quad with smAddNode.
    cNode* addQuad(float r, float g, float b, float half = 1.0f, float x = 0.0f, float y = 0.0f);
    tst::HostWindow host{"View test", 160, 120};
};

// Expects two column-major 4x4 matrices to agree within tolerance.
void expectMatrixNear(const float* actual, const float* expected, float tolerance = 1e-4f);
// The matrix glRotatef(angle, x, y, z) makes of the identity, in the current context.
void rotation(float angle, float x, float y, float z, float* m);

}  // namespace vt
