// cPie2D: drawing.
#include "cobj_2d/cpie2d.h"

#include <windows.h>

void cPie2D::draw(ts::DrawContext& context) { Pie(context.state2D().dc, v[0], v[1], v[2], v[3], v[4], v[5], v[6], v[7]); }
