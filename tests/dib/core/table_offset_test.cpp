// True-colour bitmaps may carry a colour table (biClrUsed entries) in front of their
// pixels: every operation must find the pixels behind it and give the same picture as
// for the same bitmap without a table.
#include <gtest/gtest.h>

#include <functional>
#include <string>

#include "dib/core/depth_convert.h"
#include "dib/core/image_ops.h"
#include "dib/core/reduce.h"
#include "support/memory_host.h"

using namespace ts::dib;
using tst::MemoryHost;

namespace {

constexpr int kWidth = 7, kHeight = 5;

// Pixels that differ from one another everywhere, so that a shifted read shows.
void paint(tst::TestDib& dib) {
    InfoHeader h = dib.header();
    int64_t bytes = strideOf(h.biWidth, h.biBitCount);
    for (int y = 0; y < kHeight; ++y)
        for (int64_t i = 0; i < bytes; ++i) dib.row(y)[i] = uint8_t(37 * y + 11 * i + 5);
}

// The same picture without and with a colour table of `entries` entries in front.
struct Pair {
    tst::TestDib plain, tabled;
};

Pair pairOf(uint16_t bits, uint32_t entries, uint32_t compression = 0, std::vector<uint32_t> masks = {}) {
    std::vector<RgbQuad> table(entries);
    for (uint32_t i = 0; i < entries; ++i) table[i] = RgbQuad{uint8_t(i), uint8_t(2 * i), uint8_t(3 * i), 0};
    Pair p{tst::makeDib(kWidth, kHeight, bits, {}, compression, masks),
           tst::makeDib(kWidth, kHeight, bits, table, compression, masks)};
    paint(p.plain);
    paint(p.tabled);
    return p;
}

// The result's pixel rows, read at the result's own pixel offset.
std::vector<uint8_t> pixelsOf(const OwnedBlock& block) {
    InfoHeader h = tst::headerOf(block);
    uint64_t at = pixelOffset(h);
    uint64_t bytes = uint64_t(strideOf(h.biWidth, h.biBitCount)) * uint64_t(absHeight(h));
    EXPECT_LE(at + bytes, block.size());
    if (at + bytes > block.size()) return {};
    return std::vector<uint8_t>(block.data() + at, block.data() + at + bytes);
}

using Operation = std::function<OwnedBlock(Host&, tst::TestDib&)>;

struct Case {
    const char* name;
    Operation run;
};

const Case kCases[] = {
    {"dibReduceColors popularity", [](Host& h, tst::TestDib& d) { return dibReduceColors(h, d.source(), 8, 0); }},
    {"dibReduceColors diffusion", [](Host& h, tst::TestDib& d) { return dibReduceColors(h, d.source(), 4, 1); }},
    {"dibReduceColors median cut", [](Host& h, tst::TestDib& d) { return dibReduceColors(h, d.source(), 8, 2); }},
    {"dibReduceColors both", [](Host& h, tst::TestDib& d) { return dibReduceColors(h, d.source(), 8, 3); }},
    {"dib24To8 gray", [](Host& h, tst::TestDib& d) { return dib24To8(h, d.source(), true); }},
    {"dib24To8 colour", [](Host& h, tst::TestDib& d) { return dib24To8(h, d.source(), false); }},
    {"dib24To1", [](Host& h, tst::TestDib& d) { return dib24To1(h, d.source()); }},
    {"dib24To4", [](Host& h, tst::TestDib& d) { return dib24To4(h, d.source()); }},
    {"_DIB24To1", [](Host& h, tst::TestDib& d) { return _DIB24To1(h, d.block()); }},
    {"_DIB24To4", [](Host& h, tst::TestDib& d) { return _DIB24To4(h, d.block()); }},
    {"dibGray", [](Host& h, tst::TestDib& d) { return dibGray(h, d.source()); }},
    {"dibSmallSize", [](Host& h, tst::TestDib& d) { return dibSmallSize(h, d.source()); }},
    {"dibCrop", [](Host& h, tst::TestDib& d) { return dibCrop(h, d.source(), 1, 1, 4, 3); }},
};

const Case kWideCases[] = {
    {"dib16To24", [](Host& h, tst::TestDib& d) { return dib16To24(h, d.source()); }},
    {"dib32To24", [](Host& h, tst::TestDib& d) { return dib32To24(h, d.source()); }},
    {"dibGray", [](Host& h, tst::TestDib& d) { return dibGray(h, d.source()); }},
    {"dibSmallSize", [](Host& h, tst::TestDib& d) { return dibSmallSize(h, d.source()); }},
    {"dibCrop", [](Host& h, tst::TestDib& d) { return dibCrop(h, d.source(), 1, 1, 4, 3); }},
};

// Runs the operation on both bitmaps; both succeed or both fail with the same messages,
// and the pictures are the same.
void expectSamePicture(const Case& c, Pair& p, const std::string& what) {
    MemoryHost plainHost, tabledHost;
    OwnedBlock plain = c.run(plainHost, p.plain);
    OwnedBlock tabled = c.run(tabledHost, p.tabled);
    EXPECT_EQ(plainHost.messages, tabledHost.messages) << c.name << " " << what;
    ASSERT_EQ(bool(plain), bool(tabled)) << c.name << " " << what;
    if (!plain) return;
    EXPECT_EQ(tst::headerOf(plain).biBitCount, tst::headerOf(tabled).biBitCount) << c.name << " " << what;
    EXPECT_EQ(pixelsOf(plain), pixelsOf(tabled)) << c.name << " " << what;
}

}  // namespace

TEST(ColourTableInFront, TwentyFourBitOperationsReadThePixelsBehindTheTable) {
    for (uint32_t entries : {1u, 20u, 256u})
        for (const Case& c : kCases) {
            Pair p = pairOf(24, entries);
            expectSamePicture(c, p, std::to_string(entries) + " entries");
        }
}

TEST(ColourTableInFront, SixteenAndThirtyTwoBitOperationsReadThePixelsBehindTheTable) {
    for (uint16_t bits : {16, 32})
        for (uint32_t entries : {3u, 16u})
            for (const Case& c : kWideCases) {
                Pair p = pairOf(bits, entries);
                expectSamePicture(c, p, std::to_string(bits) + " bits, " + std::to_string(entries) + " entries");
            }
}

TEST(ColourTableInFront, BitFieldBitmapsReadThePixelsBehindTableAndMasks) {
    for (uint16_t bits : {16, 32}) {
        std::vector<uint32_t> masks =
            bits == 16 ? std::vector<uint32_t>{0xF800, 0x07E0, 0x001F} : std::vector<uint32_t>{0xFF0000, 0xFF00, 0xFF};
        for (const Case& c : kWideCases) {
            Pair p = pairOf(bits, 5, kBiBitfields, masks);
            expectSamePicture(c, p, std::to_string(bits) + " bits with masks");
        }
    }
}
