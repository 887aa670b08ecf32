// Helpers of the Windows tests of the GIF exports.
#include "win32_test_helpers.h"

#include <gtest/gtest.h>

#include <cstring>

namespace gift {

std::string tempPath(const std::string& name) {
    char dir[MAX_PATH];
    GetTempPathA(MAX_PATH, dir);
    return std::string(dir) + "tessarin_gif_" + std::to_string(GetCurrentProcessId()) + "_" + name;
}

TempFile::TempFile(const std::string& name) : path(tempPath(name)) { DeleteFileA(path.c_str()); }
TempFile::~TempFile() { DeleteFileA(path.c_str()); }

HGLOBAL toHandle(const Bytes& block) {
    HGLOBAL handle = GlobalAlloc(GMEM_MOVEABLE | GMEM_ZEROINIT, block.size());
    if (handle == nullptr) throw std::bad_alloc();
    std::memcpy(GlobalLock(handle), block.data(), block.size());
    GlobalUnlock(handle);
    return handle;
}

Dib takeHandle(HGLOBAL handle) {
    Dib dib;
    if (handle == nullptr) return dib;
    const auto* bytes = static_cast<const std::uint8_t*>(GlobalLock(handle));
    dib.block.assign(bytes, bytes + GlobalSize(handle));
    GlobalUnlock(handle);
    GlobalFree(handle);
    return dib;
}

std::vector<std::uint8_t> pattern(std::uint32_t w, std::uint32_t h, unsigned colors) {
    std::vector<std::uint8_t> indices(std::size_t{w} * h);
    for (std::size_t i = 0; i < indices.size(); ++i)
        indices[i] = static_cast<std::uint8_t>((i % w * 3 + i / w * 5 + i / 7) % colors);
    return indices;
}

void expectOneBox(const tst::MessageBoxCapture& capture, const std::string& text,
                  const char* title, UINT style) {
    auto boxes = capture.boxes();
    ASSERT_EQ(boxes.size(), 1u);
    EXPECT_EQ(boxes[0].text, text);
    EXPECT_EQ(boxes[0].title, title);
    EXPECT_EQ(boxes[0].style, style);
    EXPECT_EQ(boxes[0].owner, nullptr);
}

}  // namespace gift
