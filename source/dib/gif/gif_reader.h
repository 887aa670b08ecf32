// The decoder's walk through a GIF file: signature, logical screen, colour tables and
// the block loop; one object per file.
#pragma once

#include "byte_source.h"
#include "packed_dib.h"
#include "gif_codec.h"
#include "gif_place.h"

namespace ts::gif {

class GifReader {
public:
    GifReader(ByteSource& source, GifModule& module, Memory& memory, Reporter& reporter)
        : source_(source), module_(module), memory_(memory), reporter_(reporter),
          bitmap_(memory) {}
    DecodedGif read();

private:
    bool readSignature();
    bool createBitmap();
    void readBlocks();
    void skipExtension();
    void readColorTable(std::uint32_t entries);
    // Image level, in gif_read_image.cpp.
    bool readImage();
    bool readLocalTable(std::uint8_t flags);
    bool placeDecoded(const ImageRect& image, bool interlaced, const std::uint8_t* pixels,
                      std::uint32_t streamLines);

    ByteSource& source_;
    GifModule& module_;
    Memory& memory_;
    Reporter& reporter_;
    Block bitmap_;
    std::size_t bitmapSize_ = 0;
    DibHeader header_{};
    Canvas canvas_{};
};

}  // namespace ts::gif
