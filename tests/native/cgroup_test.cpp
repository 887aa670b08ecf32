// The list algorithms of cGroup on their own, natively (also under sanitizers).
#include <gtest/gtest.h>

#include <vector>

#include "tsobj3d/cgroup.h"
#include "tsobj3d/draw_context.h"
#include "tsobj3d/nodenames.h"

namespace {

int destroyed = 0;

class Leaf : public cNode {
public:
    explicit Leaf(int32_t code = 1003) : cNode(code) {}
    ~Leaf() override { ++destroyed; }
    void draw(ts::DrawContext&) override { ++draws; }
    void hook() override {}
    int draws = 0;
};

std::vector<cNode*> order(const cGroup& g) {
    std::vector<cNode*> nodes;
    for (cNode* n = g.head; n != nullptr; n = n->next) nodes.push_back(n);
    return nodes;
}

// A drawing context that notes the nodes whose selection names it is asked to load.
class NamingContext final : public ts::DrawContext {
public:
    int shadeMode() const override { return 100000; }
    bool picking() const override { return true; }
    void loadName(const cNode& node) override { named.push_back(&node); }
    uint32_t listName(const cNode& node) const override { return node.glName(); }
    bool hasFontLists(uint32_t) const override { return false; }
    int* currentSceneSwitch(int) override { return nullptr; }
    const ts::State2D& state2D() override { return none_; }
    std::vector<const cNode*> named;

private:
    ts::State2D none_ = {};
};

struct Flags {
    int has3D = 0, has2D = 0;
    SceneContentFlags view() { return {&has3D, &has2D}; }
};

}  // namespace

TEST(Group, EmptyGroupAddSetsTheFlagOfItsKindOnly) {
    Flags f;
    cGroup g(nullptr);
    g.add(new Leaf(3005), f.view());
    EXPECT_EQ(f.has2D, 1);
    EXPECT_EQ(f.has3D, 0);
    f.has2D = 0;
    g.add(new Leaf(1003), f.view());
    EXPECT_EQ(f.has3D, 0);  // only an add into an empty group raises a flag
}

TEST(Group, RemoveOfTheFirstOfSeveralIsRefused) {
    Flags f;
    cGroup g(nullptr);
    Leaf* a = new Leaf;
    Leaf* b = new Leaf;
    g.add(a, f.view());
    g.add(b, f.view());
    destroyed = 0;
    EXPECT_EQ(g.remove(a), nullptr);
    EXPECT_EQ(destroyed, 0);
    EXPECT_EQ(order(g), (std::vector<cNode*>{a, b}));
}

TEST(Group, ClearDestroysNestedGroupsAndResets) {
    Flags f;
    cGroup g(nullptr);
    cGroup* inner = new cGroup(&g);
    g.add(inner, f.view());
    inner->add(new Leaf, f.view());
    inner->add(new Leaf, f.view());
    g.add(new Leaf, f.view());
    g.setInsertionPoint(inner, 1);
    destroyed = 0;
    g.clear();
    EXPECT_EQ(destroyed, 3);
    EXPECT_EQ(g.head, nullptr);
    EXPECT_EQ(g.count, 0u);
    EXPECT_EQ(g.insertAfter, 0);
}

TEST(Group, DrawVisitsChildrenInOrderAndNamesOnly3D) {
    Flags f;
    cGroup g(nullptr);
    Leaf* a = new Leaf(1003);
    Leaf* b = new Leaf(3005);
    g.add(a, f.view());
    g.add(b, f.view());
    NamingContext context;
    g.draw(context);
    EXPECT_EQ(a->draws, 1);
    EXPECT_EQ(b->draws, 1);
    EXPECT_EQ(context.named, (std::vector<const cNode*>{a}));
}

TEST(NodeNames, NamesAreUniqueNonZeroAndMapBack) {
    Leaf a, b;
    EXPECT_NE(a.glName(), 0u);
    EXPECT_NE(a.glName(), b.glName());
#if UINTPTR_MAX > 0xFFFFFFFFu
    EXPECT_EQ(ts::nodeFromName(a.glName()), &a);
    const uint32_t name = b.glName();
    { Leaf c; EXPECT_NE(c.glName(), name); }
#endif
}
