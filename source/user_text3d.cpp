// Exports of the text and bitmap nodes of the 3D scene, in create-or-edit form.
#include <windows.h>

#include "guard/guard.h"
#include "tessarin.h"
#include "tsobj3d/create_or_edit.h"
#include "tsobj3d/visible/cbitmap3d.h"
#include "tsobj3d/visible/ctextbmp3d.h"
#include "tsobj3d/visible/ctextext3d.h"

extern "C" {

TS_API cNode* snTextBMP(cNode* Node, const char* text, unsigned int listBase) {
    ts::probe(text, "snTextBMP(text)");
    return ts::guarded("snTextBMP", [&] { return ts::createOrEdit<cTextBMP3D>(Node, text, uint32_t(listBase)); });
}

TS_API cNode* snTextEXT(cNode* Node, const char* text, const smOutlineFontRecord* font, float width, float height) {
    ts::probe(text, "snTextEXT(text)");
    return ts::guarded("snTextEXT", [&] {
        return ts::createOrEdit<cTextEXT3D>(Node, text, reinterpret_cast<const ts::OutlineFontRecord*>(font), width,
                                            height);
    });
}

TS_API cNode* snBitmap(cNode* Node, HGLOBAL hDIB, float zoom, int further, unsigned int format, unsigned int type) {
    return ts::guarded("snBitmap", [&] {
        return ts::createOrEdit<cBitmap3D>(Node, static_cast<void*>(hDIB), zoom, int32_t(further), uint32_t(format),
                                           uint32_t(type));
    });
}

}  // extern "C"
