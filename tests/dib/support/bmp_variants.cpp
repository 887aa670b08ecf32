// BMP file variants derived from ImageMagick's files for the conformance tests.
#include "support/bmp_variants.h"

#include <algorithm>

#include "dib/core/dib_layout.h"

namespace tst {
namespace {

using ts::dib::le32;
using ts::dib::put32;

int32_t i32(const std::vector<uint8_t>& b, size_t at) { return int32_t(le32(b.data() + at)); }

// Header (file header, info header, table, masks) of a file and its rows.
struct Parts {
    std::vector<uint8_t> head, rows;
    int32_t width, height;
    uint16_t bits;
};

Parts split(const std::vector<uint8_t>& bmp) {
    Parts p;
    uint32_t off = le32(bmp.data() + 10);
    p.width = i32(bmp, 18);
    p.height = i32(bmp, 22);
    p.bits = ts::dib::le16(bmp.data() + 28);
    p.head.assign(bmp.begin(), bmp.begin() + off);
    size_t image = size_t(ts::dib::strideOf(p.width, p.bits) * std::abs(p.height));
    p.rows.assign(bmp.begin() + off, bmp.begin() + off + long(image));
    return p;
}

std::vector<uint8_t> join(Parts p) {
    std::vector<uint8_t> out = p.head;
    out.insert(out.end(), p.rows.begin(), p.rows.end());
    put32(out.data() + 2, uint32_t(out.size()));
    put32(out.data() + 10, uint32_t(p.head.size()));
    return out;
}

// One row of 4-bit pixels as RLE4 codes.
void encodeRow(const std::vector<uint8_t>& px, std::vector<uint8_t>& out) {
    size_t x = 0;
    while (x < px.size()) {
        size_t run = 1;
        while (x + run < px.size() && run < 255 && px[x + run] == px[x]) ++run;
        size_t literal = 0;
        while (run == 1 && x + literal < px.size() && literal < 200 &&
               !(x + literal + 1 < px.size() && px[x + literal] == px[x + literal + 1]))
            ++literal;
        if (run == 1 && literal >= 3) {
            out.push_back(0);
            out.push_back(uint8_t(literal));
            size_t bytes = (literal + 1) / 2;
            for (size_t i = 0; i < bytes; ++i)
                out.push_back(uint8_t(px[x + 2 * i] << 4 | (2 * i + 1 < literal ? px[x + 2 * i + 1] : 0)));
            if (bytes % 2) out.push_back(0);
            x += literal;
        } else {
            out.push_back(uint8_t(run));
            out.push_back(uint8_t(px[x] << 4 | px[x]));
            x += run;
        }
    }
}

}  // namespace

std::vector<uint8_t> topDown(const std::vector<uint8_t>& bmp) {
    Parts p = split(bmp);
    size_t stride = size_t(ts::dib::strideOf(p.width, p.bits));
    std::vector<uint8_t> flipped(p.rows.size());
    size_t rows = p.rows.size() / stride;
    for (size_t r = 0; r < rows; ++r)
        std::copy_n(p.rows.begin() + long(r * stride), stride, flipped.begin() + long((rows - 1 - r) * stride));
    p.rows = flipped;
    put32(p.head.data() + 22, uint32_t(-p.height));
    return join(p);
}

std::vector<uint8_t> toRle4(const std::vector<uint8_t>& bmp4) {
    Parts p = split(bmp4);
    size_t stride = size_t(ts::dib::strideOf(p.width, 4));
    std::vector<uint8_t> codes;
    for (int32_t r = 0; r < p.height; ++r) {
        std::vector<uint8_t> px(size_t(p.width));
        for (int32_t x = 0; x < p.width; ++x) {
            uint8_t b = p.rows[r * stride + size_t(x / 2)];
            px[size_t(x)] = x % 2 ? b & 0x0F : b >> 4;
        }
        encodeRow(px, codes);
        codes.push_back(0);
        codes.push_back(uint8_t(r + 1 < p.height ? 0 : 1));
    }
    p.rows = codes;
    put32(p.head.data() + 30, 2);
    put32(p.head.data() + 34, uint32_t(codes.size()));
    return join(p);
}

std::vector<uint8_t> plain16(const std::vector<uint8_t>& bmp16) {
    Parts p = split(bmp16);
    p.head.resize(54);
    put32(p.head.data() + 30, 0);
    return join(p);
}

std::vector<uint8_t> withInfoHeader(const std::vector<uint8_t>& bmp, const std::vector<uint32_t>& masks) {
    Parts p = split(bmp);
    p.head.resize(54);
    put32(p.head.data() + 14, 40);
    put32(p.head.data() + 30, masks.empty() ? 0 : 3);
    for (uint32_t m : masks) {
        p.head.resize(p.head.size() + 4);
        put32(p.head.data() + p.head.size() - 4, m);
    }
    return join(p);
}

}  // namespace tst
