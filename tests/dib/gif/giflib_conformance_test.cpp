// Conformance with giflib: a corpus made with ImageMagick and gifbuild is decoded by
// both, pixel index by pixel index and entry by entry; and every file the encoder
// writes must decode in giflib to the bitmap it came from.
#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <sstream>

#include "gif_core_support.h"
#include "giflib_peer.h"
#include "peer_model.h"

using namespace gift;
namespace fs = std::filesystem;

namespace {

struct BuildImage {
    BuildImage(int l, int t, int w, int h, bool i = false, int local = 0, std::string e = "")
        : left(l), top(t), width(w), height(h), interlaced(i), localColors(local), extension(std::move(e)) {}
    int left, top, width, height;
    bool interlaced;
    int localColors;        // 0: no local table
    std::string extension;  // gifbuild extension text placed behind the image
};

std::string mapText(int colors, unsigned seed) {
    std::ostringstream text;
    for (int i = 0; i < colors; ++i) {
        Rgb c = testColor(static_cast<unsigned>(i), seed);
        text << "\trgb " << int(c.r) << ' ' << int(c.g) << ' ' << int(c.b) << '\n';
    }
    return text.str() + "end\n";
}

// A gifbuild description: a screen, its global table, and images whose pixels cycle
// through their table.
std::string gifbuildText(int width, int height, int globalColors, const std::vector<BuildImage>& images,
                         const std::string& headerExtension = "") {
    std::ostringstream text;
    text << "screen width " << width << "\nscreen height " << height << "\nscreen colors "
         << globalColors << "\nscreen map\n" << mapText(globalColors, 0) << headerExtension;
    unsigned seed = 1;
    for (const BuildImage& im : images) {
        int colors = im.localColors != 0 ? im.localColors : globalColors;
        text << "image\nimage left " << im.left << "\nimage top " << im.top << '\n';
        if (im.interlaced) text << "image interlaced\n";
        if (im.localColors != 0) text << "image map\n" << mapText(im.localColors, seed);
        text << "image bits " << im.width << " by " << im.height << " hex\n";
        for (int y = 0; y < im.height; ++y, text << '\n')
            for (int x = 0; x < im.width; ++x) {
                char pair[12];
                std::snprintf(pair, sizeof pair, "%02x", unsigned(x * 7 + y * 3 + seed) % unsigned(colors));
                text << pair;
            }
        text << im.extension;
        ++seed;
    }
    return text.str();
}

class GiflibConformance : public ::testing::Test {
protected:
    static void SetUpTestSuite();
    static void TearDownTestSuite() { fs::remove_all(dir_); }
    static void gifbuild(const std::string& name, const std::string& text);
    static void magick(const std::string& name, const std::string& arguments);
    static fs::path dir_;
    static std::vector<std::string> files_;
};

fs::path GiflibConformance::dir_;
std::vector<std::string> GiflibConformance::files_;

void GiflibConformance::gifbuild(const std::string& name, const std::string& text) {
    std::ofstream(dir_ / (name + ".txt")) << text;
    std::string command = "gifbuild '" + (dir_ / (name + ".txt")).string() + "' > '" +
                          (dir_ / name).string() + "' 2>/dev/null";
    ASSERT_EQ(std::system(command.c_str()), 0) << command;
    files_.push_back(name);
}

void GiflibConformance::magick(const std::string& name, const std::string& arguments) {
    std::string target = (dir_ / name).string();
    std::string command = "convert " + arguments + " '" + (name.rfind("87", 0) == 0 ? "GIF87:" : "") +
                          target + "' 2>/dev/null";
    ASSERT_EQ(std::system(command.c_str()), 0) << command;
    files_.push_back(name);
}

void GiflibConformance::SetUpTestSuite() {
    char pattern[] = "/tmp/gif-conformance-XXXXXX";
    ASSERT_NE(mkdtemp(pattern), nullptr);
    dir_ = pattern;
    for (int colors = 2; colors <= 256; colors *= 2)
        gifbuild("global" + std::to_string(colors) + ".gif",
                 gifbuildText(13, 7, colors, {{0, 0, 13, 7}}));
    gifbuild("local.gif", gifbuildText(20, 12, 16, {{3, 2, 9, 5, false, 8}, {0, 6, 20, 6},
                                                    {10, 0, 10, 12, false, 16}}));
    gifbuild("local_too_large.gif", gifbuildText(8, 8, 4, {{0, 0, 4, 4}, {4, 4, 4, 4, false, 8}}));
    gifbuild("interlaced.gif", gifbuildText(16, 40, 256, {{0, 0, 16, 21, true}, {4, 23, 7, 13, true},
                                                          {2, 30, 9, 17, true}}));
    gifbuild("offsets.gif", gifbuildText(24, 16, 16, {{2, 3, 6, 5}, {20, 10, 9, 9}, {24, 0, 3, 3},
                                                      {0, 16, 3, 3}, {5, 5, 40, 30}, {7, 1, 3, 4}}));
    gifbuild("onebit.gif", gifbuildText(21, 9, 2, {{0, 0, 21, 9}, {3, 2, 5, 3}, {11, 4, 10, 9}}));
    gifbuild("extensions.gif",
             gifbuildText(10, 10, 8, {{0, 0, 10, 10, false, 0, "comment\nfirst comment\nend\n"},
                                      {2, 2, 5, 5, false, 0,
                                       "graphics control\n\tdisposal mode 2\n\tdelay 7\n\ttransparent index 1\nend\n"},
                                      {1, 1, 3, 3}},
                          "netscape loop 0\n"));
    magick("magick2.gif", "-seed 3 -size 61x47 plasma:fractal -colors 2");
    magick("magick7.gif", "-seed 3 -size 61x47 plasma:fractal -colors 7");
    magick("magick16.gif", "-seed 4 -size 64x50 plasma:fractal -colors 16");
    magick("magick200.gif", "-seed 5 -size 80x60 plasma:fractal -colors 200");
    magick("magick256.gif", "-seed 6 -size 99x71 plasma:fractal -colors 256");
    magick("magick_interlaced.gif", "-seed 7 -size 61x47 plasma:fractal -colors 64 -interlace GIF");
    magick("87a.gif", "-seed 8 -size 40x30 plasma:fractal -colors 32");
    magick("87a_interlaced.gif", "-seed 9 -size 33x29 plasma:fractal -colors 100 -interlace GIF");
    magick("magick_extensions.gif", "-seed 10 -size 40x30 plasma:fractal -colors 32 -comment 'made for the test' -delay 20");
    magick("magick_frames.gif",
           "-seed 11 -size 50x40 plasma:fractal -colors 8 \\( -size 20x10 xc:red -set page +30+35 \\) "
           "\\( -seed 12 -size 15x15 plasma:fractal -colors 100 -set page +10+5 \\) -delay 5");
}

void expectSameAsGiflib(const Bytes& file, const std::string& what) {
    PeerGif peer = giflibDecode(file);
    ASSERT_TRUE(peer.ok) << what << ": " << peer.error;
    ExpectedBitmap expected = composeExpected(peer, file[10] & 7u);
    tst::MemoryHost host;
    Dib dib = decode(file, host);
    ASSERT_FALSE(dib.block.empty()) << what;
    EXPECT_EQ(host.messages.empty(), !expected.refused) << what;
    ASSERT_EQ(dib.width(), expected.width) << what;
    ASSERT_EQ(dib.height(), expected.height) << what;
    ASSERT_EQ(dib.bits(), expected.bits) << what;
    EXPECT_EQ(dib.header().clrUsed, 1u << expected.bits) << what;
    EXPECT_EQ(dib.header().clrImportant, expected.clrImportant) << what;
    for (unsigned i = 0; i < expected.table.size(); ++i) ASSERT_EQ(dib.color(i), expected.table[i]) << what << " entry " << i;
    for (std::uint32_t y = 0; y < expected.height; ++y)
        for (std::uint32_t x = 0; x < expected.width; ++x)
            ASSERT_EQ(dib.index(x, y), expected.indices[std::size_t{y} * expected.width + x])
                << what << " at " << x << ", " << y;
}

}  // namespace

