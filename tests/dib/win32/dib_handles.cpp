// Bitmap handles for the Windows tests.
#include "dib/win32/dib_handles.h"

#include <cstring>

namespace tst {

std::vector<uint8_t> DibHandle::bytes() const {
    auto* p = static_cast<const uint8_t*>(GlobalLock(h_));
    std::vector<uint8_t> out(p, p + GlobalSize(h_));
    GlobalUnlock(h_);
    return out;
}

ts::dib::InfoHeader DibHandle::header() const {
    std::vector<uint8_t> b = bytes();
    return ts::dib::readHeader(b.data(), b.size());
}

HGLOBAL makeHandle(int32_t width, int32_t height, uint16_t bits, const std::vector<ts::dib::RgbQuad>& table,
                   const std::vector<uint8_t>& pixels) {
    ts::dib::InfoHeader h = ts::dib::newHeader(width, height, bits);
    h.biClrUsed = uint32_t(table.size());
    size_t offset = 40 + 4 * table.size();
    HGLOBAL handle = GlobalAlloc(GMEM_MOVEABLE | GMEM_ZEROINIT, offset + h.biSizeImage);
    auto* p = static_cast<uint8_t*>(GlobalLock(handle));
    ts::dib::writeHeader(p, h);
    if (!table.empty()) std::memcpy(p + 40, table.data(), 4 * table.size());
    std::memcpy(p + offset, pixels.data(), pixels.size() < h.biSizeImage ? pixels.size() : h.biSizeImage);
    GlobalUnlock(handle);
    return handle;
}

}  // namespace tst
