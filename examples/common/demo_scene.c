/* demo_scene.c - the demo's lights and shapes, built with the sn and sm calls. */
#include "demo_scene.h"

#include <windows.h>
#include <GL/glu.h>

#include "tessarin.h"

void addDemoLights(void) {
    float fromFrontLeft[3] = {-1.0f, 1.0f, 1.0f};
    float warm[3] = {1.0f, 0.9f, 0.8f};
    float dark[3] = {0.05f, 0.05f, 0.05f};
    float spotDown[3] = {0.0f, -1.0f, 0.0f};
    smLightDirection(0, 1, 1, fromFrontLeft);
    smLightColor(0, dark, warm, NULL);
    smLightDirection(1, 1, 0, NULL);
    smLightSpot(1, spotDown, 60.0f, 0.5f);
}

void addDemoShapes(void) {
    snRotate(NULL, 20.0f, 1.0f, 0.0f, 0.0f, 0.0f);
    snRotate(NULL, 0.0f, 0.0f, 1.0f, 0.0f, 2.0f); /* turns 2 degrees per frame */
    snAxis(NULL, 2.2f, 2.2f, 2.2f, 0.2f, 0.08f, 0.2f);
    snColorRGB(NULL, 0.9f, 0.3f, 0.2f);
    snBox(NULL, -1.6f, -0.4f, -0.4f, -0.8f, 0.4f, 0.4f, GLU_OUTSIDE);
    snPushMatrix();
    snColorRGB(NULL, 0.2f, 0.6f, 0.9f);
    snTranslate(NULL, 1.2f, 0.0f, 0.0f);
    snSphere(NULL, 0.5f, 24, 16, GLU_FILL, GLU_SMOOTH, GLU_OUTSIDE);
    snPopMatrix();
    snPushMatrix();
    snColorRGB(NULL, 0.3f, 0.8f, 0.3f);
    snTranslate(NULL, 0.0f, 0.0f, -1.4f);
    snCylinder(NULL, 0.9f, 0.35f, 0.15f, TRUE, TRUE, 20, 4, GLU_FILL, GLU_SMOOTH, GLU_OUTSIDE);
    snPopMatrix();
    snColorRGB(NULL, 0.9f, 0.8f, 0.2f);
    snTranslate(NULL, 0.0f, -0.9f, 0.0f);
    snRotate(NULL, -90.0f, 1.0f, 0.0f, 0.0f, 0.0f);
    snDisk(NULL, 0.3f, 1.0f, 32, 2, 0.0f, 360.0f, GLU_FILL, GLU_SMOOTH, GLU_OUTSIDE);
}
