// The exported GIF functions: the library's file stream and blocks around the codec,
// which works on memory. The codec's tables are the module's: one GIF operation uses
// them at a time, and every box is shown with the module lock let go.
#include <utility>

#include "dib/core/module_state.h"
#include "dib/gif/gif_codec.h"
#include "dib/win32/file_stream.h"
#include "dib/win32/gif_convert.h"
#include "dib/win32/global_host.h"
#include "tessarin.h"

using namespace ts::dib;
namespace text = ts::gif::text;

namespace {

// The wait cursor from here to the end of the call.
struct WaitCursor {
    explicit WaitCursor(Host& host) : host_(host) { host_.cursor(Cursor::Wait); }
    ~WaitCursor() { host_.cursor(Cursor::Arrow); }
    Host& host_;
};

// Everything behind the signature, encoded under the module lock, then written whatever
// the encoder managed before a failure; true when the whole file is on disk.
bool writeBody(OpenedFile& file, HGLOBAL bitmap, const ts::gif::GifParams& params, GlobalHost& host) {
    LockedDib locked(bitmap);
    MemorySink body;
    bool encoded;
    {
        ModuleLease lease(host);
        ts::gif::GifTables& tables = lease.state().gif;
        tables.params = params;
        encoded = ts::gif::writeGifBody(locked.source(), tables, host, body);
    }
    FileSink sink(file.handle());
    sink.put(body.bytes.data(), body.bytes.size());
    return encoded && !body.failed() && !sink.failed();
}

}  // namespace

extern "C" {

HGLOBAL dibReadGIF(LPCSTR fileName) {
    GlobalHost host;
    OpenedFile file(fileName, kOpenRead);
    if (!file.nonZero()) {
        host.message(text::kNotReadable);
        return nullptr;
    }
    FileSource source(file.handle());
    OwnedBlock bytes(host);
    uint64_t size = 0;
    if (!readRest(source, bytes, size)) {
        host.message(text::kNoMemoryDib);
        return nullptr;
    }
    ts::gif::ByteCursor in(bytes.data(), size_t(size));
    if (!ts::gif::acceptSignature(in, host)) return nullptr;
    ModuleLease lease(host);
    return handOver(ts::gif::decodeGif(in, lease.state().gif, host));
}

BOOL dibIsGIFFile(LPCSTR fileName) {
    OpenedFile file(fileName, kOpenRead);
    uint8_t signature[6] = {};
    FileSource source(file.handle());
    int64_t got = file.ok() ? source.read(signature, sizeof signature) : 0;
    return ts::gif::isGifSignature(signature, got > 0 ? size_t(got) : 0) ? 1 : 0;
}

WORD dibGIFGetVersion(void) { return ts::gif::kModuleVersion; }

BOOL dibWriteGIF(LPCSTR fileName, HGLOBAL hDIB, int version, BOOL interlace) {
    GlobalHost host;
    unsigned bits = 0, compression = 0;
    if (hDIB == nullptr || !readDepth(hDIB, bits, compression)) {
        host.message(text::kNoDib);
        return FALSE;
    }
    ts::gif::GifParams params;
    params.gifVersion = version;
    params.interlace = interlace != FALSE ? 1 : 0;
    params.grayReduction = bits >= 16 ? 1 : 0;
    OpenedFile file(fileName, kCreateWrite);
    if (!file.nonZero()) {
        host.message(text::kCannotCreate);
        return FALSE;
    }
    MemorySink signature;
    if (!ts::gif::writeSignature(version, signature)) {
        host.message(text::kUnknownFormat);  // the created file stays, empty
        return FALSE;
    }
    FileSink(file.handle()).put(signature.bytes.data(), signature.bytes.size());
    WaitCursor wait(host);
    WritableBitmap bitmap(hDIB, params.grayReduction != 0, host);
    return bitmap && writeBody(file, bitmap.handle(), params, host) ? TRUE : FALSE;
}

}  // extern "C"
