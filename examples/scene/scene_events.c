/* scene_events.c - waits for the user's input in a scene window: keys, mouse buttons and
 * picking. A left click on a box names the box; F1 opens the keyboard and mouse help
 * page; Esc ends. With "--screenshot FILE" it
 * draws once, writes the window to FILE (BMP) and exits. Uses only the public header. */
#include <stdio.h>
#include <string.h>

#include <windows.h>
#include <GL/glu.h>

#include "screenshot.h"
#include "tessarin.h"

#define BOXES 3

static cNode* boxes[BOXES];

static void addBoxes(void) {
    static const float colours[BOXES][3] = {{0.9f, 0.3f, 0.2f}, {0.3f, 0.8f, 0.3f}, {0.2f, 0.5f, 0.9f}};
    float light[3] = {-0.5f, 1.0f, 1.0f};
    smLightDirection(0, 1, 1, light);
    snRotate(NULL, 30.0f, 1.0f, 1.0f, 0.0f, 0.0f);
    for (int i = 0; i < BOXES; ++i) {
        const float x = -1.8f + 1.4f * (float)i;
        snColor(NULL, colours[i]);
        boxes[i] = snBox(NULL, x, -0.5f, -0.5f, x + 0.9f, 0.5f, 0.5f, GLU_OUTSIDE);
    }
}

static const char* boxName(unsigned int pickedName) {
    static const char* names[BOXES] = {"red box", "green box", "blue box"};
    cNode* node = tsNodeFromName(pickedName);
    for (int i = 0; i < BOXES; ++i)
        if (node != NULL && node == boxes[i]) return names[i];
    return "nothing";
}

static void reportEvents(HWND hwnd) {
    printf("Click a box, press keys (F1: help); Esc ends.\n");
    while (IsWindow(hwnd)) {
        swEventRecord e = swWaitForEvent(TS_WAIT_KEYS | TS_WAIT_BUTTONS, 0);
        if (e.virtualKey == VK_ESCAPE) break;
        if (e.virtualKey == VK_F1) smOpenDocu("fsKeyboard.html"); /* from the installed help folder */
        if (e.button == 1)
            printf("left button at %d, %d: %s\n", e.mouseX, e.mouseY, e.hits > 0 ? boxName(e.pickedName) : "nothing");
        else if (e.button != 0)
            printf("button %d at %d, %d\n", e.button, e.mouseX, e.mouseY);
        else
            printf("key %d, character %d\n", e.virtualKey, e.character);
    }
}

int main(int argc, char** argv) {
    cWind* window = swCreateWind("Tessarin events", 480, 320, 80, 80, WS_OVERLAPPEDWINDOW);
    cScene* scene = window != NULL ? swCreateScene(window) : NULL;
    if (scene == NULL) return 1;
    smBackground(0.95f, 0.95f, 0.9f);
    addBoxes();
    snEnable(NULL, TS_SWITCH_PICKING);
    swShowWind(window);
    smRefreshScene(scene);
    if (argc == 3 && strcmp(argv[1], "--screenshot") == 0) {
        const int saved = saveWindowBmp(smGetHWND(scene), argv[2]);
        swDeleteWind(window);
        return saved ? 0 : 1;
    }
    reportEvents(smGetHWND(scene));
    swDeleteWind(window);
    return 0;
}
