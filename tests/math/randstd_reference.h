// An independent computation of the library's random numbers, for comparing the
// generator with: 64-bit arithmetic masked to 32 bits, the table as a vector, the
// seeding walk by repeated addition.
#pragma once

#include <cstdint>
#include <vector>

namespace tst {

class RandStdReference {
public:
    explicit RandStdReference(uint64_t seed) : t_(55, 0) {
        const uint64_t mask = 0xFFFFFFFFull;
        t_[54] = seed & mask;
        uint64_t k = 1, prev = seed & mask;
        int idx = 0;
        for (int step = 0; step < 54; ++step) {
            t_[idx] = k;
            const uint64_t nk = (prev + (mask + 1) - k) & mask;
            prev = k;
            k = nk;
            idx += 21;
            if (idx >= 55) idx -= 55;
        }
        for (int round = 0; round < 4; ++round)
            for (int a = 0; a < 55; ++a) {
                const int b = a + 31 < 55 ? a + 31 : a + 31 - 55;
                t_[a] = (t_[a] + (mask + 1) - t_[b]) & mask;
            }
    }
    uint64_t word() {
        i_ = i_ == 54 ? 0 : i_ + 1;
        j_ = j_ == 54 ? 0 : j_ + 1;
        t_[i_] = (t_[i_] + 0x100000000ull - t_[j_]) & 0xFFFFFFFFull;
        return t_[i_];
    }

private:
    std::vector<uint64_t> t_;
    int i_ = 0;
    int j_ = 31;
};

}  // namespace tst
