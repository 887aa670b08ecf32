// Decoding with giflib from memory for the conformance tests.
#include "giflib_peer.h"

#include <gif_lib.h>

#include <cstring>

namespace gift {

namespace {

struct Reader {
    const Bytes* bytes;
    std::size_t at;
};

int readFromMemory(GifFileType* gif, GifByteType* to, int count) {
    Reader* reader = static_cast<Reader*>(gif->UserData);
    std::size_t n = std::min<std::size_t>(static_cast<std::size_t>(count), reader->bytes->size() - reader->at);
    std::memcpy(to, reader->bytes->data() + reader->at, n);
    reader->at += n;
    return static_cast<int>(n);
}

std::vector<Rgb> colors(const ColorMapObject* map) {
    std::vector<Rgb> out;
    if (map == nullptr) return out;
    for (int i = 0; i < map->ColorCount; ++i)
        out.push_back({map->Colors[i].Red, map->Colors[i].Green, map->Colors[i].Blue});
    return out;
}

}  // namespace

PeerGif giflibDecode(const Bytes& file) {
    PeerGif peer;
    Reader reader{&file, 0};
    int error = 0;
    GifFileType* gif = DGifOpen(&reader, readFromMemory, &error);
    if (gif == nullptr) {
        peer.error = GifErrorString(error);
        return peer;
    }
    peer.ok = DGifSlurp(gif) == GIF_OK;
    if (!peer.ok) peer.error = GifErrorString(gif->Error);
    peer.wrongRecordType = !peer.ok && gif->Error == D_GIF_ERR_WRONG_RECORD;
    peer.width = gif->SWidth;
    peer.height = gif->SHeight;
    peer.globalMap = colors(gif->SColorMap);
    for (int i = 0; i < gif->ImageCount; ++i) {
        const SavedImage& saved = gif->SavedImages[i];
        const GifImageDesc& d = saved.ImageDesc;
        PeerImage image{d.Left, d.Top, d.Width, d.Height, d.Interlace, colors(d.ColorMap), {}};
        if (saved.RasterBits != nullptr)
            image.raster.assign(saved.RasterBits, saved.RasterBits + std::size_t(d.Width) * d.Height);
        peer.images.push_back(std::move(image));
    }
    DGifCloseFile(gif, &error);
    return peer;
}

}  // namespace gift
