// The bitmap exports on Windows: refusals and their boxes, accessors, palettes, copies,
// conversions through global-memory handles.
#include <gtest/gtest.h>

#include <functional>

#include "dib/win32/dib_handles.h"
#include "dib/win32/dib_internal.h"
#include "tessarin.h"

using tst::boxTexts;
using tst::DibHandle;
using Texts = std::vector<std::string>;

TEST(DibExports, EveryNullHandleShowsItsOwnBox) {
    struct Call {
        std::function<bool()> returnsZero;
        const char* text;
    };
    HDC dc = GetDC(nullptr);
    const Call calls[] = {
        {[] { return dibGetWidth(nullptr) == 0; }, "dibGetWidth: No DIB passed!"},
        {[] { return dibGetHeight(nullptr) == 0; }, "dibGetHeight: No DIB passed!"},
        {[] { return dibGetBitPerPixel(nullptr) == 0; }, "dibGetBitPerPixel: No DIB passed!"},
        {[] { return dibGetXPelsPerMeter(nullptr) == 0; }, "dibGetXPelsPerMeter: No DIB passed!"},
        {[] { return dibGetYPelsPerMeter(nullptr) == 0; }, "dibGetYPelsPerMeter: No DIB passed!"},
        {[] { return !dibSetXPelsPerMeter(nullptr, 1); }, "dibSetXPelsPerMeter: No DIB passed!"},
        {[] { return !dibSetYPelsPerMeter(nullptr, 1); }, "dibSetYPelsPerMeter: No DIB passed!"},
        {[] { return !dibCreatePalette(nullptr); }, "dibCreatePalette: No DIB passed!"},
        {[dc] { return !dibDraw(dc, nullptr, nullptr, 0, 0); }, "dibDraw: No DIB passed!"},
        {[dc] { return !dibStretch(dc, nullptr, nullptr, 0, 0, 5, 5); }, "dibDraw: No DIB passed!"},
        {[dc] { return !dibDrawDDB(dc, nullptr, nullptr, 0, 0); }, "dibDrawDDB: No DDB passed!"},
        {[dc] { return !dibStretchDDB(dc, nullptr, nullptr, 0, 0, 5, 5); }, "dibStretchDDB: No DDB!"},
        {[] { return !dibDIBToDDB(nullptr, nullptr); }, "dibDIBToDDB: No DIB passed!"},
        {[] { return !dibDDBToDIB(nullptr, nullptr, 24, 0); }, "dibDDBToDIB: No DDB passed!"},
        {[] { return !dibCopy(nullptr); }, "dibCopy: No DIB passed!"},
        {[] { return !dibWrite("x.bmp", nullptr); }, "dibWrite: No DIB passed!"},
        {[] { return !dib1To4(nullptr); }, "dib1To4: No DIB passed!"},
        {[] { return !dib4To8(nullptr); }, "dib4To8: No DIB passed!"},
        {[] { return !dib8To24(nullptr); }, "dib8To24: No DIB passed!"},
        {[] { return !dib16To24(nullptr); }, "dib16To24: No DIB passed!"},
        {[] { return !dib32To24(nullptr); }, "dib32To24: No DIB passed!"},
        {[] { return !dib1To8(nullptr); }, "dib1To8: No DIB passed!"},
        {[] { return !dib1To24(nullptr); }, "dib1To24: No DIB passed!"},
        {[] { return !dib4To24(nullptr); }, "dib4To24: No DIB passed!"},
        {[] { return !dib24To1(nullptr); }, "dib24To1: No DIB passed!"},
        {[] { return !dib8To1(nullptr); }, "dib8To1: No DIB passed!"},
        {[] { return !dib4To1(nullptr); }, "dib4To1: No DIB passed!"},
        {[] { return !dib24To4(nullptr); }, "dib24To4: No DIB passed!"},
        {[] { return !dib8To4(nullptr); }, "dib8To4: No DIB passed!"},
        {[] { return !dib24To8(nullptr, FALSE); }, "dib24to8: No DIB passed!"},
        {[] { return !dibReduceColors(nullptr, 8, 3); }, "dibReduceColors: No DIB passed!"},
        {[] { return !_DIB24To1(nullptr); }, "_DIB24To1: No DIB passed!"},
        {[] { return !_DIB24To4(nullptr); }, "_DIB24To4: No DIB passed!"},
        {[] { return !dibCrop(nullptr, 0, 0, 1, 1); }, "dibCrop: No DIB passed!"},
        {[] { return !dibGray(nullptr); }, "dibGray: No DIB passed!"},
        {[] { return !dibSmallSize(nullptr); }, "dibSmallSize: No DIB passed!"},
        {[] { return !dibRLEtoDIB(nullptr); }, "dibRLEtoDIB: No DIB passed!"},
    };
    for (const Call& c : calls) {
        tst::MessageBoxCapture capture(IDOK);
        EXPECT_TRUE(c.returnsZero()) << c.text;
        std::vector<tst::CapturedBox> boxes = capture.boxes();
        ASSERT_EQ(boxes.size(), 1u) << c.text;
        EXPECT_EQ(boxes[0].text, c.text);
        EXPECT_EQ(boxes[0].title, "Tessarin Error Message");
        EXPECT_EQ(boxes[0].style, 0x10000u);
        EXPECT_EQ(boxes[0].owner, nullptr);
    }
    ReleaseDC(nullptr, dc);
}

