// Frames per second of the rendering pass on a scene of 10,000 snTriangle nodes, walked
// and from the display list, beside a bare Win32 + OpenGL program that issues the same
// calls, measured in the same run, rounds alternating.
#include <windows.h>
#include <GL/gl.h>
#include <GL/glu.h>

#include <algorithm>
#include <chrono>
#include <cmath>
#include <cstdio>
#include <ctime>
#include <vector>

#include "common/bare_pass.h"
#include "tessarin.h"

namespace {

using Clock = std::chrono::steady_clock;
constexpr int kSide = 100;  // kSide x kSide triangles
constexpr int kWidth = 320;
constexpr int kHeight = 240;
constexpr int kFrames = 250;
constexpr int kRounds = 5;

struct Triangle {
    float p[3][3];
};

// A grid of small triangles facing the viewer, inside the default view.
std::vector<Triangle> makeTriangles() {
    std::vector<Triangle> triangles;
    const float cell = 3.0f / kSide;
    for (int row = 0; row < kSide; ++row) {
        for (int col = 0; col < kSide; ++col) {
            const float x = -1.5f + col * cell;
            const float y = -1.5f + row * cell;
            triangles.push_back({{{x, y, 0.0f}, {x + cell, y, 0.0f}, {x, y + cell, 0.0f}}});
        }
    }
    return triangles;
}

// --- the library: a scene hosted in an application window (no scene thread) ----------

struct LibraryScene {
    HWND hwnd = bench::createWindow("BenchLibrary", bench::hostProc, 20, kWidth, kHeight);
    cScene* scene = bench::hostedScene();
    explicit LibraryScene(const std::vector<Triangle>& triangles) {
        for (const Triangle& t : triangles) {
            snTriangle(nullptr, t.p[0][0], t.p[0][1], t.p[0][2], t.p[1][0], t.p[1][1], t.p[1][2], t.p[2][0],
                       t.p[2][1], t.p[2][2]);
        }
    }
    ~LibraryScene() { DestroyWindow(hwnd); }
};

// --- the bare program: the same GL and GDI calls as one pass, without the library -----

struct BareScene {
    bench::BareGl gl{bench::createWindow("BenchBare", DefWindowProcA, 40 + kWidth, kWidth, kHeight)};
    GLuint list = 0;
    bool useList = false;
    const std::vector<Triangle>& triangles;

    explicit BareScene(const std::vector<Triangle>& t) : triangles(t) {
        list = glGenLists(1);
        glNewList(list, GL_COMPILE);
        drawTriangles();
        glEndList();
    }

    void drawTriangles() const {
        for (const Triangle& t : triangles) {
            glEnable(GL_CULL_FACE);
            const float a[3] = {t.p[0][0] - t.p[1][0], t.p[0][1] - t.p[1][1], t.p[0][2] - t.p[1][2]};
            const float b[3] = {t.p[1][0] - t.p[2][0], t.p[1][1] - t.p[2][1], t.p[1][2] - t.p[2][2]};
            float n[3] = {a[1] * b[2] - a[2] * b[1], a[2] * b[0] - a[0] * b[2], a[0] * b[1] - a[1] * b[0]};
            const float r = 1.0f / std::sqrt(n[0] * n[0] + n[1] * n[1] + n[2] * n[2]);
            n[0] *= r, n[1] *= r, n[2] *= r;
            glBegin(GL_TRIANGLES);
            glNormal3fv(n);
            glVertex3fv(t.p[0]);
            glVertex3fv(t.p[1]);
            glVertex3fv(t.p[2]);
            glEnd();
        }
    }

    void frame() {
        gl.begin();
        const clock_t t0 = clock();
        if (useList) {
            glCallList(list);
        } else {
            drawTriangles();
        }
        volatile clock_t frameTime = clock() - t0;
        (void)frameTime;
        gl.end();
        ValidateRect(gl.hwnd, nullptr);
    }
};

template <class Frame>
double framesPerSecond(Frame&& frame) {
    frame();  // warm-up
    const auto start = Clock::now();
    for (int i = 0; i < kFrames; ++i) frame();
    const double seconds = std::chrono::duration<double>(Clock::now() - start).count();
    return kFrames / seconds;
}

struct Row {
    const char* name;
    double library = 0.0;
    double bare = 0.0;
};

void measure(Row& row, LibraryScene& lib, BareScene& bare) {
    for (int round = 0; round < kRounds; ++round) {
        row.library = std::max(row.library, framesPerSecond([&] { smRefreshScene(lib.scene); }));
        row.bare = std::max(row.bare, framesPerSecond([&] { bare.frame(); }));
    }
}

}  // namespace

int main() {
    const std::vector<Triangle> triangles = makeTriangles();
    LibraryScene lib(triangles);
    BareScene bare(triangles);
    Row rows[] = {{"10,000 snTriangle, list walked"}, {"10,000 snTriangle, smUseDisplayList"}};
    measure(rows[0], lib, bare);
    smUseDisplayList();
    bare.useList = true;
    measure(rows[1], lib, bare);
    std::printf("%-38s %14s %14s %8s\n", "scene (320 x 240, best of 5 x 250 frames)", "library fps", "bare fps",
                "ratio");
    for (const Row& row : rows) {
        std::printf("%-38s %14.1f %14.1f %8.3f\n", row.name, row.library, row.bare, row.library / row.bare);
    }
    return 0;
}
