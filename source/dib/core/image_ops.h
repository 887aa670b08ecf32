// Image operations that make a new bitmap from an existing one: crop, gray, half size,
// run-length expansion.
#pragma once

#include <cstdint>

#include "dib/core/dib_host.h"

namespace ts::dib {

// The rectangle from column x and stored row y. It is not checked against the source:
// bytes are taken from the block where they lie in it, and read as 0 beyond it.
OwnedBlock dibCrop(Host& host, Source src, int32_t x, int32_t y, int32_t width, int32_t height);
OwnedBlock dibGray(Host& host, Source src);
OwnedBlock dibSmallSize(Host& host, Source src);
OwnedBlock dibRLEtoDIB(Host& host, Source src);

}  // namespace ts::dib
