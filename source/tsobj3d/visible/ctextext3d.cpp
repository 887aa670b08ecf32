// cTextEXT3D: parameters and drawing.
#include "tsobj3d/visible/ctextext3d.h"

#include <windows.h>
#include <GL/gl.h>

#include <cstring>

#include "tsobj3d/draw_context.h"
#include "tsobj3d/text_copy.h"
#include "tsobj3d/visible/text_attributes.h"

void cTextEXT3D::set(const char* newText, const ts::OutlineFontRecord* font, float width, float height) {
    text = ts::copyText(newText);
    length = text ? static_cast<int32_t>(std::strlen(text.get())) : 0;
    listBase = font != nullptr ? font->listBase : 0;
    const ts::TextScale scale =
        font != nullptr ? ts::outlineTextScale(font->glyphs, text.get(), size_t(length), width, height) : ts::TextScale{};
    scaleX = scale.x;
    scaleY = scale.y;
}

void cTextEXT3D::draw(ts::DrawContext& context) {
    if (!text || listBase == 0 || !context.hasFontLists(listBase)) return;
    glPushMatrix();
    glRasterPos3f(0.0f, 0.0f, 0.0f);
    glPushAttrib(ts::kTextAttributes);
    glListBase(listBase);
    glScalef(scaleX, scaleY, 1.0f);
    glCallLists(length, GL_UNSIGNED_BYTE, text.get());
    glPopAttrib();
    glPopMatrix();
}
