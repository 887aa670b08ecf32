// giflib in memory for the benchmark.
#include "giflib_side.h"

#include <gif_lib.h>

#include <algorithm>
#include <cstring>

namespace gifbench {

namespace {

struct Input {
    const Bytes* bytes;
    std::size_t at;
};

int readInput(GifFileType* gif, GifByteType* to, int count) {
    Input* in = static_cast<Input*>(gif->UserData);
    std::size_t n = std::min<std::size_t>(static_cast<std::size_t>(count), in->bytes->size() - in->at);
    std::memcpy(to, in->bytes->data() + in->at, n);
    in->at += n;
    return static_cast<int>(n);
}

int writeOutput(GifFileType* gif, const GifByteType* from, int count) {
    Bytes* out = static_cast<Bytes*>(gif->UserData);
    out->insert(out->end(), from, from + count);
    return count;
}

bool putRows(GifFileType* gif, const Bytes& indices, int width, int height, bool interlace) {
    static const int kStart[4] = {0, 4, 2, 1}, kStep[4] = {8, 8, 4, 2};
    for (int pass = 0; pass < (interlace ? 4 : 1); ++pass)
        for (int y = interlace ? kStart[pass] : 0; y < height; y += interlace ? kStep[pass] : 1) {
            GifPixelType* row = const_cast<GifPixelType*>(indices.data() + std::size_t(y) * width);
            if (EGifPutLine(gif, row, width) != GIF_OK) return false;
        }
    return true;
}

}  // namespace

Bytes giflibDecode(const Bytes& file) {
    Input in{&file, 0};
    int error = 0;
    GifFileType* gif = DGifOpen(&in, readInput, &error);
    if (gif == nullptr) return {};
    Bytes raster;
    if (DGifSlurp(gif) == GIF_OK && gif->ImageCount > 0) {
        const SavedImage& image = gif->SavedImages[0];
        raster.assign(image.RasterBits,
                      image.RasterBits + std::size_t(image.ImageDesc.Width) * image.ImageDesc.Height);
    }
    DGifCloseFile(gif, &error);
    return raster;
}

Bytes giflibEncode(const Bytes& indices, int width, int height, const Bytes& palette, bool interlace) {
    Bytes out;
    out.reserve(indices.size() + indices.size() / 2);
    int error = 0;
    GifFileType* gif = EGifOpen(&out, writeOutput, &error);
    if (gif == nullptr) return {};
    ColorMapObject* map = GifMakeMapObject(256, reinterpret_cast<const GifColorType*>(palette.data()));
    bool ok = map != nullptr && EGifPutScreenDesc(gif, width, height, 8, 0, map) == GIF_OK &&
              EGifPutImageDesc(gif, 0, 0, width, height, interlace, nullptr) == GIF_OK &&
              putRows(gif, indices, width, height, interlace);
    GifFreeMapObject(map);
    if (EGifCloseFile(gif, &error) != GIF_OK || !ok) return {};
    return out;
}

}  // namespace gifbench
