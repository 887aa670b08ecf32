// The library's own random numbers: a lagged subtractive generator over 55 words,
// seeded and stepped exactly as randstd and srandstd have always done.
#pragma once

#include <cstdint>

namespace ts {

class RandStd {
public:
    static constexpr int kTableSize = 55;

    // Fills the table from seed and runs the four warm-up rounds; i = 0, j = 31.
    void seed(uint32_t seed);
    // Advances the generator one step and returns the new table word.
    uint32_t step();
    // One step reduced to 0 .. n - 1. n must not be 0.
    uint32_t next(uint32_t n) { return step() % n; }

private:
    // Zero until seeded, so an unseeded generator returns 0 every time.
    uint32_t table_[kTableSize] = {};
    uint32_t i_ = 0;
    uint32_t j_ = 0;
};

// The generator behind randstd and srandstd: one per process, not synchronised.
RandStd& sharedRandStd();

}  // namespace ts