TEST_F(GiflibConformance, CorpusCoversWhatItShould) {
    bool saw87 = false, saw89 = false, sawLocal = false, sawInterlaced = false, sawOutside = false;
    bool sawComment = false, sawControl = false;
    for (const std::string& name : files_) {
        Bytes file = readFile((dir_ / name).string());
        saw87 |= file[4] == '7';
        saw89 |= file[4] == '9';
        for (std::size_t i = 0; i + 1 < file.size(); ++i) {
            sawComment |= file[i] == 0x21 && file[i + 1] == 0xFE;
            sawControl |= file[i] == 0x21 && file[i + 1] == 0xF9;
        }
        PeerGif peer = giflibDecode(file);
        for (const PeerImage& image : peer.images) {
            sawLocal |= !image.localMap.empty();
            sawInterlaced |= image.interlaced;
            sawOutside |= image.left + image.width > peer.width || image.top + image.height > peer.height;
        }
    }
    EXPECT_TRUE(saw87 && saw89 && sawLocal && sawInterlaced && sawOutside && sawComment && sawControl);
}

TEST_F(GiflibConformance, EveryCorpusFileDecodesAsGiflibDecodesIt) {
    ASSERT_GE(files_.size(), 20u);
    for (const std::string& name : files_) expectSameAsGiflib(readFile((dir_ / name).string()), name);
}

