// libFuzzer target of the GIF decoder. Every input must decode without a fault; a
// picture that decodes is also written again and read back, and must come back with
// the same pixel indices.
#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <memory>

#include "dib/core/dib_layout.h"
#include "gif_codec.h"
#include "support/memory_host.h"

namespace {

using namespace ts::gif;
using ts::dib::InfoHeader;

// Blocks above 16 MB fail like a machine out of memory: that path is part of the test.
// The version question is answered with OK (the host's default) to reach further.
constexpr std::uint64_t kBlockLimit = 16u << 20;
constexpr std::uint64_t kRoundTripPixels = 1u << 16;

unsigned pixelAt(const OwnedBlock& bitmap, std::uint32_t x, std::uint32_t y) {
    InfoHeader h = ts::dib::readHeader(bitmap.data(), bitmap.size());
    const std::uint8_t* row = bitmap.data() + ts::dib::pixelOffset(h) +
                              (std::uint64_t{static_cast<std::uint32_t>(h.biHeight)} - 1 - y) *
                                  ts::dib::strideOf(h.biWidth, h.biBitCount);
    if (h.biBitCount == 8) return row[x];
    if (h.biBitCount == 4) return (x & 1) != 0 ? row[x / 2] & 15 : row[x / 2] >> 4;
    return (row[x / 8] >> (7 - x % 8)) & 1;
}

void roundTrip(const OwnedBlock& first, GifTables& tables, tst::MemoryHost& host) {
    InfoHeader h = ts::dib::readHeader(first.data(), first.size());
    std::uint32_t w = static_cast<std::uint32_t>(h.biWidth), ht = static_cast<std::uint32_t>(h.biHeight);
    if (std::uint64_t{w} * ht > kRoundTripPixels) return;
    ts::dib::MemorySink sink;
    if (!encodeGif(first.source(), 89, (w & 1) != 0, tables, host, sink)) std::abort();
    OwnedBlock second = readGif(sink.bytes.data(), sink.bytes.size(), tables, host);
    if (!second) std::abort();
    for (std::uint32_t y = 0; y < ht; ++y)
        for (std::uint32_t x = 0; x < w; ++x)
            if (pixelAt(first, x, y) != pixelAt(second, x, y)) std::abort();
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    static auto tables = std::make_unique<GifTables>();
    tst::MemoryHost host;
    host.limit = kBlockLimit;
    isGifSignature(data, size);
    OwnedBlock decoded = readGif(data, size, *tables, host);
    if (!decoded) return 0;
    roundTrip(decoded, *tables, host);
    return 0;
}
