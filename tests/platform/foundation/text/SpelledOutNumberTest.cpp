#include "tarnmodel/platform/foundation/text/SpelledOutNumber.h"

#include <gtest/gtest.h>

#include <random>
#include <string>

namespace tarn {

TEST(SpelledOutNumber, ReadsNumeralsAndDigits)
{
    const std::pair<std::string_view, std::int64_t> numbers[]{{"七", 7}, {"十", 10}, {"十一", 11}, {"二十一", 21},
        {"一百", 100}, {"三千", 3000}, {"一百零五", 105}, {"一百〇五", 105}, {"两", 2}, {"〇", 0}, {"零", 0}, {"壹", 1},
        {"七八", 78}, {"第七", 7}, {"三点五", 3}, {"-7", -7}, {"负七", -7}, {"7", 7}, {"７", 7}, {"12", 12},
        {"1,234", 1234}, {"3.5", 3}, {"一万", 10'000}, {"一千二百三十四万五千六百七十八", 12'345'678},
        {"九千九百九十九万九千九百九十九", 99'999'999}, {"一万亿", 1'000'000'000'000}, {"二亿", 200'000'000}};
    for (const auto& [text, number] : numbers)
        EXPECT_EQ(integerFromChineseNumerals(text), number) << text;
}

TEST(SpelledOutNumber, ReadsAllOrNothing)
{
    for (const std::string_view text : {"", "七天", "abc", "seven", "百", "万", " 七", "七 ", "1七", "七1", "百百",
             "一百一百", "第", "负", "点五", "\xFF"})
        EXPECT_EQ(integerFromChineseNumerals(text), std::nullopt) << text;
    EXPECT_EQ(integerFromChineseNumerals(std::string(32, '0')), 0);
    EXPECT_EQ(integerFromChineseNumerals(std::string(33, '0')), std::nullopt);
    EXPECT_EQ(integerFromChineseNumerals(std::string(30, '9')), std::nullopt);
}

TEST(SpelledOutNumber, ReadsNoDisorder)
{
    // It is told from its shape: looking for a number in it would take a second for each, and the test would not end.
    constexpr std::uint32_t kSeed = 99;
    SCOPED_TRACE("seed " + std::to_string(kSeed));
    std::mt19937 random(kSeed);
    const std::vector<std::string> numerals{
        "十", "百", "千", "万", "亿", "兆", "一", "七", "零", "〇", "第", "负", "点", "两"};
    for (int round = 0; round < 2'000; ++round) {
        std::string text;
        const std::size_t kinds = 2 + random() % 12;
        for (int length = 0; length < 32; ++length)
            text += numerals[random() % kinds];
        ASSERT_EQ(integerFromChineseNumerals(text), std::nullopt) << text;
    }
}

} // namespace tarn
