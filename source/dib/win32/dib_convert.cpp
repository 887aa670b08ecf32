// The exported conversions, reductions and image operations: each locks the caller's
// handle, runs the core operation with global-memory blocks and hands the result over.
#include "dib/core/depth_convert.h"
#include "dib/core/image_ops.h"
#include "dib/core/reduce.h"
#include "dib/win32/global_host.h"
#include "dib/win32/operation.h"
#include "tessarin.h"

extern "C" {

HGLOBAL dib1To4(HGLOBAL hDIB) { return ts::dib::runOperation(hDIB, ts::dib::dib1To4); }
HGLOBAL dib4To8(HGLOBAL hDIB) { return ts::dib::runOperation(hDIB, ts::dib::dib4To8); }
HGLOBAL dib8To24(HGLOBAL hDIB) { return ts::dib::runOperation(hDIB, ts::dib::dib8To24); }
HGLOBAL dib16To24(HGLOBAL hDIB) { return ts::dib::runOperation(hDIB, ts::dib::dib16To24); }
HGLOBAL dib32To24(HGLOBAL hDIB) { return ts::dib::runOperation(hDIB, ts::dib::dib32To24); }
HGLOBAL dib1To24(HGLOBAL hDIB) { return ts::dib::runOperation(hDIB, ts::dib::dib1To24); }
HGLOBAL dib4To24(HGLOBAL hDIB) { return ts::dib::runOperation(hDIB, ts::dib::dib4To24); }
HGLOBAL dib24To1(HGLOBAL hDIB) { return ts::dib::runOperation(hDIB, ts::dib::dib24To1); }
HGLOBAL dib8To1(HGLOBAL hDIB) { return ts::dib::runOperation(hDIB, ts::dib::dib8To1); }
HGLOBAL dib4To1(HGLOBAL hDIB) { return ts::dib::runOperation(hDIB, ts::dib::dib4To1); }
HGLOBAL dib24To4(HGLOBAL hDIB) { return ts::dib::runOperation(hDIB, ts::dib::dib24To4); }
HGLOBAL dib8To4(HGLOBAL hDIB) { return ts::dib::runOperation(hDIB, ts::dib::dib8To4); }

HGLOBAL dib24To8(HGLOBAL hDIB, BOOL gray) {
    ts::dib::GlobalHost host;
    ts::dib::LockedDib dib(hDIB);
    return ts::dib::handOver(ts::dib::dib24To8(host, dib.source(), gray != FALSE));
}

HGLOBAL dibReduceColors(HGLOBAL hDIB, UINT uBPP, UINT mode) {
    ts::dib::GlobalHost host;
    ts::dib::LockedDib dib(hDIB);
    return ts::dib::handOver(ts::dib::dibReduceColors(host, dib.source(), uBPP, mode));
}

HGLOBAL dibCrop(HGLOBAL hDIB, int x, int y, int width, int height) {
    ts::dib::GlobalHost host;
    ts::dib::LockedDib dib(hDIB);
    return ts::dib::handOver(ts::dib::dibCrop(host, dib.source(), x, y, width, height));
}

HGLOBAL dibGray(HGLOBAL hDIB) { return ts::dib::runOperation(hDIB, ts::dib::dibGray); }
HGLOBAL dibSmallSize(HGLOBAL hDIB) { return ts::dib::runOperation(hDIB, ts::dib::dibSmallSize); }
HGLOBAL dibRLEtoDIB(HGLOBAL hDIB) { return ts::dib::runOperation(hDIB, ts::dib::dibRLEtoDIB); }

}  // extern "C"
