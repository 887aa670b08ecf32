// The reference GIF writer of the tests, kept simple on purpose.
#include "reference_encoder.h"

#include <array>
#include <memory>

namespace gift {

namespace {

constexpr unsigned kNone = 4096;
constexpr unsigned kChildren = 12;

class Packer {
public:
    explicit Packer(Bytes& out) : out_(out) { block_.fill(0); }
    void put(unsigned code, unsigned size) {
        for (unsigned bit = 0; bit < size; ++bit) {
            if ((code >> bit) & 1) block_[index_] |= static_cast<std::uint8_t>(1 << offset_);
            if (++offset_ < 8) continue;
            offset_ = 0;
            if (index_ == 255) {  // the last byte is complete: out goes a full block
                block_[0] = 255;
                out_.insert(out_.end(), block_.begin(), block_.end());
                block_.fill(0);
                index_ = 1;
            } else {
                ++index_;
            }
        }
    }
    void finish() {
        unsigned count = offset_ == 0 ? index_ - 1 : index_;
        block_[0] = static_cast<std::uint8_t>(count);
        out_.insert(out_.end(), block_.begin(), block_.begin() + count + 1);
        out_.push_back(0);
    }

private:
    Bytes& out_;
    std::array<std::uint8_t, 256> block_;
    unsigned index_ = 1;
    unsigned offset_ = 0;
};

struct Table {
    unsigned prefix[4096], suffix[4096], child[4096][kChildren];
    unsigned clear, next;

    void reset() {
        next = clear + 2;
        for (unsigned code = 0; code < next; ++code) prefix[code] = kNone, suffix[code] = code & 0xFF;
        for (auto& slots : child)
            for (unsigned& slot : slots) slot = kNone;
    }
    unsigned find(unsigned string, unsigned pixel) const {
        if (string != kNone) {
            for (unsigned slot = 0; slot < kChildren; ++slot) {
                unsigned code = child[string][slot];
                if (code == kNone) return kNone;
                if (suffix[code] == pixel) return code;
            }
        }
        for (unsigned code = string == kNone ? 0 : clear + 2; code < next; ++code)
            if (prefix[code] == string && suffix[code] == pixel) return code;
        return kNone;
    }
    void add(unsigned string, unsigned pixel) {
        prefix[next] = string, suffix[next] = pixel;
        for (unsigned& slot : child[string])
            if (slot == kNone) {
                slot = next;
                break;
            }
    }
};

unsigned bitLength(unsigned code) {
    unsigned bits = 0;
    while ((code >> bits) != 0) ++bits;
    return bits < 3 ? 3 : bits;
}

void putColorTable(const Dib& dib, Bytes& out) {
    DibHeader h = dib.header();
    unsigned full = 1u << h.bitCount;
    unsigned used = h.clrUsed != 0 ? h.clrUsed : full;
    for (unsigned i = 0; i < full; ++i) {
        Rgb c = i < used ? dib.color(i) : Rgb{0, 0, 0};
        out.insert(out.end(), {c.r, c.g, c.b});
    }
}

void putWord(Bytes& out, unsigned value) {
    out.push_back(static_cast<std::uint8_t>(value));
    out.push_back(static_cast<std::uint8_t>(value >> 8));
}

// Stream line of each image row in the interlaced order.
std::vector<unsigned> streamOrder(unsigned height, bool interlace) {
    std::vector<unsigned> rows;
    const unsigned start[4] = {0, 4, 2, 1}, step[4] = {8, 8, 4, 2};
    for (unsigned pass = 0; pass < (interlace ? 4u : 1u); ++pass)
        for (unsigned r = interlace ? start[pass] : 0; r < height; r += interlace ? step[pass] : 1)
            rows.push_back(r);
    return rows;
}

}  // namespace

Bytes referenceLzw(const std::vector<std::uint8_t>& pixels, unsigned minCodeSize) {
    Bytes out{static_cast<std::uint8_t>(minCodeSize)};
    auto table = std::make_unique<Table>();
    table->clear = 1u << minCodeSize;
    table->reset();
    Packer packer(out);
    unsigned size = minCodeSize + 1, string = kNone;
    packer.put(table->clear, size);
    for (std::uint8_t pixel : pixels) {
        unsigned code = table->find(string, pixel);
        if (code != kNone) {
            string = code;
            continue;
        }
        if (table->next < 4096) {
            table->add(string, pixel);
            packer.put(string, size);
            size = bitLength(table->next++);
        } else {
            packer.put(string, size);
            table->reset();
            packer.put(table->clear, size);
            size = minCodeSize + 1;
        }
        string = pixel;
    }
    packer.put(string, size);
    packer.put(table->clear + 1, size);
    packer.finish();
    return out;
}

Bytes referenceGif(const Dib& dib, int version, bool interlace) {
    const char* signature = version == 87 ? "GIF87a" : "GIF89a";
    Bytes out(signature, signature + 6);
    unsigned bits = dib.bits(), w = dib.width(), h = dib.height();
    putWord(out, w), putWord(out, h);
    out.insert(out.end(), {static_cast<std::uint8_t>(0x80 + (bits - 1) * 17), 0, 0});
    putColorTable(dib, out);
    out.push_back(',');
    putWord(out, 0), putWord(out, 0), putWord(out, w), putWord(out, h);
    out.push_back(static_cast<std::uint8_t>((interlace ? 0x40 : 0) + bits - 1));
    std::vector<std::uint8_t> pixels;
    for (unsigned row : streamOrder(h, interlace))
        for (unsigned x = 0; x < w; ++x) pixels.push_back(static_cast<std::uint8_t>(dib.index(x, row)));
    Bytes lzw = referenceLzw(pixels, bits == 1 ? 2 : bits);
    out.insert(out.end(), lzw.begin(), lzw.end());
    out.push_back(';');
    return out;
}

}  // namespace gift
