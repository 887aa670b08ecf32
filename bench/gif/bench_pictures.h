// The pictures of the GIF benchmark: 2048 x 2048, 8 bits, as indices and as a packed
// bitmap.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace gifbench {

using Bytes = std::vector<std::uint8_t>;

struct Picture {
    std::string name;
    int width = 0, height = 0;
    Bytes indices;  // top row first
    Bytes palette;  // 256 triples r, g, b
    Bytes bitmap;   // the packed bitmap of the same picture
};

// Smooth shapes with a little noise: compresses about as well as a photo reduced to
// 256 colours.
Picture naturalPicture(int size);
// Flat shapes of a few colours, like a chart or a drawing: long strings.
Picture graphicPicture(int size);
// Every pixel independent: the string table fills and clears all the time.
Picture noisePicture(int size);

}  // namespace gifbench
