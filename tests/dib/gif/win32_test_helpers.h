// Helpers of the Windows tests of the GIF exports: temporary files, bitmap handles,
// pictures and the expected message box.
#pragma once

#include <windows.h>

#include <string>
#include <vector>

#include "gif_test_support.h"
#include "support/msgbox_capture.h"

namespace gift {

constexpr UINT kErrorStyle = 0x10000;  // MB_SETFOREGROUND

// A path in the temporary folder, unique to this process.
std::string tempPath(const std::string& name);

// A file that is deleted before and after the test.
struct TempFile {
    explicit TempFile(const std::string& name);
    ~TempFile();
    TempFile(const TempFile&) = delete;
    TempFile& operator=(const TempFile&) = delete;
    std::string path;
};

// A movable global block holding a copy of the bytes, as a bitmap handle.
HGLOBAL toHandle(const Bytes& block);
// The whole block of a handle, which is freed; an empty Dib for NULL.
Dib takeHandle(HGLOBAL handle);

// Indices that run through the colours in a pattern.
std::vector<std::uint8_t> pattern(std::uint32_t w, std::uint32_t h, unsigned colors);

// Exactly one box was shown, with this text, title and style and no owner.
void expectOneBox(const tst::MessageBoxCapture& capture, const std::string& text,
                  const char* title = "Tessarin Error Message", UINT style = kErrorStyle);

}  // namespace gift
