// The GIF codec over memory: decoding a GIF file into a packed bitmap and encoding a
// packed bitmap of 1, 4 or 8 bits as a GIF file. Neither touches the file system.
#pragma once

#include <cstddef>
#include <cstdint>

#include "byte_sink.h"
#include "gif_memory.h"
#include "gif_module.h"
#include "gif_text.h"

namespace ts::gif {

// A bitmap block from the decoder's Memory, owned by the caller.
struct DecodedGif {
    std::uint8_t* bitmap = nullptr;  // null when the file was refused
    std::size_t size = 0;            // bytes of the block
};

// True when the bytes start with "GIF87a" or "GIF89a".
bool isGifSignature(const std::uint8_t* data, std::size_t size);

// Decodes every image of the file into one bitmap of the logical screen's size. Once
// the bitmap exists it is returned whatever goes wrong later, holding what was decoded
// up to the error. Uses the module's tables, so one call at a time per module.
DecodedGif readGif(const std::uint8_t* data, std::size_t size, GifModule& module,
                   Memory& memory, Reporter& reporter);

// "GIF87a" for 87, "GIF89a" for 89; false (and nothing written) for any other number.
bool writeSignature(int version, ByteSink& sink);

// Writes everything behind the signature: screen descriptor, global colour table, one
// image and the trailer, as module.params asks (interlace, global table). The bitmap
// must be an uncompressed packed bitmap of 1, 4 or 8 bits in a block of size bytes.
// On failure the sink keeps what was written so far.
bool writeGifBody(const std::uint8_t* bitmap, std::size_t size, GifModule& module,
                  Memory& memory, ByteSink& sink, Reporter& reporter);

// Signature and body in one, with the parameter record filled for a bitmap of 1, 4 or
// 8 bits: the whole file as dibWriteGIF writes it for such a bitmap.
bool encodeGif(const std::uint8_t* bitmap, std::size_t size, int version, bool interlace,
               GifModule& module, Memory& memory, ByteSink& sink, Reporter& reporter);

}  // namespace ts::gif
