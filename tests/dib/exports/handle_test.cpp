// The bitmap handle through the exports: accessors, the locked-header look-ups,
// palettes, copies, conversions and reductions; results are caller-owned movable blocks.
#include <gtest/gtest.h>

#include "bitmap_handles.h"
#include "tessarin.h"

using dibt::boxTexts;
using DibHandle = dibt::Handle;
using Texts = std::vector<std::string>;

TEST(DibExports, AccessorsReadAndWriteTheHeader) {
    DibHandle dib(dibt::makeHandle(7, -3, 24));
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
    DibHandle dib(dibt::makeHandle(4, 4, 16));
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
    DibHandle dib(dibt::makeHandle(2, 2, 24));
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
    DibHandle dib(dibt::makeHandle(2, 2, 8, {{1, 2, 3, 0}, {40, 50, 60, 0}}));
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
    DibHandle dib(dibt::makeHandle(3, 2, 8, {{9, 9, 9, 0}}, {0, 0, 0, 0, 0, 0, 0, 0}));
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
    DibHandle one(dibt::makeHandle(9, 2, 1, {{0, 0, 0, 0}, {255, 255, 255, 0}}, rows));
    DibHandle wide(dib1To24(one.get()));
    ASSERT_TRUE(wide);
    DibHandle back(dib24To1(wide.get()));
    ASSERT_TRUE(back);
    EXPECT_EQ(back.bytes()[48], 0x80);
    DibHandle sixteen(dib24To4(wide.get()));
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
