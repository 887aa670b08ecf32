// Exported event calls: polling the current scene's event list (requests answered by
// the scene, view/event_requests.cpp), and waiting on the library-wide event record.
#include "events/event_wait.h"
#include "guard/guard.h"
#include "guard/msgbox.h"
#include "library/globals.h"
#include "requests/requests.h"
#include "tessarin.h"

extern "C" {

int swEventExists(int type) {
    if (THREAD_ACTIVE == 0) {
        ts::errorBox(ts::kNotInitialized);
        return 0;
    }
    return static_cast<int>(SendMessageA(hDummy, TSM_EVENT_EXISTS, static_cast<WPARAM>(type), 0));
}

int* swGetEvent(int type) {
    if (THREAD_ACTIVE == 0) {
        ts::errorBox(ts::kNotInitialized);
        return nullptr;
    }
    return reinterpret_cast<int*>(SendMessageA(hDummy, TSM_GET_EVENT, static_cast<WPARAM>(type), 0));
}

swEventRecord swWaitForEvent(int mask, int filter) {
    if (THREAD_ACTIVE != 0) {
        ts::waitFilter() = filter;
        ts::waitMask() = mask;
        WaitForSingleObject(hSyncEvent, INFINITE);
        ts::waitMask() = 0;
    } else {
        ts::errorBox(ts::kNotInitialized);
    }
    return ts::eventRecord();
}

}  // extern "C"
