// The drawing window of the node tests.
#include "math/gl_canvas.h"

#include <cmath>

#include "support/gl_window.h"

namespace tst {

GlCanvas::GlCanvas(int size) : size_(size), window_(new GlWindow(size, size)) { reset(); }

GlCanvas::~GlCanvas() = default;

void GlCanvas::reset() {
    glViewport(0, 0, size_, size_);
    glDrawBuffer(GL_BACK);
    glReadBuffer(GL_BACK);
    glClearColor(0, 0, 0, 1);
    glClearDepth(1.0);
    glClear(GL_COLOR_BUFFER_BIT | GL_DEPTH_BUFFER_BIT);
    glMatrixMode(GL_PROJECTION);
    glLoadIdentity();
    glOrtho(-1, 1, -1, 1, -10, 10);
    glMatrixMode(GL_MODELVIEW);
    glLoadIdentity();
    glDisable(GL_LIGHTING);
    glDisable(GL_DEPTH_TEST);
    glDisable(GL_CULL_FACE);
    glDisable(GL_COLOR_MATERIAL);
    glShadeModel(GL_SMOOTH);
    glPolygonMode(GL_FRONT_AND_BACK, GL_FILL);
    glColor3f(1, 1, 1);
    while (glGetError() != GL_NO_ERROR) {
    }
}

Pixel GlCanvas::at(float x, float y) {
    glFinish();
    const int px = static_cast<int>(std::floor((x + 1.0f) * 0.5f * size_));
    const int py = static_cast<int>(std::floor((y + 1.0f) * 0.5f * size_));
    unsigned char rgb[4] = {};
    glPixelStorei(GL_PACK_ALIGNMENT, 1);
    glReadPixels(px, py, 1, 1, GL_RGB, GL_UNSIGNED_BYTE, rgb);
    return {rgb[0], rgb[1], rgb[2]};
}

std::unique_ptr<unsigned char[]> GlCanvas::readAll() {
    glFinish();
    std::unique_ptr<unsigned char[]> pixels(new unsigned char[3 * size_ * size_]);
    glPixelStorei(GL_PACK_ALIGNMENT, 1);
    glReadPixels(0, 0, size_, size_, GL_RGB, GL_UNSIGNED_BYTE, pixels.get());
    return pixels;
}

}  // namespace tst
