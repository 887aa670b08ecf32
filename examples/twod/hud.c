/* hud.c - a frame counter in 2D over the turning demo scene: a dark panel with the
 * frame number, renewed every frame. Interactive until the window is closed; with
 * "--screenshot FILE" it draws 120 frames, prints the frame rate, writes the window to
 * FILE (BMP) and exits. Uses only the public header. */
#include <stdio.h>
#include <string.h>
#include <time.h>

#include <windows.h>

#include "demo_scene.h"
#include "screenshot.h"
#include "tessarin.h"

static struct {
    HPEN frame;
    HBRUSH panel;
    HFONT font;
} gdi;

/* The counter is a new text node each frame: the old one is removed through the scene
 * thread, so a repaint of the window never meets a text being replaced (an edit of the
 * node would change it on this thread). The panel's nodes stay first in the 2D list:
 * the first node of a list cannot be removed, the counters behind them can. */
static cNode* showCounter(cNode* old, int frame) {
    char text[64];
    snprintf(text, sizeof text, "Tessarin HUD   frame %6d", frame);
    cNode* counter = snText2D(NULL, 22, 17, text, 0.6f, 1.0f, 0.6f);
    if (old != NULL) smDelNode2D(old);
    return counter;
}

static void addPanel(void) {
    gdi.frame = smCreatePen2D(0.6f, 1.0f, 0.6f, 1, PS_SOLID);
    gdi.panel = smCreateBrush2D(0.0f, 0.1f, 0.0f, BS_SOLID, 0);
    gdi.font = smCreateFont2D("Courier New", 16, FW_BOLD, FALSE, FALSE);
    smRelToPos2D(FALSE);
    snPen2D(NULL, gdi.frame);
    snBrush2D(NULL, gdi.panel);
    snRectangle2D(NULL, 10, 10, 290, 40);
    snFont2D(NULL, gdi.font);
}

static void deleteGdiObjects(void) {
    smDelGDIObj(gdi.frame);
    smDelGDIObj(gdi.panel);
    smDelGDIObj(gdi.font);
}

/* Frames until the window closes, or `frames` of them (0: no limit); returns the frame
 * rate. */
static double run(cScene* scene, int frames) {
    HWND hwnd = smGetHWND(scene);
    cNode* counter = NULL;
    const clock_t start = clock();
    int frame = 1;
    for (; IsWindow(hwnd) && (frames == 0 || frame <= frames); ++frame) {
        counter = showCounter(counter, frame);
        smRefreshScene(scene);
        if (frames == 0) Sleep(15);
    }
    const double seconds = (double)(clock() - start) / CLOCKS_PER_SEC;
    return seconds > 0 ? (frame - 1) / seconds : 0.0;
}

int main(int argc, char** argv) {
    cWind* window = swCreateWind("Tessarin HUD", 640, 480, 60, 60, WS_OVERLAPPEDWINDOW);
    cScene* scene = window != NULL ? swCreateScene(window) : NULL;
    if (scene == NULL) return 1;
    smBackground(0.1f, 0.1f, 0.15f);
    addDemoLights();
    addDemoShapes();
    addPanel();
    swShowWind(window);
    if (argc == 3 && strcmp(argv[1], "--screenshot") == 0) {
        printf("%.1f frames per second\n", run(scene, 120));
        const int saved = saveWindowBmp(smGetHWND(scene), argv[2]);
        swDeleteWind(window);
        deleteGdiObjects();
        printf(saved ? "screenshot: %s\n" : "could not write %s\n", argv[2]);
        return saved ? 0 : 1;
    }
    run(scene, 0);
    deleteGdiObjects();
    return 0;
}
