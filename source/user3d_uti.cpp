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

// --- the 2D list ----------------------------------------------------------------------

extern "C" {

void smAddNode2D(cNode* NodeToAdd) {
    ts::probe(NodeToAdd, "smAddNode2D(NodeToAdd)");
    ts::guarded("smAddNode2D", [&] { ts::forward(TSM_ADD_NODE_2D, reinterpret_cast<WPARAM>(NodeToAdd), 0); });
}

void smInsertAfter2D(cNode* NodeBefore, BOOL InsertAfter) {
    ts::probe(NodeBefore, "smInsertAfter2D(NodeBefore)");
    ts::guarded("smInsertAfter2D", [&] {
        ts::forward(TSM_INSERT_AFTER_2D, reinterpret_cast<WPARAM>(NodeBefore), InsertAfter);
    });
}

cNode* smDelNode2D(cNode* NodeToDelete) {
    ts::probe(NodeToDelete, "smDelNode2D(NodeToDelete)");
    return ts::guarded("smDelNode2D", [&] {
        return reinterpret_cast<cNode*>(ts::forward(TSM_DEL_NODE_2D, reinterpret_cast<WPARAM>(NodeToDelete), 0));
    });
}

int smClearScene2D(void) {
    return ts::guarded("smClearScene2D", [] { return static_cast<int>(ts::forward(TSM_CLEAR_SCENE_2D, 0, 0)); });
}

void smRelToPos2D(BOOL flag) {
    ts::guarded("smRelToPos2D", [&] { ts::forward(TSM_REL_TO_POS_2D, static_cast<WPARAM>(flag), 0); });
}

// --- fonts of the text nodes ------------------------------------------------------------

unsigned int smCreateFontBMP(HFONT font) {
    TS_ASSERT(font != NULL, "user3d_uti", 251);
    return ts::guarded("smCreateFontBMP", [&] {
        return static_cast<unsigned int>(ts::forward(TSM_CREATE_FONT_BMP, reinterpret_cast<WPARAM>(font), 0));
    });
}

smOutlineFontRecord* smCreateFontEXT(HFONT font, float deviation, float extrusion) {
    TS_ASSERT(font != NULL, "user3d_uti", 260);
    return ts::guarded("smCreateFontEXT", [&] {
        // The caller frees the record with GlobalFree; the nodes keep what they need of it.
        auto* record = static_cast<smOutlineFontRecord*>(GlobalAlloc(GPTR, sizeof(smOutlineFontRecord)));
        BOOL FontCreation = FALSE;
        if (record != nullptr) {
            record->deviation = deviation;
            record->extrusion = extrusion;
            FontCreation = ts::forward(TSM_CREATE_FONT_EXT, reinterpret_cast<WPARAM>(font),
                                       reinterpret_cast<LPARAM>(record)) == 1;
        }
        TS_ASSERT(FontCreation==TRUE, "user3d_uti", 268);
        return record;
    });
}

}  // extern "C"
