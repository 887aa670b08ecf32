// The request table: one entry per request number, shared by the scene thread's
// window procedure and the direct path.
#include "requests.h"

#include <iterator>

#include "globals.h"
#include "request_handlers.h"

namespace ts {
namespace {

struct RequestEntry {
    UINT message;
    RequestHandler handler;
};

constexpr RequestEntry kRequests[] = {
    {TSM_ADD_NODE_2D, onAddNode2D},
    {TSM_ADD_NODE, onAddNode},
    {TSM_DEL_NODE, onDelNode},
    {TSM_INSERT_AFTER, onInsertAfter},
    {TSM_CLEAR_SCENE, onClearScene},
    {TSM_USE_DISPLAY_LIST, onUseDisplayList},
};

}  // namespace

RequestHandler requestHandler(UINT message) {
    for (const RequestEntry& entry : kRequests) {
        if (entry.message == message) return entry.handler;
    }
    return nullptr;
}

LRESULT forward(UINT message, WPARAM wParam, LPARAM lParam) {
    if (THREAD_ACTIVE != 0) return SendMessageA(hDummy, message, wParam, lParam);
    RequestHandler handler = requestHandler(message);
    return handler != nullptr ? handler(wParam, lParam) : 0;
}

}  // namespace ts
