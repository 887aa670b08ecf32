// The lagged subtractive generator behind randstd and srandstd. All arithmetic is
// modulo 2^32, which unsigned 32-bit words give for free.
#include "math/randstd.h"

namespace ts {

void RandStd::seed(uint32_t seed) {
    for (int t = 0; t < kTableSize - 1; ++t) table_[t] = 0;
    table_[kTableSize - 1] = seed;
    // Spread a Fibonacci-like difference sequence over the table in steps of 21; the
    // 55th slot (index 34) is never reached and keeps 0.
    uint32_t k = 1;
    uint32_t prev = seed;
    for (uint32_t s = 0; s < kTableSize - 1; ++s) {
        table_[(21 * s) % kTableSize] = k;
        const uint32_t following = prev - k;
        prev = k;
        k = following;
    }
    for (int round = 0; round < 4; ++round) {
        for (int t = 0; t < kTableSize; ++t) table_[t] -= table_[(t + 31) % kTableSize];
    }
    i_ = 0;
    j_ = 31;
}

uint32_t RandStd::step() {
    i_ = (i_ + 1) % kTableSize;
    j_ = (j_ + 1) % kTableSize;
    table_[i_] -= table_[j_];
    return table_[i_];
}

RandStd& sharedRandStd() {
    static RandStd generator;
    return generator;
}

}  // namespace ts
