// Encoding a bitmap of 1, 4 or 8 bits as a GIF file: signature, logical screen,
// global colour table and trailer.
#include "gif_writer.h"

namespace ts::gif {

namespace {
constexpr std::uint8_t kTrailer = 0x3B;
}  // namespace

bool writeSignature(int version, ByteSink& sink) {
    if (version != 87 && version != 89) return false;
    const char* signature = version == 87 ? "GIF87a" : "GIF89a";
    sink.put(reinterpret_cast<const std::uint8_t*>(signature), 6);
    return true;
}

bool writeGifBody(Source bitmap, GifTables& tables, Host& host, ByteSink& sink) {
    return GifWriter(bitmap, tables, host, sink).write();
}

bool encodeGif(Source bitmap, int version, bool interlace, GifTables& tables, Host& host, ByteSink& sink) {
    tables.params = GifParams{};
    tables.params.gifVersion = version;
    tables.params.interlace = interlace ? 1 : 0;
    if (!writeSignature(version, sink)) {
        host.message(text::kUnknownFormat);
        return false;
    }
    return writeGifBody(bitmap, tables, host, sink);
}

bool GifWriter::write() {
    if (!inspect()) {
        host_.message(text::kNoDib);
        return false;
    }
    writeScreen();
    if (tables_.params.globalTable != 0) writeColorTable();
    if (!writeImage()) return false;
    sink_.put(kTrailer);
    return !sink_.failed();
}

// Only what GIF holds directly, and only a block that really holds the rows its
// header promises; a bottom-up or a top-down row order.
bool GifWriter::inspect() {
    if (bitmap_.data == nullptr || bitmap_.size < dib::kInfoSize) return false;
    header_ = dib::readHeader(bitmap_.data, bitmap_.size);
    unsigned bits = header_.biBitCount;
    if ((bits != 1 && bits != 4 && bits != 8) || header_.biCompression != dib::kBiRgb || header_.biWidth < 0)
        return false;
    topDown_ = header_.biHeight < 0;
    width_ = static_cast<std::uint32_t>(header_.biWidth);
    height_ = static_cast<std::uint32_t>(dib::absHeight(header_));
    stride_ = static_cast<std::uint64_t>(dib::strideOf(width_, bits));
    std::uint64_t offset = dib::pixelOffset(header_);
    if (offset > bitmap_.size || (stride_ != 0 && (bitmap_.size - offset) / stride_ < height_)) return false;
    pixels_ = bitmap_.data + offset;
    return true;
}

void GifWriter::writeScreen() {
    unsigned depth = header_.biBitCount - 1u;
    sink_.putWord(width_);
    sink_.putWord(height_);
    sink_.put(static_cast<std::uint8_t>((tables_.params.globalTable != 0 ? 0x80 : 0) +
                                        depth * 16 + depth));
    sink_.put(0);  // background colour index
    sink_.put(0);  // pixel aspect ratio
}

// biClrUsed colours padded with black up to the depth's 2^bits entries.
void GifWriter::writeColorTable() {
    std::uint32_t full = 1u << header_.biBitCount;
    std::uint32_t used = header_.biClrUsed != 0 && header_.biClrUsed < full ? header_.biClrUsed : full;
    const std::uint8_t* table = bitmap_.data + dib::kInfoSize;
    for (std::uint32_t i = 0; i < used; ++i) {
        const std::uint8_t rgb[3] = {table[4 * i + 2], table[4 * i + 1], table[4 * i]};
        sink_.put(rgb, 3);
    }
    for (std::uint32_t i = used; i < full; ++i) {
        const std::uint8_t black[3] = {0, 0, 0};
        sink_.put(black, 3);
    }
}

}  // namespace ts::gif
