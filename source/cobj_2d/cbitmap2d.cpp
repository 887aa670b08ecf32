// cBitmap2D: parameters and drawing through the bitmap library.
#include "cobj_2d/cbitmap2d.h"

#include <windows.h>

#include "tessarin.h"

void cBitmap2D::set(ts::DrawContext* current, HBITMAP newBitmap, int newX, int newY, int newA, int newB,
                    int newStretch) {
    const ts::Offset2D o = ts::relativeOffset(current);
    bitmap = newBitmap;
    x = ts::offsetBy(newX, o.x);
    y = ts::offsetBy(newY, o.y);
    a = newA;
    b = newB;
    stretch = newStretch;
    ts::drawWhenSet(*this, current);
}

void cBitmap2D::draw(ts::DrawContext& context) {
    if (bitmap == nullptr) return;
    const ts::State2D& state = context.state2D();
    if (stretch != 0) {
        dibStretchDDB(state.dc, bitmap, nullptr, x, y, state.clientWidth - a, state.clientHeight - b);
    } else {
        dibDrawDDB(state.dc, bitmap, nullptr, x, y);
    }
}
