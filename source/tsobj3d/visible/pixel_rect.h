// How many bytes glDrawPixels reads for a rectangle of pixels, so that a bitmap node
// can refuse a bitmap block too short for what it claims.
#pragma once

#include <cstdint>

namespace ts {

// Bytes read from client memory by glDrawPixels(width, height, format, type) with the
// given unpack alignment and no other unpack settings: rows padded to the alignment,
// the last row unpadded. -1 for a format or type this table does not know (the bitmap
// node then draws nothing), 0 for an empty or negative rectangle; counts beyond the
// 64-bit range saturate.
int64_t drawPixelsBytes(int32_t width, int32_t height, uint32_t format, uint32_t type, int alignment);

}  // namespace ts
