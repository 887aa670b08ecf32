// cTextBMP3D: parameters and drawing.
#include "tsobj3d/visible/ctextbmp3d.h"

#include <windows.h>
#include <GL/gl.h>

#include <cstring>

#include "tsobj3d/draw_context.h"
#include "tsobj3d/text_copy.h"
#include "tsobj3d/visible/text_attributes.h"

void cTextBMP3D::set(const char* newText, uint32_t newListBase) {
    text = ts::copyText(newText);
    listBase = newListBase;
}

void cTextBMP3D::draw(ts::DrawContext& context) {
    if (!text || listBase == 0 || !context.hasFontLists(listBase)) return;
    glRasterPos3f(0.0f, 0.0f, 0.0f);
    glPushAttrib(ts::kTextAttributes);
    glListBase(listBase);
    glCallLists(static_cast<GLsizei>(std::strlen(text.get())), GL_UNSIGNED_BYTE, text.get());
    glPopAttrib();
}
