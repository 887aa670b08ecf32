// The client bytes of a glDrawPixels rectangle by format and type.
#include "tsobj3d/visible/pixel_rect.h"

namespace ts {
namespace {

// Components per pixel of the OpenGL 1.1 formats and the BGR(A) extension.
int components(uint32_t format) {
    switch (format) {
    case 0x1900:  // GL_COLOR_INDEX
    case 0x1901:  // GL_STENCIL_INDEX
    case 0x1902:  // GL_DEPTH_COMPONENT
    case 0x1903:  // GL_RED
    case 0x1904:  // GL_GREEN
    case 0x1905:  // GL_BLUE
    case 0x1906:  // GL_ALPHA
    case 0x1909:  // GL_LUMINANCE
        return 1;
    case 0x190A:  // GL_LUMINANCE_ALPHA
        return 2;
    case 0x1907:  // GL_RGB
    case 0x80E0:  // GL_BGR_EXT
        return 3;
    case 0x1908:  // GL_RGBA
    case 0x80E1:  // GL_BGRA_EXT
        return 4;
    default:
        return 0;
    }
}

// Bytes per component of the OpenGL 1.1 types (not GL_BITMAP, which packs bits).
int componentBytes(uint32_t type) {
    switch (type) {
    case 0x1400:  // GL_BYTE
    case 0x1401:  // GL_UNSIGNED_BYTE
        return 1;
    case 0x1402:  // GL_SHORT
    case 0x1403:  // GL_UNSIGNED_SHORT
        return 2;
    case 0x1404:  // GL_INT
    case 0x1405:  // GL_UNSIGNED_INT
    case 0x1406:  // GL_FLOAT
        return 4;
    default:
        return 0;
    }
}

}  // namespace

int64_t drawPixelsBytes(int32_t width, int32_t height, uint32_t format, uint32_t type, int alignment) {
    const int64_t pixelBytes = int64_t(components(format)) * componentBytes(type);
    if (pixelBytes == 0 || alignment <= 0) return -1;
    if (width <= 0 || height <= 0) return 0;
    const int64_t row = pixelBytes * width;  // below 2^35
    const int64_t stride = (row + alignment - 1) / alignment * alignment;
    // More than any block can hold saturates instead of overflowing.
    if (height > 1 && stride > (INT64_MAX - row) / (height - 1)) return INT64_MAX;
    return stride * (height - 1) + row;
}

}  // namespace ts
