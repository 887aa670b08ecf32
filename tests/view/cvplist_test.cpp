// The viewpoint list: numbering that is not renumbered, look-up, deletion and the
// current entry, and the caller's record.
#include <gtest/gtest.h>

#include <cstring>
#include <string>

#include "view/scene/cvplist.h"

namespace {

cViewpoint* named(const char* name) {
    auto* vp = new cViewpoint;
    vp->setName(name);
    return vp;
}

}  // namespace

TEST(VPList, IdsCountTheListBeforeAndBecomeCurrent) {
    cVPList list;
    EXPECT_EQ(list.append(named("a")), 20200u);
    EXPECT_EQ(list.append(named("b")), 20201u);
    EXPECT_EQ(list.append(named("c")), 20202u);
    EXPECT_STREQ(list.current->name, "c");
    EXPECT_EQ(list.size(), 3u);
}

TEST(VPList, IdsAreNotRenumberedAfterADelete) {
    cVPList list;
    list.append(named("a"));
    list.append(named("b"));
    list.append(named("c"));
    list.current = list.findByName("a");
    EXPECT_EQ(list.deleteCurrent(), 20200u);
    EXPECT_STREQ(list.current->name, "b");  // the successor of a first entry
    EXPECT_EQ(list.append(named("d")), 20202u);
    EXPECT_STREQ(list.findById(20202)->name, "c");  // the first with that id
}

TEST(VPList, DeletingMakesThePredecessorCurrentAndKeepsTheTail) {
    cVPList list;
    list.append(named("a"));
    list.append(named("b"));
    list.append(named("c"));
    EXPECT_EQ(list.deleteCurrent(), 20202u);
    EXPECT_STREQ(list.current->name, "b");
    EXPECT_STREQ(list.last->name, "b");
    list.current = list.findByName("b");
    list.deleteCurrent();
    EXPECT_STREQ(list.current->name, "a");
    EXPECT_EQ(list.last, list.first);
    list.deleteCurrent();
    EXPECT_EQ(list.first, nullptr);
    EXPECT_EQ(list.last, nullptr);
    EXPECT_EQ(list.current, nullptr);
    EXPECT_EQ(list.deleteCurrent(), 0u);
    EXPECT_EQ(list.append(named("again")), 20200u);
}

TEST(VPList, NamesCompareExactlyAndTheFirstMatchWins) {
    cVPList list;
    cViewpoint* first = named("Top");
    list.append(first);
    list.append(named("top"));
    list.append(named("Top"));
    EXPECT_EQ(list.findByName("Top"), first);
    EXPECT_STREQ(list.findByName("top")->name, "top");
    EXPECT_EQ(list.findByName("TOP"), nullptr);
}

TEST(VPList, RecordsAreCopiedWholeAndLongNamesCut) {
    ViewpointRecord record = {};
    std::memset(record.name, 'n', sizeof(record.name));  // no terminator at all
    record.pos[2] = 7.0f;
    record.axis[1] = 1.0f;
    record.rotAngle = 30.0f;
    record.viewAngle = 60.0;
    cViewpoint vp;
    vp.assign(record);
    EXPECT_EQ(std::string(vp.name), std::string(63, 'n'));
    EXPECT_EQ(vp.pos[2], 7.0f);
    EXPECT_EQ(vp.axis[1], 1.0f);
    EXPECT_EQ(vp.rotAngle, 30.0f);
    EXPECT_EQ(vp.viewAngle, 60.0);
}
