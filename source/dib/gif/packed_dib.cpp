// Reading and writing the packed bitmap header in plain memory.
#include "packed_dib.h"

#include <cstring>

namespace ts::gif {

DibHeader loadDibHeader(const std::uint8_t* block) {
    DibHeader header;
    std::memcpy(&header, block, sizeof header);
    return header;
}

void storeDibHeader(std::uint8_t* block, const DibHeader& header) {
    std::memcpy(block, &header, sizeof header);
}

std::uint32_t dibColorCount(const DibHeader& header) {
    if (header.clrUsed != 0) return header.clrUsed;
    return header.bitCount < 16 ? 1u << header.bitCount : 0;
}

std::uint64_t dibPixelOffset(const DibHeader& header) {
    std::uint64_t offset = kDibHeaderSize + 4ull * dibColorCount(header);
    return header.compression == kBitfields ? offset + 12 : offset;
}

}  // namespace ts::gif
