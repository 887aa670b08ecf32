// libFuzzer target of the GIF decoder. Every input must decode without a fault; a
// picture that decodes is also written again and read back, and must come back with
// the same pixel indices.
#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <memory>

#include "packed_dib.h"
#include "gif_codec.h"

namespace {

using namespace ts::gif;

// Messages are dropped; the version question is answered with OK to reach further.
struct QuietReporter final : Reporter {
    void error(const char*) override {}
    bool askToContinue(const char*) override { return true; }
};

// Blocks above 16 MB fail like a machine out of memory: that path is part of the test.
constexpr std::size_t kBlockLimit = 16u << 20;
constexpr std::uint64_t kRoundTripPixels = 1u << 16;

unsigned pixelAt(const std::uint8_t* bitmap, std::uint32_t x, std::uint32_t y) {
    DibHeader h = loadDibHeader(bitmap);
    const std::uint8_t* row = bitmap + dibPixelOffset(h) +
                              (std::uint64_t{static_cast<std::uint32_t>(h.height)} - 1 - y) *
                                  dibStride(static_cast<std::uint32_t>(h.width), h.bitCount);
    if (h.bitCount == 8) return row[x];
    if (h.bitCount == 4) return (x & 1) != 0 ? row[x / 2] & 15 : row[x / 2] >> 4;
    return (row[x / 8] >> (7 - x % 8)) & 1;
}

void roundTrip(const DecodedGif& first, GifModule& module, Memory& memory, Reporter& reporter) {
    DibHeader h = loadDibHeader(first.bitmap);
    std::uint32_t w = static_cast<std::uint32_t>(h.width), ht = static_cast<std::uint32_t>(h.height);
    if (std::uint64_t{w} * ht > kRoundTripPixels) return;
    ByteSink sink;
    if (!encodeGif(first.bitmap, first.size, 89, (w & 1) != 0, module, memory, sink, reporter)) std::abort();
    DecodedGif second = readGif(sink.data(), sink.size(), module, memory, reporter);
    if (second.bitmap == nullptr) std::abort();
    for (std::uint32_t y = 0; y < ht; ++y)
        for (std::uint32_t x = 0; x < w; ++x)
            if (pixelAt(first.bitmap, x, y) != pixelAt(second.bitmap, x, y)) std::abort();
    memory.release(second.bitmap);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    static auto module = std::make_unique<GifModule>();
    HeapMemory memory(kBlockLimit);
    QuietReporter reporter;
    isGifSignature(data, size);
    DecodedGif decoded = readGif(data, size, *module, memory, reporter);
    if (decoded.bitmap == nullptr) return 0;
    roundTrip(decoded, *module, memory, reporter);
    memory.release(decoded.bitmap);
    return 0;
}
