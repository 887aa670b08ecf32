// Scene-side handlers of the font requests: display lists of a font's 256 characters
// in the current scene's context, as bitmaps or as outlines.
#include <windows.h>
#include <GL/gl.h>

#include "library/globals.h"
#include "requests/request_handlers.h"
#include "tsobj3d/visible/outline_font.h"
#include "view/pass/scene_gl.h"
#include "view/scene/cscene.h"

namespace ts {
namespace {

static_assert(sizeof(GlyphMetrics) == sizeof(GLYPHMETRICSFLOAT), "the record holds the system's glyph metrics");

// The scene's context current and font selected into its device context, where it
// stays. False when font is no font: outlines are then not made from whatever font
// the device context had.
bool selectFont(cScene* scene, HFONT font) {
    makeSceneCurrent(scene);
    return GetObjectType(font) == OBJ_FONT && SelectObject(scene->dc, font) != nullptr;
}

}  // namespace

// Bitmap glyphs of characters 0 to 255, in the font selected into the scene's device
// context, from the scene's next free base; returns that base. The names are taken
// whatever the system makes of them.
LRESULT onCreateFontBMP(WPARAM font, LPARAM) {
    cScene* scene = CURRENT_SCENE;
    const uint32_t base = scene->nextFontBase;
    makeSceneCurrent(scene);
    SelectObject(scene->dc, reinterpret_cast<HFONT>(font));
    wglUseFontBitmapsA(scene->dc, 0, 256, base);
    scene->nextFontBase += 256;
    return static_cast<LRESULT>(base);
}

// Outline glyphs (polygons, with the record's deviation and extrusion) of characters 0
// to 255, their metrics into the record; 1 on success. On failure the names are not
// taken and the record keeps list base 0.
LRESULT onCreateFontEXT(WPARAM font, LPARAM recordAddress) {
    cScene* scene = CURRENT_SCENE;
    auto* record = reinterpret_cast<OutlineFontRecord*>(recordAddress);
    const uint32_t base = scene->nextFontBase;
    if (!selectFont(scene, reinterpret_cast<HFONT>(font))) return 0;
    auto* metrics = reinterpret_cast<GLYPHMETRICSFLOAT*>(record->glyphs);
    if (!wglUseFontOutlinesA(scene->dc, 0, 256, base, record->deviation, record->extrusion, WGL_FONT_POLYGONS,
                             metrics)) {
        return 0;
    }
    record->listBase = base;
    scene->nextFontBase += 256;
    return 1;
}

}  // namespace ts
