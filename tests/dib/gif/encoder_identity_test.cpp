// The library's encoder against the step-by-step reference: the same bytes for every
// kind of picture, every depth and both row orders.
#include <gtest/gtest.h>

#include <random>

#include "gif_core_support.h"
#include "reference_encoder.h"

using namespace gift;

namespace {

enum class Kind { Noise, Gradient, Solid, Stripes, FewColors };

std::vector<std::uint8_t> picture(Kind kind, std::uint32_t w, std::uint32_t h, unsigned bits,
                                  unsigned seed) {
    std::mt19937 random(seed);
    unsigned colors = 1u << bits;
    std::vector<std::uint8_t> indices(std::size_t{w} * h);
    for (std::uint32_t y = 0; y < h; ++y)
        for (std::uint32_t x = 0; x < w; ++x) {
            unsigned v = 0;
            switch (kind) {
            case Kind::Noise: v = random(); break;
            case Kind::Gradient: v = (x * 3 + y * 5) / 7; break;
            case Kind::Solid: v = seed; break;
            case Kind::Stripes: v = (x / 3 + y / 2) % 5; break;
            case Kind::FewColors: v = random() % 3 == 0 ? random() % 4 : 1; break;
            }
            indices[std::size_t{y} * w + x] = static_cast<std::uint8_t>(v % colors);
        }
    return indices;
}

void expectSameBytes(const Dib& dib, bool interlace, const std::string& what) {
    for (int version : {87, 89}) {
        tst::MemoryHost host;
        Bytes ours = encode(dib, version, interlace, host);
        Bytes reference = referenceGif(dib, version, interlace);
        ASSERT_FALSE(ours.empty()) << what;
        ASSERT_EQ(ours.size(), reference.size()) << what;
        EXPECT_TRUE(ours == reference) << what;
    }
}

}  // namespace

TEST(EncoderIdentity, EveryKindDepthAndRowOrder) {
    const std::pair<std::uint32_t, std::uint32_t> sizes[] = {{1, 1}, {7, 3}, {33, 17}, {120, 90}};
    for (unsigned bits : {1u, 4u, 8u})
        for (Kind kind : {Kind::Noise, Kind::Gradient, Kind::Solid, Kind::Stripes, Kind::FewColors})
            for (auto [w, h] : sizes)
                for (bool interlace : {false, true}) {
                    Dib dib = makeDib(w, h, bits, picture(kind, w, h, bits, w + h), palette(1u << bits));
                    expectSameBytes(dib, interlace,
                                    "bits " + std::to_string(bits) + " kind " +
                                        std::to_string(static_cast<int>(kind)) + " " +
                                        std::to_string(w) + "x" + std::to_string(h));
                }
}

TEST(EncoderIdentity, PicturesThatFillTheTableManyTimes) {
    for (unsigned bits : {4u, 8u}) {
        Dib dib = makeDib(300, 200, bits, picture(Kind::Noise, 300, 200, bits, 11), palette(1u << bits));
        expectSameBytes(dib, false, "noise " + std::to_string(bits));
        Dib smooth = makeDib(512, 256, bits, picture(Kind::Gradient, 512, 256, bits, 0),
                             palette(1u << bits));
        expectSameBytes(smooth, true, "gradient " + std::to_string(bits));
    }
}

TEST(EncoderIdentity, EveryLengthOfAShortPicture) {
    // Every data length up to a few sub-blocks, so that the stream ends at every bit
    // position of a block, the block boundary included.
    for (std::uint32_t n = 0; n <= 900; ++n) {
        Dib dib = makeDib(n, 1, 8, picture(Kind::Noise, n, 1, 8, n), palette(256));
        expectSameBytes(dib, false, "length " + std::to_string(n));
    }
}

TEST(EncoderIdentity, PaletteWithFewerColorsThanTheDepth) {
    Dib dib = makeDib(9, 9, 8, picture(Kind::Stripes, 9, 9, 8, 0), palette(20), 20);
    expectSameBytes(dib, false, "clrUsed 20");
}
