// BMP files through the Windows file calls: dibWrite and the internal reader.
#include <gtest/gtest.h>

#include <cstdio>
#include <fstream>
#include <iterator>

#include "dib/win32/dib_handles.h"
#include "dib/win32/dib_internal.h"
#include "tessarin.h"

using tst::boxTexts;
using tst::DibHandle;
using Texts = std::vector<std::string>;

namespace {

std::vector<uint8_t> fileBytes(const char* name) {
    std::ifstream in(name, std::ios::binary);
    return std::vector<uint8_t>(std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>());
}

void writeBytes(const char* name, const std::vector<uint8_t>& bytes) {
    std::ofstream out(name, std::ios::binary);
    out.write(reinterpret_cast<const char*>(bytes.data()), std::streamsize(bytes.size()));
}

}  // namespace

TEST(DibFiles, WriteCarriesTheWholeBlockAndReadsBack) {
    std::vector<uint8_t> rows(12 * 2);
    for (size_t i = 0; i < rows.size(); ++i) rows[i] = uint8_t(i * 7);
    DibHandle dib(tst::makeHandle(3, 2, 24, {}, rows));
    ASSERT_TRUE(dibWrite("dib_write_test.bmp", dib.get()));
    std::vector<uint8_t> file = fileBytes("dib_write_test.bmp");
    std::vector<uint8_t> block = dib.bytes();
    ASSERT_EQ(file.size(), 14 + block.size());
    EXPECT_EQ(file[0], 'B');
    EXPECT_EQ(file[1], 'M');
    EXPECT_EQ(ts::dib::le32(file.data() + 2), 14 + block.size());
    EXPECT_EQ(ts::dib::le32(file.data() + 10), 54u);
    EXPECT_TRUE(std::equal(block.begin(), block.end(), file.begin() + 14));
    EXPECT_TRUE(dibIsBMPFile("dib_write_test.bmp"));
    DibHandle read(dibRead("dib_write_test.bmp"));
    ASSERT_TRUE(read);
    EXPECT_EQ(read.bytes(), block);
    std::remove("dib_write_test.bmp");
}

TEST(DibFiles, ReaderMessagesIncludingTheSecondBox) {
    EXPECT_EQ(boxTexts([] { EXPECT_EQ(dibRead(nullptr), nullptr); }), Texts{"dibRead: File name not found!"});
    EXPECT_EQ(boxTexts([] { EXPECT_EQ(dibRead("no_such_file.bmp"), nullptr); }),
              Texts{"dibRead: Error while reading file!"});
    writeBytes("dib_bad_test.bmp", std::vector<uint8_t>(60, 'X'));
    EXPECT_EQ(boxTexts([] { EXPECT_EQ(dibRead("dib_bad_test.bmp"), nullptr); }),
              (Texts{"dibReadInfo: Not a valid BMP file!", "dibRead: Error while reading file!"}));
    EXPECT_FALSE(dibIsBMPFile("dib_bad_test.bmp"));
    EXPECT_FALSE(dibIsBMPFile("no_such_file.bmp"));
    EXPECT_FALSE(dibIsBMPFile(nullptr));
    std::remove("dib_bad_test.bmp");
    EXPECT_EQ(boxTexts([] { EXPECT_EQ(dibReadInfo(HFILE_ERROR), nullptr); }),
              Texts{"dibReadInfo: No valid file handle!"});
}

TEST(DibFiles, ReadInfoLeavesTheFileAtThePixels) {
    std::vector<uint8_t> rows = {1, 2, 3, 0};
    DibHandle dib(tst::makeHandle(1, 1, 24, {}, rows));
    ASSERT_TRUE(dibWrite("dib_info_test.bmp", dib.get()));
    OFSTRUCT info{};
    HFILE file = OpenFile("dib_info_test.bmp", &info, OF_READ);
    ASSERT_NE(file, HFILE_ERROR);
    DibHandle head(dibReadInfo(file));
    ASSERT_TRUE(head);
    EXPECT_EQ(GlobalSize(head.get()), 40u);
    uint8_t pixel[3] = {};
    EXPECT_EQ(_lread(file, pixel, 3), 3u);
    EXPECT_EQ(pixel[2], 3);
    _lclose(file);
    std::remove("dib_info_test.bmp");
}

// Every text of the internal BMP reader, shown by dibRead on a file through the real
// file calls and message box. "dibRead: Not enough memory for DIB!" needs a block no
// machine gives; BmpReader.InvalidFileHandleAndMemoryFailures (dib_core_test) has it.
TEST(DibReader, MessageTable) {
    auto file = [](const std::vector<uint8_t>& afterFileHeader) {
        std::vector<uint8_t> f = {'B', 'M', 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0};
        f.insert(f.end(), afterFileHeader.begin(), afterFileHeader.end());
        return f;
    };
    auto header = [](uint32_t size, uint32_t clrUsed) {
        std::vector<uint8_t> h(40);
        ts::dib::InfoHeader info = ts::dib::newHeader(1, 1, 24);
        info.biSize = size;
        info.biClrUsed = clrUsed;
        ts::dib::writeHeader(h.data(), info);
        return h;
    };
    const std::string again = "dibRead: Error while reading file!";
    struct Row {
        std::vector<uint8_t> bytes;
        Texts texts;
    } rows[] = {
        {{'B', 'M', 0}, {"dibReadInfo: Error while reading BMP header!", again}},
        {std::vector<uint8_t>(60, 'X'), {"dibReadInfo: Not a valid BMP file!", again}},
        {file({40, 0, 0}), {"dibReadInfo: Error while reading DIB info block!", again}},
        {file(header(108, 0)), {"dibReadInfo: Unkown DIB format!", again}},
        {file(header(40, 0x40000000)), {"dibReadInfo: Not enough memory for DIB!", again}},
    };
    for (const Row& row : rows) {
        writeBytes("dib_table_test.bmp", row.bytes);
        tst::MessageBoxCapture capture(IDOK);
        EXPECT_EQ(dibRead("dib_table_test.bmp"), nullptr);
        Texts texts;
        for (const tst::CapturedBox& box : capture.boxes()) {
            texts.push_back(box.text);
            EXPECT_EQ(box.title, "Tessarin Error Message");
            EXPECT_EQ(box.style, 0x10000u);
            EXPECT_EQ(box.owner, nullptr);
        }
        EXPECT_EQ(texts, row.texts);
    }
    std::remove("dib_table_test.bmp");
    EXPECT_EQ(boxTexts([] { EXPECT_EQ(dibRead(nullptr), nullptr); }), Texts{"dibRead: File name not found!"});
    EXPECT_EQ(boxTexts([] { EXPECT_EQ(dibRead("no_such_file.bmp"), nullptr); }), Texts{again});
    EXPECT_EQ(boxTexts([] { EXPECT_EQ(dibReadInfo(HFILE_ERROR), nullptr); }),
              Texts{"dibReadInfo: No valid file handle!"});
}
