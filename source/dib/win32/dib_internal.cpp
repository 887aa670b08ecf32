// The internal bitmap operations: the BMP reader on the classic file calls, dib1To8 and
// the fixed-palette reductions. Kept apart from the exports, so that tests can link
// them next to the DLL's import library.
#include "dib/win32/dib_internal.h"

#include "dib/core/bmp_file.h"
#include "dib/core/depth_convert.h"
#include "dib/core/reduce.h"
#include "dib/win32/file_stream.h"
#include "dib/win32/operation.h"

using namespace ts::dib;

HGLOBAL dibReadInfo(HFILE file) {
    GlobalHost host;
    FileSource source(file);
    return handOver(readInfo(host, file == HFILE_ERROR ? nullptr : &source));
}

HGLOBAL dibRead(LPCSTR fileName) {
    static const FileMessages messages{"dibRead", "File name not found!", "Error while reading file!"};
    GlobalHost host;
    OpenedFile file;
    if (!openNamed(host, file, fileName, kOpenRead, messages)) return nullptr;
    FileSource source(file.handle());
    return handOver(readBmp(host, source));
}

BOOL dibIsBMPFile(LPCSTR fileName) {
    if (!fileName) return FALSE;
    OpenedFile file(fileName, kOpenRead);
    if (!file.ok()) return FALSE;
    FileSource source(file.handle());
    return isBmp(source) ? TRUE : FALSE;
}

HGLOBAL dib1To8(HGLOBAL hDIB) { return runOperation(hDIB, ts::dib::dib1To8); }
HGLOBAL _DIB24To1(HGLOBAL hDIB) { return runInPlace(hDIB, ts::dib::_DIB24To1); }
HGLOBAL _DIB24To4(HGLOBAL hDIB) { return runInPlace(hDIB, ts::dib::_DIB24To4); }
