// dibGray: gray palettes for palette bitmaps, 8-bit gray ramps for true colour.
#include <memory>
#include <new>

#include "dib/core/bit_fields.h"
#include "dib/core/dib_checks.h"
#include "dib/core/image_ops.h"
#include "dib/core/reduce.h"

namespace ts::dib {
namespace {

constexpr const char* kName = "dibGray";

inline uint8_t luminance(uint32_t r, uint32_t g, uint32_t b) { return uint8_t((77 * r + 151 * g + 28 * b) >> 8); }

// A copy whose colour table holds the luminance of each entry in all three channels.
OwnedBlock grayPalette(Host& host, Source src) {
    OwnedBlock copy = dibCopy(host, src);
    if (!copy) return copy;
    InfoHeader h = readHeader(copy.data(), copy.size());
    const char* refusal = h.biSize != kInfoSize        ? "No support for OS/2-Bitmaps!"
                          : h.biCompression != kBiRgb ? "No support for RLE-Bitmaps!"
                                                      : nullptr;
    if (refusal) {
        host.report(kName, refusal);
        copy.reset();
        return copy;
    }
    uint64_t n = colorCount(h);
    for (uint64_t i = 0; i < n && kInfoSize + 4 * i + 3 <= copy.size(); ++i) {
        uint8_t* q = copy.data() + kInfoSize + 4 * i;
        q[0] = q[1] = q[2] = luminance(q[2], q[1], q[0]);
    }
    return copy;
}

// Luminance of every pixel of one source row into one output row.
class GrayRow {
public:
    GrayRow(Source src, const InfoHeader& h) : bits_(h.biBitCount) {
        Masks m = masksOf(src, h);
        Field r(m.red), g(m.green), b(m.blue);
        plain32_ = m.red == 0xFF0000 && m.green == 0x00FF00 && m.blue == 0x0000FF;
        if (bits_ == 16) lut_.reset(new (std::nothrow) uint8_t[65536]);
        for (uint32_t v = 0; lut_ && v < 65536; ++v) lut_[v] = luminance(r(v), g(v), b(v));
        red_ = m.red, green_ = m.green, blue_ = m.blue;
    }
    void operator()(const uint8_t* s, uint8_t* d, int64_t width) const;

private:
    unsigned bits_;
    bool plain32_;
    uint32_t red_, green_, blue_;
    std::unique_ptr<uint8_t[]> lut_;
};

// The luminance of byte-ordered pixels (blue, green, red first) in 16-bit arithmetic; a
// loop of its own, free of aliasing, so that the compiler vectorises it.
template <int Step>
inline void grayBytes(const uint8_t* __restrict s, uint8_t* __restrict d, int64_t width) {
    for (int64_t x = 0; x < width; ++x)
        d[x] = uint8_t(uint16_t(77 * s[Step * x + 2] + 151 * s[Step * x + 1] + 28 * s[Step * x]) >> 8);
}

// Three-byte pixels vectorise well only with byte shuffles (SSSE3); plain SSE2 code is
// slower than scalar code there. The processor is asked once.
#if defined(__GNUC__) && (defined(__x86_64__) || defined(__i386__))
#if defined(__clang__)
#define TS_NO_VECTORIZE
#else
#define TS_NO_VECTORIZE __attribute__((optimize("no-tree-vectorize")))
#endif
__attribute__((target("ssse3"))) void grayShuffled(const uint8_t* s, uint8_t* d, int64_t width) {
    grayBytes<3>(s, d, width);
}
TS_NO_VECTORIZE void grayScalar(const uint8_t* s, uint8_t* d, int64_t width) {
    grayBytes<3>(s, d, width);
}
void grayBytes24(const uint8_t* s, uint8_t* d, int64_t width) {
    static const bool shuffles = __builtin_cpu_supports("ssse3");
    shuffles ? grayShuffled(s, d, width) : grayScalar(s, d, width);
}
#else
void grayBytes24(const uint8_t* s, uint8_t* d, int64_t width) { grayBytes<3>(s, d, width); }
#endif

void GrayRow::operator()(const uint8_t* s, uint8_t* d, int64_t width) const {
    Field r(red_), g(green_), b(blue_);
    if (bits_ == 24) {
        grayBytes24(s, d, width);
    } else if (bits_ == 32 && plain32_) {
        grayBytes<4>(s, d, width);
    } else if (bits_ == 32) {
        for (int64_t x = 0; x < width; ++x, s += 4) {
            uint32_t v = le32(s);
            d[x] = luminance(r(v), g(v), b(v));
        }
    } else if (bits_ == 16) {
        for (int64_t x = 0; x < width; ++x, s += 2) {
            uint32_t v = le16(s);
            d[x] = lut_ ? lut_[v] : luminance(r(v), g(v), b(v));
        }
    }
}

OwnedBlock grayRamp(Host& host, Source src, const InfoHeader& h) {
    OwnedBlock out(host);
    if (h.biCompression == kBiRle8 || h.biCompression == kBiRle4) {
        host.report(kName, "No support for RLE-Bitmaps!");
        return out;
    }
    int64_t height = absHeight(h);
    PaddedSource rows(host);
    if (!allocateOutput(host, out, kInfoSize + 1024, imageBytes(h.biWidth, height, 8), "dib24to8")) return out;
    if (!openRows(rows, src, h)) {
        out.reset();
        host.report("dib24to8", "Not enough memory for DIB!");
        return out;
    }
    InfoHeader d = newHeader(h.biWidth, int32_t(height), 8);
    d.biClrUsed = 256;
    writeHeader(out.data(), d);
    for (unsigned i = 0; i < 256; ++i) out.data()[kInfoSize + 4 * i] = out.data()[kInfoSize + 4 * i + 1] =
        out.data()[kInfoSize + 4 * i + 2] = uint8_t(i);
    GrayRow gray(src, h);
    int64_t srcStride = strideOf(h.biWidth, h.biBitCount), dstStride = strideOf(h.biWidth, 8);
    const uint8_t* bits = rows.data() + pixelOffset(h);
    uint8_t* outBits = bitsOf(out.data());
    for (int64_t r = 0; r < height && dstStride > 0; ++r) gray(bits + r * srcStride, outBits + r * dstStride, h.biWidth);
    return out;
}

}  // namespace

OwnedBlock dibGray(Host& host, Source src) {
    InfoHeader h;
    if (!requireHandle(host, src, kName, h)) return OwnedBlock(host);
    if (h.biBitCount < 16) return grayPalette(host, src);
    if (h.biSize != kInfoSize) {
        host.report(kName, "No support for OS/2-Bitmaps!");
        return OwnedBlock(host);
    }
    return grayRamp(host, src, h);
}

}  // namespace ts::dib
