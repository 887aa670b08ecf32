// Expansion of RLE8 and RLE4 code streams into bottom-up pixel rows.
#include "dib/core/rle_expand.h"

namespace ts::dib {
namespace {

// The write position in the rows; every store is checked against them.
class Cursor2D {
public:
    Cursor2D(uint8_t* out, int64_t stride, int64_t rows, bool rle8)
        : out_(out), stride_(stride), rows_(rows), rle8_(rle8) {}

    void put(uint8_t value) {
        int64_t byte = rle8_ ? x_ : x_ / 2;
        if (row_ < rows_ && byte < stride_) {
            uint8_t& dst = out_[row_ * stride_ + byte];
            if (rle8_)
                dst = value;
            else if (x_ % 2 == 0)
                dst = uint8_t(value << 4);
            else
                dst |= uint8_t(value & 0x0F);
        }
        ++x_;
    }
    void endOfLine() {
        ++row_;
        x_ = 0;
    }
    void move(uint8_t dx, uint8_t dy) {
        x_ += dx;
        row_ += dy;
    }

private:
    uint8_t* out_;
    int64_t stride_, rows_;
    bool rle8_;
    int64_t x_ = 0, row_ = 0;
};

// Absolute mode: n pixels from the stream, padded to an even number of bytes.
size_t absolute(const uint8_t* s, size_t pos, size_t length, unsigned n, bool rle8, Cursor2D& at) {
    size_t bytes = rle8 ? n : (n + 1) / 2;
    for (unsigned i = 0; i < n; ++i) {
        size_t p = pos + (rle8 ? i : i / 2);
        if (p >= length) return length;
        at.put(rle8 ? s[p] : (i % 2 == 0 ? s[p] >> 4 : s[p] & 0x0F));
    }
    return pos + bytes + (bytes & 1);
}

}  // namespace

void expandRle(const uint8_t* s, size_t length, bool rle8, uint8_t* out, int64_t stride, int64_t rows) {
    Cursor2D at(out, stride, rows, rle8);
    size_t pos = 0;
    while (pos + 1 < length) {
        uint8_t count = s[pos], code = s[pos + 1];
        pos += 2;
        if (count > 0) {
            for (unsigned i = 0; i < count; ++i) at.put(rle8 ? code : i % 2 == 0 ? code >> 4 : code & 0x0F);
        } else if (code == 0) {
            at.endOfLine();
        } else if (code == 1) {
            return;
        } else if (code == 2) {
            if (pos + 1 >= length) return;
            at.move(s[pos], s[pos + 1]);
            pos += 2;
        } else {
            pos = absolute(s, pos, length, code, rle8, at);
        }
    }
}

}  // namespace ts::dib
