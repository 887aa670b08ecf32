// The bitmap dibWriteGIF encodes: the caller's own when GIF holds it as it is (1, 4 or
// 8 bits), else a copy made with the library's conversions.
#pragma once

#include <windows.h>

#include "dib/win32/global_host.h"

namespace ts::dib {

class WritableBitmap {
public:
    // Runs the conversions in their order: RLE expansion, then 16 or 32 bits to 24
    // and 24 to 8 bits (gray when gray is set). A failure shows its message.
    WritableBitmap(HGLOBAL original, bool gray, Host& host);
    ~WritableBitmap();
    WritableBitmap(const WritableBitmap&) = delete;
    WritableBitmap& operator=(const WritableBitmap&) = delete;

    explicit operator bool() const { return current_ != nullptr; }
    HGLOBAL handle() const { return current_; }

private:
    bool expandRunLengths(Host& host);
    bool reduceTrueColor(bool gray, Host& host);
    void adopt(HGLOBAL converted);

    HGLOBAL current_;
    HGLOBAL converted_ = nullptr;  // ours to free
};

// biBitCount and biCompression of a bitmap handle; false when it cannot be read.
bool readDepth(HGLOBAL handle, unsigned& bits, unsigned& compression);

}  // namespace ts::dib