namespace {

// True when the data ends exactly on a block boundary, so that a block of length 0
// stands before the terminator.
bool endsWithEmptyBlock(const Bytes& file, unsigned bits) {
    std::size_t at = 13 + (std::size_t{3} << bits) + 10 + 1;
    while (file[at] != 0) at += file[at] + 1u;
    return file[at + 1] == 0 && at + 2 < file.size();
}

}  // namespace

TEST(GiflibPeer, EveryWrittenFileDecodesInGiflibToItsBitmap) {
    // 4-bit 3894 x 3 and 8-bit 1702 x 3 pictures of this noise end their data exactly
    // on a block boundary; the wide ones also fill the table several times. A stream
    // that ends on a boundary is closed by a block of length 0 and the terminator:
    // giflib decodes the image and then takes the terminator for a bad block type.
    int emptyBlockEndings = 0;
    for (unsigned bits : {1u, 4u, 8u})
        for (std::uint32_t w : {1u, 7u, 64u, 133u, 1702u, 2003u, 3894u})
            for (bool interlace : {false, true}) {
                std::uint32_t h = w > 1000 ? 3 : 45;
                std::vector<std::uint8_t> indices(std::size_t{w} * h);
                std::uint32_t state = w * 31 + bits;
                for (std::uint8_t& v : indices)
                    v = static_cast<std::uint8_t>(((state = state * 1103515245u + 12345u) >> 16) % (1u << bits));
                std::vector<Rgb> colors = palette(1u << bits);
                Dib dib = makeDib(w, h, bits, indices, colors);
                tst::MemoryHost host;
                Bytes file = encode(dib, interlace ? 87 : 89, interlace, host);
                bool emptyBlock = endsWithEmptyBlock(file, bits);
                emptyBlockEndings += !interlace && emptyBlock;
                std::string what = std::to_string(bits) + " bits " + std::to_string(w) + "x" + std::to_string(h);
                PeerGif peer = giflibDecode(file);
                ASSERT_EQ(peer.images.size(), 1u) << what << ": " << peer.error;
                EXPECT_EQ(peer.globalMap, colors) << what;
                EXPECT_EQ(peer.images[0].raster, indices) << what;
                if (emptyBlock) EXPECT_TRUE(peer.wrongRecordType) << what;
                else EXPECT_TRUE(peer.ok) << what << ": " << peer.error;
            }
    EXPECT_EQ(emptyBlockEndings, 2);
}
