// Headers that claim more than any block could hold: refused as a lack of memory, fast,
// without allocating or copying what they claim.
#include <gtest/gtest.h>

#include <functional>

#include "dib/core/bmp_file.h"
#include "dib/core/depth_convert.h"
#include "dib/core/gdi_bits.h"
#include "dib/core/image_ops.h"
#include "dib/core/median_cut.h"
#include "dib/core/reduce.h"
#include "support/memory_host.h"

using namespace ts::dib;
using tst::MemoryHost;

namespace {

// A small block whose header claims `colors` table entries (none of them present).
tst::TestDib claiming(uint16_t bits, uint32_t colors) {
    tst::TestDib dib = tst::makeDib(4, 4, bits);
    InfoHeader h = dib.header();
    h.biClrUsed = colors;
    writeHeader(dib.bytes.data(), h);
    return dib;
}

struct Case {
    uint16_t bits;
    std::function<OwnedBlock(Host&, Source)> run;
    const char* message;
};

}  // namespace

TEST(HeaderGuards, ColourTablesBeyondSixtyFiveThousandEntriesAreALackOfMemory) {
    const Case cases[] = {
        {24, [](Host& h, Source s) { return dibCrop(h, s, 0, 0, 2, 2); }, "dibCrop: Not enough memory for DIB!"},
        {24, [](Host& h, Source s) { return dibSmallSize(h, s); }, "dibSmallSize: Not enough memory for DIB!"},
        {16, [](Host& h, Source s) { return dib16To24(h, s); }, "dib16To24: Not enough memory for DIB!"},
        {24, [](Host& h, Source s) { return dibGray(h, s); }, "dib24to8: Not enough memory for DIB!"},
        {24, [](Host& h, Source s) { return dibReduceColors(h, s, 8, 2); }, "dibReduceColors: Not enough memory for DIB!"},
    };
    for (const Case& c : cases) {
        tst::TestDib dib = claiming(c.bits, 0xFFFFFFF0);
        MemoryHost host;
        host.limit = UINT64_MAX;  // only the guard may refuse
        EXPECT_FALSE(c.run(host, dib.source()));
        ASSERT_FALSE(host.messages.empty()) << c.message;
        EXPECT_EQ(host.messages.back(), c.message);
        EXPECT_EQ(host.liveBlocks(), 0u);
    }
    tst::TestDib most = claiming(16, kMaxColors);
    MemoryHost host;
    EXPECT_TRUE(dib16To24(host, most.source()));
}

TEST(HeaderGuards, GdiGetsNothingForAnAbsurdTable) {
    tst::TestDib dib = claiming(24, 0xFFFFFFF0);
    MemoryHost host;
    host.limit = UINT64_MAX;
    GdiBits g(host);
    EXPECT_FALSE(g.open(dib.source()));
    EXPECT_TRUE(host.messages.empty());
}

TEST(HeaderGuards, AFileClaimingAnAbsurdTableIsALackOfMemory) {
    InfoHeader h = newHeader(1, 1, 24);
    h.biClrUsed = 0x40000000;
    std::vector<uint8_t> file(14 + 40 + 4);
    put16(file.data(), kBmpType);
    writeHeader(file.data() + 14, h);
    MemorySource source(file.data(), file.size());
    MemoryHost host;
    host.limit = UINT64_MAX;
    EXPECT_FALSE(readBmp(host, source));
    EXPECT_EQ(host.messages,
              (std::vector<std::string>{"dibReadInfo: Not enough memory for DIB!", "dibRead: Error while reading file!"}));
}

TEST(HeaderGuards, MedianCutReportsABoxWhoseCountDisagreesWithItsCells) {
    // Only an inconsistent run gets there: two pixels claimed, no cell counted.
    std::vector<uint32_t> histogram(32768, 0);
    RgbQuad palette[256] = {};
    MemoryHost host;
    MedianCut run{histogram.data(), palette, 0, &host};
    runMedianCut(run, 8, 2);
    ASSERT_FALSE(host.messages.empty());
    EXPECT_EQ(host.messages[0], "MedianCut: Program error: lPixels != 0");
}
