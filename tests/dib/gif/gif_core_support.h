// The GIF codec's own entry points for the native tests: decoding and encoding with a
// recording host and tables of their own.
#pragma once

#include "gif_codec.h"
#include "gif_test_support.h"
#include "support/memory_host.h"

namespace gift {

// Decodes with fresh tables; the block is copied into a Dib (empty when refused).
Dib decode(const Bytes& file, tst::MemoryHost& host);

// Encodes with fresh tables; the file bytes, empty when the encoder failed.
Bytes encode(const Dib& dib, int version, bool interlace, tst::MemoryHost& host);

}  // namespace gift
