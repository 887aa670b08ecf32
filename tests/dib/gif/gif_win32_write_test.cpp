// dibWriteGIF under Windows: what it writes, the conversions in front of the encoder,
// its messages, and GIF calls from several threads at once.
#include <gtest/gtest.h>

#include <windows.h>

#include <string>
#include <thread>
#include <vector>

#include "gif_test_support.h"
#include "reference_encoder.h"
#include "tessarin.h"
#include "win32_test_helpers.h"

using namespace gift;

namespace {

// The file dibWriteGIF makes of a bitmap handle; empty when it returned 0.
Bytes writeThroughExport(HGLOBAL handle, int version, BOOL interlace, const std::string& name) {
    TempFile file(name);
    if (!dibWriteGIF(file.path.c_str(), handle, version, interlace)) return {};
    return readFile(file.path);
}

Dib trueColor(unsigned bits, std::uint32_t w, std::uint32_t h) {
    DibHeader header{40, static_cast<std::int32_t>(w), static_cast<std::int32_t>(h), 1,
                     static_cast<std::uint16_t>(bits), 0, 0, 2953, 2953, 0, 0};
    std::uint64_t stride = strideOf(w, bits);
    Dib dib;
    dib.block.assign(40 + stride * h, 0);
    storeHeader(dib.block.data(), header);
    for (std::size_t i = 40; i < dib.block.size(); ++i) dib.block[i] = static_cast<std::uint8_t>(i * 37 / 5);
    return dib;
}

}  // namespace

TEST(GifWriteExport, BitmapsOfOneFourAndEightBitsAreWrittenAsTheReferenceWritesThem) {
    for (unsigned bits : {1u, 4u, 8u})
        for (int version : {87, 89})
            for (BOOL interlace : {FALSE, TRUE}) {
                Dib dib = makeDib(23, 9, bits, pattern(23, 9, 1u << bits), palette(1u << bits));
                HGLOBAL handle = toHandle(dib.block);
                tst::MessageBoxCapture capture;
                Bytes file = writeThroughExport(handle, version, interlace, "plain.gif");
                EXPECT_EQ(file, referenceGif(dib, version, interlace != FALSE));
                EXPECT_EQ(capture.count(), 0u);
                EXPECT_EQ(takeHandle(handle).block, dib.block);  // the caller's bitmap is unchanged
            }
}

TEST(GifWriteExport, WrittenFilesReadBack) {
    for (unsigned bits : {1u, 4u, 8u}) {
        Dib dib = makeDib(31, 17, bits, pattern(31, 17, 1u << bits), palette(1u << bits));
        HGLOBAL handle = toHandle(dib.block);
        TempFile file("back.gif");
        ASSERT_TRUE(dibWriteGIF(file.path.c_str(), handle, 89, TRUE));
        GlobalFree(handle);
        Dib back = takeHandle(dibReadGIF(file.path.c_str()));
        ASSERT_EQ(back.bits(), bits);
        for (std::uint32_t y = 0; y < 17; ++y)
            for (std::uint32_t x = 0; x < 31; ++x) ASSERT_EQ(back.index(x, y), dib.index(x, y));
    }
}

TEST(GifWriteExport, TrueColourIsWrittenAsTheGrayBitmap) {
    for (unsigned bits : {16u, 24u, 32u}) {
        Dib dib = trueColor(bits, 13, 7);
        HGLOBAL handle = toHandle(dib.block);
        // What the conversions make of it: 16/32 bits to 24 first, then dibGray.
        HGLOBAL wide = bits == 24 ? nullptr : (bits == 16 ? dib16To24(handle) : dib32To24(handle));
        Dib gray = takeHandle(dibGray(wide != nullptr ? wide : handle));
        if (wide != nullptr) GlobalFree(wide);
        tst::MessageBoxCapture capture;
        Bytes file = writeThroughExport(handle, 89, FALSE, "gray.gif");
        EXPECT_EQ(capture.count(), 0u);
        EXPECT_EQ(file, referenceGif(gray, 89, false)) << bits;
        EXPECT_EQ(takeHandle(handle).block, dib.block);
    }
}

