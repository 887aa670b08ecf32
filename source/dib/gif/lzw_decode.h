// LZW decoding of one GIF image's raster data (variable-length codes, least
// significant bit first), with deferred clear.
#pragma once

#include <cstddef>
#include <cstdint>

#include "byte_source.h"
#include "gif_module.h"
#include "gif_text.h"

namespace ts::gif {

class LzwDecoder {
public:
    LzwDecoder(GifModule& tables, ByteSource& source, Reporter& reporter)
        : tables_(tables), source_(source), reporter_(reporter) {}

    // Reads the minimum code size and the sub-blocks, writing pixel indices to out
    // (output past capacity is counted, not written). expected is width x height: a
    // stream that ends at its terminator without an end code must produce exactly that.
    bool decode(std::uint8_t* out, std::size_t capacity, std::uint64_t expected);
    // Pixel bytes the stream produced, also those that did not fit.
    std::uint64_t produced() const { return produced_; }

private:
    enum class Step { Good, Bad, End };

    void start(unsigned minCodeSize);
    void clear();
    bool decodeBlock(const std::uint8_t* bytes, std::size_t count);
    Step step(std::uint32_t code);
    Step badCode(std::uint32_t code);
    void emit(std::uint32_t top);

    GifModule& tables_;
    ByteSource& source_;
    Reporter& reporter_;
    std::uint8_t* out_ = nullptr;
    std::size_t capacity_ = 0;
    std::uint64_t produced_ = 0;

    unsigned minCodeSize_ = 0;
    std::uint32_t clear_ = 0, end_ = 0, next_ = 0, prev_ = kNoCode;
    unsigned codeSize_ = 0;
    std::uint32_t mask_ = 0;
    std::uint8_t first_ = 0;
    std::uint32_t bitBuffer_ = 0;
    unsigned bitCount_ = 0;
    bool good_ = true;
};

}  // namespace ts::gif
