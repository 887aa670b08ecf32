// The encoder's walk through one bitmap: screen descriptor, colour table, the image
// and the trailer; one object per file.
#pragma once

#include "packed_dib.h"
#include "gif_codec.h"

namespace ts::gif {

class GifWriter {
public:
    GifWriter(const std::uint8_t* bitmap, std::size_t size, GifModule& module, Memory& memory,
              ByteSink& sink, Reporter& reporter)
        : bitmap_(bitmap), size_(size), module_(module), memory_(memory), sink_(sink),
          reporter_(reporter) {}
    bool write();

private:
    bool inspect();
    void writeScreen();
    void writeColorTable();
    // Image level, in gif_write_image.cpp.
    bool writeImage();
    bool encodeRows(std::uint8_t* line, const std::uint32_t* rowOrder);
    void unpackRow(const std::uint8_t* row, std::uint8_t* to) const;

    const std::uint8_t* bitmap_;
    std::size_t size_;
    GifModule& module_;
    Memory& memory_;
    ByteSink& sink_;
    Reporter& reporter_;
    DibHeader header_{};
    std::uint32_t width_ = 0;
    std::uint32_t height_ = 0;
    bool topDown_ = false;
    std::uint64_t stride_ = 0;
    const std::uint8_t* pixels_ = nullptr;
};

}  // namespace ts::gif