TEST(DibExports, AccessorsReadAndWriteTheHeader) {
    DibHandle dib(tst::makeHandle(7, -3, 24));
    EXPECT_EQ(dibGetWidth(dib.get()), 7);
    EXPECT_EQ(dibGetHeight(dib.get()), 3);
    EXPECT_EQ(dibGetBitPerPixel(dib.get()), 24);
    EXPECT_EQ(dibGetXPelsPerMeter(dib.get()), 2953);
    EXPECT_TRUE(dibSetXPelsPerMeter(dib.get(), 1000));
    EXPECT_TRUE(dibSetYPelsPerMeter(dib.get(), 2000));
    EXPECT_EQ(dibGetXPelsPerMeter(dib.get()), 1000);
    EXPECT_EQ(dibGetYPelsPerMeter(dib.get()), 2000);
}

TEST(DibExports, ColourCountAndBitsOfALockedHeader) {
    DibHandle dib(tst::makeHandle(4, 4, 16));
    auto* p = static_cast<uint8_t*>(GlobalLock(dib.get()));
    EXPECT_EQ(dibGetColorsInPalette(p), 0u);
    EXPECT_EQ(dibGetBits(p), p + 40);
    reinterpret_cast<BITMAPINFOHEADER*>(p)->biCompression = BI_BITFIELDS;
    EXPECT_EQ(dibGetBits(p), p + 52);
    GlobalUnlock(dib.get());
    void* unreadable = reinterpret_cast<void*>(static_cast<uintptr_t>(0x10));
    EXPECT_EQ(dibGetColorsInPalette(unreadable), 0u);
    EXPECT_EQ(dibGetBits(unreadable), nullptr);
}

TEST(DibExports, PaletteOfTrueColourIsTheFixedCubeAndLeavesTheLock) {
    DibHandle dib(tst::makeHandle(2, 2, 24));
    HPALETTE palette = dibCreatePalette(dib.get());
    ASSERT_NE(palette, nullptr);
    PALETTEENTRY e[256];
    ASSERT_EQ(GetPaletteEntries(palette, 0, 256, e), 256u);
    EXPECT_EQ(e[9].peRed, 32);
    EXPECT_EQ(e[9].peGreen, 32);
    EXPECT_EQ(e[9].peBlue, 0);
    EXPECT_EQ(e[255].peRed, 224);
    EXPECT_EQ(e[255].peGreen, 224);
    EXPECT_EQ(e[255].peBlue, 192);
    EXPECT_EQ(GlobalFlags(dib.get()) & GMEM_LOCKCOUNT, 1u);
    GlobalUnlock(dib.get());
    DeleteObject(palette);
}

