// BMP files: recognising, reading into a bitmap block, writing a block out.
#pragma once

#include <array>

#include "dib/core/byte_stream.h"
#include "dib/core/dib_host.h"

namespace ts::dib {

constexpr uint16_t kBmpType = 0x4D42;  // "BM"
constexpr uint32_t kFileHeaderSize = 14;

// True when the data starts with "BM" and a 40- or 12-byte header size.
bool isBmp(ByteSource& file);

// Reads the file header, the info header (a core header is widened to 40 bytes) and the
// colour table into a new block, and leaves the file at the pixel rows. file null means
// the file could not be opened. Reports as "dibReadInfo".
OwnedBlock readInfo(Host& host, ByteSource* file);

// A whole BMP file into a new block; reports as "dibRead" (and "dibReadInfo").
OwnedBlock readBmp(Host& host, ByteSource& file);

// The 14-byte file header dibWrite puts before a block of `size` bytes.
std::array<uint8_t, kFileHeaderSize> fileHeader(Source block);

// Writes the file header and the whole block; reports as "dibWrite".
bool writeBmp(Host& host, Source block, ByteSink& file);

}  // namespace ts::dib
