// cBitmap3D: parameters, the bitmap checks and drawing.
#include "tsobj3d/visible/cbitmap3d.h"

#include <windows.h>
#include <GL/gl.h>

#include "guard/guard.h"
#include "tessarin.h"
#include "tsobj3d/visible/pixel_rect.h"

namespace {

// True when the block of size bytes holds every byte glDrawPixels will read from bits
// for the header's width and height in format and type: a header that claims more
// than its block holds would have the scene thread read past the caller's memory.
bool blockHolds(const BITMAPINFO* lpBMI, SIZE_T size, const void* bits, uint32_t format, uint32_t type) {
    const uintptr_t offset = uintptr_t(bits) - uintptr_t(lpBMI);
    const int64_t needed =
        ts::drawPixelsBytes(lpBMI->bmiHeader.biWidth, lpBMI->bmiHeader.biHeight, format, type, 4);
    return bits != nullptr && needed >= 0 && offset <= size && uint64_t(needed) <= size - offset;
}

}  // namespace

void cBitmap3D::set(void* hDIB, float newZoom, int32_t newFurther, uint32_t newFormat, uint32_t newType) {
    TS_ASSERT(hDIB!=NULL, "tsobj3d\\visible\\cbitmap3d", __LINE__);
    info = nullptr;
    bits = nullptr;
    zoom = newZoom;
    further = newFurther;
    format = newFormat;
    type = newType;
    const SIZE_T size = GlobalSize(hDIB);
    // A handle that is no live block, or one too short for a header, draws nothing.
    const BITMAPINFO* lpBMI = size >= sizeof(BITMAPINFOHEADER) ? static_cast<BITMAPINFO*>(GlobalLock(hDIB)) : nullptr;
    if (lpBMI == nullptr) return;
    TS_ASSERT(lpBMI->bmiHeader.biBitCount == 24, "tsobj3d\\visible\\cbitmap3d", __LINE__);
    const void* pixels = dibGetBits(const_cast<BITMAPINFO*>(lpBMI));
    if (blockHolds(lpBMI, size, pixels, format, type)) {
        info = lpBMI;
        bits = pixels;
    }
    // The pointers stay valid after the unlock as long as the caller keeps the block.
    GlobalUnlock(hDIB);
}

void cBitmap3D::draw(ts::DrawContext&) {
    if (info == nullptr && bits == nullptr) return;
    glPixelStorei(GL_UNPACK_ALIGNMENT, 4);  // DIB rows are padded to 4 bytes
    glPixelZoom(zoom, zoom);
    glRasterPos3f(0.0f, 0.0f, 0.0f);
    glDrawPixels(info->bmiHeader.biWidth, info->bmiHeader.biHeight, format, type, bits);
}
