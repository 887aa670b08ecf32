// 32-bit selection names for nodes whose address does not fit one (64-bit builds).
#pragma once

#include <cstdint>

class cNode;

namespace ts {

// Gives node a name that no other living node has; never returns 0.
uint32_t acquireNodeName(cNode* node);
// Releases the name of a node being destroyed.
void releaseNodeName(uint32_t name);
// The living node carrying name, or null.
cNode* nodeFromName(uint32_t name);

}  // namespace ts
