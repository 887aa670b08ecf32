// Tests of the BMP reader and writer over memory files.
#include <gtest/gtest.h>

#include <algorithm>
#include <cstring>

#include "dib/core/bmp_file.h"
#include "support/memory_host.h"

using namespace ts::dib;
using tst::MemoryHost;

namespace {

// A BMP file: 14-byte header, the given header bytes, table and pixels.
std::vector<uint8_t> bmpFile(const std::vector<uint8_t>& afterFileHeader, uint32_t offBits) {
    std::vector<uint8_t> f(14 + afterFileHeader.size());
    put16(f.data(), 0x4D42);
    put32(f.data() + 2, uint32_t(f.size()));
    put32(f.data() + 10, offBits);
    std::copy(afterFileHeader.begin(), afterFileHeader.end(), f.begin() + 14);
    return f;
}

std::vector<uint8_t> infoBytes(const InfoHeader& h) {
    std::vector<uint8_t> b(40);
    writeHeader(b.data(), h);
    return b;
}

OwnedBlock readAll(MemoryHost& host, const std::vector<uint8_t>& file) {
    MemorySource src(file.data(), file.size());
    return readBmp(host, src);
}

}  // namespace

TEST(BmpReader, CoreHeaderIsWidenedWithFourByteEntries) {
    std::vector<uint8_t> rest(12);
    put32(rest.data(), 12);
    put16(rest.data() + 4, 3);
    put16(rest.data() + 6, 2);
    put16(rest.data() + 8, 1);
    put16(rest.data() + 10, 1);
    std::vector<uint8_t> table = {1, 2, 3, 250, 251, 252};
    rest.insert(rest.end(), table.begin(), table.end());
    std::vector<uint8_t> pixels = {0x40, 0, 0, 0, 0xA0, 0, 0, 0};
    rest.insert(rest.end(), pixels.begin(), pixels.end());
    rest.resize(rest.size() + 20);  // the reader always reads 40 header bytes first
    MemoryHost host;
    OwnedBlock b = readAll(host, bmpFile(rest, 14 + 12 + 6));
    ASSERT_TRUE(b);
    InfoHeader h = tst::headerOf(b);
    EXPECT_EQ(h.biSize, 40u);
    EXPECT_EQ(h.biWidth, 3);
    EXPECT_EQ(h.biHeight, 2);
    EXPECT_EQ(h.biClrUsed, 2u);
    EXPECT_EQ(h.biXPelsPerMeter, 2953);
    EXPECT_EQ(h.biSizeImage, 8u);
    RgbQuad e0 = tst::entryOf(b, 0), e1 = tst::entryOf(b, 1);
    EXPECT_EQ(e0.blue, 1);
    EXPECT_EQ(e0.green, 2);
    EXPECT_EQ(e0.red, 3);
    EXPECT_EQ(e0.reserved, 0);
    EXPECT_EQ(e1.blue, 250);
    EXPECT_EQ(e1.red, 252);
    EXPECT_EQ(e1.reserved, 0);
    EXPECT_EQ(std::memcmp(b.data() + 48, pixels.data(), 8), 0);
    EXPECT_EQ(b.size(), 56u);
    EXPECT_TRUE(host.messages.empty());
}

TEST(BmpReader, UncompressedSizeIsComputedWhateverTheHeaderSays) {
    InfoHeader h = newHeader(5, 3, 24);
    h.biSizeImage = 7;
    std::vector<uint8_t> rest = infoBytes(h);
    rest.resize(40 + 48, 0x11);
    MemoryHost host;
    OwnedBlock b = readAll(host, bmpFile(rest, 54));
    ASSERT_TRUE(b);
    EXPECT_EQ(tst::headerOf(b).biSizeImage, 48u);
    EXPECT_EQ(b.size(), 88u);
}

TEST(BmpReader, CompressedSizeIsKept) {
    InfoHeader h = newHeader(5, 3, 8);
    h.biCompression = kBiRle8;
    h.biSizeImage = 6;
    h.biClrUsed = 2;
    std::vector<uint8_t> rest = infoBytes(h);
    rest.resize(40 + 8 + 6, 0);
    MemoryHost host;
    OwnedBlock b = readAll(host, bmpFile(rest, 62));
    ASSERT_TRUE(b);
    EXPECT_EQ(tst::headerOf(b).biSizeImage, 6u);
    EXPECT_EQ(b.size(), 40u + 8u + 6u);
}

