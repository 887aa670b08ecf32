// What the codec does when a block cannot be had: the message, what is returned, and
// that every block it took is given back.
#include <gtest/gtest.h>

#include <memory>

#include "gif_core_support.h"

using namespace gift;
namespace text = ts::gif::text;

namespace {

Bytes interlacedGif() {
    return GifBuilder().header().screen(4, 4, 3).image(0, 0, 4, 4, 0x40)
        .pixels(4, std::vector<std::uint8_t>(16, 3)).trailer().bytes;
}

Dib decodeWithFailure(int failAt, tst::MemoryHost& host, int& outstanding) {
    host.failAt = failAt;
    Dib dib = decode(interlacedGif(), host);
    outstanding = int(host.liveBlocks());
    return dib;
}

Bytes encodeWithFailure(int failAt, bool interlace, tst::MemoryHost& host, bool& ok,
                        int& outstanding) {
    Dib dib = makeDib(5, 5, 4, std::vector<std::uint8_t>(25, 1), palette(16));
    auto tables = std::make_unique<ts::gif::GifTables>();
    host.failAt = failAt;
    ts::dib::MemorySink sink;
    ok = ts::gif::encodeGif(ts::dib::Source{dib.block.data(), dib.block.size()}, 89, interlace, *tables, host,
                            sink);
    outstanding = int(host.liveBlocks());
    return sink.bytes;
}

}  // namespace

TEST(GifMemory, NoBitmapBlockGivesNothing) {
    tst::MemoryHost host;
    int outstanding = -1;
    EXPECT_TRUE(decodeWithFailure(1, host, outstanding).block.empty());
    EXPECT_EQ(host.messages, std::vector<std::string>{text::kNoMemoryDib});
    EXPECT_EQ(outstanding, 0);
}

TEST(GifMemory, LaterBlocksFailWithTheirMessageAndTheBitmapComesBack) {
    // Request 2 is the decoding buffer, 3 the interlace row map; 0 fails nothing.
    const std::pair<int, const char*> cases[] = {
        {2, text::kNoMemoryBitmap}, {3, text::kNoMemoryRowMap}, {0, nullptr}};
    for (auto [failAt, message] : cases) {
        tst::MemoryHost host;
        int outstanding = -1;
        Dib dib = decodeWithFailure(failAt, host, outstanding);
        ASSERT_FALSE(dib.block.empty()) << failAt;
        if (message != nullptr) EXPECT_EQ(host.messages, std::vector<std::string>{message});
        else EXPECT_TRUE(host.messages.empty());
        EXPECT_EQ(dib.index(3, 3), message != nullptr ? 0u : 3u);
        EXPECT_EQ(outstanding, 0) << "every working block is given back";
    }
}

TEST(GifMemory, HugeScreenIsRefusedAsNoMemory) {
    Bytes file = GifBuilder().header().screen(65535, 65535, 7).trailer().bytes;
    tst::MemoryHost host;
    host.limit = 64u << 20;
    EXPECT_TRUE(decode(file, host).block.empty());
    EXPECT_EQ(host.messages, std::vector<std::string>{text::kNoMemoryDib});
}

TEST(GifMemory, EncoderMessagesForEachBlock) {
    struct Case {
        int failAt;
        bool interlace;
        const char* message;
    } cases[] = {{1, false, text::kNoMemoryBitmap}, {2, true, text::kNoMemoryRowMap},
                 {2, false, text::kNoMemoryPrefix}, {3, true, text::kNoMemoryPrefix}};
    for (const Case& c : cases) {
        tst::MemoryHost host;
        bool ok = true;
        int outstanding = -1;
        Bytes written = encodeWithFailure(c.failAt, c.interlace, host, ok, outstanding);
        EXPECT_FALSE(ok);
        EXPECT_EQ(host.messages, std::vector<std::string>{c.message});
        EXPECT_EQ(outstanding, 0);
        // What was written before the failure stays: up to the image descriptor at least.
        ASSERT_GE(written.size(), 13u + 48u + 10u);
        EXPECT_EQ(written[13 + 48], ',');
        EXPECT_NE(written.back(), ';');
    }
}
