// Decoding a GIF file: signature, logical screen, global colour table and the loop
// over the file's blocks.
#include <cstdio>
#include <cstring>
#include <utility>

#include "gif_reader.h"

namespace ts::gif {

namespace {

constexpr std::uint8_t kExtension = 0x21;   // '!'
constexpr std::uint8_t kImage = 0x2C;       // ','
constexpr std::uint8_t kTrailer = 0x3B;     // ';'
// Header and 256 table entries, whatever the depth.
constexpr std::uint64_t kBitmapExtra = dib::kInfoSize + 256 * 4;

}  // namespace

bool isGifSignature(const std::uint8_t* data, std::size_t size) {
    return size >= 6 && std::memcmp(data, "GIF", 3) == 0 &&
           (std::memcmp(data + 3, "87a", 3) == 0 || std::memcmp(data + 3, "89a", 3) == 0);
}

// Missing bytes of a short file read as zero here and in the fixed-size fields below.
bool acceptSignature(ByteCursor& in, Host& host) {
    std::uint8_t signature[6] = {};
    in.read(signature, sizeof signature);
    if (std::memcmp(signature, "GIF", 3) != 0) {
        host.message(text::kNotGif);
        return false;
    }
    if (isGifSignature(signature, sizeof signature)) return true;
    char question[64];
    std::snprintf(question, sizeof question, text::kUnknownVersion, signature[3], signature[4],
                  signature[5]);
    return host.askToContinue(question);
}

OwnedBlock decodeGif(ByteCursor& in, GifTables& tables, Host& host) {
    return GifReader(in, tables, host).read();
}

OwnedBlock readGif(const std::uint8_t* data, std::size_t size, GifTables& tables, Host& host) {
    ByteCursor in(data, size);
    if (!acceptSignature(in, host)) return OwnedBlock(host);
    return decodeGif(in, tables, host);
}

OwnedBlock GifReader::read() {
    if (!createBitmap()) return std::move(bitmap_);
    host_.cursor(dib::Cursor::Wait);
    readBlocks();
    dib::writeHeader(bitmap_.data(), header_);
    host_.cursor(dib::Cursor::Arrow);
    return std::move(bitmap_);
}

bool GifReader::createBitmap() {
    std::uint8_t screen[7] = {};  // width, height, flags, background, aspect ratio
    source_.read(screen, sizeof screen);
    unsigned gifBits = (screen[4] & 7) + 1;
    std::uint16_t bits = gifBits == 1 ? 1 : gifBits <= 4 ? 4 : 8;
    std::uint16_t width = dib::le16(screen), height = dib::le16(screen + 2);
    header_ = dib::newHeader(width, height, bits);
    header_.biClrUsed = 1u << bits;
    canvas_ = {nullptr, width, height, std::uint64_t(dib::strideOf(width, bits)), bits};
    if (!bitmap_.allocate(std::uint64_t{header_.biSizeImage} + kBitmapExtra)) {
        host_.message(text::kNoMemoryDib);
        return false;
    }
    canvas_.bits = bitmap_.data() + dib::pixelOffset(header_);
    if ((screen[4] & 0x80) != 0) readColorTable(2u << (screen[4] & 7));
    return true;
}

// Triples red, green, blue become table entries blue, green, red, 0 from entry 0 on.
void GifReader::readColorTable(std::uint32_t entries) {
    std::uint8_t rgb[256 * 3] = {};
    source_.read(rgb, entries * 3);
    std::uint8_t* table = bitmap_.data() + dib::kInfoSize;
    for (std::uint32_t i = 0; i < entries; ++i) {
        table[4 * i] = rgb[3 * i + 2];
        table[4 * i + 1] = rgb[3 * i + 1];
        table[4 * i + 2] = rgb[3 * i];
        table[4 * i + 3] = 0;
    }
    header_.biClrImportant = entries;
}

void GifReader::readBlocks() {
    for (;;) {
        std::uint8_t block = 0;
        if (!source_.readByte(block)) {
            host_.message(text::kPrematureEnd);
            return;
        }
        if (block == 0) continue;  // also the terminators an image leaves behind
        if (block == kExtension) {
            skipExtension();
        } else if (block == kImage) {
            if (!readImage()) return;
        } else {
            if (block != kTrailer) host_.message(text::kIllegalBlock);
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
