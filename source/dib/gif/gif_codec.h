// The GIF codec over memory: decoding a GIF file into a packed bitmap and encoding a
// packed bitmap of 1, 4 or 8 bits as a GIF file. Neither touches the file system; both
// take their blocks and show their messages through the bitmap library's host.
#pragma once

#include <cstddef>
#include <cstdint>

#include "byte_cursor.h"
#include "dib/core/byte_stream.h"
#include "dib/core/dib_host.h"
#include "dib/core/module_state.h"
#include "gif_text.h"

namespace ts::gif {

using dib::ByteSink;
using dib::Host;
using dib::OwnedBlock;
using dib::Source;

// True when the bytes start with "GIF87a" or "GIF89a".
bool isGifSignature(const std::uint8_t* data, std::size_t size);

// Reads the six signature bytes: false after "Keine GIF-Datei!", or when the user does
// not want to read a file of an unknown version on. Asks before any table is touched,
// so that callers ask without the module lock.
bool acceptSignature(ByteCursor& in, Host& host);

// Decodes every image behind the signature into one bitmap of the logical screen's
// size. Once the bitmap exists it is returned whatever goes wrong later, holding what
// was decoded up to the error. Uses the tables, so one call at a time per tables.
OwnedBlock decodeGif(ByteCursor& in, GifTables& tables, Host& host);

// Signature and decoding in one, over bytes in memory.
OwnedBlock readGif(const std::uint8_t* data, std::size_t size, GifTables& tables, Host& host);

// "GIF87a" for 87, "GIF89a" for 89; false (and nothing written) for any other number.
bool writeSignature(int version, ByteSink& sink);

// Writes everything behind the signature: screen descriptor, global colour table, one
// image and the trailer, as tables.params asks (interlace, global table). The bitmap
// must be an uncompressed packed bitmap of 1, 4 or 8 bits. On failure the sink keeps
// what was written so far.
bool writeGifBody(Source bitmap, GifTables& tables, Host& host, ByteSink& sink);

// Signature and body in one, with the parameter record filled for a bitmap of 1, 4 or
// 8 bits: the whole file as dibWriteGIF writes it for such a bitmap.
bool encodeGif(Source bitmap, int version, bool interlace, GifTables& tables, Host& host, ByteSink& sink);

}  // namespace ts::gif
