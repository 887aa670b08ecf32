// The GIF codec's own entry points for the native tests.
#include "gif_core_support.h"

#include <memory>

namespace gift {

Dib decode(const Bytes& file, tst::MemoryHost& host) {
    auto tables = std::make_unique<ts::gif::GifTables>();
    ts::dib::OwnedBlock result = ts::gif::readGif(file.data(), file.size(), *tables, host);
    Dib dib;
    if (result) dib.block.assign(result.data(), result.data() + result.size());
    return dib;
}

Bytes encode(const Dib& dib, int version, bool interlace, tst::MemoryHost& host) {
    auto tables = std::make_unique<ts::gif::GifTables>();
    ts::dib::MemorySink sink;
    ts::dib::Source bitmap{dib.block.data(), dib.block.size()};
    if (!ts::gif::encodeGif(bitmap, version, interlace, *tables, host, sink)) return {};
    return sink.bytes;
}

}  // namespace gift
