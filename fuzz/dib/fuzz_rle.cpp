// Fuzz target of the RLE expander: four bytes of geometry and depth, then the code
// stream, expanded directly and through dibRLEtoDIB, and bounded for GDI.
#include <cstddef>
#include <cstdint>
#include <vector>

#include "dib/core/dib_layout.h"
#include "dib/core/gdi_bits.h"
#include "dib/core/image_ops.h"
#include "dib/core/rle_expand.h"
#include "support/memory_host.h"

using namespace ts::dib;

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    if (size < 4) return 0;
    int32_t width = data[0] + 1, height = data[1] + 1;
    bool rle8 = data[2] & 1;
    uint32_t colours = data[3];
    const uint8_t* stream = data + 4;
    size_t length = size - 4;

    int64_t stride = strideOf(width, rle8 ? 8 : 4);
    std::vector<uint8_t> rows(size_t(stride * height));
    expandRle(stream, length, rle8, rows.data(), stride, height);

    InfoHeader h = newHeader(width, height, rle8 ? 8 : 4);
    h.biCompression = rle8 ? kBiRle8 : kBiRle4;
    h.biClrUsed = colours;
    h.biSizeImage = uint32_t(length);
    std::vector<uint8_t> block(size_t(pixelOffset(h)) + length);
    writeHeader(block.data(), h);
    std::copy(stream, stream + length, block.begin() + long(pixelOffset(h)));
    tst::MemoryHost host;
    dibRLEtoDIB(host, Source{block.data(), block.size()});
    // The stream GDI would decode must end inside the copy, with an end-of-bitmap code.
    GdiBits gdi(host);
    if (gdi.open(Source{block.data(), block.size()})) {
        const uint8_t* end = gdi.bits() + gdi.header().biSizeImage;
        if (end[-2] != 0 || end[-1] != 1) __builtin_trap();
    }
    return 0;
}
