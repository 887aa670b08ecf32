// A caller blocked in swWaitForEvent on a thread of its own while the test feeds input
// to a scene window. Header-only: it calls the library, so each test compiles it
// against the copy of the library it links.
#pragma once

#include <windows.h>

#include <atomic>
#include <memory>
#include <thread>

#include "tessarin.h"

namespace tst {

// Starts a waiter on swWaitForEvent(mask, filter), then calls feed() again and again
// until the wait returns: input that reaches the scene thread before the waiter has set
// its mask is not noted, so one input alone could be lost. Returns true with the record
// the wait handed back; false when nothing released it within limitMs (the waiter is
// then left blocked; the process ends it at exit).
template <class Feed>
bool waitWhileFeeding(int mask, int filter, swEventRecord& record, Feed feed, DWORD limitMs = 20000) {
    struct Shared {
        std::atomic<bool> done{false};
        swEventRecord record = {};
    };
    auto shared = std::make_shared<Shared>();
    std::thread waiter([shared, mask, filter] {
        shared->record = swWaitForEvent(mask, filter);
        shared->done = true;
    });
    const DWORD start = GetTickCount();
    while (!shared->done && GetTickCount() - start < limitMs) {
        feed();
        for (int spin = 0; spin < 50 && !shared->done; ++spin) SwitchToThread();
    }
    if (!shared->done) {
        waiter.detach();
        return false;
    }
    waiter.join();
    record = shared->record;
    return true;
}

}  // namespace tst
