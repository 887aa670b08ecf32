// Reductions to fixed palettes: black and white (1 bit) and 16 colours (4 bits), both
// with error diffusion into the source.
#include <algorithm>

#include "dib/core/color_cells.h"
#include "dib/core/dib_checks.h"
#include "dib/core/reduce.h"

namespace ts::dib {
namespace {

const RgbQuad kSixteen[16] = {
    {0, 0, 0, 0},     {128, 0, 0, 0},     {0, 128, 0, 0},     {128, 128, 0, 0},
    {0, 0, 128, 0},   {128, 0, 128, 0},   {0, 128, 128, 0},   {128, 128, 128, 0},
    {192, 192, 192, 0}, {255, 0, 0, 0},   {0, 255, 0, 0},     {255, 255, 0, 0},
    {0, 0, 255, 0},   {255, 0, 255, 0},   {0, 255, 255, 0},   {255, 255, 255, 0}};

struct FixedTarget {
    const char* function;
    const char* memoryName;  // the 16-colour memory message reads "_DIB24to4"
    uint16_t bits;
    uint32_t entries;
};

// Checks, output block with header and palette, writable source rows; wait cursor.
bool beginFixed(Host& host, Block src, const FixedTarget& t, OwnedBlock& out, PaddedSource& rows,
                InfoHeader& h) {
    if (!requireInfoHeader(host, Source{src.data, src.size}, t.function, h)) return false;
    if (h.biBitCount != 24) {
        host.report(t.function, "This is not a 24-Bit DIB!");
        return false;
    }
    int64_t height = absHeight(h);
    int64_t need = blockBytes(h, 24);
    if (!allocateOutput(host, out, kInfoSize + 4 * t.entries, imageBytes(h.biWidth, height, t.bits),
                        t.memoryName) ||
        need < 0 || !rows.openWritable(src, uint64_t(need))) {
        if (out) host.report(t.memoryName, "Not enough memory for DIB!");
        out.reset();
        return false;
    }
    InfoHeader d = newHeader(h.biWidth, int32_t(height), t.bits);
    d.biXPelsPerMeter = h.biXPelsPerMeter;
    d.biYPelsPerMeter = h.biYPelsPerMeter;
    d.biClrUsed = d.biClrImportant = t.entries;
    writeHeader(out.data(), d);
    host.cursor(Cursor::Wait);
    return true;
}

// Walks the source rows in stored order, diffusing each pixel's error; pick returns
// the chosen entry of a pixel and store puts it into the output row.
template <typename Pick, typename Store>
void reduceRows(uint8_t* bits, const InfoHeader& h, uint8_t* out, int64_t outStride, Pick pick, Store store) {
    int64_t width = h.biWidth, height = absHeight(h), stride = strideOf(width, 24);
    const Diffusion& diffusion = Diffusion::tables();
    for (int64_t r = 0; r < height && width > 0; ++r) {
        uint8_t* row = bits + r * stride;
        diffusion.row(row, r + 1 < height ? row + stride : nullptr, width,
                      [&](int64_t x, const uint8_t* bgr, RgbQuad& chosen) {
                          store(out + r * outStride, x, pick(bgr, chosen));
                      });
    }
}

}  // namespace

OwnedBlock _DIB24To1(Host& host, Block src) {
    static const FixedTarget target{"_DIB24To1", "_DIB24To1", 1, 2};
    OwnedBlock out(host);
    PaddedSource rows(host);
    InfoHeader h;
    if (!beginFixed(host, src, target, out, rows, h)) return out;
    RgbQuad* table = reinterpret_cast<RgbQuad*>(out.data() + kInfoSize);
    table[1] = RgbQuad{255, 255, 255, 0};
    auto pick = [](const uint8_t* p, RgbQuad& chosen) {
        unsigned white = ((77 * p[2] + 151 * p[1] + 28 * p[0]) >> 8) > 127;
        chosen = white ? RgbQuad{255, 255, 255, 0} : RgbQuad{0, 0, 0, 0};
        return white;
    };
    auto store = [](uint8_t* row, int64_t x, unsigned bit) {
        if (bit) row[x / 8] |= uint8_t(0x80 >> (x % 8));
    };
    reduceRows(rows.writable() + pixelOffset(h), h, bitsOf(out.data()), strideOf(h.biWidth, 1), pick, store);
    host.cursor(Cursor::Arrow);
    return out;
}

OwnedBlock _DIB24To4(Host& host, Block src) {
    static const FixedTarget target{"_DIB24To4", "_DIB24to4", 4, 16};
    OwnedBlock out(host), cube(host);
    PaddedSource rows(host);
    InfoHeader h;
    if (!beginFixed(host, src, target, out, rows, h)) return out;
    if (!cube.allocate(kCells)) {
        host.report("_DIB24To4", "Not enough memory for color cube!");
        host.cursor(Cursor::Arrow);
        out.reset();
        return out;
    }
    std::copy(kSixteen, kSixteen + 16, reinterpret_cast<RgbQuad*>(out.data() + kInfoSize));
    uint8_t* map = cube.data();
    for (uint32_t c = 0; c < kCells; ++c) map[c] = uint8_t(nearestEntry(kSixteen, 16, cellColor(c)));
    auto pick = [map](const uint8_t* p, RgbQuad& chosen) {
        unsigned index = map[cellOf(p)];
        chosen = kSixteen[index];
        return index;
    };
    auto store = [](uint8_t* row, int64_t x, unsigned index) {
        row[x / 2] |= uint8_t(x % 2 ? index : index << 4);
    };
    reduceRows(rows.writable() + pixelOffset(h), h, bitsOf(out.data()), strideOf(h.biWidth, 4), pick, store);
    host.cursor(Cursor::Arrow);
    return out;
}

}  // namespace ts::dib
