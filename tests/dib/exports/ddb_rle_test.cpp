// dibDIBToDDB, dibDraw and dibStretch of run-length-encoded bitmaps: GDI decodes the
// runs, and must stop at the end of the caller's block whatever biSizeImage claims, whether the runs end early
// (an end-of-bitmap code, then other bytes) or late (no end code before the block ends).
#include <gtest/gtest.h>

#include "bitmap_handles.h"
#include "support/child_process.h"
#include "tessarin.h"

using dibt::Bytes;

namespace {

constexpr int kSide = 16;
constexpr uint32_t kClaimed = 64u << 20;  // biSizeImage far beyond any block here

// Entry 0 black, 1 red, 2 green, 3 blue.
const Bytes kTable = {0, 0, 0, 0, 0, 0, 255, 0, 0, 255, 0, 0, 255, 0, 0, 0};

// Bottom row: four red pixels; the row above: green, blue, green in absolute mode.
Bytes runs(bool four) {
    if (four) return {4, 0x11, 0, 0, 0, 3, 0x23, 0x20, 0, 0};
    return {4, 1, 0, 0, 0, 3, 2, 3, 2, 0, 0, 0};
}

// Moves of 0 columns and 0 rows up to the block's end: the runs never end.
void lateEnd(Bytes& b, size_t size) {
    while (size - b.size() >= 4) b.insert(b.end(), {0, 2, 0, 0});
    if (size - b.size() == 2) b.insert(b.end(), {0, 0});
}

// The end of the bitmap, then runs of blue that must never be drawn.
void earlyEnd(Bytes& b, size_t size) {
    b.insert(b.end(), {0, 1});
    while (size - b.size() >= 2) b.insert(b.end(), {16, 0x33});
}

HGLOBAL rleHandle(bool four, void (*fill)(Bytes&, size_t)) {
    BITMAPINFOHEADER h = dibt::infoHeader(kSide, kSide, four ? 4 : 8, 4, four ? BI_RLE4 : BI_RLE8);
    h.biSizeImage = kClaimed;
    return dibt::handleEndingAtUnmappedMemory(dibt::packed(h, kTable, runs(four)), 0, fill);
}

// The device bitmap's pixel at x, y from the top left.
COLORREF pixel(HDC memory, int x, int y) { return GetPixel(memory, x, y); }

void expectPicture(HBITMAP ddb, const char* what) {
    HDC memory = CreateCompatibleDC(nullptr);
    HGDIOBJ old = SelectObject(memory, ddb);
    const int bottom = kSide - 1;
    for (int x = 0; x < 4; ++x) EXPECT_EQ(pixel(memory, x, bottom), RGB(255, 0, 0)) << what << " x " << x;
    EXPECT_EQ(pixel(memory, 4, bottom), RGB(0, 0, 0)) << what;
    EXPECT_EQ(pixel(memory, 0, bottom - 1), RGB(0, 255, 0)) << what;
    EXPECT_EQ(pixel(memory, 1, bottom - 1), RGB(0, 0, 255)) << what;
    EXPECT_EQ(pixel(memory, 2, bottom - 1), RGB(0, 255, 0)) << what;
    for (int y = 0; y < bottom - 1; ++y)
        for (int x = 0; x < kSide; ++x) ASSERT_EQ(pixel(memory, x, y), RGB(0, 0, 0)) << what << " " << x << "," << y;
    SelectObject(memory, old);
    DeleteDC(memory);
}

// The bitmap drawn by dibDraw (or dibStretch at its own size) into a fresh device bitmap.
HBITMAP drawn(HGLOBAL dib, bool stretch) {
    HDC screen = GetDC(nullptr);
    HBITMAP target = CreateCompatibleBitmap(screen, kSide, kSide);
    HDC memory = CreateCompatibleDC(screen);
    HGDIOBJ old = SelectObject(memory, target);
    PatBlt(memory, 0, 0, kSide, kSide, BLACKNESS);
    BOOL ok = stretch ? dibStretch(memory, dib, nullptr, 0, 0, kSide, kSide) : dibDraw(memory, dib, nullptr, 0, 0);
    EXPECT_TRUE(ok);
    SelectObject(memory, old);
    DeleteDC(memory);
    ReleaseDC(nullptr, screen);
    return target;
}

}  // namespace

// Runs in a child: before the library bounded the stream, GDI read on into unmapped
// memory and the process died.
TST_SCENARIO(RunLengthBitmapsBecomeDeviceBitmaps) {
    struct Case {
        const char* name;
        bool four;
        void (*fill)(Bytes&, size_t);
    };
    const Case cases[] = {{"RLE8, late end", false, lateEnd},
                          {"RLE8, early end", false, earlyEnd},
                          {"RLE4, late end", true, lateEnd},
                          {"RLE4, early end", true, earlyEnd}};
    for (const Case& c : cases) {
        dibt::Handle dib(rleHandle(c.four, c.fill));
        ASSERT_TRUE(dib) << "no block ending at unmapped memory could be made";
        HBITMAP ddb = dibDIBToDDB(dib.get(), nullptr);
        ASSERT_NE(ddb, nullptr) << c.name;
        expectPicture(ddb, c.name);
        DeleteObject(ddb);
        for (bool stretch : {false, true}) {
            HBITMAP target = drawn(dib.get(), stretch);
            expectPicture(target, stretch ? "dibStretch" : "dibDraw");
            DeleteObject(target);
        }
    }
}

TEST(DibToDdb, RunLengthBitmapsStayInsideTheirBlock) {
    tst::ChildResult child = tst::runScenario("RunLengthBitmapsBecomeDeviceBitmaps", IDOK, 60000);
    EXPECT_EQ(child.exitCode, 0u) << child.output;
    EXPECT_TRUE(child.boxes.empty());
}
