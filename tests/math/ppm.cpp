// Binary PPM reading and writing.
#include "math/ppm.h"

#include <cstdio>
#include <memory>

namespace tst {

namespace {

struct FileCloser {
    void operator()(std::FILE* f) const { std::fclose(f); }
};
using File = std::unique_ptr<std::FILE, FileCloser>;

}  // namespace

bool readPpm(const std::string& path, Image& image) {
    File f(std::fopen(path.c_str(), "rb"));
    if (!f) return false;
    int maxValue = 0;
    if (std::fscanf(f.get(), "P6 %d %d %d", &image.width, &image.height, &maxValue) != 3)
        return false;
    if (maxValue != 255 || image.width <= 0 || image.height <= 0 || image.width > 4096 ||
        image.height > 4096 || std::fgetc(f.get()) == EOF)
        return false;
    image.rgb.resize(static_cast<size_t>(image.width) * image.height * 3);
    return std::fread(image.rgb.data(), 1, image.rgb.size(), f.get()) == image.rgb.size();
}

bool writePpm(const std::string& path, const Image& image) {
    File f(std::fopen(path.c_str(), "wb"));
    if (!f) return false;
    std::fprintf(f.get(), "P6\n%d %d\n255\n", image.width, image.height);
    return std::fwrite(image.rgb.data(), 1, image.rgb.size(), f.get()) == image.rgb.size();
}

}  // namespace tst
