// The conversions in front of the GIF encoder, made with the library's own exports.
// Every true-colour bitmap goes through the gray path of dib24To8, as it always did.
#include "dib/win32/gif_convert.h"

#include "dib/core/dib_layout.h"
#include "dib/gif/gif_text.h"
#include "tessarin.h"

namespace ts::dib {

namespace text = gif::text;

bool readDepth(HGLOBAL handle, unsigned& bits, unsigned& compression) {
    LockedDib locked(handle);
    Source bytes = locked.source();
    if (bytes.data == nullptr || bytes.size < kInfoSize) return false;
    InfoHeader header = readHeader(bytes.data, bytes.size);
    bits = header.biBitCount;
    compression = header.biCompression;
    return true;
}

WritableBitmap::WritableBitmap(HGLOBAL original, bool gray, Host& host)
    : current_(original) {
    if (!expandRunLengths(host) || !reduceTrueColor(gray, host)) adopt(nullptr);
}

WritableBitmap::~WritableBitmap() {
    if (converted_ != nullptr) GlobalFree(converted_);
}

void WritableBitmap::adopt(HGLOBAL converted) {
    if (converted_ != nullptr) GlobalFree(converted_);
    converted_ = converted;
    current_ = converted;
}

bool WritableBitmap::expandRunLengths(Host& host) {
    unsigned bits = 0, compression = 0;
    if (!readDepth(current_, bits, compression) || (compression != 1 && compression != 2)) return true;
    HGLOBAL expanded = dibRLEtoDIB(current_);
    if (expanded == nullptr) {
        host.message(text::kRleError);
        return false;
    }
    adopt(expanded);
    return true;
}

// 16 and 32 bits report their failures with the same text.
bool WritableBitmap::reduceTrueColor(bool gray, Host& host) {
    unsigned bits = 0, compression = 0;
    if (!readDepth(current_, bits, compression) || (bits != 16 && bits != 24 && bits != 32)) return true;
    HGLOBAL reduced = nullptr;
    if (bits == 24) {
        reduced = dib24To8(current_, gray);
    } else {
        HGLOBAL wide = bits == 16 ? dib16To24(current_) : dib32To24(current_);
        if (wide != nullptr) reduced = dib24To8(wide, gray);
        if (wide != nullptr) GlobalFree(wide);
    }
    if (reduced == nullptr) {
        host.message(bits == 24 ? text::kReductionError : text::kSixteenBitError);
        return false;
    }
    adopt(reduced);
    return true;
}

}  // namespace ts::dib
