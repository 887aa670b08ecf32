// Encoding the one image of a written GIF: descriptor, then the rows in stream order
// through the LZW encoder.
#include "gif_writer.h"
#include "interlace.h"
#include "lzw_encode.h"

namespace ts::gif {

namespace {
constexpr std::uint8_t kImage = 0x2C;
}  // namespace

bool GifWriter::writeImage() {
    unsigned bits = header_.biBitCount;
    bool global = tables_.params.globalTable != 0;
    sink_.put(kImage);
    sink_.putWord(0);  // left
    sink_.putWord(0);  // top
    sink_.putWord(width_);
    sink_.putWord(height_);
    sink_.put(static_cast<std::uint8_t>((global ? 0 : 0x80) +
                                        (tables_.params.interlace != 0 ? 0x40 : 0) + bits - 1));
    if (!global) writeColorTable();
    // One line of indices at a time: 8-bit rows are read where they are.
    OwnedBlock line(host_);
    if (!line.allocate(width_)) {
        host_.message(text::kNoMemoryBitmap);
        return false;
    }
    OwnedBlock rowOrder(host_);
    if (tables_.params.interlace != 0) {
        if (!rowOrder.allocate(std::uint64_t{height_} * 4)) {
            host_.message(text::kNoMemoryRowMap);
            return false;
        }
        interlaceRowOrder(reinterpret_cast<std::uint32_t*>(rowOrder.data()), height_);
    }
    return encodeRows(line.data(), reinterpret_cast<const std::uint32_t*>(rowOrder.data()));
}

// Image row 0 is the picture's top row: the last stored row of a bottom-up bitmap.
bool GifWriter::encodeRows(std::uint8_t* line, const std::uint32_t* rowOrder) {
    unsigned minCodeSize = header_.biBitCount == 1 ? 2 : header_.biBitCount;
    sink_.put(static_cast<std::uint8_t>(minCodeSize));
    LzwEncoder lzw(tables_, host_, sink_);
    if (!lzw.start(minCodeSize)) {
        host_.message(text::kNoMemoryPrefix);
        return false;
    }
    for (std::uint32_t k = 0; k < height_; ++k) {
        std::uint32_t r = rowOrder != nullptr ? rowOrder[k] : k;
        const std::uint8_t* row = pixels_ + (topDown_ ? r : height_ - 1 - r) * stride_;
        if (header_.biBitCount == 8) {
            lzw.feed(row, width_);
        } else {
            unpackRow(row, line);
            lzw.feed(line, width_);
        }
    }
    lzw.finish();
    return true;
}

// 1 bit: bit 7 first; 4 bits: high nibble first.
void GifWriter::unpackRow(const std::uint8_t* row, std::uint8_t* to) const {
    if (header_.biBitCount == 4) {
        for (std::uint32_t x = 0; x < width_; ++x)
            to[x] = (x & 1) != 0 ? row[x / 2] & 0x0F : row[x / 2] >> 4;
    } else {
        for (std::uint32_t x = 0; x < width_; ++x) to[x] = (row[x / 8] >> (7 - x % 8)) & 1;
    }
}

}  // namespace ts::gif
