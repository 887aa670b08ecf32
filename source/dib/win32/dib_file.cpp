// BMP files on disk: dibWrite (exported) and the internal reader functions.
#include "dib/core/bmp_file.h"
#include "dib/win32/dib_internal.h"
#include "dib/win32/file_stream.h"
#include "dib/win32/global_host.h"
#include "msgbox.h"
#include "tessarin.h"

using namespace ts::dib;

extern "C" BOOL dibWrite(LPCSTR fileName, HGLOBAL hDIB) {
    if (!hDIB) {
        ts::functionError("dibWrite", "No DIB passed!");
        return FALSE;
    }
    if (!fileName) {
        ts::functionError("dibWrite", "No file name found!");
        return FALSE;
    }
    OpenedFile file(fileName, OF_CREATE | OF_WRITE);
    if (!file.ok()) {
        ts::functionError("dibWrite", "Error while creating file!");
        return FALSE;
    }
    GlobalHost host;
    LockedDib dib(hDIB);
    FileSink sink(file.handle());
    return writeBmp(host, dib.source(), sink) ? TRUE : FALSE;
}

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
