// LZW encoding of a GIF image's pixel indices, with a clear code whenever the
// 12-bit table is full.
#pragma once

#include <cstddef>
#include <cstdint>

#include "byte_sink.h"
#include "gif_memory.h"
#include "gif_module.h"
#include "gif_text.h"

namespace ts::gif {

// Writes the sub-blocks and the terminator of one image (the minimum code size byte
// is the caller's). False, after the message, when the string table cannot be had.
bool lzwEncode(const std::uint8_t* pixels, std::size_t count, unsigned minCodeSize,
               GifModule& module, Memory& memory, ByteSink& sink, Reporter& reporter);

}  // namespace ts::gif
