// Compile-time checks of the record sizes the library relies on. The 32-bit build
// keeps the classic layouts exactly; the 64-bit build widens pointers only.
#include <windows.h>

#include "events/cevent.h"
#include "tessarin.h"
#include "thread/cwind.h"
#include "tsobj3d/cgroup.h"
#include "tsobj3d/visible/celevationgrid3d.h"
#include "tsobj3d/visible/cindexedfaceset3d.h"

static_assert(sizeof(PIXELFORMATDESCRIPTOR) == 40, "pixel format descriptor of size 40");
static_assert(sizeof(OSVERSIONINFOA) == 148, "version query of structure size 148");
static_assert(sizeof(cWind::title) == 64, "window titles hold 63 characters");
static_assert(sizeof(cEventList::Taken) == 12, "swGetEvent hands out three 32-bit values");

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
