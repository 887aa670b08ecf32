// Exported node-list calls of the scene manager.
#include <windows.h>

#include "guard/guard.h"
#include "library/globals.h"
#include "requests/requests.h"
#include "tessarin.h"
#include "tsobj3d/cgroup.h"
#include "tsobj3d/nodenames.h"
#include "view/scene/cscene.h"

extern "C" {

void smAddNode(cNode* NodeToAdd) {
    ts::probe(NodeToAdd, "smAddNode(NodeToAdd)");
    ts::guarded("smAddNode", [&] { ts::forward(TSM_ADD_NODE, reinterpret_cast<WPARAM>(NodeToAdd), 0); });
}

void smInsertAfter(cNode* Node, BOOL InsertAfter) {
    ts::guarded("smInsertAfter", [&] { ts::forward(TSM_INSERT_AFTER, reinterpret_cast<WPARAM>(Node), InsertAfter); });
}

cNode* smDelNode(cNode* Node) {
    return ts::guarded("smDelNode", [&] {
        return reinterpret_cast<cNode*>(ts::forward(TSM_DEL_NODE, reinterpret_cast<WPARAM>(Node), 0));
    });
}

int smClearScene(void) {
    return ts::guarded("smClearScene", [] { return static_cast<int>(ts::forward(TSM_CLEAR_SCENE, 0, 0)); });
}

void smGroupEnd(void) {
    ts::guarded("smGroupEnd", [] {
        cScene* scene = CURRENT_SCENE;
        if (scene->currentGroup != scene->list3D) scene->currentGroup = scene->currentGroup->parent;
    });
}

int smUseDisplayList(void) {
    return ts::guarded("smUseDisplayList", [] {
        return static_cast<int>(ts::forward(TSM_USE_DISPLAY_LIST, CURRENT_SCENE->displayList, 0));
    });
}

cNode* tsNodeFromName(unsigned int name) {
#ifdef _WIN64
    return ts::nodeFromName(name);
#else
    return reinterpret_cast<cNode*>(static_cast<uintptr_t>(name));
#endif
}

}  // extern "C"

extern "C" void smAddNode2D(cNode* NodeToAdd) {
    ts::probe(NodeToAdd, "smAddNode2D(NodeToAdd)");
    ts::guarded("smAddNode2D", [&] { ts::forward(TSM_ADD_NODE_2D, reinterpret_cast<WPARAM>(NodeToAdd), 0); });
}
