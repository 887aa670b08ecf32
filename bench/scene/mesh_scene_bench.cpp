// A 1M-face mesh through the DLL: the time of the snIndexedFaceSet / snElevationGrid
// call, the compile of the node's display list (flat, and smooth with crease-angle
// normals at 30 degrees) with its first frame, and frames per second drawn from the
// list; beside a bare Win32 + OpenGL program that copies the arrays, compiles the same
// faces (smooth: with the plain per-vertex sum of face normals, no crease) and draws
// its list. Same run, rounds alternating library and bare; median and spread.
#include <windows.h>
#include <GL/gl.h>
#include <GL/glu.h>

#include <algorithm>
#include <chrono>
#include <cmath>
#include <cstdio>
#include <functional>
#include <vector>

#include "common/bare_pass.h"
#include "mesh/bench_meshes.h"
#include "tessarin.h"

namespace {

using Clock = std::chrono::steady_clock;
constexpr int kWidth = 320;
constexpr int kHeight = 240;
constexpr int kRounds = 3;
constexpr int kFrames = 5;
constexpr int kSide = 708;  // 708 x 708 cells of two triangles: 1,002,528 faces

double seconds(const std::function<void()>& f) {
    const auto start = Clock::now();
    f();
    return std::chrono::duration<double>(Clock::now() - start).count();
}

// The height field turned to face the viewer and scaled into the view.
void placeTheField(int side) {
    const float s = 3.0f / side;
    snRotate(nullptr, 90.0f, 1.0f, 0.0f, 0.0f, 0.0f);
    snScale(nullptr, s, s, s);
    snTranslate(nullptr, -side / 2.0f, 0.0f, -side / 2.0f);
}

struct Library {
    HWND hwnd = bench::createWindow("MeshBenchLibrary", bench::hostProc, 20, kWidth, kHeight);
    cScene* scene = bench::hostedScene();
    ~Library() { DestroyWindow(hwnd); }
    void frame() const { smRefreshScene(scene); }
};

// --- the bare program: the same faces in a list of its own, without the library ------

struct Bare {
    HWND hwnd = bench::createWindow("MeshBenchBare", DefWindowProcA, 40 + kWidth, kWidth, kHeight);
    HDC dc = GetDC(hwnd);
    HGLRC rc = bench::makeBareContext(dc);
    GLuint list = glGenLists(1);

    ~Bare() {
        wglMakeCurrent(nullptr, nullptr);
        wglDeleteContext(rc);
        ReleaseDC(hwnd, dc);
        DestroyWindow(hwnd);
    }

    static void faceNormal(const float* p0, const float* p1, const float* p2, float* n) {
        const float a[3] = {p0[0] - p1[0], p0[1] - p1[1], p0[2] - p1[2]};
        const float b[3] = {p1[0] - p2[0], p1[1] - p2[1], p1[2] - p2[2]};
        n[0] = a[1] * b[2] - a[2] * b[1];
        n[1] = a[2] * b[0] - a[0] * b[2];
        n[2] = a[0] * b[1] - a[1] * b[0];
        const float length = std::sqrt(n[0] * n[0] + n[1] * n[1] + n[2] * n[2]);
        if (length > 0) n[0] /= length, n[1] /= length, n[2] /= length;
    }

    // Faces of the height field's triangles, as the library's faceted or smooth list.
    void compile(const std::vector<float>& coords, const std::vector<int32_t>& index, bool smooth) {
        wglMakeCurrent(dc, rc);
        std::vector<float> vertexNormals;
        if (smooth) vertexNormals = plainVertexNormals(coords, index);
        glNewList(list, GL_COMPILE);
        glShadeModel(GL_SMOOTH);
        for (size_t k = 0; k + 3 < index.size(); k += 4) {
            const int32_t* f = &index[k];
            float n[3];
            faceNormal(&coords[3 * f[0]], &coords[3 * f[1]], &coords[3 * f[2]], n);
            glBegin(GL_POLYGON);
            if (!smooth) glNormal3fv(n);
            for (int v = 0; v < 3; ++v) {
                if (smooth) glNormal3fv(&vertexNormals[3 * f[v]]);
                glVertex3fv(&coords[3 * f[v]]);
            }
            glEnd();
        }
        glShadeModel(GL_FLAT);
        glEndList();
    }

    // The memory floor of smoothing: every face normal added to its points, normalised.
    static std::vector<float> plainVertexNormals(const std::vector<float>& coords, const std::vector<int32_t>& index) {
        std::vector<float> sums(coords.size(), 0.0f);
        for (size_t k = 0; k + 3 < index.size(); k += 4) {
            float n[3];
            faceNormal(&coords[3 * index[k]], &coords[3 * index[k + 1]], &coords[3 * index[k + 2]], n);
            for (int v = 0; v < 3; ++v)
                for (int c = 0; c < 3; ++c) sums[3 * index[k + v] + c] += n[c];
        }
        for (size_t p = 0; p < sums.size(); p += 3) {
            const float length = std::sqrt(sums[p] * sums[p] + sums[p + 1] * sums[p + 1] + sums[p + 2] * sums[p + 2]);
            if (length > 0) sums[p] /= length, sums[p + 1] /= length, sums[p + 2] /= length;
        }
        return sums;
    }

