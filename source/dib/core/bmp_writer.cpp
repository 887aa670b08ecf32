// BMP writer: the file header dibWrite computes, then the whole block as it stands.
#include "dib/core/bmp_file.h"

#include "dib/core/dib_layout.h"

namespace ts::dib {

std::array<uint8_t, kFileHeaderSize> fileHeader(Source block) {
    InfoHeader h = readHeader(block.data, block.size);
    std::array<uint8_t, kFileHeaderSize> fh{};
    put16(fh.data(), kBmpType);
    put32(fh.data() + 2, uint32_t(block.size + kFileHeaderSize));
    // Bit-field files get 6, not the 12 bytes of their masks: files already written
    // this way must keep reading the same, so the offset stays as it always was.
    uint32_t offBits = kFileHeaderSize + kInfoSize + 4 * colorCount(h);
    if (h.biCompression == kBiBitfields) offBits += 6;
    put32(fh.data() + 10, offBits);
    return fh;
}

bool writeBmp(Host& host, Source block, ByteSink& file) {
    auto fh = fileHeader(block);
    file.write(fh.data(), fh.size());
    host.cursor(Cursor::Wait);
    if (file.write(block.data, block.size) != int64_t(block.size)) {
        host.report("dibWrite", "Error while writing file!");
        return false;
    }
    host.cursor(Cursor::Arrow);
    return true;
}

}  // namespace ts::dib
