// The interlaced row order, counted from the image's own first row.
#include "interlace.h"

namespace ts::gif {

void interlaceRowMap(std::uint32_t* map, std::uint32_t height) {
    static constexpr std::uint32_t kStart[4] = {0, 4, 2, 1};
    static constexpr std::uint32_t kStep[4] = {8, 8, 4, 2};
    std::uint32_t line = 0;
    for (int pass = 0; pass < 4; ++pass) {
        for (std::uint64_t row = kStart[pass]; row < height; row += kStep[pass]) map[row] = line++;
    }
}

}  // namespace ts::gif
