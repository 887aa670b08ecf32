// dibReduceColors: histogram of colour cells, adaptive palette, nearest entries, pixels.
#include <cstring>

#include "dib/core/color_cells.h"
#include "dib/core/dib_checks.h"
#include "dib/core/median_cut.h"
#include "dib/core/module_state.h"
#include "dib/core/reduce.h"

namespace ts::dib {
namespace {

constexpr const char* kName = "dibReduceColors";
constexpr unsigned kDiffuse = 1, kMedianCut = 2;

bool checkReduce(Host& host, Source src, unsigned uBPP, InfoHeader& h) {
    if (!requireHandle(host, src, kName, h)) return false;
    const char* refusal = nullptr;
    if (uBPP > 8)
        refusal = "uBPP > 8!";
    else if (h.biSize != kInfoSize)
        refusal = "No support for OS/2-Bitmaps!";
    else if (h.biCompression != kBiRgb)
        refusal = "No support for RLE-Bitmaps!";
    else if (h.biBitCount != 24)
        refusal = "Bitmap is already reduced!";
    if (refusal) host.report(kName, refusal);
    return refusal == nullptr;
}

// The working pixels: the source itself, or with diffusion a copy made by dibCopy.
struct Work {
    explicit Work(Host& host) : copy(host), rows(host) {}
    OwnedBlock copy;
    PaddedSource rows;
    const uint8_t* bits = nullptr;
    uint8_t* writable = nullptr;
};

// The pixels start behind the colour table, which a 24-bit bitmap may carry too.
bool openWork(Host& host, Source src, const InfoHeader& h, bool diffuse, Work& w) {
    int64_t need = blockBytes(h, 24);
    uint64_t bits = pixelOffset(h);
    if (diffuse) {
        w.copy = dibCopy(host, src);
        if (!w.copy) return false;  // dibCopy has said why
    }
    bool opened = need >= 0 && (diffuse ? w.rows.openWritable(w.copy.block(), uint64_t(need))
                                        : w.rows.open(src, uint64_t(need)));
    if (!opened) {
        host.report(kName, "Not enough memory for DIB!");
        return false;
    }
    w.bits = w.rows.data() + bits;
    if (diffuse) w.writable = w.rows.writable() + bits;
    return true;
}

void countCells(uint32_t* histogram, const uint8_t* bits, int64_t width, int64_t height) {
    int64_t stride = strideOf(width, 24);
    for (int64_t r = 0; r < height && width > 0; ++r) {
        const uint8_t* p = bits + r * stride;
        for (int64_t x = 0; x < width; ++x) ++histogram[cellOf(p + 3 * x)];
    }
}

void popularity(uint32_t* histogram, RgbQuad* palette, unsigned n) {
    for (unsigned i = 0; i < n; ++i) {
        uint32_t best = 0;
        for (uint32_t c = 1; c < kCells; ++c)
            if (histogram[c] > histogram[best]) best = c;
        palette[i] = cellColor(best);
        histogram[best] = 1;  // not 0: a picture of few cells repeats them
    }
}

// The pixels' indices: each cell's nearest palette entry (entry 0 first, a later one
// only when strictly nearer), with diffusion from the pixel's diffused value.
void mapPixels(const Work& w, const RgbQuad* palette, unsigned n, int64_t width, int64_t height, uint8_t* out) {
    CellMap map(palette, n);
    int64_t stride = strideOf(width, 24), outStride = strideOf(width, 8);
    const Diffusion& diffusion = Diffusion::tables();
    for (int64_t r = 0; r < height && width > 0; ++r) {
        uint8_t* d = out + r * outStride;
        if (!w.writable) {
            const uint8_t* p = w.bits + r * stride;
            for (int64_t x = 0; x < width; ++x) d[x] = map(cellOf(p + 3 * x));
            continue;
        }
        uint8_t* row = w.writable + r * stride;
        diffusion.row(row, r + 1 < height ? row + stride : nullptr, width,
                      [&](int64_t x, const uint8_t* bgr, RgbQuad& chosen) {
                          d[x] = map(cellOf(bgr));
                          chosen = palette[d[x]];
                      });
    }
}

// Output header and the palette from the histogram.
void buildPalette(Host& host, uint32_t* histogram, uint8_t* out, const InfoHeader& h, unsigned n, unsigned mode) {
    int64_t height = absHeight(h);
    InfoHeader d = newHeader(h.biWidth, int32_t(height), 8);
    d.biClrUsed = 256;
    writeHeader(out, d);
    RgbQuad* palette = reinterpret_cast<RgbQuad*>(out + kInfoSize);
    if (mode & kMedianCut) {
        ModuleLease lease(host);  // the median-cut state is the module's
        MedianCut& run = lease.state().medianCut;
        run = MedianCut{histogram, palette, 0, &host};
        runMedianCut(run, n, int64_t(h.biWidth) * height);
    } else {
        popularity(histogram, palette, n);
    }
}

}  // namespace

OwnedBlock dibReduceColors(Host& host, Source src, unsigned uBPP, unsigned mode) {
    OwnedBlock out(host);
    InfoHeader h;
    if (!checkReduce(host, src, uBPP, h)) return out;
    Work work(host);
    if (!openWork(host, src, h, (mode & kDiffuse) != 0, work)) return out;
    OwnedBlock histogram(host);
    int64_t height = absHeight(h);
    if (!histogram.allocate(4ull * kCells) ||
        !allocateOutput(host, out, kInfoSize + 1024, imageBytes(h.biWidth, height, 8), kName)) {
        if (!histogram) host.report(kName, "Not enough memory for DIB!");
        host.cursor(Cursor::Arrow);
        return out;
    }
    uint32_t* cells = reinterpret_cast<uint32_t*>(histogram.data());
    countCells(cells, work.bits, h.biWidth, height);
    buildPalette(host, cells, out.data(), h, 1u << uBPP, mode);
    mapPixels(work, reinterpret_cast<RgbQuad*>(out.data() + kInfoSize), 1u << uBPP, h.biWidth, height,
              bitsOf(out.data()));
    host.cursor(Cursor::Arrow);
    return out;
}

}  // namespace ts::dib
