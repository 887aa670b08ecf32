// Encoding the one image of a written GIF: descriptor, pixel indices in stream order
// and the LZW data.
#include <cstring>

#include "gif_writer.h"
#include "interlace.h"
#include "lzw_encode.h"

namespace ts::gif {

namespace {
constexpr std::uint8_t kImage = 0x2C;
}  // namespace

bool GifWriter::writeImage() {
    unsigned bits = header_.bitCount;
    bool global = module_.params.globalTable != 0;
    sink_.put(kImage);
    sink_.putWord(0);  // left
    sink_.putWord(0);  // top
    sink_.putWord(width_);
    sink_.putWord(height_);
    sink_.put(static_cast<std::uint8_t>((global ? 0 : 0x80) +
                                        (module_.params.interlace != 0 ? 0x40 : 0) + bits - 1));
    if (!global) writeColorTable();
    std::uint64_t count = std::uint64_t{width_} * height_;
    Block indices(memory_, count);
    if (!indices) {
        reporter_.error(text::kNoMemoryBitmap);
        return false;
    }
    if (!unpackRows(indices.bytes())) return false;
    unsigned minCodeSize = bits == 1 ? 2 : bits;
    sink_.put(static_cast<std::uint8_t>(minCodeSize));
    return lzwEncode(indices.bytes(), static_cast<std::size_t>(count), minCodeSize, module_,
                     memory_, sink_, reporter_);
}

// Image row 0 is the picture's top row: the last stored row of a bottom-up bitmap.
bool GifWriter::unpackRows(std::uint8_t* indices) {
    Block rowMap(memory_);
    if (module_.params.interlace != 0) {
        if (!rowMap.allocate(std::uint64_t{height_} * 4)) {
            reporter_.error(text::kNoMemoryRowMap);
            return false;
        }
        interlaceRowMap(reinterpret_cast<std::uint32_t*>(rowMap.bytes()), height_);
    }
    const std::uint32_t* map = reinterpret_cast<const std::uint32_t*>(rowMap.bytes());
    for (std::uint32_t r = 0; r < height_; ++r) {
        std::uint64_t stored = topDown_ ? r : height_ - 1 - r;
        std::uint64_t line = map != nullptr ? map[r] : r;
        unpackRow(pixels_ + stored * stride_, indices + line * width_);
    }
    return true;
}

// 1 bit: bit 7 first; 4 bits: high nibble first; 8 bits: a byte a pixel.
void GifWriter::unpackRow(const std::uint8_t* row, std::uint8_t* to) const {
    if (header_.bitCount == 8) {
        std::memcpy(to, row, width_);
    } else if (header_.bitCount == 4) {
        for (std::uint32_t x = 0; x < width_; ++x)
            to[x] = (x & 1) != 0 ? row[x / 2] & 0x0F : row[x / 2] >> 4;
    } else {
        for (std::uint32_t x = 0; x < width_; ++x) to[x] = (row[x / 8] >> (7 - x % 8)) & 1;
    }
}

}  // namespace ts::gif
