// The rendering pass: the 3D frame with OpenGL (state by shade and render mode, lights,
// projection, camera, the list), the 2D list with GDI over the swapped frame, and the
// idle decision. A pass that finds motion running invalidates the window again, so
// continuous motion is a chain of paints rather than a timer.
#include "view/pass/pass.h"

#include <windows.h>
#include <GL/gl.h>
#include <GL/glu.h>

#include <ctime>

#include "library/globals.h"
#include "tsobj3d/cgroup.h"
#include "view/pass/picking.h"
#include "view/pass/render_steps.h"
#include "view/pass/scene_draw_context.h"
#include "view/pass/scene_gl.h"
#include "view/scene/camera.h"
#include "view/scene/cscene.h"

namespace ts {
namespace {

constexpr int kNoShading = 100002;

void setSwitch(GLenum capability, bool on) {
    if (on) {
        glEnable(capability);
    } else {
        glDisable(capability);
    }
}

void setDrawingState(const cScene* s) {
    const bool shaded = s->shade_mode != kNoShading;
    // Picking passes run without the depth test.
    setSwitch(GL_DEPTH_TEST, s->enableDepth != 0 && shaded && s->renderMode == GL_RENDER);
    setSwitch(GL_CULL_FACE, s->enableCull != 0 && shaded);
    setSwitch(GL_LIGHTING, s->enableLighting != 0 && shaded);
    setSwitch(GL_COLOR_MATERIAL, s->enableColorMaterial != 0 && shaded);
    if (s->draw_mode == 100010) glPolygonMode(GL_FRONT_AND_BACK, GL_POINT);
    if (s->draw_mode == 100011) glPolygonMode(GL_FRONT_AND_BACK, GL_LINE);
    if (s->draw_mode == 100012) glPolygonMode(GL_FRONT_AND_BACK, GL_FILL);
    if (s->shade_mode == 100000) glShadeModel(GL_SMOOTH);
    if (s->shade_mode == 100001) glShadeModel(GL_FLAT);
}

void setProjection(cScene* s, int width, int height) {
    const float aspect = static_cast<float>(width) / static_cast<float>(height);
    // The orthogonal extent follows the eye's distance, so moving along z zooms it.
    const double halfHeight = orthoHalfHeight(*s);
    glPushMatrix();
    glMatrixMode(GL_PROJECTION);
    glLoadIdentity();
    glViewport(0, 0, width, height);
    if (s->renderMode == GL_SELECT) {
        glSelectBuffer(s->selectBufferEntries, s->selectBuffer);
        glRenderMode(GL_SELECT);
        GLint viewport[4];
        glGetIntegerv(GL_VIEWPORT, viewport);
        // The pick rectangle is 2 by 2 here, whatever pickvolume says.
        gluPickMatrix(s->pickX, viewport[3] - s->pickY, 2.0, 2.0, viewport);
        glInitNames();
        glPushName(0);
    }
    if (s->project_mode == 1) {
        glOrtho(-halfHeight * aspect, halfHeight * aspect, -halfHeight, halfHeight, s->clipnear, s->clipfar);
    } else {
        gluPerspective(s->angle, aspect, s->clipnear, s->clipfar);
    }
}

int drawList(cScene* s) {
    const clock_t t0 = clock();
    const int names = drawNodes(s);
    glPopMatrix();
    s->frameTime = clock() - t0;
    if (s->frameTime == 0) s->frameTime = 1;
    return names;
}

void finishFrame(cScene* s, const GLfloat* view, int names) {
    if (s->renderMode == GL_SELECT) {
        endPicking(s, view, names);
    } else {
        SwapBuffers(s->dc);
    }
    glPopMatrix();
    // The View Settings dialog shows the camera of the last pass; it reads it when told.
    if (s->viewDialog != nullptr) SendMessageA(s->viewDialog, kRefreshViewDialog, 0, 0);
}

void draw3D(cScene* s) {
    readClientRect(s);
    if (s->clientRect.bottom == 0) s->clientRect.bottom = 1;
    makeSceneCurrent(s);
    glClearColor(s->BackColor[0], s->BackColor[1], s->BackColor[2], 1.0f);
    glClear(GL_COLOR_BUFFER_BIT | GL_DEPTH_BUFFER_BIT);
    glLightModelfv(GL_LIGHT_MODEL_AMBIENT, s->lightModelAmbient);
    setDrawingState(s);
    lightsBeforeCamera(s);
    setProjection(s, s->clientRect.right, s->clientRect.bottom);
    glMatrixMode(GL_MODELVIEW);
    glPushMatrix();
    applyCamera(s);
    lightsUnderCamera(s);
    GLfloat view[16] = {};
    if (s->renderMode == GL_SELECT) glGetFloatv(GL_MODELVIEW_MATRIX, view);
    const int names = drawList(s);
    finishFrame(s, view, names);
}

void draw2D(cScene* s) {
    MoveToEx(s->dc, 0, 0, nullptr);
    s->currentPos2D[0] = s->currentPos2D[1] = 0;
    SetROP2(s->dc, R2_COPYPEN);
    SceneDrawContext context(*s);
    s->list2D->draw(context);
}

}  // namespace

int drawNodes(cScene* s) {
    if (s->useDisplayList != 0) {
        glCallList(s->displayList);
        return 0;
    }
    SceneDrawContext context(*s);
    s->list3D->draw(context);
    return context.namesLoaded();
}

bool motionContinues(const cScene* s) {
    return !(s->forceRedraw == 0 && s->motionRunning == 0 && s->speed == 0.0f && s->yawRate == 0.0f &&
             s->pitchRate == 0.0f && s->rollRate == 0.0f);
}

void renderScene(cScene* scene) {
    if (scene->has3D == 0) {
        readClientRect(scene);
        const RECT client = toRect(scene->clientRect);
        FillRect(scene->dc, &client, scene->backgroundBrush);
    } else {
        draw3D(scene);
    }
    if (scene->has2D != 0) draw2D(scene);
    if (!motionContinues(scene)) {
        scene->idle = 1;
        ValidateRect(scene->window, nullptr);
    } else {
        scene->idle = 0;
        InvalidateRect(scene->window, nullptr, TRUE);
    }
}

void resizeScene(cScene* scene) {
    makeSceneCurrent(scene);
    readClientRect(scene);
    if (scene->clientRect.bottom == 0) scene->clientRect.bottom = 1;
    const int width = scene->clientRect.right;
    const int height = scene->clientRect.bottom;
    glViewport(0, 0, width, height);
    glMatrixMode(GL_PROJECTION);
    glLoadIdentity();
    // Always perspective here; the next pass sets the projection of the mode.
    gluPerspective(scene->angle, static_cast<double>(width) / height, scene->clipnear, scene->clipfar);
    glMatrixMode(GL_MODELVIEW);
    renderScene(scene);
}

}  // namespace ts
