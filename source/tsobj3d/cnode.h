// cNode: the base of every node class, and the class codes that tell nodes apart.
#pragma once

#include <cstdint>

namespace ts {
class DrawContext;
}

class cNode {
public:
    explicit cNode(int32_t classCode);
    virtual ~cNode();
    cNode(const cNode&) = delete;
    cNode& operator=(const cNode&) = delete;

    // Issues the node's drawing calls into the scene that context describes.
    virtual void draw(ts::DrawContext& context) = 0;
    // Every node class defines this as doing nothing; the slot is kept so that the
    // virtual table has the same shape in every class.
    virtual void hook() = 0;

    int32_t type;   // class code, set once by the constructor
    cNode* next;    // following sibling in the owning group, null at the end

    // 32-bit selection name: the address on Win32, a table entry on Win64.
    uint32_t glName() const;
    // Name of the node's own display list (meshes): the address on Win32; on Win64 the
    // selection name with the top bit set, clear of the scenes' own list names.
    uint32_t ownListName() const;

    bool is3D() const { return type < kClass2DLimit; }
    bool is2D() const { return type > kClass2DLimit; }

    static constexpr int32_t kClass2DLimit = 3000;

private:
#if UINTPTR_MAX > 0xFFFFFFFFu
    uint32_t name_;
#endif
};