TEST(DibExports, PaletteOfATableAndOs2Refusal) {
    DibHandle dib(tst::makeHandle(2, 2, 8, {{1, 2, 3, 0}, {40, 50, 60, 0}}));
    HPALETTE palette = dibCreatePalette(dib.get());
    ASSERT_NE(palette, nullptr);
    PALETTEENTRY e[2];
    ASSERT_EQ(GetPaletteEntries(palette, 0, 2, e), 2u);
    EXPECT_EQ(e[1].peRed, 60);
    EXPECT_EQ(e[1].peBlue, 40);
    DeleteObject(palette);
    GlobalUnlock(dib.get());
    auto* p = static_cast<BITMAPINFOHEADER*>(GlobalLock(dib.get()));
    p->biSize = 12;
    GlobalUnlock(dib.get());
    EXPECT_EQ(boxTexts([&] { EXPECT_EQ(dibCreatePalette(dib.get()), nullptr); }),
              Texts{"dibCreatePalette: No support of OS/2 DIBs!"});
    EXPECT_EQ(GlobalFlags(dib.get()) & GMEM_LOCKCOUNT, 0u);
}

TEST(DibExports, ResultsAreMovableZeroedBlocksOwnedByTheCaller) {
    DibHandle dib(tst::makeHandle(3, 2, 8, {{9, 9, 9, 0}}, {0, 0, 0, 0, 0, 0, 0, 0}));
    DibHandle copy(dibCopy(dib.get()));
    ASSERT_TRUE(copy);
    EXPECT_EQ(copy.bytes(), dib.bytes());
    DibHandle wide(dib8To24(dib.get()));
    ASSERT_TRUE(wide);
    void* locked = GlobalLock(wide.get());
    EXPECT_NE(locked, static_cast<void*>(wide.get()));  // a movable block, not a fixed one
    GlobalUnlock(wide.get());
    EXPECT_EQ(GlobalFlags(wide.get()) & GMEM_LOCKCOUNT, 0u);
    EXPECT_EQ(wide.header().biBitCount, 24);
    EXPECT_EQ(wide.bytes()[40], 9);
}

TEST(DibExports, ConversionsAndReductionsThroughHandles) {
    std::vector<uint8_t> rows(8 * 2);
    rows[0] = 0x80;  // bottom-left pixel white
    DibHandle one(tst::makeHandle(9, 2, 1, {{0, 0, 0, 0}, {255, 255, 255, 0}}, rows));
    DibHandle eight(dib1To8(one.get()));
    ASSERT_TRUE(eight);
    EXPECT_EQ(eight.header().biBitCount, 8);
    EXPECT_EQ(eight.bytes()[40 + 1024], 1);
    DibHandle wide(dib1To24(one.get()));
    ASSERT_TRUE(wide);
    std::vector<uint8_t> before = wide.bytes();
    DibHandle back(_DIB24To1(wide.get()));
    ASSERT_TRUE(back);
    EXPECT_EQ(back.bytes()[48], 0x80);
    DibHandle sixteen(_DIB24To4(wide.get()));
    ASSERT_TRUE(sixteen);
    EXPECT_EQ(sixteen.bytes()[104] >> 4, 15);
    DibHandle reduced(dibReduceColors(wide.get(), 1, 2));
    ASSERT_TRUE(reduced);
    EXPECT_EQ(reduced.header().biClrUsed, 256u);
    DibHandle gray(dib24To8(wide.get(), TRUE));
    ASSERT_TRUE(gray);
    EXPECT_EQ(gray.bytes()[40 + 1024], 255);
    DibHandle half(dibSmallSize(wide.get()));
    ASSERT_TRUE(half);
    EXPECT_EQ(half.header().biWidth, 4);
    DibHandle cut(dibCrop(wide.get(), 1, 0, 2, 1));
    ASSERT_TRUE(cut);
    EXPECT_EQ(cut.header().biWidth, 2);
    EXPECT_EQ(boxTexts([&] { EXPECT_FALSE(dibRLEtoDIB(wide.get())); }), Texts{"dibRLEtoDIB: Not a RLE-Bitmap!"});
    EXPECT_EQ(boxTexts([&] { EXPECT_FALSE(dib4To1(wide.get())); }), Texts{"dib4To8: This is not a 4-Bit-DIB!"});
}
