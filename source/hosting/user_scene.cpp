// Exported calls that read or set what scene creation established: the current scene,
// refresh, background, and the scene's DC, window and GL context.
#include "guard/guard.h"
#include "library/globals.h"
#include "math/gdi_color.h"
#include "requests/request_handlers.h"
#include "requests/requests.h"
#include "tessarin.h"
#include "view/pass/pass.h"
#include "view/scene/cscene.h"

namespace ts {

LRESULT onRefresh(WPARAM scene, LPARAM) {
    renderScene(reinterpret_cast<cScene*>(scene));
    return 1;
}

LRESULT onBackground(WPARAM colour, LPARAM) {
    const float* rgb = reinterpret_cast<const float*>(colour);
    cScene* scene = CURRENT_SCENE;
    for (int i = 0; i < 3; ++i) scene->BackColor[i] = rgb[i];
    if (scene->backgroundBrush != nullptr) DeleteObject(scene->backgroundBrush);
    scene->backgroundBrush = CreateSolidBrush(gdiColor(rgb[0], rgb[1], rgb[2]));
    return 1;
}

LRESULT onGetHdc(WPARAM scene, LPARAM) { return reinterpret_cast<LRESULT>(reinterpret_cast<cScene*>(scene)->dc); }
LRESULT onGetHwnd(WPARAM scene, LPARAM) { return reinterpret_cast<LRESULT>(reinterpret_cast<cScene*>(scene)->window); }
LRESULT onGetHglrc(WPARAM scene, LPARAM) { return reinterpret_cast<LRESULT>(reinterpret_cast<cScene*>(scene)->glrc); }

}  // namespace ts

extern "C" {

void smCurrentScene(cScene* scene) {
    ts::probe(scene, "smCurrentScene(scene)");
    CURRENT_SCENE = scene;
}

void smRefreshScene(cScene* SceneToRefresh) {
    ts::guarded("smRefreshScene", [&] {
        TS_ASSERT(SceneToRefresh != NULL, "user_scene", 30);
        ts::forward(TSM_REFRESH, ts::sceneArgument(SceneToRefresh), 0);
    });
}

void smBackground(float red, float green, float blue) {
    ts::guarded("smBackground", [&] {
        float rgb[3] = {red, green, blue};
        ts::forward(TSM_BACKGROUND, reinterpret_cast<WPARAM>(rgb), 0);
    });
}

HDC smGetHDC(cScene* scene) {
    return ts::guarded("smGetHDC", [&] {
        TS_ASSERT(scene != NULL, "user_scene", 48);
        return reinterpret_cast<HDC>(ts::forward(TSM_GET_HDC, ts::sceneArgument(scene), 0));
    });
}

HWND smGetHWND(cScene* scene) {
    return ts::guarded("smGetHWND", [&] {
        TS_ASSERT(scene != NULL, "user_scene", 57);
        return reinterpret_cast<HWND>(ts::forward(TSM_GET_HWND, ts::sceneArgument(scene), 0));
    });
}

HGLRC smGetHGLRC(cScene* scene) {
    return ts::guarded("smGetHGLRC", [&] {
        TS_ASSERT(scene != NULL, "user_scene", 66);
        return reinterpret_cast<HGLRC>(ts::forward(TSM_GET_HGLRC, ts::sceneArgument(scene), 0));
    });
}

}  // extern "C"
