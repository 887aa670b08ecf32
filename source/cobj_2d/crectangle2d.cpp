// cRectangle2D: drawing.
#include "cobj_2d/crectangle2d.h"

#include <windows.h>

// GDI leaves out the right and bottom edge; one more on each keeps both corners in.
void cRectangle2D::draw(ts::DrawContext& context) {
    Rectangle(context.state2D().dc, x1, y1, ts::offsetBy(x2, 1), ts::offsetBy(y2, 1));
}
