// BMP reader: file header, info or core header, colour table, pixel rows.
#include "dib/core/bmp_file.h"

#include "dib/core/dib_checks.h"

namespace ts::dib {
namespace {

constexpr const char* kInfo = "dibReadInfo";

// A core header becomes a 40-byte header; the file is put back behind its 12 bytes.
void widenCoreHeader(ByteSource& file, const uint8_t* raw, InfoHeader& h) {
    h = InfoHeader{};
    h.biSize = kInfoSize;
    h.biWidth = int32_t(le16(raw + 4));
    h.biHeight = int32_t(le16(raw + 6));
    h.biPlanes = le16(raw + 8);
    h.biBitCount = le16(raw + 10);
    h.biXPelsPerMeter = kDefaultPelsPerMeter;
    h.biYPelsPerMeter = kDefaultPelsPerMeter;
    file.seek(-28, SeekFrom::Current);
}

// Fixes biSizeImage to the rows' size; false when that size cannot be a block's
// (negative width, more than 4 GiB). A top-down file is sized by its row count.
bool fixImageSize(InfoHeader& h) {
    int64_t computed = imageBytes(h.biWidth, absHeight(h), h.biBitCount);
    bool uncompressed = h.biCompression == kBiRgb || h.biCompression == kBiBitfields;
    if (h.biSizeImage != 0 && !uncompressed) return true;
    if (computed < 0 || computed > int64_t(UINT32_MAX)) return false;
    h.biSizeImage = uint32_t(computed);
    return true;
}

// Reads the colour table; 3-byte core entries are widened in place, last entry first.
void readColorTable(ByteSource& file, uint8_t* table, uint32_t n, bool core) {
    if (!core) {
        file.read(table, 4ull * n);
        return;
    }
    file.read(table, 3ull * n);
    for (uint32_t i = n; i-- > 0;) {
        uint8_t b = table[3 * i], g = table[3 * i + 1], r = table[3 * i + 2];
        table[4 * i] = b;
        table[4 * i + 1] = g;
        table[4 * i + 2] = r;
        table[4 * i + 3] = 0;
    }
}

// File header and info header; false after the matching message.
bool readHeaders(Host& host, ByteSource& file, uint32_t& offBits, InfoHeader& h, bool& core) {
    uint8_t fh[kFileHeaderSize];
    if (file.read(fh, sizeof fh) != int64_t(sizeof fh)) {
        host.report(kInfo, "Error while reading BMP header!");
        return false;
    }
    if (le16(fh) != kBmpType) {
        host.report(kInfo, "Not a valid BMP file!");
        return false;
    }
    offBits = le32(fh + 10);
    uint8_t raw[kInfoSize];
    if (file.read(raw, sizeof raw) != int64_t(sizeof raw)) {
        host.report(kInfo, "Error while reading DIB info block!");
        return false;
    }
    h = readHeader(raw, sizeof raw);
    core = h.biSize == kCoreSize;
    if (core) widenCoreHeader(file, raw, h);
    if (h.biSize != kInfoSize) {
        host.report(kInfo, "Unkown DIB format!");
        return false;
    }
    return true;
}

}  // namespace

bool isBmp(ByteSource& file) {
    uint8_t fh[kFileHeaderSize], info[kInfoSize];
    if (file.read(fh, sizeof fh) != int64_t(sizeof fh) || le16(fh) != kBmpType) return false;
    if (file.read(info, sizeof info) != int64_t(sizeof info)) return false;
    uint32_t size = le32(info);
    return size == kInfoSize || size == kCoreSize;
}

OwnedBlock readInfo(Host& host, ByteSource* file) {
    OwnedBlock block(host);
    if (!file) {
        host.report(kInfo, "No valid file handle!");
        return block;
    }
    uint32_t offBits = 0;
    InfoHeader h;
    bool core = false;
    if (!readHeaders(host, *file, offBits, h, core)) return block;
    bool sized = fixImageSize(h);
    uint32_t n = colorCount(h);
    if (h.biClrUsed == 0) h.biClrUsed = n;
    if (!sized || n > kMaxColors || !block.allocate(kInfoSize + 4ull * n)) {
        host.report(kInfo, "Not enough memory for DIB!");
        block.reset();
        return block;
    }
    writeHeader(block.data(), h);
    if (n > 0) readColorTable(*file, block.data() + kInfoSize, n, core);
    if (offBits != 0) file->seek(offBits, SeekFrom::Begin);
    return block;
}

OwnedBlock readBmp(Host& host, ByteSource& file) {
    OwnedBlock block = readInfo(host, &file);
    if (!block) {
        host.report("dibRead", "Error while reading file!");
        return block;
    }
    InfoHeader h = readHeader(block.data(), block.size());
    // The rows go right behind the colour table, bit fields included: the file's masks
    // are not kept, and files read this way have always been placed so.
    uint64_t bits = h.biSize + 4ull * colorCount(h);
    if (!block.resize(bits + h.biSizeImage)) {
        host.report("dibRead", "Not enough memory for DIB!");
        block.reset();
        return block;
    }
    host.cursor(Cursor::Wait);
    file.read(block.data() + bits, h.biSizeImage);
    host.cursor(Cursor::Arrow);
    return block;
}

}  // namespace ts::dib
