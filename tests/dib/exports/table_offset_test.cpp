// Every export on a true-colour bitmap that carries a colour table (biClrUsed entries in
// front of its pixels) must give the same picture as on the same bitmap without one.
#include <gtest/gtest.h>

#include <functional>
#include <string>

#include "bitmap_handles.h"
#include "support/msgbox_capture.h"
#include "tessarin.h"

using dibt::Bytes;
using dibt::Handle;

namespace {

constexpr int kWidth = 9, kHeight = 6;

// The picture with `entries` table entries and, for bit fields, 5-6-5 masks.
HGLOBAL picture(uint16_t bits, uint32_t entries, bool fields = false) {
    BITMAPINFOHEADER h = dibt::infoHeader(kWidth, kHeight, bits, entries, fields ? BI_BITFIELDS : BI_RGB);
    Bytes extra = dibt::rampTable(entries);
    if (fields) extra.insert(extra.end(), {0x00, 0xF8, 0, 0, 0xE0, 0x07, 0, 0, 0x1F, 0, 0, 0});
    Bytes rows(dibt::strideOf(kWidth, bits) * kHeight);
    for (size_t i = 0; i < rows.size(); ++i) rows[i] = uint8_t(i * 53 + i / 7);
    return dibt::toHandle(dibt::packed(h, extra, rows));
}

// The pixels of a device bitmap as 32-bit rows.
Bytes ddbPixels(HBITMAP ddb) {
    BITMAPINFOHEADER h = dibt::infoHeader(kWidth, kHeight, 32);
    Bytes rows(4 * kWidth * kHeight);
    HDC screen = GetDC(nullptr);
    GetDIBits(screen, ddb, 0, kHeight, rows.data(), reinterpret_cast<BITMAPINFO*>(&h), DIB_RGB_COLORS);
    ReleaseDC(nullptr, screen);
    return rows;
}

// The picture an export makes: the result's pixels (found by dibGetBits), a device
// bitmap's pixels, or a written file.
using Export = std::function<Bytes(HGLOBAL)>;

Bytes pixelsOf(HGLOBAL result) { return Handle(result).pixels(); }

Bytes drawn(HGLOBAL dib, bool stretch) {
    HDC screen = GetDC(nullptr);
    HBITMAP target = CreateCompatibleBitmap(screen, kWidth, kHeight);
    HDC memory = CreateCompatibleDC(screen);
    HGDIOBJ old = SelectObject(memory, target);
    stretch ? dibStretch(memory, dib, nullptr, 0, 0, kWidth, kHeight) : dibDraw(memory, dib, nullptr, 0, 0);
    SelectObject(memory, old);
    DeleteDC(memory);
    ReleaseDC(nullptr, screen);
    Bytes pixels = ddbPixels(target);
    DeleteObject(target);
    return pixels;
}

Bytes viaDdb(HGLOBAL dib) {
    HBITMAP ddb = dibDIBToDDB(dib, nullptr);
    Bytes pixels = ddbPixels(ddb);
    DeleteObject(ddb);
    return pixels;
}

Bytes gifOf(HGLOBAL dib) {
    std::string path = dibt::tempPath("table.gif");
    dibWriteGIF(path.c_str(), dib, 89, FALSE);
    Bytes file = dibt::readFile(path);
    DeleteFileA(path.c_str());
    return file;
}

struct Case {
    const char* name;
    Export run;
};

const Case kCommon[] = {
    {"dibGray", [](HGLOBAL d) { return pixelsOf(dibGray(d)); }},
    {"dibSmallSize", [](HGLOBAL d) { return pixelsOf(dibSmallSize(d)); }},
    {"dibCrop", [](HGLOBAL d) { return pixelsOf(dibCrop(d, 2, 1, 5, 4)); }},
    {"dibDraw", [](HGLOBAL d) { return drawn(d, false); }},
    {"dibStretch", [](HGLOBAL d) { return drawn(d, true); }},
    {"dibDIBToDDB", viaDdb},
    {"dibWriteGIF", gifOf},
};

const Case kTwentyFour[] = {
    {"dibReduceColors popularity", [](HGLOBAL d) { return pixelsOf(dibReduceColors(d, 8, 0)); }},
    {"dibReduceColors diffusion", [](HGLOBAL d) { return pixelsOf(dibReduceColors(d, 6, 1)); }},
    {"dibReduceColors median cut", [](HGLOBAL d) { return pixelsOf(dibReduceColors(d, 8, 2)); }},
    {"dibReduceColors both", [](HGLOBAL d) { return pixelsOf(dibReduceColors(d, 8, 3)); }},
    {"dib24To8 gray", [](HGLOBAL d) { return pixelsOf(dib24To8(d, TRUE)); }},
    {"dib24To8 colour", [](HGLOBAL d) { return pixelsOf(dib24To8(d, FALSE)); }},
    {"dib24To1", [](HGLOBAL d) { return pixelsOf(dib24To1(d)); }},
    {"dib24To4", [](HGLOBAL d) { return pixelsOf(dib24To4(d)); }},
};

const Case kSixteen[] = {{"dib16To24", [](HGLOBAL d) { return pixelsOf(dib16To24(d)); }}};
const Case kThirtyTwo[] = {{"dib32To24", [](HGLOBAL d) { return pixelsOf(dib32To24(d)); }}};

template <size_t N>
void expectSame(const Case (&cases)[N], uint16_t bits, uint32_t entries, bool fields = false) {
    for (const Case& c : cases) {
        Handle plain(picture(bits, 0, fields)), tabled(picture(bits, entries, fields));
        tst::MessageBoxCapture capture;
        Bytes a = c.run(plain.get()), b = c.run(tabled.get());
        EXPECT_EQ(capture.count(), 0u) << c.name;
        EXPECT_FALSE(a.empty()) << c.name;
        EXPECT_EQ(a, b) << c.name << ", " << bits << " bits, " << entries << " entries" << (fields ? ", masks" : "");
    }
}

}  // namespace

