// The random-number generator against an independent computation of the same
// seeding and lagged subtraction.
#include "math/randstd.h"

#include <cstdint>

#include <gtest/gtest.h>

#include "math/randstd_reference.h"

namespace {

class RandStdSeeds : public ::testing::TestWithParam<uint32_t> {};

TEST_P(RandStdSeeds, FirstFiftyWordsMatchTheReference) {
    ts::RandStd g;
    g.seed(GetParam());
    tst::RandStdReference ref(GetParam());
    for (int k = 0; k < 50; ++k) ASSERT_EQ(ref.word(), g.step()) << "value " << k;
}

TEST_P(RandStdSeeds, FirstFiftyReducedValuesMatchTheReference) {
    for (uint32_t n : {1u, 2u, 6u, 1000u, 0x7FFFFFFFu, 0xFFFFFFFFu}) {
        ts::RandStd g;
        g.seed(GetParam());
        tst::RandStdReference ref(GetParam());
        for (int k = 0; k < 50; ++k) {
            const uint32_t v = g.next(n);
            ASSERT_EQ(ref.word() % n, v) << "n " << n << " value " << k;
            ASSERT_LT(v, n);
        }
    }
}

TEST_P(RandStdSeeds, SameSeedSameSequence) {
    ts::RandStd a, b;
    a.seed(GetParam());
    for (int k = 0; k < 7; ++k) b.step();
    b.seed(GetParam());
    for (int k = 0; k < 200; ++k) ASSERT_EQ(a.step(), b.step()) << k;
}

INSTANTIATE_TEST_SUITE_P(Seeds, RandStdSeeds, ::testing::Values(0u, 1u, 12345u, 0xFFFFFFFFu));

TEST(RandStd, UnseededReturnsZero) {
    ts::RandStd g;
    for (int k = 0; k < 100; ++k) ASSERT_EQ(0u, g.next(1000)) << k;
}

TEST(RandStd, DifferentSeedsDiffer) {
    ts::RandStd a, b;
    a.seed(1);
    b.seed(2);
    int same = 0;
    for (int k = 0; k < 50; ++k) same += a.step() == b.step();
    EXPECT_LT(same, 5);
}

}  // namespace
