// Exported constructors of the structural nodes: groups and use nodes.
#include "guard/guard.h"
#include "library/globals.h"
#include "tessarin.h"
#include "tsobj3d/cgroup.h"
#include "tsobj3d/create_or_edit.h"
#include "tsobj3d/visible/cuse3d.h"
#include "view/scene/cscene.h"

namespace ts {

void addNewNode(cNode* node, int classCode) {
    if (classCode > cNode::kClass2DLimit) {
        smAddNode2D(node);
    } else {
        smAddNode(node);
    }
}

}  // namespace ts

extern "C" {

cNode* snGroup(void) {
    return ts::guarded("snGroup", [] {
        // Without a scene the add below reports the missing scene.
        cGroup* parent = CURRENT_SCENE != nullptr ? CURRENT_SCENE->currentGroup : nullptr;
        cGroup* group = new (std::nothrow) cGroup(parent);
        smAddNode(group);
        CURRENT_SCENE->currentGroup = group;
        return static_cast<cNode*>(group);
    });
}

cNode* snUse(cNode* ParentNode) {
    ts::probe(ParentNode, "snUse(ParentNode)");
    return ts::guarded("snUse", [&] {
        cUse3D* use = new (std::nothrow) cUse3D(ParentNode);
        smAddNode(use);
        return static_cast<cNode*>(use);
    });
}

}  // extern "C"
