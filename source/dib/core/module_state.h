// The bitmap library's module-wide state: the GIF codec's tables and parameter record
// and the median-cut run, in one struct with one owner and one lock.
#pragma once

#include <cstdint>
#include <mutex>

#include "dib/core/dib_host.h"
#include "dib/core/median_cut.h"

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

// The LZW tables the decoder and the encoder share, and the encoder's parameters.
struct GifTables {
    // One spare entry: a full table still writes one entry at code 4096.
    std::uint32_t prefix[kMaxCodes + 1];
    std::uint8_t suffix[kMaxCodes + 1];
    // Output stack of the decoder; a string is at most one entry per code long.
    std::uint8_t stack[kMaxCodes + 1];
    GifParams params;
};

}  // namespace ts::gif

namespace ts::dib {

struct ModuleState {
    gif::GifTables gif;
    MedianCut medianCut;
};

// The library's one module state, held for the time of one operation; operations on
// other threads wait. The host's messages are held meanwhile and shown once the lock
// is let go, so that a box, which pumps messages, never keeps the lock: a window
// procedure that calls a dib function from inside the box does not wait for itself.
class ModuleLease {
public:
    explicit ModuleLease(Host& host);
    ~ModuleLease();
    ModuleLease(const ModuleLease&) = delete;
    ModuleLease& operator=(const ModuleLease&) = delete;
    ModuleState& state() const { return state_; }

private:
    Host& host_;
    std::unique_lock<std::mutex> lock_;
    ModuleState& state_;
};

}  // namespace ts::dib
