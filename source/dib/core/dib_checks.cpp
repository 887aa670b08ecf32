// Argument checks and output allocation shared by the bitmap operations.
#include "dib/core/dib_checks.h"

namespace ts::dib {

bool requireHandle(Host& host, Source src, const char* function, InfoHeader& h) {
    if (!src.present()) {
        host.report(function, "No DIB passed!");
        return false;
    }
    h = readHeader(src.data, src.size);
    return true;
}

bool requireInfoHeader(Host& host, Source src, const char* function, InfoHeader& h, const char* os2Message) {
    if (!requireHandle(host, src, function, h)) return false;
    if (h.biSize != kInfoSize) {
        host.report(function, os2Message);
        return false;
    }
    return true;
}

bool requireRunLength(Host& host, Source src, const char* function, InfoHeader& h, RunLength rule,
                      const char* refusal) {
    if (!requireInfoHeader(host, src, function, h)) return false;
    uint32_t c = h.biCompression;
    bool refused = rule == RunLength::Refused ? c == kBiRle8 || c == kBiRle4 : c == kBiRgb || c == kBiBitfields;
    if (refused) host.report(function, refusal);
    return !refused;
}

int64_t imageBytes(int64_t width, int64_t rows, int64_t bits) {
    if (width < 0 || rows < 0 || width > (int64_t(1) << 32) || rows > (int64_t(1) << 32)) return -1;
    int64_t stride = strideOf(width, bits);
    if (stride < 0 || (stride > 0 && rows > INT64_MAX / stride)) return -1;
    return stride * rows;
}

int64_t blockBytes(const InfoHeader& h, int64_t bits) {
    int64_t image = imageBytes(h.biWidth, absHeight(h), bits);
    if (image < 0 || colorCount(h) > kMaxColors) return -1;
    return int64_t(pixelOffset(h)) + image;
}

bool allocateOutput(Host& host, OwnedBlock& out, uint64_t prefix, int64_t image, const char* function,
                    const char* message) {
    constexpr uint64_t kLongestPrefix = kInfoSize + 4ull * kMaxColors + kMaskBytes;
    if (image < 0 || prefix > kLongestPrefix || !out.allocate(prefix + uint64_t(image))) {
        out.reset();
        host.report(function, message);
        return false;
    }
    return true;
}

bool openRows(PaddedSource& rows, Source src, const InfoHeader& h) {
    int64_t need = blockBytes(h, h.biBitCount);
    return need >= 0 && rows.open(src, uint64_t(need));
}

void copyColorTable(uint8_t* dst, Source src, uint64_t entries) {
    for (uint64_t i = 0; i < 4 * entries; ++i) dst[i] = byteAt(src, kInfoSize + i);
}

}  // namespace ts::dib
