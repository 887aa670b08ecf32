// Light hand-over of the rendering pass: lights that stay with the viewer are placed
// before the camera, seen from the initial eye point; the others under the camera, so
// that they turn with the scene.
#include <windows.h>
#include <GL/gl.h>

#include "view/pass/render_steps.h"
#include "view/scene/cscene.h"

namespace ts {
namespace {

constexpr int kNoShading = 100002;

void setLightValues(const cScene* scene, GLenum id, const cLight& light) {
    glEnable(id);
    glLightfv(id, GL_AMBIENT, light.ambient);
    glLightfv(id, GL_DIFFUSE, light.diffuse);
    glLightfv(id, GL_SPECULAR, light.specular);
    if (light.worldPos == 1) {
        glPushMatrix();
        glTranslated(-scene->iniPos[0], -scene->iniPos[1], -scene->iniPos[2]);
        glLightfv(id, GL_POSITION, light.position);
        glPopMatrix();
    }
    glLightfv(id, GL_SPOT_DIRECTION, light.spotDirection);
    glLightf(id, GL_SPOT_CUTOFF, light.spotCutoff);
    glLightf(id, GL_SPOT_EXPONENT, light.spotExponent);
    glLightf(id, GL_CONSTANT_ATTENUATION, light.constantAttenuation);
    glLightf(id, GL_LINEAR_ATTENUATION, light.linearAttenuation);
    glLightf(id, GL_QUADRATIC_ATTENUATION, light.quadraticAttenuation);
}

}  // namespace

void lightsBeforeCamera(cScene* scene) {
    if (scene->shade_mode == kNoShading) return;
    for (int i = 0; i < 8; ++i) {
        const GLenum id = GL_LIGHT0 + i;
        if (scene->lights[i].on == 0) {
            glDisable(id);
        } else {
            setLightValues(scene, id, scene->lights[i]);
        }
    }
}

void lightsUnderCamera(cScene* scene) {
    // "None" leaves every light untouched, on both sides of the camera.
    if (scene->shade_mode == kNoShading) return;
    for (int i = 0; i < 8; ++i) {
        const cLight& light = scene->lights[i];
        if (light.worldPos != 0) continue;
        glLightfv(GL_LIGHT0 + i, GL_POSITION, light.position);
        if (light.pointLight == 1) glLightfv(GL_LIGHT0 + i, GL_SPOT_DIRECTION, light.spotDirection);
    }
}

}  // namespace ts
