// dibCreatePalette: a GDI palette from a bitmap's colour table, or a fixed cube.
#include "dib/core/dib_layout.h"
#include "dib/core/palette.h"
#include "dib/win32/global_host.h"
#include "tessarin.h"

using namespace ts::dib;

namespace {

// A LOGPALETTE of n entries in a movable block, made into a palette and freed.
// A logical palette counts its entries in 16 bits: a longer table cannot become one.
HPALETTE paletteOf(Host& host, Source src, uint32_t n) {
    OwnedBlock block(host);
    if (n > 0xFFFF || !block.allocate(4ull * n + 8)) {
        host.report("dibCreatePalette", "Not enough memory!");
        return nullptr;
    }
    auto* log = reinterpret_cast<LOGPALETTE*>(block.data());
    log->palVersion = 0x300;
    log->palNumEntries = WORD(n);
    fillPalette(src, n, reinterpret_cast<PaletteEntry*>(log->palPalEntry));
    return CreatePalette(log);
}

}  // namespace

extern "C" HPALETTE dibCreatePalette(HGLOBAL hDIB) {
    GlobalHost host;
    LockedDib dib(hDIB);
    if (!dib.source().present()) {
        host.report("dibCreatePalette", "No DIB passed!");
        return nullptr;
    }
    InfoHeader h = readHeader(dib.source().data, dib.source().size);
    if (h.biSize != kInfoSize) {
        host.report("dibCreatePalette", "No support of OS/2 DIBs!");
        return nullptr;
    }
    uint32_t n = colorCount(h);
    HPALETTE palette = paletteOf(host, dib.source(), n > 0 ? n : kFixedPaletteSize);
    // The bitmap stays locked after a palette was made; a movable block stays usable.
    if (palette) dib.keepLocked();
    return palette;
}
