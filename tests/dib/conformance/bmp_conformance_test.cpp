// BMP conformance against ImageMagick: files ImageMagick writes (and variants derived
// from them) are read by the library and compared pixel by pixel with ImageMagick's own
// decoding; every file the writer makes must read back the same in ImageMagick.
#include <gtest/gtest.h>

#include <algorithm>

#include "dib/core/bit_fields.h"
#include "dib/core/bmp_file.h"
#include "dib/core/depth_convert.h"
#include "dib/core/image_ops.h"
#include "support/bmp_variants.h"
#include "support/imagemagick.h"
#include "support/memory_host.h"

using namespace ts::dib;
using tst::Picture;

namespace {

constexpr int kWidth = 37, kHeight = 23;  // odd sizes: every depth has row padding

Picture sourcePicture() {
    Picture p{kWidth, kHeight, std::vector<uint8_t>(3 * kWidth * kHeight)};
    for (int y = 0; y < kHeight; ++y)
        for (int x = 0; x < kWidth; ++x) {
            uint8_t* px = p.rgb.data() + 3 * (y * kWidth + x);
            px[0] = uint8_t(x * 7 + y);
            px[1] = uint8_t(y * 11 + (x % 5) * 9);
            px[2] = uint8_t((x * y * 13) ^ (x << 3));
        }
    return p;
}

// Rows of a 24-bit block as a picture; memory row 0 is the top row of top-down ones.
Picture pictureOf(const OwnedBlock& dib24, bool topDown) {
    InfoHeader h = tst::headerOf(dib24);
    Picture p{h.biWidth, int(absHeight(h)), {}};
    p.rgb.resize(size_t(3 * p.width * p.height));
    for (int y = 0; y < p.height; ++y) {
        const uint8_t* row = tst::rowOf(dib24, topDown ? y : p.height - 1 - y);
        for (int x = 0; x < p.width; ++x)
            for (int c = 0; c < 3; ++c) p.rgb[3 * (size_t(y) * p.width + x) + c] = row[3 * x + 2 - c];
    }
    return p;
}

// Equal pictures, each channel compared after dropping `drop[c]` low bits.
void expectSamePicture(const Picture& ours, const Picture& peer, const int drop[3] = nullptr) {
    ASSERT_EQ(ours.width, peer.width);
    ASSERT_EQ(ours.height, peer.height);
    int mismatches = 0;
    for (int y = 0; y < peer.height; ++y)
        for (int x = 0; x < peer.width; ++x)
            for (int c = 0; c < 3; ++c) {
                int shift = drop ? drop[c] : 0;
                if ((ours.at(x, y)[c] >> shift) != (peer.at(x, y)[c] >> shift) && mismatches++ < 3)
                    ADD_FAILURE() << "pixel " << x << "," << y << " channel " << c << ": ours "
                                  << int(ours.at(x, y)[c]) << ", ImageMagick " << int(peer.at(x, y)[c]);
            }
    EXPECT_EQ(mismatches, 0);
}

// Expands and widens a block read from a file to 24 bits.
OwnedBlock to24(tst::MemoryHost& host, OwnedBlock dib) {
    InfoHeader h = tst::headerOf(dib);
    if (h.biCompression == kBiRle8 || h.biCompression == kBiRle4) dib = dibRLEtoDIB(host, dib.source());
    switch (h.biBitCount) {
    case 1: return dib1To24(host, dib.source());
    case 4: return dib4To24(host, dib.source());
    case 8: return dib8To24(host, dib.source());
    case 16: return dib16To24(host, dib.source());
    case 32: return dib32To24(host, dib.source());
    default: return dib;
    }
}

class BmpConformance : public ::testing::Test {
protected:
    static void SetUpTestSuite() {
        ASSERT_TRUE(tst::imageMagickAvailable()) << "ImageMagick's convert is needed (scripts/install-deps.sh)";
        dir_ = new tst::TempDir;
        tst::writeFile(dir_->file("source.ppm"), tst::toPpm(sourcePicture()));
    }
    static void TearDownTestSuite() { delete dir_; }

    // A file ImageMagick makes from the source picture, as `format`.
    static std::vector<uint8_t> makeAs(const std::string& name, const std::string& options, const std::string& format) {
        std::string out = dir_->file(name);
        EXPECT_EQ(tst::runCommand("convert '" + dir_->file("source.ppm") + "' " + options + " " + format + ":'" + out + "'"), 0);
        return tst::readFile(out);
    }
    static Picture peerDecode(const std::string& name, const std::vector<uint8_t>& bytes) {
        tst::writeFile(dir_->file(name), bytes);
        return tst::decodeWithImageMagick(dir_->file(name));
    }

