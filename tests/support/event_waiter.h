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
// An input fed while the waiter is between its release and the end of its call releases
// the wait once more, so the next wait may return at once with the record of an earlier
// input. With `accept`, the waiter waits again until the record is one it accepts.
template <class Feed, class Accept>
bool waitWhileFeeding(int mask, int filter, swEventRecord& record, Feed feed, Accept accept, DWORD limitMs = 20000) {
    struct Shared {
        std::atomic<bool> done{false};
        swEventRecord record = {};
        HANDLE released = CreateEventA(nullptr, TRUE, FALSE, nullptr);
        ~Shared() { CloseHandle(released); }
    };
    auto shared = std::make_shared<Shared>();
    std::thread waiter([shared, mask, filter, accept] {
        do {
            shared->record = swWaitForEvent(mask, filter);
        } while (!accept(shared->record));
        shared->done = true;
        SetEvent(shared->released);
    });
    // Each input is given time to release the waiter before the next is fed, so that a
    // second input rarely lands while the waiter is on its way out.
    const DWORD start = GetTickCount();
    while (!shared->done && GetTickCount() - start < limitMs) {
        feed();
        WaitForSingleObject(shared->released, 100);
    }
    if (!shared->done) {
        waiter.detach();
        return false;
    }
    waiter.join();
    record = shared->record;
    return true;
}

template <class Feed>
bool waitWhileFeeding(int mask, int filter, swEventRecord& record, Feed feed, DWORD limitMs = 20000) {
    return waitWhileFeeding(mask, filter, record, feed, [](const swEventRecord&) { return true; }, limitMs);
}

}  // namespace tst
