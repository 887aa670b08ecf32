/* chart.c - a chart drawn in 2D over a 3D surface: axes with ticks and labels, two data
 * series as polylines, a title and a legend, all 2D nodes over a lit height field made
 * of quad strips. With "--screenshot FILE" it draws once, writes the window to FILE
 * (BMP) and exits. Uses only the public header. */
#include <math.h>
#include <stdio.h>
#include <string.h>

#include <windows.h>
#include <GL/gl.h>

#include "screenshot.h"
#include "tessarin.h"

#define WIDTH 640
#define HEIGHT 480
#define GRID 24       /* cells of the surface per side */
#define SAMPLES 41    /* points of each data series */

/* The chart's plot area in window pixels. */
static const RECT plot = {70, 60, 600, 400};

/* The GDI objects the chart's 2D nodes use: the application makes and owns them. */
static struct {
    HPEN axis, series[2];
    HBRUSH legend;
    HFONT label, title;
} gdi;

static float height(float x, float y) { return 0.35f * sinf(2.0f * x) * cosf(1.5f * y); }

/* The surface: one quad strip per row of cells, coloured from blue to green. */
static void addSurface(void) {
    static float strip[(GRID + 1) * 2 * 3];
    float light[3] = {0.3f, 1.0f, 0.8f};
    smLightDirection(0, 1, 1, light);
    snRotate(NULL, -55.0f, 1.0f, 0.0f, 0.0f, 0.0f);
    for (int row = 0; row < GRID; ++row) {
        const float y0 = -2.0f + 4.0f * (float)row / GRID, y1 = y0 + 4.0f / GRID;
        for (int col = 0; col <= GRID; ++col) {
            const float x = -2.0f + 4.0f * (float)col / GRID;
            float* p = strip + col * 6;
            p[0] = x, p[1] = y1, p[2] = height(x, y1); /* top, then bottom: the quads */
            p[3] = x, p[4] = y0, p[5] = height(x, y0); /* face +z (counter-clockwise) */
        }
        snColorRGB(NULL, 0.2f, 0.3f + 0.5f * (float)row / GRID, 0.8f - 0.5f * (float)row / GRID);
        snPrimitive(NULL, GL_QUAD_STRIP, strip, (GRID + 1) * 2);
    }
}

static void makeGdiObjects(void) {
    gdi.axis = smCreatePen2D(1.0f, 1.0f, 1.0f, 2, PS_SOLID);
    gdi.series[0] = smCreatePen2D(1.0f, 0.8f, 0.1f, 3, PS_SOLID);
    gdi.series[1] = smCreatePen2D(1.0f, 0.3f, 0.6f, 2, PS_SOLID);
    gdi.legend = smCreateBrush2D(0.1f, 0.1f, 0.15f, BS_SOLID, 0);
    gdi.label = smCreateFont2D("Tahoma", 14, FW_NORMAL, FALSE, FALSE);
    gdi.title = smCreateFont2D("Tahoma", 22, FW_BOLD, FALSE, FALSE);
}

static void deleteGdiObjects(void) {
    smDelGDIObj(gdi.axis);
    smDelGDIObj(gdi.series[0]);
    smDelGDIObj(gdi.series[1]);
    smDelGDIObj(gdi.legend);
    smDelGDIObj(gdi.label);
    smDelGDIObj(gdi.title);
}

/* The axes, with a tick and a label every 10 units on x and every 0.5 on y. */
static void addAxes(void) {
    char text[16];
    snPen2D(NULL, gdi.axis);
    snFont2D(NULL, gdi.label);
    snLine2D(NULL, plot.left, plot.bottom, plot.right, plot.bottom);
    snLine2D(NULL, plot.left, plot.bottom, plot.left, plot.top);
    for (int i = 0; i <= 4; ++i) {
        const int x = plot.left + (plot.right - plot.left) * i / 4;
        snLine2D(NULL, x, plot.bottom, x, plot.bottom + 6);
        snprintf(text, sizeof text, "%d", 10 * i);
        snText2D(NULL, x - 6, plot.bottom + 10, text, 1.0f, 1.0f, 1.0f);
    }
    for (int i = 0; i <= 4; ++i) {
        const int y = plot.bottom - (plot.bottom - plot.top) * i / 4;
        snLine2D(NULL, plot.left - 6, y, plot.left, y);
        snprintf(text, sizeof text, "%.1f", -1.0 + 0.5 * i);
        snTextBlock2D(NULL, 0, y - 8, plot.left - 10, y + 8, text, DT_RIGHT | DT_SINGLELINE | DT_VCENTER, 1.0f,
                      1.0f, 1.0f);
    }
}

/* Two damped waves over 0 .. 40, in plot coordinates from -1 to 1. */
static void addSeries(void) {
    POINT points[SAMPLES];
    for (int s = 0; s < 2; ++s) {
        for (int i = 0; i < SAMPLES; ++i) {
            const double t = i, v = s == 0 ? exp(-t / 30.0) * sin(t / 4.0) : 0.8 * cos(t / 6.0) * exp(-t / 60.0);
            points[i].x = plot.left + (plot.right - plot.left) * i / (SAMPLES - 1);
            points[i].y = plot.bottom - (LONG)((v + 1.0) * 0.5 * (plot.bottom - plot.top));
        }
        snPen2D(NULL, gdi.series[s]);
        snPolyLine2D(NULL, points, SAMPLES, FALSE);
    }
}

static void addTitleAndLegend(void) {
    static const char* names[2] = {"damped sine", "slow cosine"};
    snFont2D(NULL, gdi.title);
    snTextBlock2D(NULL, 0, 14, WIDTH, 44, "Two signals over a surface", DT_CENTER | DT_SINGLELINE, 1.0f, 1.0f,
                  1.0f);
    snFont2D(NULL, gdi.label);
    snPen2D(NULL, gdi.axis);
    snBrush2D(NULL, gdi.legend);
    snRectangle2D(NULL, 440, 70, 590, 126);
    for (int s = 0; s < 2; ++s) {
        const int y = 86 + 24 * s;
        snPen2D(NULL, gdi.series[s]);
        snLine2D(NULL, 452, y, 482, y);
        snText2D(NULL, 492, y - 8, names[s], 1.0f, 1.0f, 1.0f);
    }
}

int main(int argc, char** argv) {
    cWind* window = swCreateWind("Tessarin chart", WIDTH, HEIGHT, 60, 60, WS_OVERLAPPEDWINDOW);
    cScene* scene = window != NULL ? swCreateScene(window) : NULL;
    if (scene == NULL) return 1;
    smBackground(0.05f, 0.05f, 0.1f);
    addSurface();
    makeGdiObjects();
    smRelToPos2D(FALSE); /* the chart's coordinates count from the window's corner */
    addAxes();
    addSeries();
    addTitleAndLegend();
    swShowWind(window);
    smRefreshScene(scene);
    HWND hwnd = smGetHWND(scene);
    if (argc == 3 && strcmp(argv[1], "--screenshot") == 0) {
        const int saved = saveWindowBmp(hwnd, argv[2]);
        swDeleteWind(window);
        deleteGdiObjects(); /* the nodes are gone with the scene */
        printf(saved ? "screenshot: %s\n" : "could not write %s\n", argv[2]);
        return saved ? 0 : 1;
    }
    while (IsWindow(hwnd)) Sleep(250);
    deleteGdiObjects();
    return 0;
}
