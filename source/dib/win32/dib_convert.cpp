// The exported conversions, reductions and image operations: each locks the caller's
// handle, runs the core operation with global-memory blocks and hands the result over.
#include "dib/core/depth_convert.h"
#include "dib/core/image_ops.h"
#include "dib/core/reduce.h"
#include "dib/win32/global_host.h"
#include "dib/win32/operation.h"
#include "tessarin.h"

// The exports that turn one handle into a new one through a core operation of the
// same name, listed once and each defined by one line.
#define TS_DIB_OPERATIONS(X) X(dib1To4) X(dib4To8) X(dib8To24) X(dib16To24) X(dib32To24) X(dib1To24) X(dib4To24) X(dib24To1) X(dib8To1) X(dib4To1) X(dib24To4) X(dib8To4) X(dibGray) X(dibSmallSize) X(dibRLEtoDIB)
#define TS_DIB_EXPORT(name) HGLOBAL name(HGLOBAL hDIB) { return ts::dib::runOperation(hDIB, ts::dib::name); }

extern "C" {

TS_DIB_OPERATIONS(TS_DIB_EXPORT)

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


}  // extern "C"
