// Drawing bitmaps and device bitmaps into device contexts.
#include "dib/win32/gdi_bitmap.h"
#include "dib/win32/gdi_palette.h"
#include "dib/win32/global_host.h"
#include "tessarin.h"

using namespace ts::dib;

namespace {

// Draws at the bitmap's own size, or stretched to width x height.
BOOL drawDib(HDC dc, HGLOBAL hDIB, HPALETTE palette, int x, int y, bool stretch, int width, int height) {
    GlobalHost host;
    GdiBitmap g(hDIB, host);
    if (!g.open(host, "dibDraw")) return FALSE;
    SelectedPalette selected(dc, palette);
    LONG rows = LONG(absHeight(g.header()));
    if (!stretch) {
        SetDIBitsToDevice(dc, x, y, DWORD(g.header().biWidth), DWORD(rows), 0, 0, 0, UINT(rows), g.bits(), g.info(),
                          DIB_RGB_COLORS);
    } else {
        SetStretchBltMode(dc, COLORONCOLOR);
        StretchDIBits(dc, x, y, width, height, 0, 0, g.header().biWidth, rows, g.bits(), g.info(), DIB_RGB_COLORS,
                      SRCCOPY);
    }
    return TRUE;
}

struct DdbNames {
    const char* function;
    const char* noBitmap;
    const char* noContext;
};

BOOL drawDdb(const DdbNames& n, HDC dc, HBITMAP bitmap, HPALETTE palette, int x, int y, bool stretch, int width,
             int height) {
    GlobalHost host;
    if (!bitmap) {
        host.report(n.function, n.noBitmap);
        return FALSE;
    }
    HDC memory = CreateCompatibleDC(dc);
    if (!memory) {
        host.report(n.function, n.noContext);
        return FALSE;
    }
    {
        SelectedPalette onTarget(dc, palette), onMemory(memory, palette);
        BITMAP bm{};
        GetObjectA(bitmap, sizeof bm, &bm);
        SelectObject(memory, bitmap);
        if (!stretch) {
            BitBlt(dc, x, y, bm.bmWidth, bm.bmHeight, memory, 0, 0, SRCCOPY);
        } else {
            SetStretchBltMode(dc, COLORONCOLOR);
            StretchBlt(dc, x, y, width, height, memory, 0, 0, bm.bmWidth, bm.bmHeight, SRCCOPY);
        }
    }
    DeleteDC(memory);  // the bitmap is not selected out first; deleting the context frees it
    return TRUE;
}

}  // namespace

extern "C" {

BOOL dibDraw(HDC hDC, HGLOBAL hDIB, HPALETTE hPal, int x, int y) { return drawDib(hDC, hDIB, hPal, x, y, false, 0, 0); }

// Reports under "dibDraw", the drawing function's name, as it always has.
BOOL dibStretch(HDC hDC, HGLOBAL hDIB, HPALETTE hPal, int x, int y, int width, int height) {
    return drawDib(hDC, hDIB, hPal, x, y, true, width, height);
}

BOOL dibDrawDDB(HDC hDC, HBITMAP hBitmap, HPALETTE hPal, int x, int y) {
    static const DdbNames names{"dibDrawDDB", "No DDB passed!", "No memory device contect!"};
    return drawDdb(names, hDC, hBitmap, hPal, x, y, false, 0, 0);
}

BOOL dibStretchDDB(HDC hDC, HBITMAP hBitmap, HPALETTE hPal, int x, int y, int width, int height) {
    static const DdbNames names{"dibStretchDDB", "No DDB!", "No memory device context!"};
    return drawDdb(names, hDC, hBitmap, hPal, x, y, true, width, height);
}

}  // extern "C"
