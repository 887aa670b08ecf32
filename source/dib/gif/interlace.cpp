// The interlaced row order, counted from the image's own first row.
#include "interlace.h"

namespace ts::gif {

namespace {

// Calls visit(row, line) for every row in stream order.
template <typename Visit>
void forEachStreamLine(std::uint32_t height, Visit visit) {
    static constexpr std::uint32_t kStart[4] = {0, 4, 2, 1};
    static constexpr std::uint32_t kStep[4] = {8, 8, 4, 2};
    std::uint32_t line = 0;
    for (int pass = 0; pass < 4; ++pass) {
        for (std::uint64_t row = kStart[pass]; row < height; row += kStep[pass])
            visit(static_cast<std::uint32_t>(row), line++);
    }
}

}  // namespace

void interlaceRowMap(std::uint32_t* map, std::uint32_t height) {
    forEachStreamLine(height, [map](std::uint32_t row, std::uint32_t line) { map[row] = line; });
}

void interlaceRowOrder(std::uint32_t* order, std::uint32_t height) {
    forEachStreamLine(height, [order](std::uint32_t row, std::uint32_t line) { order[line] = row; });
}

}  // namespace ts::gif
