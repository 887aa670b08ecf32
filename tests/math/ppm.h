// Binary PPM (P6) images for the golden pictures of the tests: simple enough to read
// and write here, and read by every image tool.
#pragma once

#include <string>
#include <vector>

namespace tst {

struct Image {
    int width = 0;
    int height = 0;
    std::vector<unsigned char> rgb;  // top-down rows of r, g, b
};

// False when the file cannot be opened or is not an 8-bit P6 image.
bool readPpm(const std::string& path, Image& image);
bool writePpm(const std::string& path, const Image& image);

}  // namespace tst
