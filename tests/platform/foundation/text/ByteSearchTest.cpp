#include "tarnmodel/platform/foundation/text/ByteSearch.h"

#include "tarnmodel/platform/foundation/text/AsciiCaseInternal.h"
#include "tarnmodel/platform/foundation/text/ByteSearchInternal.h"

#include <gtest/gtest.h>

#include <random>
#include <string>
#include <vector>

namespace tarn {
namespace {

std::vector<ContainsShort> waysForShortNeedles()
{
    std::vector<ContainsShort> ways = {containsShortScalar};
#if defined(__x86_64__)
    ways.push_back(containsShortSSE2);
    if (hasAVX2())
        ways.push_back(containsShortAVX2);
#endif
    return ways;
}

TEST(ByteSearch, FindsANeedleAtEachPlace)
{
    for (std::size_t length = 1; length <= 40; ++length) {
        std::string needle(length, 'n');
        needle.back() = 'x'; // its beginning stands everywhere
        for (std::size_t size = length; size <= 110; ++size)
            for (std::size_t place = 0; place + length <= size; ++place) {
                std::string bytes(size, 'n');
                ASSERT_FALSE(containsBytes(bytes, needle));
                bytes.replace(place, length, needle);
                ASSERT_TRUE(containsBytes(bytes, needle)) << length << " bytes at " << place << " of " << size;
                ASSERT_FALSE(containsBytes(std::string_view(bytes).substr(0, place + length - 1), needle));
            }
    }
}

TEST(ByteSearch, AgreesWithASearchByteByByteOnEveryPath)
{
    std::mt19937 random(19);
    const auto bytesOf = [&](std::size_t length) {
        std::string bytes;
        for (std::size_t i = 0; i < length; ++i)
            bytes.push_back(static_cast<char>(0x7E + random() % 3));
        return bytes;
    };
    for (int round = 0; round < 20'000; ++round) {
        const std::string bytes = bytesOf(random() % 200);
        const std::string needle = bytesOf(2 + random() % (kLongestShortNeedle - 1));
        const bool expected = bytes.find(needle) != std::string::npos;
        ASSERT_EQ(containsBytes(bytes, needle), expected);
        for (const ContainsShort way : waysForShortNeedles())
            ASSERT_EQ(way(bytes, needle), expected) << testing::PrintToString(bytes) << ", " << needle.size();
    }
}

TEST(ByteSearch, FindsNothingInNothing)
{
    EXPECT_TRUE(containsBytes("", ""));
    EXPECT_TRUE(containsBytes("a", ""));
    EXPECT_FALSE(containsBytes("", "a"));
    EXPECT_FALSE(containsBytes("a", "aa"));
    EXPECT_FALSE(containsBytes({}, "ab")) << "without an address";
    EXPECT_FALSE(containsBytes({}, std::string(100, 'a')));
    EXPECT_FALSE(containsBytes("a", std::string(100, 'a')));
    EXPECT_TRUE(containsBytes(std::string_view("a\0b", 3), std::string_view("\0b", 2)));
}

} // namespace
} // namespace tarn
