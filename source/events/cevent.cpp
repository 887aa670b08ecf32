// Event list operations.
#include "events/cevent.h"

#include <new>

cEventList::~cEventList() { Clear(); }

void cEventList::Add(int32_t type, uintptr_t wParam, intptr_t lParam) {
    cEvent* event = new (std::nothrow) cEvent{type, wParam, lParam, head};
    if (event == nullptr) return;  // the event is lost, nothing else changes
    head = event;
    if (++count <= limit) return;
    cEvent* before = head;
    while (before->next->next != nullptr) before = before->next;
    delete before->next;
    before->next = nullptr;
    --count;
}

int cEventList::Exists(int32_t type) const {
    for (const cEvent* e = head; e != nullptr; e = e->next) {
        if (type == 0 || e->type == type) return 1;
    }
    return 0;
}

const void* cEventList::Get(int32_t type) {
    if (type == kClearRequest) {
        Clear();
        return nullptr;
    }
    cEvent** link = &head;
    while (*link != nullptr && type != 0 && (*link)->type != type) link = &(*link)->next;
    cEvent* found = *link;
    if (found == nullptr) return nullptr;
    taken = {found->type, static_cast<uint32_t>(found->wParam), static_cast<int32_t>(found->lParam)};
    *link = found->next;
    delete found;
    --count;
    return &taken;
}

void cEventList::Clear() {
    while (head != nullptr) {
        cEvent* doomed = head;
        head = head->next;
        delete doomed;
    }
    count = 0;
}
