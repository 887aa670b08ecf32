// The decoder's walk through a GIF file: logical screen, colour tables and the block
// loop; one object per file.
#pragma once

#include "dib/core/dib_layout.h"
#include "gif_codec.h"
#include "gif_place.h"

namespace ts::gif {

class GifReader {
public:
    GifReader(ByteCursor& source, GifTables& tables, Host& host)
        : source_(source), tables_(tables), host_(host), bitmap_(host) {}
    OwnedBlock read();

private:
    bool createBitmap();
    void readBlocks();
    void skipExtension();
    void readColorTable(std::uint32_t entries);
    // Image level, in gif_read_image.cpp.
    bool readImage();
    bool readLocalTable(std::uint8_t flags);
    bool placeDecoded(const ImageRect& image, bool interlaced, const std::uint8_t* pixels,
                      std::uint32_t streamLines);

    ByteCursor& source_;
    GifTables& tables_;
    Host& host_;
    OwnedBlock bitmap_;
    dib::InfoHeader header_{};
    Canvas canvas_{};
};

}  // namespace ts::gif
