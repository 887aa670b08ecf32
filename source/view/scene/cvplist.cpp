// Viewpoints and their list: copying a caller's record, numbering, look-up, deletion.
#include "view/scene/cvplist.h"

#include <cstring>

void cViewpoint::setName(const char* text) {
    const size_t n = strnlen(text, sizeof(name) - 1);
    std::memcpy(name, text, n);
    name[n] = '\0';
}

void cViewpoint::assign(const ViewpointRecord& record) {
    // The record's name may be unterminated within its 100 characters.
    char copy[sizeof(name)] = {};
    std::memcpy(copy, record.name, sizeof(copy) - 1);
    setName(copy);
    std::memcpy(pos, record.pos, sizeof(pos));
    std::memcpy(axis, record.axis, sizeof(axis));
    rotAngle = record.rotAngle;
    viewAngle = record.viewAngle;
}

cVPList::~cVPList() {
    while (first != nullptr) {
        cViewpoint* doomed = first;
        first = first->next;
        delete doomed;
    }
}

unsigned cVPList::size() const {
    unsigned n = 0;
    for (const cViewpoint* vp = first; vp != nullptr; vp = vp->next) ++n;
    return n;
}

unsigned cVPList::append(cViewpoint* vp) {
    vp->id = kFirstId + size();
    vp->next = nullptr;
    if (last == nullptr) {
        first = vp;
    } else {
        last->next = vp;
    }
    last = current = vp;
    return vp->id;
}

cViewpoint* cVPList::findByName(const char* name) const {
    for (cViewpoint* vp = first; vp != nullptr; vp = vp->next) {
        if (std::strcmp(vp->name, name) == 0) return vp;
    }
    return nullptr;
}

cViewpoint* cVPList::findById(unsigned id) const {
    for (cViewpoint* vp = first; vp != nullptr; vp = vp->next) {
        if (vp->id == id) return vp;
    }
    return nullptr;
}

unsigned cVPList::deleteCurrent() {
    if (current == nullptr) return 0;
    cViewpoint* doomed = current;
    cViewpoint* before = nullptr;
    for (cViewpoint* vp = first; vp != doomed; vp = vp->next) before = vp;
    if (before == nullptr) {
        first = doomed->next;
        current = first;
    } else {
        before->next = doomed->next;
        current = before;
    }
    if (last == doomed) last = before;
    const unsigned id = doomed->id;
    delete doomed;
    return id;
}
