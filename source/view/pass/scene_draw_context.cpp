// The drawing context over a scene: its modes, its GL selection and list names, the
// switches of the current scene, and its 2D state.
#include "view/pass/scene_draw_context.h"

#include <windows.h>
#include <GL/gl.h>

#include "library/globals.h"
#include "tsobj3d/cnode.h"
#include "view/scene/cscene.h"

namespace ts {

int SceneDrawContext::shadeMode() const { return scene_.shade_mode; }

bool SceneDrawContext::picking() const { return scene_.renderMode == GL_SELECT; }

void SceneDrawContext::loadName(const cNode& node) {
    if (!picking()) return;
    glLoadName(node.glName());
    ++names_;
}

uint32_t SceneDrawContext::listName(const cNode& node) const { return node.ownListName(); }

bool SceneDrawContext::hasFontLists(uint32_t base) const { return base != 0 && glIsList(base) == GL_TRUE; }

int* SceneDrawContext::currentSceneSwitch(int number) {
    return CURRENT_SCENE != nullptr ? CURRENT_SCENE->switchField(number) : nullptr;
}

const State2D& SceneDrawContext::state2D() {
    if (state2DRead_) return state2D_;
    State2D& state = state2D_;
    state.dc = scene_.dc;
    state.currentPos2D = scene_.currentPos2D;
    state.relToPos2D = scene_.relToPos2D;
    state.initDraw2D = scene_.initDraw2D;
    state.pen = &scene_.pen2D;
    state.brush = &scene_.brush2D;
    state.font = &scene_.font2D;
    state.backColor = scene_.backColor2D;
    state.backMode = &scene_.backMode2D;
    state.foreMix = &scene_.foreMix2D;
    RECT client = {};
    GetClientRect(scene_.window, &client);
    state.clientWidth = client.right;
    state.clientHeight = client.bottom;
    state2DRead_ = true;
    return state2D_;
}

}  // namespace ts
