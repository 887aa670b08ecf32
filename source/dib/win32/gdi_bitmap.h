// A caller's bitmap handle opened for GDI: locked, and its bytes bounded by GdiBits.
#pragma once

#include <windows.h>

#include "dib/core/gdi_bits.h"
#include "dib/win32/global_host.h"

namespace ts::dib {

class GdiBitmap {
public:
    GdiBitmap(HGLOBAL handle, Host& host) : dib_(handle), bits_(host) {}
    // False after "<function>: No DIB passed!" for no handle, or (without a message)
    // when the bytes cannot be had.
    bool open(Host& host, const char* function);
    const InfoHeader& header() const { return bits_.header(); }
    const BITMAPINFO* info() const { return reinterpret_cast<const BITMAPINFO*>(bits_.info()); }
    const void* bits() const { return bits_.bits(); }

private:
    LockedDib dib_;
    GdiBits bits_;
};

inline bool GdiBitmap::open(Host& host, const char* function) {
    if (!dib_.source().present()) {
        host.report(function, "No DIB passed!");
        return false;
    }
    return bits_.open(dib_.source());
}

}  // namespace ts::dib
