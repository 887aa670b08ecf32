// giflib as the peer of the benchmark: decoding and encoding in memory.
#pragma once

#include "bench_pictures.h"

namespace gifbench {

// Whole file to screen-sized rasters, de-interlaced (DGifSlurp); returns the raster of
// the first image, empty on failure.
Bytes giflibDecode(const Bytes& file);

// One 8-bit image, top row first, with a 256-entry palette of (r, g, b) triples.
Bytes giflibEncode(const Bytes& indices, int width, int height, const Bytes& palette,
                   bool interlace);

}  // namespace gifbench
