// ImageMagick as the peer of the BMP conformance tests: making files, decoding them.
#include "support/imagemagick.h"

#include <stdio.h>
#include <stdlib.h>
#include <sys/wait.h>

#include <cctype>
#include <filesystem>
#include <fstream>
#include <iterator>

namespace tst {
namespace {

// The next number of a PPM header, skipping blanks and comments.
size_t ppmNumber(const std::vector<uint8_t>& b, size_t& pos) {
    while (pos < b.size() && (std::isspace(b[pos]) || b[pos] == '#')) {
        if (b[pos] == '#')
            while (pos < b.size() && b[pos] != '\n') ++pos;
        else
            ++pos;
    }
    size_t value = 0;
    while (pos < b.size() && std::isdigit(b[pos])) value = value * 10 + (b[pos++] - '0');
    return value;
}

}  // namespace

int runCommand(const std::string& command, std::vector<uint8_t>* out) {
    FILE* pipe = popen(command.c_str(), "r");
    if (!pipe) return -1;
    char buffer[65536];
    size_t n;
    while ((n = fread(buffer, 1, sizeof buffer, pipe)) > 0)
        if (out) out->insert(out->end(), buffer, buffer + n);
    int status = pclose(pipe);
    return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
}

bool imageMagickAvailable() {
    std::vector<uint8_t> out;
    runCommand("convert -version 2>/dev/null", &out);
    return std::string(out.begin(), out.end()).find("ImageMagick") != std::string::npos;
}

Picture decodeWithImageMagick(const std::string& path) {
    std::vector<uint8_t> b;
    Picture p;
    if (runCommand("convert '" + path + "' -depth 8 ppm:- 2>/dev/null", &b) != 0 || b.size() < 2 || b[0] != 'P' ||
        b[1] != '6')
        return p;
    size_t pos = 2;
    size_t w = ppmNumber(b, pos), h = ppmNumber(b, pos), max = ppmNumber(b, pos);
    ++pos;  // the single blank after the maximum
    if (max != 255 || b.size() < pos + 3 * w * h) return p;
    p.width = int(w);
    p.height = int(h);
    p.rgb.assign(b.begin() + long(pos), b.begin() + long(pos + 3 * w * h));
    return p;
}

std::vector<uint8_t> toPpm(const Picture& picture) {
    std::string head = "P6\n" + std::to_string(picture.width) + " " + std::to_string(picture.height) + "\n255\n";
    std::vector<uint8_t> out(head.begin(), head.end());
    out.insert(out.end(), picture.rgb.begin(), picture.rgb.end());
    return out;
}

std::vector<uint8_t> readFile(const std::string& path) {
    std::ifstream in(path, std::ios::binary);
    return std::vector<uint8_t>(std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>());
}

void writeFile(const std::string& path, const std::vector<uint8_t>& bytes) {
    std::ofstream out(path, std::ios::binary);
    out.write(reinterpret_cast<const char*>(bytes.data()), std::streamsize(bytes.size()));
}

TempDir::TempDir() {
    std::string pattern = (std::filesystem::temp_directory_path() / "tessarin-dib-XXXXXX").string();
    char* made = mkdtemp(pattern.data());
    if (made) path_ = made;  // else file() names paths that cannot be written
}

TempDir::~TempDir() {
    std::error_code ignored;
    if (!path_.empty()) std::filesystem::remove_all(path_, ignored);
}

}  // namespace tst
