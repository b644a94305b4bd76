#include "tarnmodel/platform/foundation/text/PercentEncoding.h"

#include <gtest/gtest.h>

#include <vector>

namespace tarn {
namespace {

using enum UnescapedCharacters;

TEST(PercentEncoding, LeavesWhatAQueryMayHold)
{
    const std::string_view allowed = "abcxyzABCXYZ0189-._~!$&'()*+,;=:@/?";
    EXPECT_EQ(stringByAddingPercentEncoding(allowed, URLQuery), allowed);
    EXPECT_EQ(stringByAddingPercentEncoding(" \"#%<>[]\\^`{|}\x7F\n", URLQuery),
        "%20%22%23%25%3C%3E%5B%5D%5C%5E%60%7B%7C%7D%7F%0A");
    EXPECT_EQ(stringByAddingPercentEncoding("é😀", URLQuery), "%C3%A9%F0%9F%98%80");
    EXPECT_EQ(stringByAddingPercentEncoding(std::string_view("\0", 1), URLQuery), "%00");
}

TEST(PercentEncoding, EscapesMoreInHeaders)
{
    EXPECT_EQ(stringByAddingPercentEncoding("a'b?c&d(e)!$*+,;=:@/", URLQueryHeader), "a%27b%3Fc%26d%28e%29!$*+,;=:@/");
}

TEST(PercentEncoding, LeavesLettersMarksAndNumbersOfAllScripts)
{
    const std::string_view letters = "aÄж日e\u0301\u0663Ⅷ½²";
    EXPECT_EQ(stringByAddingPercentEncoding(letters, Alphanumeric), letters);
    EXPECT_EQ(stringByAddingPercentEncoding("a-b_c/d.e", Alphanumeric), "a%2Db%5Fc%2Fd%2Ee");
    EXPECT_EQ(stringByAddingPercentEncoding("😀€", Alphanumeric), "%F0%9F%98%80%E2%82%AC");
}

TEST(PercentEncoding, ReplacesIllFormedBytes)
{
    EXPECT_EQ(stringByAddingPercentEncoding("a\xFF", URLQuery), "a%EF%BF%BD");
    EXPECT_EQ(stringByAddingPercentEncoding("", Alphanumeric), "");
}

struct DecodingCase {
    std::string encoded;
    std::optional<std::string> decoded;
};

TEST(PercentEncoding, IsRemovedWhereItIsWellFormed)
{
    const std::vector<DecodingCase> cases{
        {"", ""},
        {"plain.png", "plain.png"},
        {"my%20file.png", "my file.png"},
        {"a%2Fb%2fc", "a/b/c"},
        {"Gr%C3%B6%C3%9Fe", "Größe"},
        {"Größe+1", "Größe+1"},
        {"%2520", "%20"},
        {"%00x", std::string("\0x", 2)},
        {"%", std::nullopt},
        {"a%", std::nullopt},
        {"a%2", std::nullopt},
        {"100% sure", std::nullopt},
        {"%+1", std::nullopt},
        {"%-1", std::nullopt},
        {"%0x", std::nullopt},
        {"%C3", std::nullopt},
        {"%FF%FE", std::nullopt},
        {"%ED%A0%80", std::nullopt},
    };
    for (const auto& [encoded, decoded] : cases)
        EXPECT_EQ(stringByRemovingPercentEncoding(encoded), decoded) << encoded;
}

} // namespace
} // namespace tarn
