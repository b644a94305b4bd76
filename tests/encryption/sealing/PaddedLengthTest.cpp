#include "tarnmodel/encryption/sealing/PaddedLength.h"

#include <gtest/gtest.h>

#include <set>

namespace tarn {
namespace {

TEST(PaddedLength, IsAtLeast256Bytes)
{
    EXPECT_EQ(paddedLength(0), 256U);
    EXPECT_EQ(paddedLength(1), 256U);
    EXPECT_EQ(paddedLength(256), 256U);
}

TEST(PaddedLength, CostsTwelvePercentAtMost)
{
    for (std::uint64_t length = 256; length < 100'000; ++length) {
        EXPECT_GE(paddedLength(length), length);
        EXPECT_LE(paddedLength(length) * 100, length * 112);
    }
    const std::uint64_t large = (std::uint64_t{1} << 40U) + 1;
    EXPECT_GE(paddedLength(large), large);
    EXPECT_LE(paddedLength(large) - large, large / 50);
}

TEST(PaddedLength, TakesFewValues)
{
    std::set<std::uint64_t> lengths;
    for (std::uint64_t length = 0; length <= std::uint64_t{1} << 20U; ++length)
        lengths.insert(paddedLength(length));
    EXPECT_LT(lengths.size(), 300U);
}

TEST(PaddedLength, StaysOnceItIsReached)
{
    for (std::uint64_t length = 1; length < 1'000'000; length += 997)
        EXPECT_EQ(paddedLength(paddedLength(length)), paddedLength(length));
}

} // namespace
} // namespace tarn
