// The window/scene registry: which scene is drawn in which system window.
#pragma once

#include <windows.h>

class cScene;

struct cSPWH {
    cScene* sp = nullptr;
    HWND wh = nullptr;
    cSPWH* next = nullptr;
};

class cSPWHList {
public:
    cSPWHList() = default;
    ~cSPWHList();
    cSPWHList(const cSPWHList&) = delete;
    cSPWHList& operator=(const cSPWHList&) = delete;

    void Insert(cSPWH* SPToInsert);
    // 1 and current set to the first entry of the window, or 0 with current unchanged.
    int Find(const HWND& HWNDtoFind);
    // Removing the head frees only the entry; removing any other entry also destroys
    // its scene. Kept as it always was, except that a removed tail no longer stays
    // behind as the tail.
    void DeleteCurrent();
    // Diagnostic: prints every entry and waits for a key on the console.
    void Dump() const;

    cSPWH* head = nullptr;
    cSPWH* tail = nullptr;
    cSPWH* current = nullptr;
};

namespace ts {
cSPWHList& sceneRegistry();
}
