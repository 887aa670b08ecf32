// Exports that make and delete GDI objects for the 2D nodes. They run on the caller's
// thread; the caller owns what they return and keeps it alive while nodes use it.
#include <windows.h>

#include "math/gdi_color.h"
#include "guard/guard.h"
#include "tessarin.h"

extern "C" {

TS_API HPEN smCreatePen2D(float r, float g, float b, int width, int style) {
    return CreatePen(style, width, ts::gdiColor(r, g, b));
}

TS_API HBRUSH smCreateBrush2D(float r, float g, float b, UINT style, LONG hatch) {
    LOGBRUSH brush;
    brush.lbStyle = style;
    brush.lbColor = ts::gdiColor(r, g, b);
    brush.lbHatch = static_cast<ULONG_PTR>(hatch);
    return CreateBrushIndirect(&brush);
}

TS_API HFONT smCreateFont2D(const char* font, int height, int weight, DWORD italic, DWORD underline) {
    ts::probe(font, "smCreateFont2D(font)");
    return CreateFontA(height, 0, 0, 0, weight, italic, underline, 0, ANSI_CHARSET, OUT_TT_PRECIS,
                       CLIP_DEFAULT_PRECIS, DRAFT_QUALITY, 0, font);
}

TS_API BOOL smDelGDIObj(HGDIOBJ object) { return DeleteObject(object); }

}  // extern "C"
