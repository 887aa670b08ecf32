// The GIF codec's module-wide state: LZW tables shared by decoder and encoder and the
// encoder's parameter record, in one struct that has a single owner.
#pragma once

#include <cstdint>

namespace ts::gif {

constexpr std::uint32_t kMaxCodes = 4096;  // codes are at most 12 bits wide
constexpr std::uint32_t kNoCode = 4096;    // prefix of a root code; "no previous code"
constexpr std::uint16_t kModuleVersion = 0x0200;

// Filled by the encoder for each file it writes.
struct GifParams {
    std::uint16_t moduleVersion = kModuleVersion;
    std::int32_t gifVersion = 89;   // 87 or 89, the caller's value
    std::int32_t globalTable = 1;   // the encoder always writes a global colour table
    std::int32_t interlace = 0;
    std::int32_t grayReduction = 0; // 1 when the caller's bitmap had 16 bits or more
};

struct GifModule {
    // One spare entry: a full table still writes one entry at code 4096.
    std::uint32_t prefix[kMaxCodes + 1];
    std::uint8_t suffix[kMaxCodes + 1];
    // Output stack of the decoder; a string is at most one entry per code long.
    std::uint8_t stack[kMaxCodes + 1];
    GifParams params;
};

}  // namespace ts::gif
