// Window/scene registry.
#include "registry/cspwhlist.h"

#include <conio.h>
#include <cstdio>

#include "guard/guard.h"
#include "view/pass/scene_gl.h"

cSPWHList::~cSPWHList() {
    while (head != nullptr) {
        current = head;
        DeleteCurrent();
    }
}

void cSPWHList::Insert(cSPWH* SPToInsert) {
    TS_ASSERT(SPToInsert != NULL, "cspwhlist", 25);
    if (head == nullptr) {
        head = tail = SPToInsert;
        SPToInsert->next = nullptr;
    } else {
        tail->next = SPToInsert;
        tail = SPToInsert;
    }
}

int cSPWHList::Find(const HWND& HWNDtoFind) {
    TS_ASSERT(HWNDtoFind != NULL, "cspwhlist", 37);
    for (cSPWH* entry = head; entry != nullptr; entry = entry->next) {
        if (entry->wh == HWNDtoFind) {
            current = entry;
            return 1;
        }
    }
    return 0;
}

void cSPWHList::DeleteCurrent() {
    if (head == nullptr || current == nullptr) return;
    if (current == head) {
        current = head->next;
        if (tail == head) tail = nullptr;  // the list is empty now; see below
        delete head;
        head = current;
        return;
    }
    cSPWH* before = head;
    while (before != nullptr && before->next != current) before = before->next;
    if (before == nullptr) return;  // current is not in the list: nothing to unlink
    before->next = current->next;
    // The tail is not moved by the removal itself; a removed tail would otherwise be
    // written through by the next insertion.
    if (tail == current) tail = before;
    ts::deleteScene(current->sp);
    delete current;
    current = before;
}

void cSPWHList::Dump() const {
    for (const cSPWH* entry = head; entry != nullptr; entry = entry->next) {
        printf("\nsp:%p wh:%p", static_cast<void*>(entry->sp), static_cast<void*>(entry->wh));
    }
    printf("\n");
    _getch();
}

namespace ts {
cSPWHList& sceneRegistry() {
    static cSPWHList registry;
    return registry;
}
}  // namespace ts
