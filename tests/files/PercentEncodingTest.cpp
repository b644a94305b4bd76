#include "files/PercentEncoding.h"

#include <gtest/gtest.h>

#include <vector>

namespace tarn {
namespace {

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
