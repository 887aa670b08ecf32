// cSelectObject2D: what the pen, brush and font nodes share: one GDI object of the
// caller's, selected into the scene's device context when the node is drawn.
#pragma once

#include "cobj_2d/node2d.h"
#include "platform/handles.h"

class cSelectObject2D : public cNode {
public:
    void draw(ts::DrawContext& context) override;
    void hook() override {}

    HGDIOBJ object = nullptr;  // the caller's object: the node never deletes it

protected:
    explicit cSelectObject2D(int32_t classCode) : cNode(classCode) {}
    // Stores the object, records it as the current scene's pen, brush or font (slot)
    // and draws at once when the scene asks for it.
    void setObject(ts::DrawContext* current, HGDIOBJ newObject, HGDIOBJ* ts::State2D::*slot);
};
