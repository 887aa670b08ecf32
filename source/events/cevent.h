// The per-scene input event list: a stack of at most `limit` events, newest first.
#pragma once

#include <cstdint>

struct cEvent {
    int32_t type;      // window-message number of the input
    uintptr_t wParam;  // as received
    intptr_t lParam;   // as received
    cEvent* next;      // next older event
};

class cEventList {
public:
    static constexpr int32_t kClearRequest = 0x303;  // WM_CLEAR: empties the list

    cEventList() = default;
    ~cEventList();
    cEventList(const cEventList&) = delete;
    cEventList& operator=(const cEventList&) = delete;

    // Pushes a new newest event; beyond the limit the oldest one is dropped.
    void Add(int32_t type, uintptr_t wParam, intptr_t lParam);
    // 1 if an event of `type` (any event for 0) is queued.
    int Exists(int32_t type) const;
    // Takes the newest event of `type` (any for 0) into `taken` and returns its
    // address; null if none. Type 0x303 empties the list and returns null.
    const void* Get(int32_t type);
    void Clear();

    cEvent* head = nullptr;
    int32_t count = 0;
    int32_t limit = 20;
    // Copy of the last event taken as three 32-bit values type, wParam, lParam, which
    // is what swGetEvent hands out on every platform (the inputs queued carry key
    // codes, command identifiers and packed client positions, all 32-bit).
    struct Taken {
        int32_t type;
        uint32_t wParam;
        int32_t lParam;
    } taken = {0, 0, 0};
};
