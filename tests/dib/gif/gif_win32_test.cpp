// The exported GIF functions under Windows: files, message boxes (texts, titles,
// styles, the version question), conversions in front of the encoder, threads.
#include <gtest/gtest.h>

#include <windows.h>

#include <string>
#include <vector>

#include "gif_test_support.h"
#include "tessarin.h"
#include "win32_test_helpers.h"

using namespace gift;

namespace {

Bytes smallGif(const char* signature = "GIF89a") {
    return GifBuilder().header(signature).screen(6, 4, 3).image(0, 0, 6, 4)
        .pixels(4, pattern(6, 4, 16)).trailer().bytes;
}

}  // namespace

TEST(GifExports, ModuleVersion) { EXPECT_EQ(dibGIFGetVersion(), 512); }

TEST(GifExports, IsGifFileLooksAtTheSignatureOnly) {
    TempFile good("good.gif"), other("other.gif"), tiny("tiny.gif");
    writeFile(good.path, {'G', 'I', 'F', '8', '7', 'a'});
    writeFile(other.path, smallGif("GIF88a"));
    writeFile(tiny.path, {'G', 'I', 'F'});
    tst::MessageBoxCapture capture;
    EXPECT_EQ(dibIsGIFFile(good.path.c_str()), 1);
    EXPECT_EQ(dibIsGIFFile(other.path.c_str()), 0);
    EXPECT_EQ(dibIsGIFFile(tiny.path.c_str()), 0);
    EXPECT_EQ(dibIsGIFFile(tempPath("missing.gif").c_str()), 0);
    EXPECT_EQ(dibIsGIFFile(nullptr), 0);
    EXPECT_EQ(capture.count(), 0u);
}

TEST(GifExports, ReadGivesTheBitmapInAnUnlockedHandle) {
    TempFile file("read.gif");
    writeFile(file.path, smallGif());
    tst::MessageBoxCapture capture;
    HGLOBAL handle = dibReadGIF(file.path.c_str());
    ASSERT_NE(handle, nullptr);
    EXPECT_EQ(GlobalFlags(handle) & GMEM_LOCKCOUNT, 0u);
    Dib got = takeHandle(handle);
    EXPECT_EQ(got.block.size(), 4u * 4 + 1064);  // rows, header and 256 table entries
    DibHeader h = got.header();
    EXPECT_EQ(h.width, 6);
    EXPECT_EQ(h.height, 4);
    EXPECT_EQ(h.bitCount, 4);
    EXPECT_EQ(h.clrUsed, 16u);
    EXPECT_EQ(h.clrImportant, 16u);
    EXPECT_EQ(h.xPelsPerMeter, 2953);
    for (unsigned i = 0; i < 16; ++i) EXPECT_EQ(got.color(i), testColor(i)) << i;
    std::vector<std::uint8_t> indices = pattern(6, 4, 16);
    for (std::uint32_t y = 0; y < 4; ++y)
        for (std::uint32_t x = 0; x < 6; ++x) EXPECT_EQ(got.index(x, y), indices[y * 6 + x]) << x << "," << y;
    EXPECT_EQ(capture.count(), 0u);
}

TEST(GifExports, MissingFileIsNoGifFile) {
    tst::MessageBoxCapture capture;
    EXPECT_EQ(dibReadGIF(tempPath("missing.gif").c_str()), nullptr);
    expectOneBox(capture, "Keine GIF-Datei!");
}

TEST(GifExports, UnknownVersionAsksAndCancelGivesNull) {
    TempFile file("v88.gif");
    writeFile(file.path, smallGif("GIF88a"));
    tst::MessageBoxCapture capture(IDCANCEL);
    EXPECT_EQ(dibReadGIF(file.path.c_str()), nullptr);
    auto boxes = capture.boxes();
    ASSERT_EQ(boxes.size(), 1u);
    EXPECT_EQ(boxes[0].text, "Unbekannte GIF-Version: 88a\n\rWeiter?");
    EXPECT_EQ(boxes[0].title, "CONV_GIFDLL");
    EXPECT_EQ(boxes[0].style, 0x2021u);  // OK and Cancel, question icon, task-modal
    EXPECT_EQ(boxes[0].owner, nullptr);
    EXPECT_EQ(boxes[0].pressed, IDCANCEL);
}

TEST(GifExports, UnknownVersionAnsweredOkReadsOn) {
    TempFile file("v88ok.gif");
    writeFile(file.path, smallGif("GIF88a"));
    tst::MessageBoxCapture capture(IDOK);
    Dib dib = takeHandle(dibReadGIF(file.path.c_str()));
    ASSERT_FALSE(dib.block.empty());
    EXPECT_EQ(dib.index(5, 3), pattern(6, 4, 16)[23]);
    EXPECT_EQ(capture.count(), 1u);
}

TEST(GifExports, UmlautsReachTheBoxAsWindows1252) {
    // The box shows what MessageBoxA makes of the bytes in the ANSI code page.
    ASSERT_EQ(GetACP(), 1252u);
    CodeStream codes(2);
    codes.clear().code(1).code(7).end();
    TempFile file("badcode.gif");
    writeFile(file.path, GifBuilder().header().screen(2, 1, 1).image(0, 0, 2, 1).codes(2, codes.list)
                             .trailer().bytes);
    tst::MessageBoxCapture capture;
    Dib dib = takeHandle(dibReadGIF(file.path.c_str()));
    EXPECT_FALSE(dib.block.empty());
    auto boxes = capture.boxes();
    ASSERT_GE(boxes.size(), 1u);
    EXPECT_EQ(boxes[0].text, "Ung\xFCltiger LZW-Code 7!");
    wchar_t wide[64] = {};
    MultiByteToWideChar(CP_ACP, 0, boxes[0].text.c_str(), -1, wide, 64);
    EXPECT_EQ(std::wstring(wide), L"Ung\u00FCltiger LZW-Code 7!");
}

TEST(GifExports, DamagedFileGivesThePartialPicture) {
    std::vector<std::uint8_t> pixels(16 * 16);
    for (std::size_t i = 0; i < pixels.size(); ++i) pixels[i] = static_cast<std::uint8_t>(1 + i / 16);
    Bytes gif = GifBuilder().header().screen(16, 16, 4).image(0, 0, 16, 16).pixels(8, pixels)
        .trailer().bytes;
    gif.resize(gif.size() - 150);
    TempFile file("cut.gif");
    writeFile(file.path, gif);
    tst::MessageBoxCapture capture;
    Dib dib = takeHandle(dibReadGIF(file.path.c_str()));
    ASSERT_FALSE(dib.block.empty());
    EXPECT_EQ(dib.index(7, 0), 1u);
    EXPECT_EQ(dib.index(7, 15), 0u);
    auto boxes = capture.boxes();
    ASSERT_FALSE(boxes.empty());
    EXPECT_EQ(boxes.back().text, "Fehler im LZW-Teil des GIF-Bildes!");
}
