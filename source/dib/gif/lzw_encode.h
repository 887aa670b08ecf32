// LZW encoding of a GIF image's pixel indices, fed line by line, with a clear code
// whenever the 12-bit table is full.
#pragma once

#include <cstddef>
#include <cstdint>

#include "code_packer.h"
#include "dib/core/byte_stream.h"
#include "dib/core/dib_host.h"
#include "dib/core/module_state.h"
#include "string_table.h"

namespace ts::gif {

class LzwEncoder {
public:
    LzwEncoder(GifTables& tables, dib::Host& host, dib::ByteSink& sink)
        : tables_(tables), sink_(sink), storage_(host) {}

    // Takes the string table and writes the clear code; false when the table cannot
    // be had. The minimum code size byte is the caller's.
    bool start(unsigned minCodeSize);
    // Pixels continue the stream; every pixel must lie below 2^minCodeSize, as the
    // roots do.
    void feed(const std::uint8_t* pixels, std::size_t count);
    // The last string, the end code, the last sub-block and the terminator.
    void finish();

private:
    GifTables& tables_;
    dib::ByteSink& sink_;
    dib::OwnedBlock storage_;
    StringTable table_{};
    PackState pack_;
    std::uint8_t block_[kPackBlockBytes];
    std::uint32_t string_ = kNoCode;  // an empty image ends with this code's low bits: 0
    unsigned size_ = 0;
    unsigned minCodeSize_ = 0;
};

}  // namespace ts::gif
