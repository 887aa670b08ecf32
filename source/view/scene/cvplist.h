// cVPList: a scene's ordered viewpoints. Identifiers count the list at the time of
// adding and are not renumbered on deletion, so two entries may share one.
#pragma once

#include "view/scene/cviewpoint.h"

class cVPList {
public:
    static constexpr unsigned kFirstId = 20200;

    cVPList() = default;
    ~cVPList();
    cVPList(const cVPList&) = delete;
    cVPList& operator=(const cVPList&) = delete;

    // Appends vp (owned from now on) with id kFirstId + the number of viewpoints before
    // it, and makes it current. Returns that id.
    unsigned append(cViewpoint* vp);
    // First viewpoint with exactly this name (case-sensitive), or null.
    cViewpoint* findByName(const char* name) const;
    // First viewpoint with this id, or null.
    cViewpoint* findById(unsigned id) const;
    // Unlinks and frees the current viewpoint; its predecessor becomes current, or its
    // successor when it was the first. Returns the freed one's id, 0 when empty.
    unsigned deleteCurrent();
    unsigned size() const;

    cViewpoint* first = nullptr;
    cViewpoint* last = nullptr;
    cViewpoint* current = nullptr;
};
