// cGroup: an ordered list of owned child nodes, and the add, remove and clear
// operations that the node-list calls of both the 3D and the 2D lists share.
#pragma once

#include "tsobj3d/cnode.h"

// The scene flags that an add into an empty group sets.
struct SceneContentFlags {
    int* has3D;
    int* has2D;
};

class cGroup : public cNode {
public:
    static constexpr int32_t kClassCode = 1007;

    explicit cGroup(cGroup* parentGroup);
    ~cGroup() override;

    // Draws the children in list order; before each 3D child the context loads that
    // child's selection name, so that a picking hit names the innermost node drawn.
    void draw(ts::DrawContext& context) override;
    void hook() override {}

    // Places n by the insertion rules (append, or behind `current` in insert-after
    // mode); into an empty group it also marks the scene as holding 3D or 2D content.
    int add(cNode* n, SceneContentFlags flags);
    // Unlinks and destroys n. The first node of a list of two or more cannot be
    // removed (nothing links to it); callers rely on that. Returns the node that now
    // follows n's predecessor, or null.
    cNode* remove(cNode* n);
    // Destroys every child in list order and empties the group.
    void clear();
    void setInsertionPoint(cNode* n, int insertAfterMode);

    uint32_t count = 0;        // nodes added since the group was last emptied
    cNode* head = nullptr;
    cNode* tail = nullptr;
    cNode* current = nullptr;  // insertion point
    int32_t insertAfter = 0;   // insertion mode of smInsertAfter
    cNode* iterator = nullptr; // walk cursor of draw, remove and clear
    cGroup* parent;            // group that was current when this one was made
};