    // Reads the file with the library, checks its depth and compression, compares every
    // pixel with ImageMagick, then writes the block and has ImageMagick read it back.
    static void check(const std::string& name, const std::vector<uint8_t>& file, int bits, uint32_t compression,
                      const int drop[3] = nullptr) {
        SCOPED_TRACE(name);
        Picture peer = peerDecode(name + ".bmp", file);
        ASSERT_EQ(peer.width, kWidth);
        tst::MemoryHost host;
        MemorySource source(file.data(), file.size());
        OwnedBlock dib = readBmp(host, source);
        ASSERT_TRUE(dib);
        InfoHeader h = tst::headerOf(dib);
        EXPECT_EQ(h.biBitCount, bits);
        EXPECT_EQ(h.biCompression, compression);
        EXPECT_EQ(h.biSize, 40u);
        MemorySink written;
        ASSERT_TRUE(writeBmp(host, dib.source(), written));
        bool topDown = h.biHeight < 0;  // the conversions keep the memory order of the rows
        OwnedBlock rgb = to24(host, std::move(dib));
        ASSERT_TRUE(rgb);
        expectSamePicture(pictureOf(rgb, topDown), peer, drop);
        expectSamePicture(peerDecode(name + "-written.bmp", written.bytes), peer);
        EXPECT_TRUE(host.messages.empty());
    }

    static tst::TempDir* dir_;
};

tst::TempDir* BmpConformance::dir_ = nullptr;

const int kFiveBits[3] = {3, 3, 3};
const int kFiveSixFive[3] = {3, 2, 3};

// Bottom-up rows of 16- or 32-bit pixels decoded through masks (bytes past `size` are 0).
Picture decodeFields(const uint8_t* bits, size_t size, int width, int height, int bpp, const uint32_t masks[3]) {
    Picture p{width, height, std::vector<uint8_t>(size_t(3 * width * height))};
    int64_t stride = strideOf(width, bpp);
    for (int y = 0; y < height; ++y)
        for (int x = 0; x < width; ++x) {
            size_t at = size_t((height - 1 - y) * stride + x * bpp / 8);
            uint8_t b[4] = {};
            for (int i = 0; i < bpp / 8; ++i) b[i] = at + i < size ? bits[at + i] : 0;
            uint32_t v = le32(b);
            for (int c = 0; c < 3; ++c) p.rgb[3 * size_t(y * width + x) + c] = Field(masks[c])(v);
        }
    return p;
}

}  // namespace

TEST_F(BmpConformance, TrueColour24) { check("rgb24", makeAs("a.bmp", "-type TrueColor", "BMP3"), 24, 0); }

TEST_F(BmpConformance, Palette8) {
    check("pal8", makeAs("a.bmp", "-type Palette -colors 200 -compress None", "BMP3"), 8, 0);
}

TEST_F(BmpConformance, Palette4) { check("pal4", makeAs("a.bmp", "-colors 16 -compress None", "BMP3"), 4, 0); }

TEST_F(BmpConformance, Monochrome1) { check("mono1", makeAs("a.bmp", "-monochrome", "BMP3"), 1, 0); }

TEST_F(BmpConformance, Rle8) {
    check("rle8", makeAs("a.bmp", "-type Palette -colors 200 -compress RLE", "BMP3"), 8, kBiRle8);
}

TEST_F(BmpConformance, Rle4) {
    std::vector<uint8_t> four = makeAs("a.bmp", "-colors 16 -compress None", "BMP3");
    check("rle4", tst::toRle4(four), 4, kBiRle4);
}

TEST_F(BmpConformance, Plain16FiveFiveFive) {
    std::vector<uint8_t> fields = makeAs("a.bmp", "-define bmp:subtype=RGB555", "BMP3");
    check("rgb555", tst::plain16(fields), 16, 0, kFiveBits);
}

TEST_F(BmpConformance, Plain32) {
    std::vector<uint8_t> v5 = makeAs("a.bmp", "-alpha set -channel A -evaluate set 50% +channel", "BMP");
    check("rgb32", tst::withInfoHeader(v5, {}), 32, 0);
}

TEST_F(BmpConformance, TopDownFiles) {
    check("top24", tst::topDown(makeAs("a.bmp", "-type TrueColor", "BMP3")), 24, 0);
    check("top8", tst::topDown(makeAs("a.bmp", "-type Palette -colors 200 -compress None", "BMP3")), 8, 0);
    check("top4", tst::topDown(makeAs("a.bmp", "-colors 16 -compress None", "BMP3")), 4, 0);
    check("top1", tst::topDown(makeAs("a.bmp", "-monochrome", "BMP3")), 1, 0);
    check("top32", tst::topDown(tst::withInfoHeader(makeAs("a.bmp", "-alpha set", "BMP"), {})), 32, 0);
}

