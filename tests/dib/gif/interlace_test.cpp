// The interlaced row order shared by decoder and encoder.
#include <gtest/gtest.h>

#include <algorithm>
#include <vector>

#include "interlace.h"

TEST(Interlace, RowsOfEachPassInTurn) {
    std::vector<std::uint32_t> map(11);
    ts::gif::interlaceRowMap(map.data(), 11);
    // passes: rows 0, 8 | 4 | 2, 6, 10 | 1, 3, 5, 7, 9
    const std::vector<std::uint32_t> expected = {0, 6, 3, 7, 2, 8, 4, 9, 1, 10, 5};
    EXPECT_EQ(map, expected);
}

TEST(Interlace, EveryHeightIsAPermutation) {
    for (std::uint32_t height = 0; height < 70; ++height) {
        std::vector<std::uint32_t> map(height);
        ts::gif::interlaceRowMap(map.data(), height);
        std::vector<std::uint32_t> sorted = map;
        std::sort(sorted.begin(), sorted.end());
        for (std::uint32_t i = 0; i < height; ++i) ASSERT_EQ(sorted[i], i) << height;
    }
}