TEST(BmpReader, BitFieldPixelsArePlacedRightBehindTheTable) {
    InfoHeader h = newHeader(2, 1, 16);
    h.biCompression = kBiBitfields;
    std::vector<uint8_t> rest = infoBytes(h);
    std::vector<uint8_t> masks(12), pixels = {0x1F, 0x00, 0xE0, 0x03};
    put32(masks.data(), 0x7C00);
    put32(masks.data() + 4, 0x03E0);
    put32(masks.data() + 8, 0x001F);
    rest.insert(rest.end(), masks.begin(), masks.end());
    rest.insert(rest.end(), pixels.begin(), pixels.end());
    MemoryHost host;
    OwnedBlock b = readAll(host, bmpFile(rest, 66));
    ASSERT_TRUE(b);
    EXPECT_EQ(b.size(), 44u);
    EXPECT_EQ(std::memcmp(b.data() + 40, pixels.data(), 4), 0);
    EXPECT_EQ(pixelOffset(tst::headerOf(b)), 52u);  // where the layout expects them
}

TEST(BmpReader, TopDownFileIsSizedByItsRowCount) {
    InfoHeader h = newHeader(2, -2, 24);
    std::vector<uint8_t> rest = infoBytes(h);
    rest.resize(40 + 16, 7);
    MemoryHost host;
    OwnedBlock b = readAll(host, bmpFile(rest, 54));
    ASSERT_TRUE(b);
    EXPECT_EQ(tst::headerOf(b).biHeight, -2);
    EXPECT_EQ(tst::headerOf(b).biSizeImage, 16u);
    EXPECT_EQ(b.size(), 56u);
    EXPECT_EQ(host.cursors, (std::vector<Cursor>{Cursor::Wait, Cursor::Arrow}));
}

TEST(BmpReader, ShortPixelDataLeavesZeros) {
    InfoHeader h = newHeader(4, 4, 8);
    h.biClrUsed = 1;
    std::vector<uint8_t> rest = infoBytes(h);
    rest.resize(44 + 3, 9);
    MemoryHost host;
    OwnedBlock b = readAll(host, bmpFile(rest, 58));
    ASSERT_TRUE(b);
    EXPECT_EQ(b.size(), 44u + 16u);
    EXPECT_EQ(b.data()[44], 9);
    EXPECT_EQ(b.data()[47], 0);
}

TEST(BmpReader, ReportsEachDamagedHeader) {
    struct Case {
        std::vector<uint8_t> file;
        std::vector<std::string> messages;
    };
    std::vector<uint8_t> notBm = bmpFile(infoBytes(newHeader(1, 1, 24)), 54);
    notBm[0] = 'X';
    std::vector<uint8_t> shortInfo = bmpFile(std::vector<uint8_t>(20, 0), 54);
    std::vector<uint8_t> v4(40, 0);
    put32(v4.data(), 108);
    const std::string again = "dibRead: Error while reading file!";
    std::vector<Case> cases = {
        {std::vector<uint8_t>(5, 'B'), {"dibReadInfo: Error while reading BMP header!", again}},
        {notBm, {"dibReadInfo: Not a valid BMP file!", again}},
        {shortInfo, {"dibReadInfo: Error while reading DIB info block!", again}},
        {bmpFile(v4, 54), {"dibReadInfo: Unkown DIB format!", again}},
    };
    for (const Case& c : cases) {
        MemoryHost host;
        EXPECT_FALSE(readAll(host, c.file));
        EXPECT_EQ(host.messages, c.messages);
        EXPECT_EQ(host.liveBlocks(), 0u);
    }
}