    // One pass as the library's: clear, light, projection, camera, the list, swap.
    void frame(int side) const {
        static const float kAmbient[4] = {0.2f, 0.2f, 0.2f, 1.0f};
        static const float kLight[4] = {1.0f, 1.0f, 1.0f, 0.0f};
        wglMakeCurrent(dc, rc);
        glClearColor(0, 0, 0, 1);
        glClear(GL_COLOR_BUFFER_BIT | GL_DEPTH_BUFFER_BIT);
        glLightModelfv(GL_LIGHT_MODEL_AMBIENT, kAmbient);
        for (GLenum cap : {GL_DEPTH_TEST, GL_CULL_FACE, GL_LIGHTING, GL_COLOR_MATERIAL, GL_LIGHT0}) glEnable(cap);
        glLightfv(GL_LIGHT0, GL_POSITION, kLight);
        glMatrixMode(GL_PROJECTION);
        glLoadIdentity();
        glViewport(0, 0, kWidth, kHeight);
        gluPerspective(45.0, double(kWidth) / kHeight, 0.01, 1000.0);
        glMatrixMode(GL_MODELVIEW);
        glPushMatrix();
        glTranslatef(0, 0, -5);
        const float s = 3.0f / side;
        glRotatef(90.0f, 1.0f, 0.0f, 0.0f);
        glScalef(s, s, s);
        glTranslatef(-side / 2.0f, 0.0f, -side / 2.0f);
        glCallList(list);
        glPopMatrix();
        SwapBuffers(dc);
    }
};

// --- measuring ------------------------------------------------------------------------

struct Samples {
    std::vector<double> library, bare;
};

double median(std::vector<double> v) {
    std::sort(v.begin(), v.end());
    return v[v.size() / 2];
}

void printRow(const char* name, const Samples& s, bool perSecond) {
    const auto show = [&](const std::vector<double>& v) {
        if (perSecond) return std::printf(" %9.2f fps (%6.2f..%6.2f)", 1.0 / median(v),
                                           1.0 / *std::max_element(v.begin(), v.end()),
                                           1.0 / *std::min_element(v.begin(), v.end()));
        return std::printf(" %9.1f ms  (%6.1f..%6.1f)", 1e3 * median(v), 1e3 * *std::min_element(v.begin(), v.end()),
                           1e3 * *std::max_element(v.begin(), v.end()));
    };
    std::printf("%-44s", name);
    show(s.library);
    show(s.bare);
    std::printf(" %7.2f\n", median(s.library) / median(s.bare));
}

void pump() {
    MSG msg;
    while (PeekMessageA(&msg, nullptr, 0, 0, PM_REMOVE)) DispatchMessageA(&msg);
}

struct Rows {
    Samples call, flat, smooth, frame;
};

// One mesh node (made by make) measured against the bare program, rounds alternating.
template <class Make>
Rows measure(Library& lib, Bare& bare, const meshbench::BenchMesh& mesh, Make make) {
    Rows rows;
    for (int round = 0; round < kRounds; ++round) {
        smClearScene();
        placeTheField(kSide);
        rows.call.library.push_back(seconds(make));
        smShadeMode(TS_SHADE_FLAT);
        rows.flat.library.push_back(seconds([&] { lib.frame(); }));
        smShadeMode(TS_SHADE_SMOOTH);
        rows.smooth.library.push_back(seconds([&] { lib.frame(); }));
        rows.frame.library.push_back(seconds([&] {
                                         for (int f = 0; f < kFrames; ++f) lib.frame();
                                     }) / kFrames);
        pump();
        rows.call.bare.push_back(seconds([&] {
            volatile size_t keep = std::vector<float>(mesh.coords).size() + std::vector<int32_t>(mesh.index).size();
            (void)keep;
        }));
        rows.flat.bare.push_back(seconds([&] {
            bare.compile(mesh.coords, mesh.index, false);
            bare.frame(kSide);
        }));
        rows.smooth.bare.push_back(seconds([&] {
            bare.compile(mesh.coords, mesh.index, true);
            bare.frame(kSide);
        }));
        rows.frame.bare.push_back(seconds([&] {
                                      for (int f = 0; f < kFrames; ++f) bare.frame(kSide);
                                  }) / kFrames);
        pump();
    }
    return rows;
}

void print(const char* what, const Rows& rows) {
    std::printf("%s\n", what);
    printRow("  call: copy and checks (bare: copy)", rows.call, false);
    printRow("  flat: compile + first frame", rows.flat, false);
    printRow("  smooth 30 deg: compile + first frame", rows.smooth, false);
    printRow("  drawn from the list", rows.frame, true);
}

}  // namespace

int main() {
    const meshbench::BenchMesh mesh = meshbench::heightField(kSide);
    Library lib;
    Bare bare;
    smProjectionMode(TS_PERSPECTIVE, 45.0, 0.01, 1000.0);
    float light[3] = {1.0f, 1.0f, 1.0f};
    smLightDirection(0, 1, 1, light);
    std::printf("%d faces, %d points; %dx%d window, llvmpipe; median (min..max) of %d rounds\n", mesh.faces,
                mesh.coordCount(), kWidth, kHeight, kRounds);
    std::printf("%-44s %31s %31s %7s\n", "", "library", "bare OpenGL", "ratio");
    const Rows faceSet = measure(lib, bare, mesh, [&] {
        snIndexedFaceSet(nullptr, mesh.coords.data(), mesh.coordCount(), mesh.index.data(),
                         static_cast<int>(mesh.index.size()), 30.0f, TRUE, FALSE, nullptr, 0, nullptr, 0, FALSE,
                         nullptr, 0, nullptr, 0);
    });
    print("snIndexedFaceSet", faceSet);
    // The same field as a grid: its heights are the coordinates' y values.
    std::vector<float> heights;
    for (size_t p = 1; p < mesh.coords.size(); p += 3) heights.push_back(mesh.coords[p]);
    const Rows grid = measure(lib, bare, mesh, [&] {
        snElevationGrid(nullptr, kSide + 1, kSide + 1, 1.0f, 1.0f, heights.data(), 30.0f, TRUE, FALSE, nullptr, FALSE,
                        nullptr);
    });
    print("snElevationGrid (same triangles, bare as above)", grid);
    return 0;
}
