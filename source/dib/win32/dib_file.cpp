// dibWrite: a bitmap block as a BMP file on disk.
#include "dib/core/bmp_file.h"
#include "dib/win32/file_stream.h"
#include "dib/win32/global_host.h"
#include "guard/msgbox.h"
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
