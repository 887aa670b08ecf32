// What the scene benchmarks share: their windows, a library scene hosted in one of
// them, and the OpenGL calls of one library pass around the list, made by the bare
// program measured beside the library. Header-only: each benchmark links the DLL.
#pragma once

#include <windows.h>
#include <GL/gl.h>
#include <GL/glu.h>

#include "tessarin.h"

namespace bench {

// A visible window with a private device context and a client area of width x height,
// at `left` on the screen: benchmarks place theirs side by side, since a covered window
// would draw less.
inline HWND createWindow(const char* className, WNDPROC proc, int left, int width, int height) {
    WNDCLASSA wc = {};
    wc.style = CS_OWNDC;
    wc.lpfnWndProc = proc;
    wc.hInstance = GetModuleHandleA(nullptr);
    wc.hCursor = LoadCursor(nullptr, IDC_ARROW);
    wc.lpszClassName = className;
    RegisterClassA(&wc);
    RECT frame = {0, 0, width, height};
    AdjustWindowRect(&frame, WS_OVERLAPPEDWINDOW, FALSE);
    HWND hwnd = CreateWindowA(className, className, WS_OVERLAPPEDWINDOW | WS_VISIBLE, left, 20,
                              frame.right - frame.left, frame.bottom - frame.top, nullptr, nullptr, wc.hInstance,
                              nullptr);
    UpdateWindow(hwnd);
    return hwnd;
}

// The scene the latest window of hostProc made.
inline cScene*& hostedScene() {
    static cScene* scene = nullptr;
    return scene;
}

// The window procedure of an application window that hosts a library scene (no scene
// thread): the library's passes run on the benchmark's thread.
inline LRESULT CALLBACK hostProc(HWND hwnd, UINT message, WPARAM wParam, LPARAM lParam) {
    switch (message) {
    case WM_CREATE:
        hostedScene() = seOnCreate(hwnd, "bench");
        return hostedScene() != nullptr ? 0 : -1;
    case WM_ERASEBKGND:
        return 1;
    case WM_DESTROY:
        return seOnDestroy(hwnd);
    default:
        return DefWindowProcA(hwnd, message, wParam, lParam);
    }
}

// The pixel format a library scene asks for (double-buffered RGBA, 24 colour and 16
// depth bits), set on dc, and a rendering context made current on it.
inline HGLRC makeBareContext(HDC dc) {
    PIXELFORMATDESCRIPTOR pfd = {};
    pfd.nSize = sizeof(pfd);
    pfd.nVersion = 1;
    pfd.dwFlags = PFD_DRAW_TO_WINDOW | PFD_SUPPORT_OPENGL | PFD_DOUBLEBUFFER;
    pfd.iPixelType = PFD_TYPE_RGBA;
    pfd.cColorBits = 24;
    pfd.cDepthBits = 16;
    SetPixelFormat(dc, ChoosePixelFormat(dc, &pfd), &pfd);
    HGLRC rc = wglCreateContext(dc);
    wglMakeCurrent(dc, rc);
    return rc;
}

// A bare OpenGL window with the state a new library scene starts with.
class BareGl {
public:
    explicit BareGl(HWND window) : hwnd(window), dc(GetDC(window)) {
        rc = makeBareContext(dc);
        static const float kSpecular[4] = {1.0f, 1.0f, 1.0f, 1.0f};
        glEnable(GL_NORMALIZE);
        glMaterialfv(GL_FRONT, GL_SPECULAR, kSpecular);
        glMaterialf(GL_FRONT, GL_SHININESS, 50.0f);
    }
    ~BareGl() {
        wglMakeCurrent(nullptr, nullptr);
        wglDeleteContext(rc);
        ReleaseDC(hwnd, dc);
        DestroyWindow(hwnd);
    }
    BareGl(const BareGl&) = delete;
    BareGl& operator=(const BareGl&) = delete;

    // The pass up to the list: clear, switches, lights off, projection and camera.
    void begin() {
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
        glMultMatrixf(rotMatrix_);
        glGetFloatv(GL_MODELVIEW_MATRIX, rotMatrix_);
        glPopMatrix();
        glMultMatrixf(rotMatrix_);
        glTranslatef(0, 0, 0);
    }
    // The pass after the list: the camera's matrix popped, the buffers swapped.
    void end() {
        glPopMatrix();
        SwapBuffers(dc);
        glPopMatrix();
    }

    HWND hwnd;
    HDC dc;
    HGLRC rc = nullptr;

private:
    float rotMatrix_[16] = {1, 0, 0, 0, 0, 1, 0, 0, 0, 0, 1, 0, 0, 0, 0, 1};
};

}  // namespace bench
