/* demo.c - Tessarin demo: a library window with a lit scene (box, sphere, cylinder, disk,
 * axes, colours) turning on a rotate node. Interactive until the window is closed; with
 * "--screenshot FILE" it draws a number of frames, prints the frame rate, writes the
 * window to FILE (BMP) and exits. Uses only the public header. */
#include <stdio.h>
#include <string.h>
#include <time.h>

#include <windows.h>

#include "demo_scene.h"
#include "screenshot.h"
#include "tessarin.h"

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
    addDemoLights();
    addDemoShapes();
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
