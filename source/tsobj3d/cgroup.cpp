// List algorithms of cGroup. Their asymmetries (reverse order of runs inserted inside
// the list, the unremovable first node, the count that removal does not lower) are
// what applications of this library have always seen, so they stay.
#include "tsobj3d/cgroup.h"

#include "tsobj3d/draw_context.h"

cGroup::cGroup(cGroup* parentGroup) : cNode(kClassCode), parent(parentGroup) {}

cGroup::~cGroup() { clear(); }

void cGroup::draw(ts::DrawContext& context) {
    // A local cursor, so that a group drawn again through a use node inside its own
    // walk does not lose its place.
    for (cNode* child = head; child != nullptr; child = child->next) {
        if (child->is3D()) context.loadName(*child);
        child->draw(context);
    }
}

int cGroup::add(cNode* n, SceneContentFlags flags) {
    if (tail == nullptr) {
        head = tail = current = n;
        // The content flags are only raised when a node enters an empty group.
        if (n->type < kClass2DLimit) *flags.has3D = 1;
        if (n->type > kClass2DLimit) *flags.has2D = 1;
    } else if (current == tail) {
        tail->next = n;
        current = n;
        tail = n;
    } else {
        n->next = current->next;
        current->next = n;
    }
    if (insertAfter == 0) current = tail;
    ++count;
    return 1;
}

cNode* cGroup::remove(cNode* n) {
    if (head == nullptr) return nullptr;
    iterator = head;
    while (iterator->next != nullptr && iterator->next != n) iterator = iterator->next;
    if (iterator->next == n) {
        if (n == tail) tail = iterator;
        if (n == current) current = iterator;
        iterator->next = n->next;
        delete n;
        return iterator->next;
    }
    if (iterator == n) {
        delete n;
        head = tail = current = nullptr;
        insertAfter = 0;
        count = 0;
    }
    return nullptr;
}

void cGroup::clear() {
    iterator = head;
    while (iterator != nullptr) {
        cNode* doomed = iterator;
        iterator = iterator->next;
        delete doomed;
    }
    head = tail = current = nullptr;
    insertAfter = 0;
    count = 0;
}

void cGroup::setInsertionPoint(cNode* n, int insertAfterMode) {
    current = n;
    insertAfter = insertAfterMode;
}
