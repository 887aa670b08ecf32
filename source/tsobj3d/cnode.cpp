// cNode construction, destruction and selection names.
#include "tsobj3d/cnode.h"

#include "tsobj3d/nodenames.h"

#if UINTPTR_MAX > 0xFFFFFFFFu
cNode::cNode(int32_t classCode) : type(classCode), next(nullptr), name_(ts::acquireNodeName(this)) {}
cNode::~cNode() { ts::releaseNodeName(name_); }
uint32_t cNode::glName() const { return name_; }
uint32_t cNode::ownListName() const { return name_ | 0x80000000u; }
#else
cNode::cNode(int32_t classCode) : type(classCode), next(nullptr) {}
cNode::~cNode() = default;
uint32_t cNode::glName() const { return static_cast<uint32_t>(reinterpret_cast<uintptr_t>(this)); }
uint32_t cNode::ownListName() const { return glName(); }
#endif