TEST(BmpReader, InvalidFileHandleAndMemoryFailures) {
    MemoryHost host;
    EXPECT_FALSE(readInfo(host, nullptr));
    EXPECT_EQ(host.messages, std::vector<std::string>{"dibReadInfo: No valid file handle!"});

    std::vector<uint8_t> file = bmpFile(infoBytes(newHeader(4, 4, 24)), 54);
    file.resize(file.size() + 64);
    MemoryHost refusing;
    refusing.allocationsLeft = 0;
    EXPECT_FALSE(readAll(refusing, file));
    EXPECT_EQ(refusing.messages, (std::vector<std::string>{"dibReadInfo: Not enough memory for DIB!",
                                                           "dibRead: Error while reading file!"}));
    MemoryHost growFails;
    growFails.allocationsLeft = 1;
    EXPECT_FALSE(readAll(growFails, file));
    EXPECT_EQ(growFails.messages, std::vector<std::string>{"dibRead: Not enough memory for DIB!"});
    EXPECT_EQ(growFails.liveBlocks(), 0u);
}

TEST(BmpReader, HugeDimensionsFailCleanly) {
    InfoHeader h = newHeader(1, 1, 24);
    h.biWidth = 0x7FFFFFFF;
    h.biHeight = 0x7FFFFFFF;
    MemoryHost host;
    EXPECT_FALSE(readAll(host, bmpFile(infoBytes(h), 54)));
    EXPECT_EQ(host.messages.front(), "dibReadInfo: Not enough memory for DIB!");
    h = newHeader(1, 1, 8);
    h.biClrUsed = 0xFFFFFFFF;
    MemoryHost table;
    EXPECT_FALSE(readAll(table, bmpFile(infoBytes(h), 54)));
    EXPECT_EQ(table.messages.front(), "dibReadInfo: Not enough memory for DIB!");
}

TEST(BmpFileTest, IsBmpNeedsBmAndAKnownHeaderSize) {
    std::vector<uint8_t> good = bmpFile(infoBytes(newHeader(1, 1, 24)), 54);
    MemorySource a(good.data(), good.size());
    EXPECT_TRUE(isBmp(a));
    std::vector<uint8_t> core = good;
    put32(core.data() + 14, 12);
    MemorySource b(core.data(), core.size());
    EXPECT_TRUE(isBmp(b));
    std::vector<uint8_t> other = good;
    put32(other.data() + 14, 124);
    MemorySource c(other.data(), other.size());
    EXPECT_FALSE(isBmp(c));
    MemorySource d(good.data(), 30);
    EXPECT_FALSE(isBmp(d));
}

TEST(BmpWriter, HeaderOffsetsAndTrailingBytes) {
    tst::TestDib dib = tst::makeDib(3, 2, 24);
    auto fh = fileHeader(dib.source());
    EXPECT_EQ(le16(fh.data()), 0x4D42);
    EXPECT_EQ(le32(fh.data() + 10), 54u);
    dib.bytes.resize(dib.bytes.size() + 10, 0xEE);  // a block larger than its bitmap
    MemoryHost host;
    MemorySink sink;
    ASSERT_TRUE(writeBmp(host, dib.source(), sink));
    ASSERT_EQ(sink.bytes.size(), 14 + dib.bytes.size());
    EXPECT_EQ(le32(sink.bytes.data() + 2), 14 + dib.bytes.size());
    EXPECT_EQ(sink.bytes.back(), 0xEE);
    EXPECT_EQ(host.cursors, (std::vector<Cursor>{Cursor::Wait, Cursor::Arrow}));
}

TEST(BmpWriter, BitFieldOffsetGetsSixAndPaletteCounts) {
    tst::TestDib fields = tst::makeDib(3, 2, 16, {}, kBiBitfields, {0xF800, 0x07E0, 0x001F});
    EXPECT_EQ(le32(fileHeader(fields.source()).data() + 10), 60u);
    tst::TestDib palette = tst::makeDib(3, 2, 8, std::vector<RgbQuad>(5));
    EXPECT_EQ(le32(fileHeader(palette.source()).data() + 10), 54u + 20u);
}

TEST(BmpWriter, ShortWriteReportsAndLeavesTheWaitCursor) {
    tst::TestDib dib = tst::makeDib(3, 2, 24);
    MemoryHost host;
    MemorySink full(20);
    EXPECT_FALSE(writeBmp(host, dib.source(), full));
    EXPECT_EQ(host.messages, std::vector<std::string>{"dibWrite: Error while writing file!"});
    EXPECT_EQ(host.cursors, std::vector<Cursor>{Cursor::Wait});
}
