// The layout arithmetic of the console helper: buffer raised to the window, the key of a
// console title, the packed halves.
#include <gtest/gtest.h>

#include "console_layout.h"

namespace {

ts::ConsoleLayout layout(int columns, int rows, int bufferColumns, int bufferRows) {
    ts::ConsoleLayout l;
    l.columns = columns;
    l.rows = rows;
    l.bufferColumns = bufferColumns;
    l.bufferRows = bufferRows;
    return l;
}

}  // namespace

TEST(ConsoleLayout, ABufferOfZeroTakesTheWindowSize) {
    const ts::ConsoleLayout l = ts::raisedToWindow(layout(80, 25, 0, 0));
    EXPECT_EQ(l.bufferColumns, 80);
    EXPECT_EQ(l.bufferRows, 25);
}

TEST(ConsoleLayout, ABufferSmallerThanTheWindowIsRaisedALargerOneStays) {
    const ts::ConsoleLayout l = ts::raisedToWindow(layout(80, 25, 40, 300));
    EXPECT_EQ(l.bufferColumns, 80);
    EXPECT_EQ(l.bufferRows, 300);
    const ts::ConsoleLayout n = ts::raisedToWindow(layout(80, 25, 120, 10));
    EXPECT_EQ(n.bufferColumns, 120);
    EXPECT_EQ(n.bufferRows, 25);
}

TEST(ConsoleLayout, TheKeyReplacesEveryBackslashOfTheTitle) {
    EXPECT_EQ(ts::consoleKeyName("C:\\Programs\\app.exe"), "CONSOLE\\C:_Programs_app.exe");
    EXPECT_EQ(ts::consoleKeyName("plain"), "CONSOLE\\plain");
    EXPECT_EQ(ts::consoleKeyName(""), "CONSOLE\\");
    EXPECT_EQ(ts::consoleKeyName(nullptr), "CONSOLE\\");
}

TEST(ConsoleLayout, HalvesPackTheSecondNumberHigh) {
    EXPECT_EQ(ts::packHalves(80, 25), 25u * 65536u + 80u);
    EXPECT_EQ(ts::packHalves(0, 0), 0u);
    EXPECT_EQ(ts::packHalves(65535, 65535), 0xFFFFFFFFu);
    // Negative positions wrap as the 32-bit sum y * 65536 + x does.
    EXPECT_EQ(ts::packHalves(-8, 0), 0xFFFFFFF8u);
    EXPECT_EQ(ts::packHalves(-8, 2), 2u * 65536u - 8u);
}
