// giflib as the peer of the conformance tests: decoding GIF bytes held in memory.
#pragma once

#include <string>

#include "gif_test_support.h"

namespace gift {

struct PeerImage {
    int left = 0, top = 0, width = 0, height = 0;
    bool interlaced = false;
    std::vector<Rgb> localMap;          // empty when the image has none
    std::vector<std::uint8_t> raster;   // width x height indices, top row first
};

struct PeerGif {
    bool ok = false;                    // giflib read the whole file
    std::string error;                  // giflib's message otherwise
    bool wrongRecordType = false;       // the failure was a byte where a block should start
    int width = 0, height = 0;
    std::vector<Rgb> globalMap;
    std::vector<PeerImage> images;      // what giflib kept, also after a failure
};

PeerGif giflibDecode(const Bytes& file);

}  // namespace gift
