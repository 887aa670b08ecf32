// The internal bitmap operations: the BMP reader on the classic file calls, dib1To8 and
// the fixed-palette reductions. Kept apart from the exports, so that tests can link
// them next to the DLL's import library.
#include "dib/win32/dib_internal.h"

#include "dib/core/bmp_file.h"
#include "dib/core/depth_convert.h"
#include "dib/core/reduce.h"
#include "dib/win32/file_stream.h"
#include "dib/win32/operation.h"
#include "guard/msgbox.h"

using namespace ts::dib;

HGLOBAL dibReadInfo(HFILE file) {
    GlobalHost host;
    FileSource source(file);
    return handOver(readInfo(host, file == HFILE_ERROR ? nullptr : &source));
}

HGLOBAL dibRead(LPCSTR fileName) {
    if (!fileName) {
        ts::functionError("dibRead", "File name not found!");
        return nullptr;
    }
    OpenedFile file(fileName, OF_READ);
    if (!file.ok()) {
        ts::functionError("dibRead", "Error while reading file!");
        return nullptr;
    }
    GlobalHost host;
    FileSource source(file.handle());
    return handOver(readBmp(host, source));
}

BOOL dibIsBMPFile(LPCSTR fileName) {
    if (!fileName) return FALSE;
    OpenedFile file(fileName, OF_READ);
    if (!file.ok()) return FALSE;
    FileSource source(file.handle());
    return isBmp(source) ? TRUE : FALSE;
}

HGLOBAL dib1To8(HGLOBAL hDIB) { return runOperation(hDIB, ts::dib::dib1To8); }
HGLOBAL _DIB24To1(HGLOBAL hDIB) { return runInPlace(hDIB, ts::dib::_DIB24To1); }
HGLOBAL _DIB24To4(HGLOBAL hDIB) { return runInPlace(hDIB, ts::dib::_DIB24To4); }
