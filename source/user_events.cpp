// Exported event calls: polling the current scene's event list, and waiting on the
// library-wide event record.
#include "event_wait.h"
#include "globals.h"
#include "msgbox.h"
#include "guard.h"
#include "request_handlers.h"
#include "requests.h"
#include "tessarin.h"
#include "view/cscene.h"

namespace ts {

LRESULT onGetEvent(WPARAM type, LPARAM) {
    return reinterpret_cast<LRESULT>(CURRENT_SCENE->events.Get(static_cast<int32_t>(type)));
}

LRESULT onEventExists(WPARAM type, LPARAM) { return CURRENT_SCENE->events.Exists(static_cast<int32_t>(type)); }

}  // namespace ts

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
