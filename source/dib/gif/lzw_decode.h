// LZW decoding of one GIF image's raster data (variable-length codes, least
// significant bit first), with deferred clear.
#pragma once

#include <cstddef>
#include <cstdint>

#include "byte_cursor.h"
#include "dib/core/dib_host.h"
#include "dib/core/module_state.h"

namespace ts::gif {

// The decoder's registers between sub-blocks.
struct LzwState {
    std::uint32_t clear = 0, end = 0, next = 0, prev = kNoCode;
    unsigned minCodeSize = 0, codeSize = 0;
    std::uint32_t mask = 0;
    std::uint8_t first = 0;        // first character of the previous string
    std::uint32_t bitBuffer = 0;
    unsigned bitCount = 0;
    std::uint64_t produced = 0;    // pixel bytes so far, also those that did not fit
    bool good = true;              // the last code decoded was valid
};

class LzwDecoder {
public:
    LzwDecoder(GifTables& tables, ByteCursor& source, dib::Host& host)
        : tables_(tables), source_(source), host_(host) {}

    // Reads the minimum code size and the sub-blocks, writing pixel indices to out
    // (output past capacity is counted, not written). expected is width x height: a
    // stream that ends at its terminator without an end code must produce exactly that.
    bool decode(std::uint8_t* out, std::size_t capacity, std::uint64_t expected);
    std::uint64_t produced() const { return state_.produced; }

private:
    void start(unsigned minCodeSize);
    bool decodeBlock(const std::uint8_t* bytes, std::size_t count);

    GifTables& tables_;
    ByteCursor& source_;
    dib::Host& host_;
    std::uint8_t* out_ = nullptr;
    std::size_t capacity_ = 0;
    LzwState state_;
};

}  // namespace ts::gif
