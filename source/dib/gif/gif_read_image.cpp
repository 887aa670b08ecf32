// Decoding one image of a GIF file into the screen bitmap: descriptor, local colour
// table, raster data and placement.
#include "gif_reader.h"
#include "interlace.h"
#include "lzw_decode.h"

namespace ts::gif {

namespace {

// Stream lines that received at least one decoded pixel.
std::uint32_t linesReached(std::uint64_t produced, const ImageRect& image) {
    if (image.width == 0) return 0;
    std::uint64_t lines = (produced + image.width - 1) / image.width;
    return lines < image.height ? static_cast<std::uint32_t>(lines) : image.height;
}

}  // namespace

// A damaged image is still placed as far as it was decoded before the loop stops.
bool GifReader::readImage() {
    std::uint8_t descriptor[9] = {};  // left, top, width, height, flags
    source_.read(descriptor, sizeof descriptor);
    ImageRect image{dib::le16(descriptor), dib::le16(descriptor + 2), dib::le16(descriptor + 4),
                    dib::le16(descriptor + 6)};
    std::uint8_t flags = descriptor[8];
    if (!readLocalTable(flags)) return false;
    std::uint64_t pixels = std::uint64_t{image.width} * image.height;
    OwnedBlock buffer(host_);
    if (!buffer.allocate(pixels + 256)) {
        host_.message(text::kNoMemoryBitmap);
        return false;
    }
    LzwDecoder lzw(tables_, source_, host_);
    bool decoded = lzw.decode(buffer.data(), static_cast<std::size_t>(pixels + 256), pixels);
    std::uint32_t lines = decoded ? image.height : linesReached(lzw.produced(), image);
    bool placed = placeDecoded(image, (flags & 0x40) != 0, buffer.data(), lines);
    return decoded && placed;
}

// A local table replaces the first entries of the bitmap's table for the whole bitmap.
bool GifReader::readLocalTable(std::uint8_t flags) {
    if ((flags & 0x80) != 0) {
        std::uint32_t entries = 2u << (flags & 7);
        if (entries > (1u << canvas_.bitCount)) {
            host_.message(text::kWrongColorInfo);
            return false;
        }
        readColorTable(entries);
    } else if (header_.biClrImportant == 0) {
        host_.message(text::kNoColorTable);
        return false;
    }
    return true;
}

bool GifReader::placeDecoded(const ImageRect& image, bool interlaced,
                             const std::uint8_t* pixels, std::uint32_t streamLines) {
    Placement placement;
    if (!clipToScreen(canvas_, image, placement)) return true;  // off screen: dropped
    OwnedBlock rowMap(host_);
    if (interlaced) {
        if (!rowMap.allocate(std::uint64_t{image.height} * 4)) {
            host_.message(text::kNoMemoryRowMap);
            return false;
        }
        interlaceRowMap(reinterpret_cast<std::uint32_t*>(rowMap.data()), image.height);
    }
    placeImage(canvas_, image, placement, pixels,
               reinterpret_cast<const std::uint32_t*>(rowMap.data()), streamLines);
    return true;
}

}  // namespace ts::gif
