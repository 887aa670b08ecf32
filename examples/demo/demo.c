/* demo.c - Tessarin demo: a library window with a lit scene (box, sphere, cylinder, disk,
 * axes, colours) turning on a rotate node. Interactive until the window is closed; with
 * "--screenshot FILE" it draws a number of frames, prints the frame rate, writes the
 * window to FILE (BMP) and exits. Uses only the public header. */
#include <stdio.h>
#include <string.h>
#include <time.h>

#include <windows.h>
#include <GL/glu.h>

#include "screenshot.h"
#include "tessarin.h"

static void addLights(void) {
    float fromFrontLeft[3] = {-1.0f, 1.0f, 1.0f};
    float warm[3] = {1.0f, 0.9f, 0.8f};
    float dark[3] = {0.05f, 0.05f, 0.05f};
    float spotDown[3] = {0.0f, -1.0f, 0.0f};
    smLightDirection(0, 1, 1, fromFrontLeft);
    smLightColor(0, dark, warm, NULL);
    smLightDirection(1, 1, 0, NULL);
    smLightSpot(1, spotDown, 60.0f, 0.5f);
}

static void addShapes(void) {
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

static int runHeadless(cWind* window, cScene* scene, const char* path) {
    const int frames = 200;
    const clock_t start = clock();
    for (int i = 0; i < frames; ++i) smRefreshScene(scene);
    const double seconds = (double)(clock() - start) / CLOCKS_PER_SEC;
    printf("frames: %d in %.2f s: %.1f frames per second\n", frames, seconds, seconds > 0 ? frames / seconds : 0.0);
    const int saved = saveWindowBmp(smGetHWND(scene), path);
    swDeleteWind(window);
    if (!saved) {
        fprintf(stderr, "could not write %s\n", path);
        return 1;
    }
    printf("screenshot: %s\n", path);
    return 0;
}

int main(int argc, char** argv) {
    cWind* window = swCreateWind("Tessarin demo", 640, 480, 60, 60, WS_OVERLAPPEDWINDOW);
    cScene* scene = window != NULL ? swCreateScene(window) : NULL;
    if (scene == NULL) return 1;
    smBackground(0.1f, 0.1f, 0.15f);
    smViewpointAdd("Start", NULL);
    addLights();
    addShapes();
    swShowWind(window);
    if (argc == 3 && strcmp(argv[1], "--screenshot") == 0) return runHeadless(window, scene, argv[2]);
    /* Interactive: keep redrawing so that the rotate node turns, until the user closes
     * the window (which ends the library's scene thread). */
    snEnable(NULL, TS_SWITCH_FORCE_REDRAW);
    smRefreshScene(scene);
    HWND hwnd = smGetHWND(scene);
    while (IsWindow(hwnd)) Sleep(250);
    return 0;
}
