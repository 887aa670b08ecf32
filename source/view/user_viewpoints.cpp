// Exported viewpoint calls: requests to the scene thread, or direct on the current
// scene when none runs.
#include <windows.h>

#include "guard/guard.h"
#include "requests/requests.h"
#include "tessarin.h"

extern "C" {

int smViewpointAdd(char* name, smViewpointRecord* viewpoint) {
    return ts::guarded("smViewpointAdd", [&] {
        return static_cast<int>(ts::forward(TSM_VIEWPOINT_ADD, reinterpret_cast<WPARAM>(viewpoint),
                                            reinterpret_cast<LPARAM>(name)));
    });
}

int smViewpointDel(char* name) {
    return ts::guarded("smViewpointDel", [&] {
        return static_cast<int>(ts::forward(TSM_VIEWPOINT_DEL, reinterpret_cast<WPARAM>(name), 0));
    });
}

int smViewpointSet(char* name) {
    ts::probe(name, "smViewpointSet(name)");
    return ts::guarded("smViewpointSet", [&] {
        return static_cast<int>(ts::forward(TSM_VIEWPOINT_SET, reinterpret_cast<WPARAM>(name), 0));
    });
}

}  // extern "C"
