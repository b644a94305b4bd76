#include "tarnmodel/corvel/scanning/TableRows.h"

#include <gtest/gtest.h>

#include <array>
#include <string_view>
#include <utility>

namespace tarn::corvel {

TEST(TableRows, AreSplitAtBarsThatAreNotEscaped)
{
    constexpr std::array<std::pair<std::string_view, std::size_t>, 14> kRows{
        {{"a", 1}, {"a | b", 2}, {"| a | b |", 2}, {"|a|b", 2}, {"a|b|", 2}, {"a \\| b", 1}, {"a \\\\| b", 2},
            {"a || b", 3}, {"||", 1}, {"|", 0}, {"", 0}, {" \t| a | \t", 1}, {"a\\", 1}, {"a|\\|", 2}}};
    for (const auto& [row, cells] : kRows)
        EXPECT_EQ(cellsInRow(row), cells) << row;
}

TEST(TableRows, OfDelimitersHoldDashesWithOrWithoutColons)
{
    for (const std::string_view row :
        {"--|--", "|-|", "| :-- | --: | :-: |", "-|-", "|---", "---|", ":-", "-:", "\t|--|\t"})
        EXPECT_TRUE(isDelimiterRow(row)) << row;
    for (const std::string_view row :
        {"", "-", "---", "- -", "|", "||", ":", "::", "|:|", "|-||-|", "|- -|", "|a|", "-|a", "|--\\|--|", "|:-:-|"})
        EXPECT_FALSE(isDelimiterRow(row)) << row;
}

} // namespace tarn::corvel
