// Conversions between bitmaps and GDI device bitmaps.
#include <utility>

#include "dib/core/dib_checks.h"
#include "dib/core/gdi_bits.h"
#include "dib/core/palette.h"
#include "dib/win32/gdi_palette.h"
#include "dib/win32/global_host.h"
#include "msgbox.h"
#include "tessarin.h"

using namespace ts::dib;

namespace {

constexpr const char* kToDib = "dibDDBToDIB";

// Room GDI may fill behind the header: the colour table, or the three masks it writes
// for bit fields (the layout's own offsets stay those of the colour count).
uint64_t tableRoom(const InfoHeader& h) {
    return 4ull * h.biClrUsed + (h.biCompression == kBiBitfields ? kMaskBytes : 0);
}

// Second pass: grows the block to hold the rows and lets GDI copy them behind the
// colour table of the requested header; false after the matching message.
bool transferRows(OwnedBlock& block, const InfoHeader& requested, HDC dc, HBITMAP bitmap, int lines) {
    InfoHeader h = readHeader(block.data(), block.size());
    if (h.biSizeImage == 0) {
        if (h.biCompression != kBiRgb) {
            ts::functionError(kToDib, "Error in GetDIBits with RLE-DIBs!");
            return false;
        }
        h.biSizeImage = uint32_t(uint64_t(strideOf(h.biWidth, h.biBitCount)) * uint64_t(absHeight(h)));
        writeHeader(block.data(), h);
    }
    uint64_t bits = kInfoSize + 4ull * requested.biClrUsed;
    if (!block.resize(kInfoSize + tableRoom(requested) + h.biSizeImage)) {
        ts::functionError(kToDib, "Not enough memory for DIB!");
        return false;
    }
    auto* info = reinterpret_cast<BITMAPINFO*>(block.data());
    if (GetDIBits(dc, bitmap, 0, UINT(lines), block.data() + bits, info, DIB_RGB_COLORS) == 0) {
        ts::functionError(kToDib, "Error in GetDIBits during data transfer!");
        return false;
    }
    return true;
}

}  // namespace

extern "C" {

HBITMAP dibDIBToDDB(HGLOBAL hDIB, HPALETTE hPal) {
    LockedDib dib(hDIB);
    if (!dib.source().present()) {
        ts::functionError("dibDIBToDDB", "No DIB passed!");
        return nullptr;
    }
    GlobalHost host;
    GdiBits g(host);
    if (!g.open(dib.source())) return nullptr;
    ScreenDC screen;
    SelectedPalette selected(screen.get(), hPal);
    auto* info = reinterpret_cast<const BITMAPINFO*>(g.info());
    return CreateDIBitmap(screen.get(), &info->bmiHeader, CBM_INIT, g.bits(), info, DIB_RGB_COLORS);
}

HGLOBAL dibDDBToDIB(HBITMAP hBitmap, HPALETTE hPal, WORD bits, DWORD compression) {
    if (!hBitmap) {
        ts::functionError(kToDib, "No DDB passed!");
        return nullptr;
    }
    if (!hPal) hPal = static_cast<HPALETTE>(GetStockObject(DEFAULT_PALETTE));
    BITMAP bm{};
    GetObjectA(hBitmap, sizeof bm, &bm);
    InfoHeader h = ddbHeader(bm.bmWidth, bm.bmHeight, bm.bmPlanes, bm.bmBitsPixel, bits, compression);
    GlobalHost host;
    OwnedBlock block(host);
    if (!block.allocate(kInfoSize + tableRoom(h))) {
        ts::functionError(kToDib, "Not enough memory for DIB!");
        return nullptr;
    }
    writeHeader(block.data(), h);
    ScreenDC screen;
    SelectedPalette selected(screen.get(), hPal);
    GetDIBits(screen.get(), hBitmap, 0, UINT(bm.bmHeight), nullptr, reinterpret_cast<BITMAPINFO*>(block.data()),
              DIB_RGB_COLORS);
    if (!transferRows(block, h, screen.get(), hBitmap, bm.bmHeight)) return nullptr;
    return handOver(std::move(block));
}

}  // extern "C"
