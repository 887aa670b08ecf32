// The exported GIF functions: the classic file calls around the codec core, which
// works on memory. One GIF operation runs at a time (the module is shared).
#include "gif_codec.h"
#include "dib/win32/global_host.h"
#include "tessarin.h"
#include "win32_gif_convert.h"
#include "win32_gif_file.h"
#include "win32_gif_memory.h"
#include "win32_gif_module.h"
#include "win32_gif_reporter.h"

namespace {

using namespace ts::gif;

// The wait cursor from here to the end of the call.
struct WaitCursor {
    WaitCursor() { showWaitCursor(true); }
    ~WaitCursor() { showWaitCursor(false); }
};

// Everything behind the signature, written whatever the encoder managed before a
// failure; true when the whole file is on disk.
bool writeBody(ClassicFile& file, HGLOBAL bitmap, GifModule& module, Reporter& reporter) {
    ts::dib::LockedDib locked(bitmap);
    ts::dib::Source bytes = locked.source();
    GlobalMemory memory;
    ByteSink body;
    bool encoded = writeGifBody(bytes.data, bytes.size, module, memory, body, reporter);
    bool written = file.write(body.data(), body.size());
    return encoded && written && !body.failed();
}

}  // namespace

extern "C" {

HGLOBAL dibReadGIF(LPCSTR fileName) {
    ModuleLease lease;
    BoxReporter reporter;
    GlobalMemory memory;
    ClassicFile file(fileName, kOpenRead);
    if (!file.opened()) {
        reporter.error(text::kNotReadable);
        return nullptr;
    }
    Block bytes(memory);
    std::size_t size = 0;
    if (!file.readRest(bytes, size)) {
        reporter.error(text::kNoMemoryDib);
        return nullptr;
    }
    DecodedGif gif = readGif(bytes.bytes(), size, lease.module(), memory, reporter);
    return handOverBlock(gif.bitmap);
}

BOOL dibIsGIFFile(LPCSTR fileName) {
    ModuleLease lease;
    ClassicFile file(fileName, kOpenRead);
    std::uint8_t signature[6] = {};
    std::size_t got = file.opened() ? file.read(signature, sizeof signature) : 0;
    return isGifSignature(signature, got) ? 1 : 0;
}

WORD dibGIFGetVersion(void) { return kModuleVersion; }

BOOL dibWriteGIF(LPCSTR fileName, HGLOBAL hDIB, int version, BOOL interlace) {
    ModuleLease lease;
    BoxReporter reporter;
    unsigned bits = 0, compression = 0;
    if (hDIB == nullptr || !readDepth(hDIB, bits, compression)) {
        reporter.error(text::kNoDib);
        return FALSE;
    }
    GifParams& params = lease.module().params;
    params = GifParams{};
    params.gifVersion = version;
    params.interlace = interlace != FALSE ? 1 : 0;
    params.grayReduction = bits >= 16 ? 1 : 0;
    ClassicFile file(fileName, kCreateWrite);
    if (!file.opened()) {
        reporter.error(text::kCannotCreate);
        return FALSE;
    }
    ByteSink signature;
    if (!writeSignature(version, signature)) {
        reporter.error(text::kUnknownFormat);  // the created file stays, empty
        return FALSE;
    }
    file.write(signature.data(), signature.size());
    WaitCursor wait;
    WritableBitmap bitmap(hDIB, params.grayReduction != 0, reporter);
    return bitmap && writeBody(file, bitmap.handle(), lease.module(), reporter) ? TRUE : FALSE;
}

}  // extern "C"
