// The OpenGL calls of the text and bitmap nodes of the 3D scene, recorded in a real
// context: raster position at the origin, the 0x20F3F attribute push around the font's
// lists, the outline text's matrix and scales, and the bitmap's unpack alignment and
// zoom; nothing at all for a node that has nothing to draw.
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "math/gl_canvas.h"
#include "math/gl_recorder.h"
#include "tsobj3d/visible/cbitmap3d.h"
#include "tsobj3d/visible/ctextbmp3d.h"
#include "tsobj3d/visible/ctextext3d.h"

namespace {

using Calls = std::vector<std::string>;
using tst::call;

constexpr unsigned kTextAttributes = 0x20F3F;

// The name and leading arguments of a recorded call, without its pointer argument.
std::string head(const std::string& recorded) {
    const size_t pointer = recorded.rfind(",q");
    return pointer == std::string::npos ? recorded : recorded.substr(0, pointer) + ")";
}

class TextCalls : public tst::CanvasTest {
protected:
    tst::GlRecorder recorder;

    Calls draw(cNode& node) {
        recorder.take();
        node.draw(context);
        Calls calls = recorder.take();
        for (std::string& c : calls) c = head(c);
        return calls;
    }
    // 256 bitmap glyph lists from base in the canvas's context.
    static unsigned makeFont(unsigned base) {
        HDC dc = wglGetCurrentDC();
        SelectObject(dc, GetStockObject(SYSTEM_FONT));
        EXPECT_TRUE(wglUseFontBitmapsA(dc, 0, 256, base));
        return base;
    }
};

}  // namespace

TEST_F(TextCalls, BitmapTextPushesTheTextAttributesAroundItsLists) {
    const unsigned base = makeFont(3000);
    cTextBMP3D text;
    text.set("Hi", base);
    EXPECT_EQ(draw(text), (Calls{call("glRasterPos3f", 0.0f, 0.0f, 0.0f), call("glPushAttrib", kTextAttributes),
                                 call("glListBase", base), call("glCallLists", 2, unsigned(GL_UNSIGNED_BYTE)),
                                 call("glPopAttrib")}));
    glDeleteLists(base, 256);
}

TEST_F(TextCalls, TextWithoutListsOrTextDrawsNothing) {
    cTextBMP3D noBase;
    noBase.set("Hi", 0);
    EXPECT_TRUE(draw(noBase).empty());
    cTextBMP3D noLists;
    noLists.set("Hi", 5000);  // no font was made there
    EXPECT_TRUE(draw(noLists).empty());
    cTextEXT3D noFont;
    noFont.set("Hi", nullptr, 1.0f, 1.0f);
    EXPECT_TRUE(draw(noFont).empty());
}

TEST_F(TextCalls, OutlineTextScalesInsideItsOwnMatrix) {
    const unsigned base = makeFont(3000);
    ts::OutlineFontRecord font = {};
    font.listBase = base;
    font.glyphs['A'].cellIncX = 0.5f;
    font.glyphs['A'].blackBoxY = 0.25f;
    cTextEXT3D text;
    text.set("AA", &font, 2.0f, 1.0f);  // 2 / (0.5 + 0.5) and 1 / 0.25
    EXPECT_EQ(text.scaleX, 2.0f);
    EXPECT_EQ(text.scaleY, 4.0f);
    EXPECT_EQ(text.length, 2);
    EXPECT_EQ(draw(text), (Calls{call("glPushMatrix"), call("glRasterPos3f", 0.0f, 0.0f, 0.0f),
                                 call("glPushAttrib", kTextAttributes), call("glListBase", base),
                                 call("glScalef", 2.0f, 4.0f, 1.0f), call("glCallLists", 2, unsigned(GL_UNSIGNED_BYTE)),
                                 call("glPopAttrib"), call("glPopMatrix")}));
    glDeleteLists(base, 256);
}

TEST_F(TextCalls, ABitmapSetsAlignmentFourAndItsZoom) {
    // A 3 x 3 bitmap of 24 bits: rows of 9 bytes padded to 12.
    HGLOBAL block = GlobalAlloc(GMEM_MOVEABLE | GMEM_ZEROINIT, 40 + 3 * 12);
    auto* info = static_cast<BITMAPINFOHEADER*>(GlobalLock(block));
    info->biSize = 40;
    info->biWidth = info->biHeight = 3;
    info->biPlanes = 1;
    info->biBitCount = 24;
    GlobalUnlock(block);
    cBitmap3D bitmap;
    bitmap.set(block, 2.5f, 7, 0x80E0, GL_UNSIGNED_BYTE);
    EXPECT_EQ(bitmap.further, 7);
    EXPECT_EQ(draw(bitmap), (Calls{call("glPixelStorei", unsigned(GL_UNPACK_ALIGNMENT), 4),
                                   call("glPixelZoom", 2.5f, 2.5f), call("glRasterPos3f", 0.0f, 0.0f, 0.0f),
                                   call("glDrawPixels", 3, 3, 0x80E0u, unsigned(GL_UNSIGNED_BYTE))}));
    cBitmap3D empty;
    EXPECT_TRUE(draw(empty).empty());
    GlobalFree(block);
}
