// Fuzz target of the GDI-free cores of the 2D layer and of text in 3D: any floats and
// integers give defined results that keep their promises.
//
// Input: byte 0 picks the core (0 colour, 1 circle arc, 2 outline text scale,
// 3 glDrawPixels bytes, 4 text copy); the rest are its arguments, read as
// little-endian 32-bit values (zeros where the input runs out), or as the text.
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <vector>

#include "cobj_2d/circle_arc.h"
#include "math/gdi_color.h"
#include "tsobj3d/text_copy.h"
#include "tsobj3d/visible/pixel_rect.h"
#include "tsobj3d/visible/text_scale.h"

namespace {

class Reader {
public:
    Reader(const uint8_t* data, size_t size) : data_(data), size_(size) {}
    uint32_t word() {
        uint32_t v = 0;
        for (int i = 0; i < 4; ++i) v |= uint32_t(at_ < size_ ? data_[at_++] : 0) << (8 * i);
        return v;
    }
    int32_t integer() { return int32_t(word()); }
    float real() {
        const uint32_t w = word();
        float f;
        std::memcpy(&f, &w, 4);
        return f;
    }
    const uint8_t* rest(size_t* n) const {
        *n = size_ - at_;
        return data_ + at_;
    }

private:
    const uint8_t* data_;
    size_t size_;
    size_t at_ = 0;
};

void check(bool promise) {
    if (!promise) std::abort();
}

void colour(Reader& in) {
    const float r = in.real(), g = in.real(), b = in.real();
    const uint32_t c = ts::gdiColor(r, g, b);
    check(c <= 0xFFFFFF);
    check((c & 0xFF) == ts::colorChannel(r));
}

void arc(Reader& in) {
    const int32_t x = in.integer(), y = in.integer(), radius = in.integer() % 100000;
    const float start = in.real(), sweep = in.real();
    const ts::ArcCall a = ts::circleArc(x, y, radius, start, sweep);
    const int64_t r = std::llabs(radius);
    if (std::isfinite(start) && std::isfinite(sweep) && std::fabs(start) < 1e6f && std::fabs(sweep) < 1e6f) {
        // The end points lie on the circle's bounding square or inside it (coordinates
        // wrap like 32-bit window coordinates).
        const auto offset = [](int32_t a, int32_t b) { return std::llabs(int32_t(uint32_t(a) - uint32_t(b))); };
        check(offset(a.xStart, x) <= r && offset(a.yStart, y) <= r);
        check(offset(a.xEnd, x) <= r && offset(a.yEnd, y) <= r);
    }
}

void textScale(Reader& in) {
    std::vector<ts::GlyphMetrics> glyphs(256);
    for (int i = 0; i < 8; ++i) {
        ts::GlyphMetrics& g = glyphs[in.word() & 0xFF];
        g.cellIncX = in.real();
        g.blackBoxY = in.real();
    }
    const float width = in.real(), height = in.real();
    size_t n = 0;
    const uint8_t* text = in.rest(&n);
    const ts::TextScale s = ts::outlineTextScale(glyphs.data(), reinterpret_cast<const char*>(text), n, width, height);
    if (width == 0.0f) check(s.x == 1.0f);
    if (height == 0.0f) check(s.y == s.x || std::isnan(s.x));
}

void pixelBytes(Reader& in) {
    const int32_t width = in.integer(), height = in.integer();
    const uint32_t format = 0x1900 + (in.word() % 12), type = 0x1400 + (in.word() % 8);
    const int alignment = int(1u << (in.word() % 4));
    const int64_t bytes = ts::drawPixelsBytes(width, height, format, type, alignment);
    check(bytes >= -1);
    if (bytes > 0) check(width > 0 && height > 0);
    if (bytes > 0 && bytes < INT64_MAX) {
        // At least one byte per pixel, at most sixteen plus the row padding.
        const __int128 pixels = __int128(width) * height;
        check(bytes >= pixels && bytes <= pixels * 16 + __int128(height) * alignment);
    }
}

void textCopy(Reader& in) {
    size_t n = 0;
    const uint8_t* rest = in.rest(&n);
    std::vector<char> text(rest, rest + n);
    text.push_back('\0');
    std::unique_ptr<char[]> copy = ts::copyText(text.data());
    check(copy && std::strcmp(copy.get(), text.data()) == 0);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    if (size == 0) return 0;
    Reader in(data + 1, size - 1);
    switch (data[0] % 5) {
    case 0: colour(in); break;
    case 1: arc(in); break;
    case 2: textScale(in); break;
    case 3: pixelBytes(in); break;
    default: textCopy(in); break;
    }
    return 0;
}
