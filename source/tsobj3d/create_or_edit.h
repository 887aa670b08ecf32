// The create-or-edit pattern shared by every node constructor with a node argument:
// null makes and adds a new node, a handle of the same class is edited in place, a
// handle of another class gives null and changes nothing.
#pragma once

#include <new>
#include <utility>

#include "tsobj3d/cnode.h"

namespace ts {

// Adds a freshly made node of class code `classCode` to the current scene's 3D or 2D
// list through the guarded export, so that a failed allocation (null) is reported by
// that export's pointer probe.
void addNewNode(cNode* node, int classCode);

// NodeClass needs a default constructor, kClassCode and set(args...), the routine
// that both construction and editing use.
template <class NodeClass, class... Args>
cNode* createOrEdit(cNode* handle, Args&&... args) {
    if (handle == nullptr) {
        NodeClass* node = new (std::nothrow) NodeClass();
        if (node != nullptr) node->set(std::forward<Args>(args)...);
        addNewNode(node, NodeClass::kClassCode);
        return node;
    }
    if (handle->type != NodeClass::kClassCode) return nullptr;
    static_cast<NodeClass*>(handle)->set(std::forward<Args>(args)...);
    return handle;
}

}  // namespace ts
