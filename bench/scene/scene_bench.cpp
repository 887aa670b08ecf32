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

HWND createWindow(const char* className, WNDPROC proc) {
    WNDCLASSA wc = {};
    wc.style = CS_OWNDC;
    wc.lpfnWndProc = proc;
    wc.hInstance = GetModuleHandleA(nullptr);
    wc.hCursor = LoadCursor(nullptr, IDC_ARROW);
    wc.lpszClassName = className;
    RegisterClassA(&wc);
    RECT frame = {0, 0, kWidth, kHeight};
    AdjustWindowRect(&frame, WS_OVERLAPPEDWINDOW, FALSE);
    HWND hwnd = CreateWindowA(className, className, WS_OVERLAPPEDWINDOW | WS_VISIBLE, 20, 20,
                              frame.right - frame.left, frame.bottom - frame.top, nullptr, nullptr, wc.hInstance,
                              nullptr);
    UpdateWindow(hwnd);
    return hwnd;
}

// --- the library: a scene hosted in an application window (no scene thread) ----------

cScene* hostedScene = nullptr;

LRESULT CALLBACK hostProc(HWND hwnd, UINT message, WPARAM wParam, LPARAM lParam) {
    switch (message) {
    case WM_CREATE:
        hostedScene = seOnCreate(hwnd, "bench");
        return hostedScene != nullptr ? 0 : -1;
    case WM_ERASEBKGND:
        return 1;
    case WM_DESTROY:
        return seOnDestroy(hwnd);
    default:
        return DefWindowProcA(hwnd, message, wParam, lParam);
    }
}

struct LibraryScene {
    HWND hwnd = createWindow("BenchLibrary", hostProc);
    cScene* scene = hostedScene;
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
    HWND hwnd = createWindow("BenchBare", DefWindowProcA);
    HDC dc = GetDC(hwnd);
    HGLRC rc = nullptr;
    GLuint list = 0;
    bool useList = false;
    float rotMatrix[16] = {1, 0, 0, 0, 0, 1, 0, 0, 0, 0, 1, 0, 0, 0, 0, 1};
    const std::vector<Triangle>& triangles;

    explicit BareScene(const std::vector<Triangle>& t) : triangles(t) {
        PIXELFORMATDESCRIPTOR pfd = {};
        pfd.nSize = sizeof(pfd);
        pfd.nVersion = 1;
        pfd.dwFlags = PFD_DRAW_TO_WINDOW | PFD_SUPPORT_OPENGL | PFD_DOUBLEBUFFER;
        pfd.iPixelType = PFD_TYPE_RGBA;
        pfd.cColorBits = 24;
        pfd.cDepthBits = 16;
        SetPixelFormat(dc, ChoosePixelFormat(dc, &pfd), &pfd);
        rc = wglCreateContext(dc);
        wglMakeCurrent(dc, rc);
        // The state a new library scene starts with.
        static const float kSpecular[4] = {1.0f, 1.0f, 1.0f, 1.0f};
        glEnable(GL_NORMALIZE);
        glMaterialfv(GL_FRONT, GL_SPECULAR, kSpecular);
        glMaterialf(GL_FRONT, GL_SHININESS, 50.0f);
        list = glGenLists(1);
        glNewList(list, GL_COMPILE);
        drawTriangles();
        glEndList();
    }
    ~BareScene() {
        wglMakeCurrent(nullptr, nullptr);
        wglDeleteContext(rc);
        ReleaseDC(hwnd, dc);
        DestroyWindow(hwnd);
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
        static const float kAmbient[4] = {0.2f, 0.2f, 0.2f, 1.0f};
        RECT client;
        GetClientRect(hwnd, &client);
        wglMakeCurrent(dc, rc);
        glClearColor(0, 0, 0, 1);
        glClear(GL_COLOR_BUFFER_BIT | GL_DEPTH_BUFFER_BIT);
        glLightModelfv(GL_LIGHT_MODEL_AMBIENT, kAmbient);
        for (GLenum cap : {GL_DEPTH_TEST, GL_CULL_FACE, GL_LIGHTING, GL_COLOR_MATERIAL}) glEnable(cap);
        glPolygonMode(GL_FRONT_AND_BACK, GL_FILL);
        glShadeModel(GL_SMOOTH);
        for (int i = 0; i < 8; ++i) glDisable(GL_LIGHT0 + i);
        glPushMatrix();
        glMatrixMode(GL_PROJECTION);
        glLoadIdentity();
        glViewport(0, 0, client.right, client.bottom);
        gluPerspective(45.0, static_cast<float>(client.right) / static_cast<float>(client.bottom), 0.01f, 1000.0);
        glMatrixMode(GL_MODELVIEW);
        glPushMatrix();
        glTranslatef(0, 0, -5);
        glPushMatrix();
        glLoadIdentity();
        glRotatef(0, 0, 0, 0);
        glMultMatrixf(rotMatrix);
        glGetFloatv(GL_MODELVIEW_MATRIX, rotMatrix);
        glPopMatrix();
        glMultMatrixf(rotMatrix);
        glTranslatef(0, 0, 0);
        const clock_t t0 = clock();
        if (useList) {
            glCallList(list);
        } else {
            drawTriangles();
        }
        glPopMatrix();
        volatile clock_t frameTime = clock() - t0;
        (void)frameTime;
        SwapBuffers(dc);
        glPopMatrix();
        ValidateRect(hwnd, nullptr);
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
