// Decoding a GIF file: signature, logical screen, global colour table and the loop
// over the file's blocks.
#include <cstdio>
#include <cstring>

#include "gif_reader.h"

namespace ts::gif {

namespace {

constexpr std::uint8_t kExtension = 0x21;   // '!'
constexpr std::uint8_t kImage = 0x2C;       // ','
constexpr std::uint8_t kTrailer = 0x3B;     // ';'
// Header and 256 table entries, whatever the depth.
constexpr std::uint64_t kBitmapExtra = kDibHeaderSize + 256 * 4;

}  // namespace

bool isGifSignature(const std::uint8_t* data, std::size_t size) {
    return size >= 6 && std::memcmp(data, "GIF", 3) == 0 &&
           (std::memcmp(data + 3, "87a", 3) == 0 || std::memcmp(data + 3, "89a", 3) == 0);
}

DecodedGif readGif(const std::uint8_t* data, std::size_t size, GifModule& module,
                   Memory& memory, Reporter& reporter) {
    ByteSource source(data, size);
    return GifReader(source, module, memory, reporter).read();
}

DecodedGif GifReader::read() {
    if (!readSignature() || !createBitmap()) return {};
    reporter_.busy(true);
    readBlocks();
    storeDibHeader(bitmap_.bytes(), header_);
    reporter_.busy(false);
    return {static_cast<std::uint8_t*>(bitmap_.take()), bitmapSize_};
}

// Missing bytes of a short file read as zero here and in the fixed-size fields below.
bool GifReader::readSignature() {
    std::uint8_t signature[6] = {};
    source_.read(signature, sizeof signature);
    if (std::memcmp(signature, "GIF", 3) != 0) {
        reporter_.error(text::kNotGif);
        return false;
    }
    if (isGifSignature(signature, sizeof signature)) return true;
    char question[64];
    std::snprintf(question, sizeof question, text::kUnknownVersion, signature[3], signature[4],
                  signature[5]);
    return reporter_.askToContinue(question);
}

bool GifReader::createBitmap() {
    std::uint8_t screen[7] = {};  // width, height, flags, background, aspect ratio
    source_.read(screen, sizeof screen);
    unsigned gifBits = (screen[4] & 7) + 1;
    unsigned bits = gifBits == 1 ? 1 : gifBits <= 4 ? 4 : 8;
    canvas_ = {nullptr, wordAt(screen), wordAt(screen + 2), dibStride(wordAt(screen), bits), bits};
    std::uint64_t image = canvas_.stride * canvas_.height;
    if (!bitmap_.allocate(image + kBitmapExtra)) {
        reporter_.error(text::kNoMemoryDib);
        return false;
    }
    bitmapSize_ = static_cast<std::size_t>(image + kBitmapExtra);
    header_ = {40, static_cast<std::int32_t>(canvas_.width), static_cast<std::int32_t>(canvas_.height),
               1, static_cast<std::uint16_t>(bits), 0, static_cast<std::uint32_t>(image),
               kPelsPerMeter, kPelsPerMeter, 1u << bits, 0};
    canvas_.bits = bitmap_.bytes() + dibPixelOffset(header_);
    if ((screen[4] & 0x80) != 0) readColorTable(2u << (screen[4] & 7));
    return true;
}

// Triples red, green, blue become table entries blue, green, red, 0 from entry 0 on.
void GifReader::readColorTable(std::uint32_t entries) {
    std::uint8_t rgb[256 * 3] = {};
    source_.read(rgb, entries * 3);
    std::uint8_t* table = bitmap_.bytes() + kDibHeaderSize;
    for (std::uint32_t i = 0; i < entries; ++i) {
        table[4 * i] = rgb[3 * i + 2];
        table[4 * i + 1] = rgb[3 * i + 1];
        table[4 * i + 2] = rgb[3 * i];
        table[4 * i + 3] = 0;
    }
    header_.clrImportant = entries;
}

void GifReader::readBlocks() {
    for (;;) {
        std::uint8_t block = 0;
        if (!source_.readByte(block)) {
            reporter_.error(text::kPrematureEnd);
            return;
        }
        if (block == 0) continue;  // also the terminators an image leaves behind
        if (block == kExtension) {
            skipExtension();
        } else if (block == kImage) {
            if (!readImage()) return;
        } else {
            if (block != kTrailer) reporter_.error(text::kIllegalBlock);
            return;
        }
    }
}

// Every extension, graphic control included, is read over.
void GifReader::skipExtension() {
    std::uint8_t label = 0;
    source_.readByte(label);
    std::uint8_t length = 0;
    while (source_.readByte(length) && length != 0) source_.skip(length);
}

}  // namespace ts::gif
