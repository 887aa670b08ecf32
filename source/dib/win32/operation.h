// Running a core operation on a caller's handle: lock it, work in global-memory
// blocks, hand the result over unlocked.
#pragma once

#include "dib/win32/global_host.h"

namespace ts::dib {

inline HGLOBAL runOperation(HGLOBAL hDIB, OwnedBlock (*operation)(Host&, Source)) {
    GlobalHost host;
    LockedDib dib(hDIB);
    return handOver(operation(host, dib.source()));
}

// The fixed-palette reductions diffuse into the block they are given.
inline HGLOBAL runInPlace(HGLOBAL hDIB, OwnedBlock (*operation)(Host&, Block)) {
    GlobalHost host;
    LockedDib dib(hDIB);
    return handOver(operation(host, dib.block()));
}

}  // namespace ts::dib
