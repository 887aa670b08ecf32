// dibRLEtoDIB: an uncompressed copy of an RLE8 or RLE4 bitmap.
#include "dib/core/dib_checks.h"
#include "dib/core/image_ops.h"
#include "dib/core/rle_expand.h"

namespace ts::dib {

OwnedBlock dibRLEtoDIB(Host& host, Source src) {
    constexpr const char* kName = "dibRLEtoDIB";
    OwnedBlock out(host);
    InfoHeader h;
    if (!requireRunLength(host, src, kName, h, RunLength::Required, "Not a RLE-Bitmap!")) return out;
    uint32_t n = colorCount(h);
    // Room for 2^depth entries, or for the whole stated table when that is larger, so
    // that the rows behind the copied table stay inside the block.
    uint64_t entries = h.biBitCount <= 24 ? (1ull << h.biBitCount) : UINT32_MAX + 1ull;
    if (entries < n) entries = n;
    int64_t rows = absHeight(h), stride = strideOf(h.biWidth, h.biBitCount);
    int64_t image = entries > (1u << 24) ? -1 : imageBytes(h.biWidth, rows, h.biBitCount);
    if (!allocateOutput(host, out, kInfoSize + 4 * entries, image, kName)) return out;
    InfoHeader d = newHeader(h.biWidth, h.biHeight, h.biBitCount);
    d.biClrUsed = n;
    writeHeader(out.data(), d);
    copyColorTable(out.data() + kInfoSize, src, n);
    uint64_t start = pixelOffset(h);
    size_t length = start < src.size ? size_t(src.size - start) : 0;
    const uint8_t* stream = src.data + (start < src.size ? start : src.size);
    expandRle(stream, length, h.biBitCount == 8, bitsOf(out.data()), stride, rows);
    return out;
}

}  // namespace ts::dib
