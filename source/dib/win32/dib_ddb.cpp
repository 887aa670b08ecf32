// Conversions between bitmaps and GDI device bitmaps.
#include <utility>

#include "dib/core/dib_checks.h"
#include "dib/win32/gdi_bitmap.h"
#include "dib/core/palette.h"
#include "dib/win32/gdi_palette.h"
#include "dib/win32/global_host.h"
#include "tessarin.h"

using namespace ts::dib;

namespace {

constexpr const char* kToDib = "dibDDBToDIB";

// Second pass: grows the block to hold the rows and lets GDI copy them behind the
// colour table of the requested header; false after the matching message.
bool transferRows(Host& host, OwnedBlock& block, const InfoHeader& requested, HDC dc, HBITMAP bitmap, int lines) {
    InfoHeader h = readHeader(block.data(), block.size());
    if (h.biSizeImage == 0) {
        if (h.biCompression != kBiRgb) {
            host.report(kToDib, "Error in GetDIBits with RLE-DIBs!");
            return false;
        }
        // Rows that no 32-bit biSizeImage can count cannot be held either.
        int64_t image = imageBytes(h.biWidth, absHeight(h), h.biBitCount);
        if (image < 0 || image > int64_t(UINT32_MAX)) {
            host.report(kToDib, "Not enough memory for DIB!");
            return false;
        }
        h.biSizeImage = uint32_t(image);
        writeHeader(block.data(), h);
    }
    // The rows go where dibGetBits finds them: behind the masks, for bit fields.
    uint64_t bits = pixelOffset(requested);
    if (!block.resize(bits + h.biSizeImage)) {
        host.report(kToDib, "Not enough memory for DIB!");
        return false;
    }
    auto* info = reinterpret_cast<BITMAPINFO*>(block.data());
    if (GetDIBits(dc, bitmap, 0, UINT(lines), block.data() + bits, info, DIB_RGB_COLORS) == 0) {
        host.report(kToDib, "Error in GetDIBits during data transfer!");
        return false;
    }
    return true;
}

}  // namespace

extern "C" {

HBITMAP dibDIBToDDB(HGLOBAL hDIB, HPALETTE hPal) {
    GlobalHost host;
    GdiBitmap g(hDIB, host);
    if (!g.open(host, "dibDIBToDDB")) return nullptr;
    ScreenDC screen;
    SelectedPalette selected(screen.get(), hPal);
    return CreateDIBitmap(screen.get(), &g.info()->bmiHeader, CBM_INIT, g.bits(), g.info(), DIB_RGB_COLORS);
}

HGLOBAL dibDDBToDIB(HBITMAP hBitmap, HPALETTE hPal, WORD bits, DWORD compression) {
    GlobalHost host;
    if (!hBitmap) {
        host.report(kToDib, "No DDB passed!");
        return nullptr;
    }
    if (!hPal) hPal = static_cast<HPALETTE>(GetStockObject(DEFAULT_PALETTE));
    BITMAP bm{};
    GetObjectA(hBitmap, sizeof bm, &bm);
    InfoHeader h = ddbHeader(bm.bmWidth, bm.bmHeight, bm.bmPlanes, bm.bmBitsPixel, bits, compression);
    OwnedBlock block(host);
    // Room for the header and what GDI fills behind it: the colour table, or the three
    // masks of bit fields.
    if (!block.allocate(pixelOffset(h))) {
        host.report(kToDib, "Not enough memory for DIB!");
        return nullptr;
    }
    writeHeader(block.data(), h);
    ScreenDC screen;
    SelectedPalette selected(screen.get(), hPal);
    GetDIBits(screen.get(), hBitmap, 0, UINT(bm.bmHeight), nullptr, reinterpret_cast<BITMAPINFO*>(block.data()),
              DIB_RGB_COLORS);
    if (!transferRows(host, block, h, screen.get(), hBitmap, bm.bmHeight)) return nullptr;
    return handOver(std::move(block));
}

}  // extern "C"