TEST_F(BmpConformance, Os2CoreHeaders) {
    check("os2-24", makeAs("a.bmp", "-type TrueColor", "BMP2"), 24, 0);
    check("os2-8", makeAs("a.bmp", "-type Palette -colors 200", "BMP2"), 8, 0);
    check("os2-4", makeAs("a.bmp", "-colors 16", "BMP2"), 4, 0);
    check("os2-1", makeAs("a.bmp", "-monochrome", "BMP2"), 1, 0);
}

// The reader keeps bit-field pixels right behind the colour table and drops the masks,
// while the layout expects them 12 bytes further on: the block holds the file's pixels
// at offset 40, and those pixels are ImageMagick's picture.
TEST_F(BmpConformance, BitFieldFilesKeepTheReaderPlacement) {
    struct Case {
        const char* name;
        std::vector<uint8_t> file;
        int bpp;
        uint32_t masks[3];
        const int* drop;
    };
    Case cases[] = {
        {"bf565", tst::withInfoHeader(makeAs("a.bmp", "-define bmp:subtype=RGB565", "BMP3"), {0xF800, 0x07E0, 0x001F}),
         16, {0xF800, 0x07E0, 0x001F}, kFiveSixFive},
        {"bf32", tst::withInfoHeader(makeAs("a.bmp", "-alpha set", "BMP"), {0xFF0000, 0x00FF00, 0x0000FF}), 32,
         {0xFF0000, 0x00FF00, 0x0000FF}, nullptr},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.name);
        Picture peer = peerDecode(std::string(c.name) + ".bmp", c.file);
        ASSERT_EQ(peer.width, kWidth);
        tst::MemoryHost host;
        MemorySource source(c.file.data(), c.file.size());
        OwnedBlock dib = readBmp(host, source);
        ASSERT_TRUE(dib);
        InfoHeader h = tst::headerOf(dib);
        EXPECT_EQ(h.biCompression, kBiBitfields);
        EXPECT_EQ(pixelOffset(h), 52u);
        uint32_t offBits = le32(c.file.data() + 10);
        ASSERT_EQ(dib.size(), 40u + h.biSizeImage);
        EXPECT_TRUE(std::equal(dib.data() + 40, dib.data() + dib.size(), c.file.begin() + offBits));
        expectSamePicture(decodeFields(dib.data() + 40, h.biSizeImage, kWidth, kHeight, c.bpp, c.masks), peer, c.drop);
    }
}

// A bit-field bitmap written by the library states its pixels 6 bytes behind its masks
// (offset 60, not 66); ImageMagick therefore reads the rows from there.
TEST_F(BmpConformance, WrittenBitFieldFileIsReadFromOffsetSixty) {
    const uint32_t masks[3] = {0xF800, 0x07E0, 0x001F};
    tst::TestDib dib = tst::makeDib(kWidth, kHeight, 16, {}, kBiBitfields, {masks[0], masks[1], masks[2]});
    for (size_t i = 52; i < dib.bytes.size(); ++i) dib.bytes[i] = uint8_t(i * 31 + (i >> 4));
    tst::MemoryHost host;
    MemorySink written;
    ASSERT_TRUE(writeBmp(host, dib.source(), written));
    EXPECT_EQ(le32(written.bytes.data() + 10), 60u);
    Picture peer = peerDecode("written-bf.bmp", written.bytes);
    ASSERT_EQ(peer.width, kWidth);
    expectSamePicture(decodeFields(written.bytes.data() + 60, written.bytes.size() - 60, kWidth, kHeight, 16, masks),
                      peer, kFiveSixFive);
}

// A block larger than its bitmap is written whole; the file still reads the same.
TEST_F(BmpConformance, TrailingBytesOfTheBlockAreWrittenAndHarmless) {
    std::vector<uint8_t> file = makeAs("a.bmp", "-type TrueColor", "BMP3");
    tst::MemoryHost host;
    MemorySource source(file.data(), file.size());
    OwnedBlock dib = readBmp(host, source);
    ASSERT_TRUE(dib);
    size_t content = dib.size();
    ASSERT_TRUE(dib.resize(content + 16));
    std::fill(dib.data() + content, dib.data() + content + 16, uint8_t(0xA5));
    MemorySink written;
    ASSERT_TRUE(writeBmp(host, dib.source(), written));
    EXPECT_EQ(le32(written.bytes.data() + 2), 14u + content + 16u);
    EXPECT_EQ(written.bytes.back(), 0xA5);
    expectSamePicture(peerDecode("trailing.bmp", written.bytes), peerDecode("plain.bmp", file));
}
