// Bitmap handles for the black-box tests of the dib exports: packed bitmaps built
// from the platform's own structures, movable global blocks owned by the test, and a
// block that ends where mapped memory ends.
#pragma once

#include <windows.h>

#include <cstdint>
#include <functional>
#include <string>
#include <vector>

namespace dibt {

using Bytes = std::vector<uint8_t>;

// A movable global block owned by the test, freed at the end of the scope.
class Handle {
public:
    explicit Handle(HGLOBAL h = nullptr) : h_(h) {}
    ~Handle() {
        if (h_) GlobalFree(h_);
    }
    Handle(Handle&& other) noexcept : h_(other.h_) { other.h_ = nullptr; }
    Handle(const Handle&) = delete;
    Handle& operator=(const Handle&) = delete;
    HGLOBAL get() const { return h_; }
    explicit operator bool() const { return h_ != nullptr; }
    // The whole block as the platform sizes it.
    Bytes bytes() const;
    BITMAPINFOHEADER header() const;
    // The pixel rows, found by the library's own bits look-up.
    Bytes pixels() const;

private:
    HGLOBAL h_;
};

// Bytes per row, padded to 4 bytes.
inline uint32_t strideOf(int32_t width, int bits) { return uint32_t((width * bits + 31) / 32 * 4); }

// A 40-byte header as the library writes them: one plane, 2953 pixels a metre,
// biSizeImage of the uncompressed rows.
BITMAPINFOHEADER infoHeader(int32_t width, int32_t height, uint16_t bits, uint32_t clrUsed = 0,
                            uint32_t compression = BI_RGB);

// Header, then `extra` (colour table, masks), then the pixel bytes.
Bytes packed(const BITMAPINFOHEADER& h, const Bytes& extra, const Bytes& pixels);

// `count` table entries: entry i = blue i, green 2i, red 3i (mod 256).
Bytes rampTable(uint32_t count);

// A new movable, zeroed block holding the bytes; the caller owns it.
HGLOBAL toHandle(const Bytes& bytes);

// A movable block that holds `bytes` and ends on a page boundary behind which no memory
// is mapped, so that a read past its end faults. The bytes are extended to the needed
// size by `fill(bytes, size)`, which must produce exactly `size` bytes. Null when the
// platform does not place large blocks that way.
HGLOBAL handleEndingAtUnmappedMemory(Bytes bytes, size_t atLeast, void (*fill)(Bytes&, size_t));

// A bitmap of the given size and depth with `table` entries (biClrUsed = their count)
// and rows from `pixels` (bottom row first, already padded, zero past their end).
HGLOBAL makeHandle(int32_t width, int32_t height, uint16_t bits, const std::vector<RGBQUAD>& table = {},
                   const Bytes& pixels = {});

// The texts of the message boxes the call showed, every box answered with OK.
std::vector<std::string> boxTexts(const std::function<void()>& call);

// A path in the temporary folder, unique to this process.
std::string tempPath(const std::string& name);
void writeFile(const std::string& path, const Bytes& bytes);
Bytes readFile(const std::string& path);

}  // namespace dibt
