// The internal bitmap operations the DLL does not export: their refusals and results
// through global-memory handles.
#include <gtest/gtest.h>

#include "dib/win32/dib_handles.h"
#include "dib/win32/dib_internal.h"
#include "tessarin.h"

using tst::boxTexts;
using tst::DibHandle;
using Texts = std::vector<std::string>;

TEST(DibInternal, NullHandlesShowTheirOwnBox) {
    EXPECT_EQ(boxTexts([] { EXPECT_FALSE(dib1To8(nullptr)); }), Texts{"dib1To8: No DIB passed!"});
    EXPECT_EQ(boxTexts([] { EXPECT_FALSE(_DIB24To1(nullptr)); }), Texts{"_DIB24To1: No DIB passed!"});
    EXPECT_EQ(boxTexts([] { EXPECT_FALSE(_DIB24To4(nullptr)); }), Texts{"_DIB24To4: No DIB passed!"});
}

TEST(DibInternal, OneToEightAndTheFixedReductionsThroughHandles) {
    std::vector<uint8_t> rows(8 * 2);
    rows[0] = 0x80;  // bottom-left pixel white
    DibHandle one(tst::makeHandle(9, 2, 1, {{0, 0, 0, 0}, {255, 255, 255, 0}}, rows));
    DibHandle eight(dib1To8(one.get()));
    ASSERT_TRUE(eight);
    EXPECT_EQ(eight.header().biBitCount, 8);
    EXPECT_EQ(eight.bytes()[40 + 1024], 1);
    DibHandle wide(dib1To24(one.get()));
    ASSERT_TRUE(wide);
    DibHandle back(_DIB24To1(wide.get()));
    ASSERT_TRUE(back);
    EXPECT_EQ(back.bytes()[48], 0x80);
    DibHandle sixteen(_DIB24To4(wide.get()));
    ASSERT_TRUE(sixteen);
    EXPECT_EQ(sixteen.bytes()[104] >> 4, 15);
}
