// Relative coordinates and drawing at once, shared by the 2D nodes.
#include "cobj_2d/node2d.h"

namespace ts {

Offset2D relativeOffset(DrawContext* current) {
    if (current == nullptr) return {};
    const State2D& state = current->state2D();
    if (state.relToPos2D == 0 || state.currentPos2D == nullptr) return {};
    return {state.currentPos2D[0], state.currentPos2D[1]};
}

void drawWhenSet(cNode& node, DrawContext* current) {
    if (current != nullptr && current->state2D().initDraw2D != 0) node.draw(*current);
}

State2D currentState(DrawContext* current) { return current != nullptr ? current->state2D() : State2D{}; }

}  // namespace ts
