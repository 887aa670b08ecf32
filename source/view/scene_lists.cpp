// Scene-side handlers of the node-list requests: they act on the current group of
// the current scene.
#include <windows.h>
#include <GL/gl.h>

#include "guard/guard.h"
#include "library/globals.h"
#include "requests/request_handlers.h"
#include "tsobj3d/cgroup.h"
#include "view/navigation/scene_cursor.h"
#include "view/pass/pass.h"
#include "view/pass/scene_draw_context.h"
#include "view/pass/scene_gl.h"
#include "view/scene/cscene.h"

namespace ts {
namespace {

// Nodes that own display lists (meshes) delete them in the context current when they
// are destroyed: make it the scene's, since one thread serves several scenes.
void makeContextCurrentForRemoval(cScene* scene) {
    if (scene->glrc != nullptr) makeSceneCurrent(scene);
}

cScene* sceneForAdd() {
    // Adding before any scene exists is the caller's error; it ends the process.
    probe(CURRENT_SCENE, kNoCurrentScene);
    return CURRENT_SCENE;
}

}  // namespace

LRESULT onAddNode(WPARAM node, LPARAM) {
    cScene* scene = sceneForAdd();
    return scene->currentGroup->add(reinterpret_cast<cNode*>(node), {&scene->has3D, &scene->has2D});
}

LRESULT onAddNode2D(WPARAM node, LPARAM) {
    cScene* scene = sceneForAdd();
    return scene->list2D->add(reinterpret_cast<cNode*>(node), {&scene->has3D, &scene->has2D});
}

LRESULT onDelNode(WPARAM node, LPARAM) {
    makeContextCurrentForRemoval(CURRENT_SCENE);
    return reinterpret_cast<LRESULT>(CURRENT_SCENE->currentGroup->remove(reinterpret_cast<cNode*>(node)));
}

LRESULT onInsertAfter(WPARAM node, LPARAM insertAfter) {
    CURRENT_SCENE->currentGroup->setInsertionPoint(reinterpret_cast<cNode*>(node), static_cast<int>(insertAfter));
    return 1;
}

LRESULT onClearScene(WPARAM, LPARAM) {
    cScene* scene = CURRENT_SCENE;
    makeContextCurrentForRemoval(scene);
    scene->currentGroup->clear();
    scene->has3D = 0;
    updateSceneCursor(scene);
    renderScene(scene);
    return 1;
}

LRESULT onDelNode2D(WPARAM node, LPARAM) {
    return reinterpret_cast<LRESULT>(CURRENT_SCENE->list2D->remove(reinterpret_cast<cNode*>(node)));
}

LRESULT onInsertAfter2D(WPARAM node, LPARAM insertAfter) {
    CURRENT_SCENE->list2D->setInsertionPoint(reinterpret_cast<cNode*>(node), static_cast<int>(insertAfter));
    return 1;
}

LRESULT onClearScene2D(WPARAM, LPARAM) {
    cScene* scene = CURRENT_SCENE;
    scene->list2D->clear();
    MoveToEx(scene->dc, 0, 0, nullptr);
    scene->currentPos2D[0] = scene->currentPos2D[1] = 0;
    scene->has2D = 0;
    renderScene(scene);
    return 1;
}

LRESULT onRelToPos2D(WPARAM flag, LPARAM) {
    CURRENT_SCENE->relToPos2D = static_cast<int>(flag);
    return static_cast<LRESULT>(flag);
}

LRESULT onUseDisplayList(WPARAM listName, LPARAM) {
    cScene* scene = CURRENT_SCENE;
    makeSceneCurrent(scene);
    const GLuint name = static_cast<GLuint>(listName);
    glDeleteLists(name, 1);
    glNewList(name, GL_COMPILE);
    SceneDrawContext context(*scene);
    scene->currentGroup->draw(context);
    glEndList();
    scene->useDisplayList = 1;
    renderScene(scene);
    return 0;
}

}  // namespace ts
