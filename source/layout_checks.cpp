// Compile-time checks of the record sizes the library relies on. The 32-bit build
// keeps the classic layouts exactly; the 64-bit build widens pointers only.
#include <windows.h>

#include <cstddef>

#include "events/cevent.h"
#include "tessarin.h"
#include "thread/cwind.h"
#include "tsobj3d/cgroup.h"
#include "tsobj3d/visible/celevationgrid3d.h"
#include "tsobj3d/visible/cindexedfaceset3d.h"
#include "tsobj3d/visible/outline_font.h"

static_assert(sizeof(PIXELFORMATDESCRIPTOR) == 40, "pixel format descriptor of size 40");
static_assert(sizeof(OSVERSIONINFOA) == 148, "version query of structure size 148");
static_assert(sizeof(cWind::title) == 64, "window titles hold 63 characters");
static_assert(sizeof(cEventList::Taken) == 12, "swGetEvent hands out three 32-bit values");
// The outline font record: list base, two 32-bit values, 256 glyph metrics of six
// floats; all 32-bit fields, so Win64 keeps the layout too.
static_assert(sizeof(smOutlineFontRecord) == 6156, "the outline font record is 6156 bytes");
static_assert(sizeof(GLYPHMETRICSFLOAT) == 24, "six floats per glyph");
static_assert(offsetof(smOutlineFontRecord, deviation) == 4 && offsetof(smOutlineFontRecord, extrusion) == 8,
              "list base and the two further words first");
static_assert(offsetof(smOutlineFontRecord, glyphs) == 12, "the glyph metrics from byte 12");
static_assert(offsetof(smOutlineFontRecord, glyphs) == offsetof(ts::OutlineFontRecord, glyphs) &&
                  sizeof(smOutlineFontRecord) == sizeof(ts::OutlineFontRecord),
              "the public record is the library's record");

#ifndef _WIN64
static_assert(sizeof(BITMAP) == 24, "the 24-byte bitmap record of GetObjectA");
static_assert(sizeof(cNode) == 12, "node: virtual table, type, next");
static_assert(sizeof(cGroup) == 40, "group: node fields, count, head, tail, current, insertAfter, iterator, parent");
static_assert(sizeof(cIndexedFaceSet3D) == 88, "indexed face set: node fields, 15 words of arrays and counts, solid, creaseAngle, listName, compiledFor");
static_assert(sizeof(cElevationGrid3D) == 72, "elevation grid: node fields, 11 words of grid, creaseAngle, solid, listName, compiledFor");
static_assert(sizeof(cEvent) == 16, "event: type, wParam, lParam, next");
static_assert(sizeof(swEventRecord) == 78, "the waitable event record");
#else
static_assert(sizeof(swEventRecord) == 82, "the waitable event record, scene pointer widened");
#endif
