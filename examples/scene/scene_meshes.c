/* scene_meshes.c - meshes: a rolling landscape as an elevation grid coloured per point by
 * its height, and a hexagonal column as an indexed face set whose sides are smoothed by
 * the crease angle while its caps keep their edges (they have their own points).
 * Interactive until the window is closed; with "--screenshot FILE" it draws, writes the
 * window to FILE (BMP) and exits. Uses only the public header. */
#include <math.h>
#include <stdio.h>
#include <string.h>

#include <windows.h>

#include "screenshot.h"
#include "tessarin.h"

#define SIDE 41 /* grid points along x and along z */

static void addLandscape(void) {
    static float heights[SIDE * SIDE];
    static float colors[SIDE * SIDE * 3];
    for (int j = 0; j < SIDE; ++j) {
        for (int i = 0; i < SIDE; ++i) {
            const float h = 0.35f * sinf(i * 0.25f) * cosf(j * 0.2f);
            float* c = &colors[3 * (j * SIDE + i)];
            heights[j * SIDE + i] = h;
            c[0] = 0.35f + h; /* low: green, high: brown */
            c[1] = 0.55f - 0.4f * h;
            c[2] = 0.2f;
        }
    }
    snPushMatrix();
    snTranslate(NULL, -2.0f, -0.9f, -2.0f);
    /* 41 x 41 points 0.1 apart; smooth over edges up to 60 degrees; colours per point. */
    snElevationGrid(NULL, SIDE, SIDE, 0.1f, 0.1f, heights, 60.0f, TRUE, TRUE, colors, FALSE, NULL);
    snPopMatrix();
}

/* Six sides between two rings of points, and two caps with points of their own: the
 * sides meet at 60 degrees and are smoothed (crease angle 70), the caps meet the sides
 * at 90 degrees and would stay sharp even if they shared the ring points. */
static void addColumn(void) {
    float coords[24 * 3];
    int index[6 * 5 + 2 * 7];
    int n = 0;
    for (int k = 0; k < 24; ++k) {
        const float a = (k % 6) * 1.0471976f; /* 60 degrees */
        coords[3 * k] = 0.45f * cosf(a);
        coords[3 * k + 1] = (k / 6) % 2 == 0 ? -0.7f : 0.7f; /* rings: bottom, top, bottom cap, top cap */
        coords[3 * k + 2] = -0.45f * sinf(a);
    }
    for (int s = 0; s < 6; ++s) { /* counter-clockwise seen from outside */
        const int next = (s + 1) % 6;
        index[n++] = s;
        index[n++] = next;
        index[n++] = 6 + next;
        index[n++] = 6 + s;
        index[n++] = -1;
    }
    for (int s = 5; s >= 0; --s) index[n++] = 12 + s; /* bottom cap, seen from below */
    index[n++] = -1;
    for (int s = 0; s < 6; ++s) index[n++] = 18 + s; /* top cap, seen from above */
    index[n++] = -1;
    snPushMatrix();
    snTranslate(NULL, 0.2f, 0.0f, 0.0f);
    snColorRGB(NULL, 0.8f, 0.75f, 0.6f);
    snIndexedFaceSet(NULL, coords, 24, index, n, 70.0f, TRUE, FALSE, NULL, 0, NULL, 0, FALSE, NULL, 0, NULL, 0);
    snPopMatrix();
}

int main(int argc, char** argv) {
    cWind* window = swCreateWind("Tessarin meshes", 640, 480, 60, 60, WS_OVERLAPPEDWINDOW);
    cScene* scene = window != NULL ? swCreateScene(window) : NULL;
    if (scene == NULL) return 1;
    float fromUpperLeft[3] = {-1.0f, 1.5f, 1.0f};
    smBackground(0.55f, 0.7f, 0.9f);
    smLightDirection(0, 1, 1, fromUpperLeft);
    snRotate(NULL, 25.0f, 1.0f, 0.0f, 0.0f, 0.0f);
    snRotate(NULL, -30.0f, 0.0f, 1.0f, 0.0f, 0.0f);
    addLandscape();
    addColumn();
    swShowWind(window);
    smRefreshScene(scene);
    if (argc == 3 && strcmp(argv[1], "--screenshot") == 0) {
        smRefreshScene(scene);
        const int saved = saveWindowBmp(smGetHWND(scene), argv[2]);
        swDeleteWind(window);
        if (!saved) fprintf(stderr, "could not write %s\n", argv[2]);
        return saved ? 0 : 1;
    }
    HWND hwnd = smGetHWND(scene);
    while (IsWindow(hwnd)) Sleep(250);
    return 0;
}
