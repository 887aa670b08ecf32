// Bitmap handles for the black-box tests of the dib exports.
#include "bitmap_handles.h"

#include <cstdio>
#include <cstring>

#include "support/msgbox_capture.h"
#include "tessarin.h"

namespace dibt {
namespace {

constexpr SIZE_T kPage = 4096;
constexpr SIZE_T kLargeBlock = SIZE_T(1) << 20;  // large blocks get a region of their own

// Where a large movable block's bytes start within their first page.
SIZE_T largeBlockOffset() {
    HGLOBAL probe = GlobalAlloc(GMEM_MOVEABLE, kLargeBlock);
    SIZE_T offset = reinterpret_cast<UINT_PTR>(GlobalLock(probe)) % kPage;
    GlobalUnlock(probe);
    GlobalFree(probe);
    return offset;
}

}  // namespace

Bytes Handle::bytes() const {
    auto* p = static_cast<const uint8_t*>(GlobalLock(h_));
    if (!p) return {};
    Bytes out(p, p + GlobalSize(h_));
    GlobalUnlock(h_);
    return out;
}

BITMAPINFOHEADER Handle::header() const {
    BITMAPINFOHEADER h{};
    Bytes b = bytes();
    std::memcpy(&h, b.data(), b.size() < sizeof h ? b.size() : sizeof h);
    return h;
}

Bytes Handle::pixels() const {
    auto* p = static_cast<uint8_t*>(GlobalLock(h_));
    if (!p) return {};
    auto* bits = static_cast<uint8_t*>(dibGetBits(p));
    BITMAPINFOHEADER h = header();
    size_t rows = size_t(h.biHeight < 0 ? -h.biHeight : h.biHeight);
    size_t size = strideOf(h.biWidth, h.biBitCount) * rows;
    size_t available = GlobalSize(h_) - size_t(bits - p);
    Bytes out(bits, bits + (size < available ? size : available));
    GlobalUnlock(h_);
    return out;
}

BITMAPINFOHEADER infoHeader(int32_t width, int32_t height, uint16_t bits, uint32_t clrUsed, uint32_t compression) {
    BITMAPINFOHEADER h{};
    h.biSize = sizeof h;
    h.biWidth = width;
    h.biHeight = height;
    h.biPlanes = 1;
    h.biBitCount = bits;
    h.biCompression = compression;
    h.biSizeImage = strideOf(width, bits) * uint32_t(height < 0 ? -height : height);
    h.biXPelsPerMeter = h.biYPelsPerMeter = 2953;
    h.biClrUsed = clrUsed;
    return h;
}

Bytes packed(const BITMAPINFOHEADER& h, const Bytes& extra, const Bytes& pixels) {
    Bytes out(sizeof h);
    std::memcpy(out.data(), &h, sizeof h);
    out.insert(out.end(), extra.begin(), extra.end());
    out.insert(out.end(), pixels.begin(), pixels.end());
    return out;
}

Bytes rampTable(uint32_t count) {
    Bytes table;
    for (uint32_t i = 0; i < count; ++i) table.insert(table.end(), {uint8_t(i), uint8_t(2 * i), uint8_t(3 * i), 0});
    return table;
}

HGLOBAL makeHandle(int32_t width, int32_t height, uint16_t bits, const std::vector<RGBQUAD>& table,
                   const Bytes& pixels) {
    BITMAPINFOHEADER h = infoHeader(width, height, bits, uint32_t(table.size()));
    Bytes extra(4 * table.size());
    if (!table.empty()) std::memcpy(extra.data(), table.data(), extra.size());
    Bytes rows(h.biSizeImage);
    std::memcpy(rows.data(), pixels.data(), pixels.size() < rows.size() ? pixels.size() : rows.size());
    return toHandle(packed(h, extra, rows));
}

std::vector<std::string> boxTexts(const std::function<void()>& call) {
    tst::MessageBoxCapture capture(IDOK);
    call();
    std::vector<std::string> texts;
    for (const tst::CapturedBox& box : capture.boxes()) texts.push_back(box.text);
    return texts;
}

HGLOBAL toHandle(const Bytes& bytes) {
    HGLOBAL h = GlobalAlloc(GMEM_MOVEABLE | GMEM_ZEROINIT, bytes.size() ? bytes.size() : 1);
    if (!h) return nullptr;
    void* p = GlobalLock(h);
    if (!bytes.empty()) std::memcpy(p, bytes.data(), bytes.size());
    GlobalUnlock(h);
    return h;
}

HGLOBAL handleEndingAtUnmappedMemory(Bytes bytes, size_t atLeast, void (*fill)(Bytes&, size_t)) {
    SIZE_T offset = largeBlockOffset();
    SIZE_T want = atLeast < kLargeBlock ? kLargeBlock : atLeast;
    // A region is reserved in whole allocation units: a block that fills its region
    // to the last byte has unmapped address space behind it.
    SYSTEM_INFO system;
    GetSystemInfo(&system);
    SIZE_T unit = system.dwAllocationGranularity;
    SIZE_T size = (want + offset + unit - 1) / unit * unit - offset;
    fill(bytes, size);
    if (bytes.size() != size) return nullptr;
    HGLOBAL h = toHandle(bytes);
    auto* p = static_cast<const uint8_t*>(GlobalLock(h));
    const uint8_t* end = p + GlobalSize(h);
    bool fenced = GlobalSize(h) == size && reinterpret_cast<UINT_PTR>(end) % kPage == 0 && IsBadReadPtr(end, 1);
    GlobalUnlock(h);
    if (fenced) return h;
    GlobalFree(h);
    return nullptr;
}

std::string tempPath(const std::string& name) {
    char dir[MAX_PATH];
    GetTempPathA(MAX_PATH, dir);
    return std::string(dir) + "tsdib_" + std::to_string(GetCurrentProcessId()) + "_" + name;
}

void writeFile(const std::string& path, const Bytes& bytes) {
    FILE* f = std::fopen(path.c_str(), "wb");
    if (!f) return;
    if (!bytes.empty()) std::fwrite(bytes.data(), 1, bytes.size(), f);
    std::fclose(f);
}

Bytes readFile(const std::string& path) {
    Bytes out;
    FILE* f = std::fopen(path.c_str(), "rb");
    if (!f) return out;
    uint8_t buffer[65536];
    size_t n;
    while ((n = std::fread(buffer, 1, sizeof buffer, f)) > 0) out.insert(out.end(), buffer, buffer + n);
    std::fclose(f);
    return out;
}

}  // namespace dibt
