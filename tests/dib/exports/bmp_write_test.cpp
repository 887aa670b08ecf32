// dibWrite: the file header it computes and the whole block behind it, and its refusals.
#include <gtest/gtest.h>

#include <cstdio>

#include "bitmap_handles.h"
#include "tessarin.h"

using dibt::boxTexts;
using DibHandle = dibt::Handle;
using Texts = std::vector<std::string>;

namespace {

uint32_t le32(const uint8_t* p) { return uint32_t(p[0] | p[1] << 8 | p[2] << 16 | uint32_t(p[3]) << 24); }

}  // namespace

TEST(DibFiles, BitFieldsGetSixAndLargerBlocksTheirTrailingBytes) {
    DibHandle dib(dibt::makeHandle(2, 2, 16));
    HGLOBAL grown = GlobalReAlloc(dib.get(), GlobalSize(dib.get()) + 20, GMEM_MOVEABLE | GMEM_ZEROINIT);
    ASSERT_EQ(grown, dib.get());
    auto* h = static_cast<BITMAPINFOHEADER*>(GlobalLock(dib.get()));
    h->biCompression = BI_BITFIELDS;
    GlobalUnlock(dib.get());
    ASSERT_TRUE(dibWrite("dib_fields_test.bmp", dib.get()));
    std::vector<uint8_t> file = dibt::readFile("dib_fields_test.bmp");
    EXPECT_EQ(le32(file.data() + 10), 60u);
    EXPECT_EQ(file.size(), 14 + GlobalSize(dib.get()));
    EXPECT_EQ(le32(file.data() + 2), file.size());
    std::remove("dib_fields_test.bmp");
}

TEST(DibFiles, WriterMessages) {
    DibHandle dib(dibt::makeHandle(1, 1, 24));
    EXPECT_EQ(boxTexts([&] { EXPECT_FALSE(dibWrite(nullptr, nullptr)); }), Texts{"dibWrite: No DIB passed!"});
    EXPECT_EQ(boxTexts([&] { EXPECT_FALSE(dibWrite(nullptr, dib.get())); }), Texts{"dibWrite: No file name found!"});
    EXPECT_EQ(boxTexts([&] { EXPECT_FALSE(dibWrite("no_such_dir\\x.bmp", dib.get())); }),
              Texts{"dibWrite: Error while creating file!"});
}

