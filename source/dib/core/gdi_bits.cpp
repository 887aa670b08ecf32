// A bitmap's bytes as GDI may read them: padded rows, bounded run-length streams.
#include "dib/core/gdi_bits.h"

#include <cstring>

#include "dib/core/dib_checks.h"

namespace ts::dib {
namespace {

constexpr uint8_t kEndOfBitmap[2] = {0, 1};

bool runLength(const InfoHeader& h) { return h.biCompression == kBiRle8 || h.biCompression == kBiRle4; }

}  // namespace

bool GdiBits::open(Source src) {
    header_ = readHeader(src.data, src.size);
    if (runLength(header_)) return openStream(src);
    int64_t need = blockBytes(header_, header_.biBitCount);
    if (need < 0 || !rows_.open(src, uint64_t(need))) return false;
    info_ = rows_.data();
    bits_ = info_ + pixelOffset(header_);
    bool maskedTable = header_.biCompression == kBiBitfields && colorCount(header_) > 0;
    if (header_.biSize == kInfoSize && !maskedTable) return true;
    return ownHeader();
}

// The caller's header stays as it is; GDI gets a 40-byte one in a copy, with the masks
// of bit fields right behind it and the colour table after them.
bool GdiBits::ownHeader() {
    uint64_t table = 4ull * colorCount(header_);
    bool fields = header_.biCompression == kBiBitfields;
    if (!copy_.allocate(kInfoSize + table + (fields ? kMaskBytes : 0))) return false;
    const uint8_t* tableAt = info_ + kInfoSize;
    uint8_t* to = copy_.data() + kInfoSize;
    if (fields) {
        std::memcpy(to, bits_ - kMaskBytes, kMaskBytes);
        to += kMaskBytes;
    }
    std::memcpy(to, tableAt, size_t(table));
    header_.biSize = kInfoSize;
    writeHeader(copy_.data(), header_);
    info_ = copy_.data();
    return true;
}

bool GdiBits::openStream(Source src) {
    if (colorCount(header_) > kMaxColors) return false;
    uint64_t start = pixelOffset(header_);
    uint64_t held = src.size > start ? src.size - start : 0;
    // A stream without a stated size is taken to run to the end of the block.
    uint64_t stream = header_.biSizeImage != 0 && header_.biSizeImage < held ? header_.biSizeImage : held;
    if (!copy_.allocate(start + stream + sizeof kEndOfBitmap)) return false;
    for (uint64_t i = 0; i < start; ++i) copy_.data()[i] = byteAt(src, i);
    if (stream > 0) std::memcpy(copy_.data() + start, src.data + start, size_t(stream));
    std::memcpy(copy_.data() + start + stream, kEndOfBitmap, sizeof kEndOfBitmap);
    header_.biSize = kInfoSize;
    header_.biSizeImage = uint32_t(stream + sizeof kEndOfBitmap);
    writeHeader(copy_.data(), header_);
    info_ = copy_.data();
    bits_ = info_ + start;
    return true;
}

}  // namespace ts::dib