TEST(ColourTableInFront, TwentyFourBitExports) {
    for (uint32_t entries : {1u, 20u, 256u}) {
        expectSame(kCommon, 24, entries);
        expectSame(kTwentyFour, 24, entries);
    }
}

TEST(ColourTableInFront, SixteenAndThirtyTwoBitExports) {
    for (uint32_t entries : {3u, 16u}) {
        expectSame(kCommon, 16, entries);
        expectSame(kSixteen, 16, entries);
        expectSame(kCommon, 32, entries);
        expectSame(kThirtyTwo, 32, entries);
    }
}

TEST(ColourTableInFront, BitFieldExports) {
    expectSame(kSixteen, 16, 4, true);
    expectSame(kCommon, 16, 4, true);
}

// A device bitmap read back with bit fields keeps its rows where dibGetBits finds them,
// behind the three masks.
TEST(ColourTableInFront, DeviceBitmapReadWithBitFieldsPutsTheRowsBehindTheMasks) {
    Handle source(picture(24, 0));
    HBITMAP ddb = dibDIBToDDB(source.get(), nullptr);
    ASSERT_NE(ddb, nullptr);
    Handle plain(dibDDBToDIB(ddb, nullptr, 32, BI_RGB)), fields(dibDDBToDIB(ddb, nullptr, 32, BI_BITFIELDS));
    DeleteObject(ddb);
    ASSERT_TRUE(plain);
    ASSERT_TRUE(fields);
    EXPECT_EQ(fields.header().biCompression, DWORD(BI_BITFIELDS));
    EXPECT_EQ(fields.pixels(), plain.pixels());
    Bytes block = fields.bytes();
    EXPECT_EQ(block[40 + 2], 0xFF);  // red mask 0x00FF0000, right behind the header
    EXPECT_EQ(block.size(), 52u + 4 * kWidth * kHeight);
}
