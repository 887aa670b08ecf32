// dibWrite: a bitmap block as a BMP file on disk.
#include "dib/core/bmp_file.h"
#include "dib/win32/file_stream.h"
#include "dib/win32/global_host.h"
#include "tessarin.h"

using namespace ts::dib;

extern "C" BOOL dibWrite(LPCSTR fileName, HGLOBAL hDIB) {
    GlobalHost host;
    if (!hDIB) {
        host.report("dibWrite", "No DIB passed!");
        return FALSE;
    }
    static const FileMessages messages{"dibWrite", "No file name found!", "Error while creating file!"};
    OpenedFile file;
    if (!openNamed(host, file, fileName, kCreateWrite, messages)) return FALSE;
    LockedDib dib(hDIB);
    FileSink sink(file.handle());
    return writeBmp(host, dib.source(), sink) ? TRUE : FALSE;
}