TEST(GifWriteExport, RunLengthBitmapsAreExpandedFirst) {
    // RLE8: a run of 5 of index 2, end of line, a run of 5 of index 3, end of bitmap.
    Dib dib = makeDib(5, 2, 8, std::vector<std::uint8_t>(10, 0), palette(256));
    DibHeader header = dib.header();
    header.compression = 1;
    const std::uint8_t stream[] = {5, 2, 0, 0, 5, 3, 0, 1};
    dib.block.resize(pixelOffset(header));
    dib.block.insert(dib.block.end(), stream, stream + sizeof stream);
    header.sizeImage = sizeof stream;
    storeHeader(dib.block.data(), header);
    HGLOBAL handle = toHandle(dib.block);
    Dib expanded = takeHandle(dibRLEtoDIB(handle));
    tst::MessageBoxCapture capture;
    Bytes file = writeThroughExport(handle, 87, FALSE, "rle.gif");
    EXPECT_EQ(capture.count(), 0u);
    EXPECT_EQ(file, referenceGif(expanded, 87, false));
    TempFile again("rle_back.gif");
    writeFile(again.path, file);
    Dib back = takeHandle(dibReadGIF(again.path.c_str()));
    EXPECT_EQ(back.index(4, 1), 2u);  // the bottom row came first in the stream
    EXPECT_EQ(back.index(0, 0), 3u);
    GlobalFree(handle);
}

TEST(GifWriteExport, NoBitmapIsRefused) {
    TempFile file("none.gif");
    tst::MessageBoxCapture capture;
    EXPECT_FALSE(dibWriteGIF(file.path.c_str(), nullptr, 89, FALSE));
    expectOneBox(capture, "Keine DIB vorhanden!");
    EXPECT_EQ(GetFileAttributesA(file.path.c_str()), INVALID_FILE_ATTRIBUTES);  // not created
}

TEST(GifWriteExport, UnknownVersionLeavesAnEmptyFile) {
    Dib dib = makeDib(2, 2, 8, pattern(2, 2, 256), palette(256));
    HGLOBAL handle = toHandle(dib.block);
    TempFile file("v88.gif");
    tst::MessageBoxCapture capture;
    EXPECT_FALSE(dibWriteGIF(file.path.c_str(), handle, 88, FALSE));
    expectOneBox(capture, "Unbekanntes GIF-Format!");
    EXPECT_TRUE(readFile(file.path).empty());
    GlobalFree(handle);
}

TEST(GifWriteExport, FileThatCannotBeCreatedFailsWithoutABox) {
    Dib dib = makeDib(2, 2, 8, pattern(2, 2, 256), palette(256));
    HGLOBAL handle = toHandle(dib.block);
    tst::MessageBoxCapture capture;
    EXPECT_FALSE(dibWriteGIF(tempPath("no_such_dir\\x.gif").c_str(), handle, 89, FALSE));
    EXPECT_EQ(capture.count(), 0u);
    GlobalFree(handle);
}

TEST(GifWriteExport, FailedConversionShowsItsMessage) {
    // A 16-bit bitmap with an OS/2 header size: dib16To24 refuses it with its own box.
    Dib dib = trueColor(16, 4, 4);
    dib.block[0] = 12;
    HGLOBAL handle = toHandle(dib.block);
    tst::MessageBoxCapture capture;
    EXPECT_TRUE(writeThroughExport(handle, 89, FALSE, "os2.gif").empty());
    auto boxes = capture.boxes();
    ASSERT_EQ(boxes.size(), 2u);
    EXPECT_EQ(boxes[0].text, "dib16To24: No support for OS/2-Bitmaps!");
    EXPECT_EQ(boxes[1].text, "Fehler in 16-Bit-DIB!");
    GlobalFree(handle);
}

TEST(GifWriteExport, CallsFromSeveralThreadsDoNotMixTheirTables) {
    std::vector<std::thread> threads;
    std::vector<int> failures(4, 0);
    for (int t = 0; t < 4; ++t)
        threads.emplace_back([t, &failures] {
            unsigned bits = t % 2 == 0 ? 8 : 4;
            Dib dib = makeDib(97, 41 + t, bits, pattern(97, 41 + t, 1u << bits), palette(1u << bits));
            HGLOBAL handle = toHandle(dib.block);
            TempFile file("thread" + std::to_string(t) + ".gif");
            for (int i = 0; i < 15; ++i) {
                if (!dibWriteGIF(file.path.c_str(), handle, 89, i % 2)) ++failures[t];
                Dib back = takeHandle(dibReadGIF(file.path.c_str()));
                if (back.block.empty() || back.index(96, 40 + t) != dib.index(96, 40 + t) ||
                    back.index(13, 7) != dib.index(13, 7))
                    ++failures[t];
            }
            GlobalFree(handle);
        });
    for (std::thread& thread : threads) thread.join();
    EXPECT_EQ(failures, std::vector<int>(4, 0));
}
