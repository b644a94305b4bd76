#include "tools/tarn/MatchingLine.h"

#include <gtest/gtest.h>

namespace tarn {

namespace {

std::string shown(
    std::string_view text, std::vector<std::string> words, std::size_t width = 80, const char* pattern = nullptr)
{
    std::optional<RegularExpression> expression;
    if (pattern)
        expression = RegularExpression(pattern, {.caseInsensitive = true});
    std::string line;
    for (const LinePiece& piece : firstMatchingLine(text, words, expression, width))
        line += piece.isMatch ? "<" + piece.text + ">" : piece.text;
    return line.empty() ? "none" : line;
}

} // namespace

TEST(MatchingLine, ShowsTheFirstLineWithAWord)
{
    EXPECT_EQ(shown("one\n  two Wörds\nwords", {"words"}), "two <Wörds>");
    EXPECT_EQ(shown("ab\ncd", {"d", "a"}), "<a>b");
    EXPECT_EQ(shown("ab", {"x"}), "none");
    EXPECT_EQ(shown("word", {"word"}), "<word>");
    EXPECT_EQ(shown("\n\nword\n", {"word"}), "<word>");
}

TEST(MatchingLine, MarksWhatTheExpressionMatchesAsWell)
{
    EXPECT_EQ(
        shown("x\nÄpfel and Pears, pears", {"apfel", "pears"}, 80, "(apfel)|(pears)"), "<Äpfel> and <Pears>, <pears>");
    EXPECT_EQ(shown("😀 apples pie", {"pie"}, 80, "((?i)(?<!\\w)apple(?!\\w))|(pie)"), "😀 apples <pie>");
    EXPECT_EQ(shown("big red", {"big"}, 80, "(big red)"), "<big red>");
    EXPECT_EQ(shown("word", {"word"}, 80, ""), "<word>");
}

TEST(MatchingLine, CutsALongLineAroundTheHit)
{
    const std::string line = shown(std::string(100, 'a') + " hit " + std::string(1'000'000, 'b'), {"hit"}, 40);
    EXPECT_TRUE(line.starts_with("…")) << line;
    EXPECT_NE(line.find("<hit>"), std::string::npos) << line;
    EXPECT_TRUE(line.ends_with("…")) << line;
    EXPECT_LE(line.size(), 48U);
}

} // namespace tarn
