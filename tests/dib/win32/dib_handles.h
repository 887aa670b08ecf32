// Bitmap handles for the Windows tests: built in global memory, freed at scope end.
#pragma once

#include <windows.h>

#include <string>
#include <vector>

#include "dib/core/dib_layout.h"
#include "support/msgbox_capture.h"

namespace tst {

// A movable global block owned by the test.
class DibHandle {
public:
    explicit DibHandle(HGLOBAL h = nullptr) : h_(h) {}
    ~DibHandle() {
        if (h_) GlobalFree(h_);
    }
    DibHandle(const DibHandle&) = delete;
    DibHandle& operator=(const DibHandle&) = delete;
    HGLOBAL get() const { return h_; }
    explicit operator bool() const { return h_ != nullptr; }
    std::vector<uint8_t> bytes() const;
    ts::dib::InfoHeader header() const;

private:
    HGLOBAL h_;
};

// A bitmap of the given size and depth with `table` entries and rows from `pixels`
// (bottom row first, already padded), in a GMEM_MOVEABLE | GMEM_ZEROINIT block.
HGLOBAL makeHandle(int32_t width, int32_t height, uint16_t bits, const std::vector<ts::dib::RgbQuad>& table = {},
                   const std::vector<uint8_t>& pixels = {});

// The texts of the message boxes the call showed (every box answered with OK).
template <typename F>
std::vector<std::string> boxTexts(F call) {
    MessageBoxCapture capture(IDOK);
    call();
    std::vector<std::string> texts;
    for (const CapturedBox& b : capture.boxes()) texts.push_back(b.text);
    return texts;
}

}  // namespace tst
