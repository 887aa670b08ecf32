// Argument checks and output allocation shared by the bitmap operations.
#pragma once

#include "dib/core/dib_host.h"
#include "dib/core/dib_layout.h"

namespace ts::dib {

// "No DIB passed!" for no handle, else the header; false after the message.
bool requireHandle(Host& host, Source src, const char* function, InfoHeader& h);

// requireHandle, then the 40-byte header test with the function's own OS/2 text.
bool requireInfoHeader(Host& host, Source src, const char* function, InfoHeader& h,
                       const char* os2Message = "No support for OS/2-Bitmaps!");

// Whether an operation takes run-length bitmaps: it refuses them (RLE8, RLE4), or it
// requires them (anything but uncompressed rows and bit fields).
enum class RunLength { Refused, Required };

// requireInfoHeader, then the compression test; false after `function: refusal`.
bool requireRunLength(Host& host, Source src, const char* function, InfoHeader& h, RunLength rule,
                      const char* refusal);

// Bytes of `rows` rows of the given width and depth; -1 when no block could hold them.
int64_t imageBytes(int64_t width, int64_t rows, int64_t bits);

// Bytes of a whole uncompressed block with this header (header, table, masks, rows at
// `bits` per pixel); -1 when no block could hold them or the table is longer than
// kMaxColors.
int64_t blockBytes(const InfoHeader& h, int64_t bits);

// A new zeroed block of prefix + image bytes; "Not enough memory for DIB!" under
// `function` when the sizes are impossible (a prefix of more than kMaxColors table
// entries included) or the platform refuses.
bool allocateOutput(Host& host, OwnedBlock& out, uint64_t prefix, int64_t image, const char* function,
                    const char* message = "Not enough memory for DIB!");

// The source's header, colour table, masks and rows, zero-padded to their full size.
bool openRows(PaddedSource& rows, Source src, const InfoHeader& h);

// Copies `entries` colour-table entries of the source (zero beyond its block) to dst.
void copyColorTable(uint8_t* dst, Source src, uint64_t entries);

}  // namespace ts::dib
