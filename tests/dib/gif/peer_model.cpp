// Composing the decoder's expected bitmap from giflib's images.
#include "peer_model.h"

#include <algorithm>

namespace gift {

namespace {

void setTable(ExpectedBitmap& out, const std::vector<Rgb>& map) {
    std::copy(map.begin(), map.end(), out.table.begin());
    out.clrImportant = static_cast<std::uint32_t>(map.size());
}

// Bytes are written whole: 4 bits write pairs and, for an odd image width, a last
// high nibble with a cleared low one; 1 bit clears the rest of a last partial byte.
void placeRow(ExpectedBitmap& out, std::uint32_t y, std::uint32_t left, std::uint32_t cols,
              std::uint32_t imageWidth, const std::uint8_t* line) {
    auto set = [&](std::uint32_t x, std::uint8_t v) {
        if (x < out.width) out.indices[std::size_t{y} * out.width + x] = v;
    };
    if (out.bits == 4) {
        std::uint32_t pairs = cols / 2;
        for (std::uint32_t j = 0; j < 2 * pairs; ++j) set(left + j, line[j]);
        if (imageWidth % 2 != 0) {
            set(left + 2 * pairs, line[2 * pairs]);
            set(left + 2 * pairs + 1, 0);
        }
        return;
    }
    for (std::uint32_t j = 0; j < cols; ++j) set(left + j, line[j]);
    if (out.bits == 1)
        for (std::uint32_t j = cols; j % 8 != 0; ++j) set(left + j, 0);
}

void placeImage(ExpectedBitmap& out, const PeerImage& image) {
    std::uint32_t left = (static_cast<std::uint32_t>(image.left) * out.bits & ~7u) / out.bits;
    std::uint32_t top = static_cast<std::uint32_t>(image.top);
    if (top >= out.height || left >= out.width) return;
    std::uint32_t w = static_cast<std::uint32_t>(image.width), h = static_cast<std::uint32_t>(image.height);
    std::uint32_t rows = std::min(h, out.height - top), cols = std::min(w, out.width - left);
    for (std::uint32_t r = 0; r < rows; ++r) placeRow(out, top + r, left, cols, w, &image.raster[std::size_t{r} * w]);
}

}  // namespace

ExpectedBitmap composeExpected(const PeerGif& peer, unsigned sizeField) {
    ExpectedBitmap out;
    out.bits = sizeField == 0 ? 1 : sizeField <= 3 ? 4 : 8;
    out.width = static_cast<std::uint32_t>(peer.width);
    out.height = static_cast<std::uint32_t>(peer.height);
    out.indices.assign(std::size_t{out.width} * out.height, 0);
    out.table.assign(std::size_t{1} << out.bits, Rgb{0, 0, 0});
    if (!peer.globalMap.empty()) setTable(out, peer.globalMap);
    for (const PeerImage& image : peer.images) {
        if (image.localMap.size() > out.table.size() || (image.localMap.empty() && out.clrImportant == 0)) {
            out.refused = true;
            break;
        }
        if (!image.localMap.empty()) setTable(out, image.localMap);
        placeImage(out, image);
    }
    return out;
}

}  // namespace gift
