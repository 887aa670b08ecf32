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

bool writeGifBody(const std::uint8_t* bitmap, std::size_t size, GifModule& module,
                  Memory& memory, ByteSink& sink, Reporter& reporter) {
    return GifWriter(bitmap, size, module, memory, sink, reporter).write();
}

bool encodeGif(const std::uint8_t* bitmap, std::size_t size, int version, bool interlace,
               GifModule& module, Memory& memory, ByteSink& sink, Reporter& reporter) {
    module.params = GifParams{};
    module.params.gifVersion = version;
    module.params.interlace = interlace ? 1 : 0;
    if (!writeSignature(version, sink)) {
        reporter.error(text::kUnknownFormat);
        return false;
    }
    return writeGifBody(bitmap, size, module, memory, sink, reporter);
}

bool GifWriter::write() {
    if (!inspect()) {
        reporter_.error(text::kNoDib);
        return false;
    }
    writeScreen();
    if (module_.params.globalTable != 0) writeColorTable();
    if (!writeImage()) return false;
    sink_.put(kTrailer);
    return !sink_.failed();
}

// Only what GIF holds directly, and only a block that really holds the rows its
// header promises; a bottom-up or a top-down row order.
bool GifWriter::inspect() {
    if (bitmap_ == nullptr || size_ < kDibHeaderSize) return false;
    header_ = loadDibHeader(bitmap_);
    unsigned bits = header_.bitCount;
    if ((bits != 1 && bits != 4 && bits != 8) || header_.compression != 0 || header_.width < 0)
        return false;
    std::int64_t height = header_.height;
    topDown_ = height < 0;
    width_ = static_cast<std::uint32_t>(header_.width);
    height_ = static_cast<std::uint32_t>(topDown_ ? -height : height);
    stride_ = dibStride(width_, bits);
    std::uint64_t offset = dibPixelOffset(header_);
    if (offset > size_ || (stride_ != 0 && (size_ - offset) / stride_ < height_)) return false;
    pixels_ = bitmap_ + offset;
    return true;
}

void GifWriter::writeScreen() {
    unsigned depth = header_.bitCount - 1u;
    sink_.putWord(width_);
    sink_.putWord(height_);
    sink_.put(static_cast<std::uint8_t>((module_.params.globalTable != 0 ? 0x80 : 0) +
                                        depth * 16 + depth));
    sink_.put(0);  // background colour index
    sink_.put(0);  // pixel aspect ratio
}

// biClrUsed colours padded with black up to the depth's 2^bits entries.
void GifWriter::writeColorTable() {
    std::uint32_t full = 1u << header_.bitCount;
    std::uint32_t used = header_.clrUsed != 0 && header_.clrUsed < full ? header_.clrUsed : full;
    const std::uint8_t* table = bitmap_ + kDibHeaderSize;
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
