// Scene-side handlers of the event requests: they read the current scene's event list.
#include "library/globals.h"
#include "requests/request_handlers.h"
#include "view/scene/cscene.h"

namespace ts {

LRESULT onGetEvent(WPARAM type, LPARAM) {
    return reinterpret_cast<LRESULT>(CURRENT_SCENE->events.Get(static_cast<int32_t>(type)));
}

LRESULT onEventExists(WPARAM type, LPARAM) { return CURRENT_SCENE->events.Exists(static_cast<int32_t>(type)); }

}  // namespace ts
