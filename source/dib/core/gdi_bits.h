// A bitmap's bytes as GDI may read them, never more than the caller's block holds.
#pragma once

#include "dib/core/dib_host.h"
#include "dib/core/dib_layout.h"

namespace ts::dib {

// Header, colour table and masks, then the pixels at the layout's pixel offset.
// Uncompressed rows are zero-padded to their full size when the block is shorter. A
// run-length stream is cut where the block ends, closed with an end-of-bitmap code,
// and biSizeImage names exactly the bytes that are there, so that GDI's decoder stops
// inside the copy however the runs end. A header whose biSize is not 40 is passed as a
// 40-byte one, which is where the layout puts the colour table. GDI reads bit-field
// masks right behind the header, where the layout puts the colour table: a bitmap with
// both gets a header of its own with the masks first.
class GdiBits {
public:
    explicit GdiBits(Host& host) : rows_(host), copy_(host) {}
    // False when the bytes cannot be had (absurd sizes, no memory); no message.
    bool open(Source src);
    const InfoHeader& header() const { return header_; }
    const uint8_t* info() const { return info_; }
    const uint8_t* bits() const { return bits_; }

private:
    bool openStream(Source src);
    bool ownHeader();

    InfoHeader header_{};
    const uint8_t* info_ = nullptr;
    const uint8_t* bits_ = nullptr;
    PaddedSource rows_;
    OwnedBlock copy_;
};

}  // namespace ts::dib
