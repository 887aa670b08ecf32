// Building GIF byte streams for the tests, including ones no encoder would write.
#include "gif_test_support.h"

namespace gift {

GifBuilder& GifBuilder::raw(std::initializer_list<std::uint8_t> values) {
    bytes.insert(bytes.end(), values);
    return *this;
}

GifBuilder& GifBuilder::word(std::uint32_t value) {
    return raw({static_cast<std::uint8_t>(value), static_cast<std::uint8_t>(value >> 8)});
}

GifBuilder& GifBuilder::header(const char* signature) {
    bytes.insert(bytes.end(), signature, signature + 6);
    return *this;
}

GifBuilder& GifBuilder::screen(std::uint32_t width, std::uint32_t height, unsigned sizeField,
                               bool globalTable) {
    word(width).word(height);
    raw({static_cast<std::uint8_t>((globalTable ? 0x80 : 0) | sizeField), 0, 0});
    return globalTable ? table(2u << sizeField) : *this;
}

GifBuilder& GifBuilder::table(unsigned entries, unsigned seed) {
    for (unsigned i = 0; i < entries; ++i) {
        Rgb c = testColor(i, seed);
        raw({c.r, c.g, c.b});
    }
    return *this;
}

GifBuilder& GifBuilder::image(std::uint32_t left, std::uint32_t top, std::uint32_t width,
                              std::uint32_t height, std::uint8_t flags) {
    raw({0x2C}).word(left).word(top).word(width).word(height);
    return raw({flags});
}

GifBuilder& GifBuilder::codes(unsigned minCodeSize,
                              const std::vector<std::pair<unsigned, unsigned>>& list,
                              bool terminate) {
    raw({static_cast<std::uint8_t>(minCodeSize)});
    Bytes data;
    std::uint64_t bits = 0;
    unsigned count = 0;
    for (auto [code, size] : list) {
        bits |= std::uint64_t{code} << count;
        count += size;
        for (; count >= 8; count -= 8, bits >>= 8) data.push_back(static_cast<std::uint8_t>(bits));
    }
    if (count != 0) data.push_back(static_cast<std::uint8_t>(bits));
    for (std::size_t at = 0; at < data.size(); at += 255) {
        std::size_t n = std::min<std::size_t>(255, data.size() - at);
        bytes.push_back(static_cast<std::uint8_t>(n));
        bytes.insert(bytes.end(), data.begin() + static_cast<long>(at),
                     data.begin() + static_cast<long>(at + n));
    }
    if (terminate) bytes.push_back(0);
    return *this;
}

CodeStream& CodeStream::clear() {
    list.push_back({1u << min_, size_});
    size_ = min_ + 1;
    next_ = (1u << min_) + 2;
    fresh_ = true;
    return *this;
}

// The decoder adds an entry for every code but the first after a clear.
CodeStream& CodeStream::code(unsigned value) {
    list.push_back({value, size_});
    if (fresh_) {
        fresh_ = false;
        return *this;
    }
    if (next_ < 4096) ++next_;
    if (next_ == 1u << size_ && next_ < 4096) ++size_;
    return *this;
}

CodeStream& CodeStream::repeat(unsigned value, unsigned times) {
    for (unsigned i = 0; i < times; ++i) code(value);
    return *this;
}

CodeStream& CodeStream::end() {
    list.push_back({(1u << min_) + 1, size_});
    return *this;
}

// Root codes only: a clear code before the table would make the code size grow.
GifBuilder& GifBuilder::pixels(unsigned minCodeSize, const std::vector<std::uint8_t>& indices) {
    unsigned clear = 1u << minCodeSize;
    unsigned size = minCodeSize + 1;
    unsigned room = (1u << size) - (clear + 2);  // entries before the size would grow
    std::vector<std::pair<unsigned, unsigned>> list{{clear, size}};
    unsigned sinceClear = 0;
    for (std::uint8_t v : indices) {
        if (sinceClear == room) {
            list.push_back({clear, size});
            sinceClear = 0;
        }
        list.push_back({v, size});
        ++sinceClear;
    }
    list.push_back({clear + 1, size});
    return codes(minCodeSize, list);
}

}  // namespace gift
