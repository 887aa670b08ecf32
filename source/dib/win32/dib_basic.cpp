// The bitmap handle's accessors and dibCopy.
#include <cstring>

#include "dib/core/dib_layout.h"
#include "dib/core/reduce.h"
#include "dib/win32/global_host.h"
#include "tessarin.h"

using namespace ts::dib;

namespace {

// The header of a handle for the getters; false after "<function>: No DIB passed!".
bool headerOf(HGLOBAL handle, const char* function, InfoHeader& h) {
    LockedDib dib(handle);
    if (!dib.source().present()) {
        GlobalHost().report(function, "No DIB passed!");
        return false;
    }
    h = readHeader(dib.source().data, dib.source().size);
    return true;
}

// Stores a resolution; the block must hold the whole header to take it.
BOOL setPels(HGLOBAL handle, const char* function, size_t offset, LONG value) {
    LockedDib dib(handle);
    if (!dib.source().present()) {
        GlobalHost().report(function, "No DIB passed!");
        return FALSE;
    }
    if (dib.source().size >= kInfoSize) std::memcpy(dib.block().data + offset, &value, sizeof value);
    return TRUE;
}

}  // namespace

extern "C" {

LONG dibGetWidth(HGLOBAL hDIB) {
    InfoHeader h;
    return headerOf(hDIB, "dibGetWidth", h) ? h.biWidth : 0;
}

LONG dibGetHeight(HGLOBAL hDIB) {
    InfoHeader h;
    return headerOf(hDIB, "dibGetHeight", h) ? LONG(absHeight(h)) : 0;
}

WORD dibGetBitPerPixel(HGLOBAL hDIB) {
    InfoHeader h;
    return headerOf(hDIB, "dibGetBitPerPixel", h) ? h.biBitCount : 0;
}

LONG dibGetXPelsPerMeter(HGLOBAL hDIB) {
    InfoHeader h;
    return headerOf(hDIB, "dibGetXPelsPerMeter", h) ? h.biXPelsPerMeter : 0;
}

LONG dibGetYPelsPerMeter(HGLOBAL hDIB) {
    InfoHeader h;
    return headerOf(hDIB, "dibGetYPelsPerMeter", h) ? h.biYPelsPerMeter : 0;
}

BOOL dibSetXPelsPerMeter(HGLOBAL hDIB, LONG value) {
    return setPels(hDIB, "dibSetXPelsPerMeter", offsetof(InfoHeader, biXPelsPerMeter), value);
}

BOOL dibSetYPelsPerMeter(HGLOBAL hDIB, LONG value) {
    return setPels(hDIB, "dibSetYPelsPerMeter", offsetof(InfoHeader, biYPelsPerMeter), value);
}

DWORD dibGetColorsInPalette(LPVOID lpbi) {
    if (!lpbi || IsBadReadPtr(lpbi, kInfoSize)) return 0;
    return colorCount(readHeader(static_cast<const uint8_t*>(lpbi), kInfoSize));
}

LPVOID dibGetBits(LPVOID lpbi) {
    if (!lpbi || IsBadReadPtr(lpbi, kInfoSize)) return nullptr;
    return static_cast<uint8_t*>(lpbi) + pixelOffset(readHeader(static_cast<const uint8_t*>(lpbi), kInfoSize));
}

HGLOBAL dibCopy(HGLOBAL hDIB) {
    GlobalHost host;
    LockedDib dib(hDIB);
    return handOver(ts::dib::dibCopy(host, dib.source()));
}

}  // extern "C"
