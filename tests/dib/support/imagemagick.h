// ImageMagick as the peer of the BMP conformance tests: making files, decoding them.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace tst {

// An RGB picture, top row first, 3 bytes a pixel.
struct Picture {
    int width = 0, height = 0;
    std::vector<uint8_t> rgb;
    const uint8_t* at(int x, int y) const { return rgb.data() + 3 * (size_t(y) * width + x); }
};

// Runs a shell command; its standard output goes to `out` when given. Returns the
// command's exit status.
int runCommand(const std::string& command, std::vector<uint8_t>* out = nullptr);

// True when `convert` is ImageMagick's.
bool imageMagickAvailable();

// ImageMagick's decoding of a file, 8 bits a channel; empty when it cannot read it.
Picture decodeWithImageMagick(const std::string& path);

// A binary PPM (P6) of the picture, for ImageMagick to convert.
std::vector<uint8_t> toPpm(const Picture& picture);

std::vector<uint8_t> readFile(const std::string& path);
void writeFile(const std::string& path, const std::vector<uint8_t>& bytes);

// A scratch directory removed with its files at the end of the scope.
class TempDir {
public:
    TempDir();
    ~TempDir();
    TempDir(const TempDir&) = delete;
    TempDir& operator=(const TempDir&) = delete;
    std::string file(const std::string& name) const { return path_ + "/" + name; }

private:
    std::string path_;
};

}  // namespace tst
