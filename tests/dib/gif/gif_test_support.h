// Helpers of the GIF tests on both platforms, free of the library: packed bitmaps built
// and read in plain memory, and a builder of GIF byte streams.
#pragma once

#include <cstdint>
#include <string>
#include <utility>
#include <vector>


namespace gift {

using Bytes = std::vector<std::uint8_t>;

// The fields of the 40-byte bitmap header, as the tests read packed bitmaps.
struct DibHeader {
    std::uint32_t size;
    std::int32_t width;
    std::int32_t height;
    std::uint16_t planes;
    std::uint16_t bitCount;
    std::uint32_t compression;
    std::uint32_t sizeImage;
    std::int32_t xPelsPerMeter;
    std::int32_t yPelsPerMeter;
    std::uint32_t clrUsed;
    std::uint32_t clrImportant;
};
static_assert(sizeof(DibHeader) == 40, "the bitmap header is 40 bytes");

DibHeader loadHeader(const std::uint8_t* block);
void storeHeader(std::uint8_t* block, const DibHeader& header);
// Bytes per row, padded to 4 bytes.
constexpr std::uint64_t strideOf(std::uint64_t width, unsigned bits) { return (width * bits + 31) / 32 * 4; }
// Header, colour table (biClrUsed, else 2^bits below 16 bits), masks for bit fields.
std::uint64_t pixelOffset(const DibHeader& header);

struct Rgb {
    std::uint8_t r, g, b;
    bool operator==(const Rgb& o) const { return r == o.r && g == o.g && b == o.b; }
};

// A packed bitmap held in a vector, with the accessors the tests need.
struct Dib {
    Bytes block;
    DibHeader header() const { return loadHeader(block.data()); }
    std::uint32_t width() const { return static_cast<std::uint32_t>(header().width); }
    std::uint32_t height() const;
    unsigned bits() const { return header().bitCount; }
    // Index of the pixel x, y counted from the top left of the picture.
    unsigned index(std::uint32_t x, std::uint32_t y) const;
    Rgb color(unsigned entry) const;
    const std::uint8_t* rowBytes(std::uint32_t y) const;  // y from the top
};

// A bitmap of the given depth from top-down indices and a palette.
Dib makeDib(std::uint32_t width, std::uint32_t height, unsigned bits,
            const std::vector<std::uint8_t>& indices, const std::vector<Rgb>& palette,
            std::uint32_t clrUsed = 0);

Bytes readFile(const std::string& path);
void writeFile(const std::string& path, const Bytes& bytes);

// LZW codes with the code size a decoder expects at each point of the stream.
class CodeStream {
public:
    explicit CodeStream(unsigned minCodeSize) : min_(minCodeSize), size_(minCodeSize + 1) {}
    CodeStream& clear();
    CodeStream& code(unsigned value);
    CodeStream& repeat(unsigned value, unsigned times);
    CodeStream& end();
    unsigned size() const { return size_; }
    unsigned next() const { return next_; }
    std::vector<std::pair<unsigned, unsigned>> list;  // code, bits

private:
    unsigned min_;
    unsigned size_;
    unsigned next_ = 0;
    bool fresh_ = true;
};

// Builds GIF files byte by byte, for streams no encoder writes.
class GifBuilder {
public:
    GifBuilder& raw(std::initializer_list<std::uint8_t> bytes);
    GifBuilder& word(std::uint32_t value);
    GifBuilder& header(const char* signature = "GIF89a");
    // Screen with a global table of 2^(sizeField + 1) entries, colours of testColor().
    GifBuilder& screen(std::uint32_t width, std::uint32_t height, unsigned sizeField,
                       bool globalTable = true);
    GifBuilder& table(unsigned entries, unsigned seed = 0);
    GifBuilder& image(std::uint32_t left, std::uint32_t top, std::uint32_t width,
                      std::uint32_t height, std::uint8_t flags = 0);
    // The minimum code size byte, the codes packed least significant bit first into
    // sub-blocks of at most 255 bytes, and (if terminate) the terminator.
    GifBuilder& codes(unsigned minCodeSize, const std::vector<std::pair<unsigned, unsigned>>& codes,
                      bool terminate = true);
    // Pixel indices as a valid stream of root codes (clear codes keep the size fixed).
    GifBuilder& pixels(unsigned minCodeSize, const std::vector<std::uint8_t>& indices);
    GifBuilder& trailer() { return raw({0x3B}); }
    Bytes bytes;
};

// The colour the builder gives table entry i (seed varies local tables).
Rgb testColor(unsigned entry, unsigned seed = 0);
// Entries 0 .. entries - 1 of testColor.
std::vector<Rgb> palette(unsigned entries);

}  // namespace gift
