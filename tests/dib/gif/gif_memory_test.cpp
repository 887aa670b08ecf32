// What the codec does when a block cannot be had: the message, what is returned, and
// that every block it took is given back.
#include <gtest/gtest.h>

#include <memory>

#include "gif_test_support.h"

using namespace gift;
namespace text = ts::gif::text;

namespace {

Bytes interlacedGif() {
    return GifBuilder().header().screen(4, 4, 3).image(0, 0, 4, 4, 0x40)
        .pixels(4, std::vector<std::uint8_t>(16, 3)).trailer().bytes;
}

Dib decodeWithFailure(int failAt, RecordingReporter& reporter, int& outstanding) {
    FailingMemory memory(failAt);
    Dib dib = decode(interlacedGif(), reporter, memory);
    outstanding = memory.outstanding();
    return dib;
}

Bytes encodeWithFailure(int failAt, bool interlace, RecordingReporter& reporter, bool& ok,
                        int& outstanding) {
    Dib dib = makeDib(5, 5, 4, std::vector<std::uint8_t>(25, 1), palette(16));
    auto module = std::make_unique<ts::gif::GifModule>();
    FailingMemory memory(failAt);
    ts::gif::ByteSink sink;
    ok = ts::gif::encodeGif(dib.block.data(), dib.block.size(), 89, interlace, *module, memory,
                            sink, reporter);
    outstanding = memory.outstanding();
    return Bytes(sink.data(), sink.data() + sink.size());
}

}  // namespace

TEST(GifMemory, NoBitmapBlockGivesNothing) {
    RecordingReporter reporter;
    int outstanding = -1;
    EXPECT_TRUE(decodeWithFailure(1, reporter, outstanding).block.empty());
    EXPECT_EQ(reporter.errors, std::vector<std::string>{text::kNoMemoryDib});
    EXPECT_EQ(outstanding, 0);
}

TEST(GifMemory, LaterBlocksFailWithTheirMessageAndTheBitmapComesBack) {
    // Request 2 is the decoding buffer, 3 the interlace row map; 0 fails nothing.
    const std::pair<int, const char*> cases[] = {
        {2, text::kNoMemoryBitmap}, {3, text::kNoMemoryRowMap}, {0, nullptr}};
    for (auto [failAt, message] : cases) {
        RecordingReporter reporter;
        int outstanding = -1;
        Dib dib = decodeWithFailure(failAt, reporter, outstanding);
        ASSERT_FALSE(dib.block.empty()) << failAt;
        if (message != nullptr) EXPECT_EQ(reporter.errors, std::vector<std::string>{message});
        else EXPECT_TRUE(reporter.errors.empty());
        EXPECT_EQ(dib.index(3, 3), message != nullptr ? 0u : 3u);
        EXPECT_EQ(outstanding, 0) << "every working block is given back";
    }
}

TEST(GifMemory, HugeScreenIsRefusedAsNoMemory) {
    Bytes file = GifBuilder().header().screen(65535, 65535, 7).trailer().bytes;
    ts::gif::HeapMemory memory(64u << 20);
    RecordingReporter reporter;
    EXPECT_TRUE(decode(file, reporter, memory).block.empty());
    EXPECT_EQ(reporter.errors, std::vector<std::string>{text::kNoMemoryDib});
}

TEST(GifMemory, EncoderMessagesForEachBlock) {
    struct Case {
        int failAt;
        bool interlace;
        const char* message;
    } cases[] = {{1, false, text::kNoMemoryBitmap}, {2, true, text::kNoMemoryRowMap},
                 {2, false, text::kNoMemoryPrefix}, {3, true, text::kNoMemoryPrefix}};
    for (const Case& c : cases) {
        RecordingReporter reporter;
        bool ok = true;
        int outstanding = -1;
        Bytes written = encodeWithFailure(c.failAt, c.interlace, reporter, ok, outstanding);
        EXPECT_FALSE(ok);
        EXPECT_EQ(reporter.errors, std::vector<std::string>{c.message});
        EXPECT_EQ(outstanding, 0);
        // What was written before the failure stays: up to the image descriptor at least.
        ASSERT_GE(written.size(), 13u + 48u + 10u);
        EXPECT_EQ(written[13 + 48], ',');
        EXPECT_NE(written.back(), ';');
    }
}
