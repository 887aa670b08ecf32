// The scene of the screenshot test: one node of every geometry, attribute and transform
// class, drawn under a fixed camera and light.
#pragma once

#include <memory>

class cGroup;

namespace ts {
class DrawContext;
}

namespace tst {

// The node list: one of each class, in a root group that owns them.
std::unique_ptr<cGroup> buildNodesScene();

// Sets the camera, the light and the modes, clears, and draws root through context into
// the current GL context of a square window of size pixels.
void drawNodesScene(cGroup& root, int size, ts::DrawContext& context);

}  // namespace tst
