// The encoder's walk through one bitmap: screen descriptor, colour table, the image
// and the trailer; one object per file.
#pragma once

#include "dib/core/dib_layout.h"
#include "gif_codec.h"

namespace ts::gif {

class GifWriter {
public:
    GifWriter(Source bitmap, GifTables& tables, Host& host, ByteSink& sink)
        : bitmap_(bitmap), tables_(tables), host_(host), sink_(sink) {}
    bool write();

private:
    bool inspect();
    void writeScreen();
    void writeColorTable();
    // Image level, in gif_write_image.cpp.
    bool writeImage();
    bool encodeRows(std::uint8_t* line, const std::uint32_t* rowOrder);
    void unpackRow(const std::uint8_t* row, std::uint8_t* to) const;

    Source bitmap_;
    GifTables& tables_;
    Host& host_;
    ByteSink& sink_;
    dib::InfoHeader header_{};
    std::uint32_t width_ = 0;
    std::uint32_t height_ = 0;
    bool topDown_ = false;
    std::uint64_t stride_ = 0;
    const std::uint8_t* pixels_ = nullptr;
};

}  // namespace ts::gif
