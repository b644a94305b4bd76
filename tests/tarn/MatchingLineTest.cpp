#include "tools/tarn/listing/MatchingLine.h"

#include "tools/tarn/commandline/DisplayText.h"

#include <gtest/gtest.h>

namespace tarn {

namespace {

std::string shown(std::string_view text, std::string_view query, std::size_t width = 80)
{
    const TermFinder terms(highlightTermsOfSearchString(query).terms);
    std::string line;
    for (const LinePiece& piece : firstMatchingLine(text, terms, width))
        line += piece.isMatch ? "<" + piece.text + ">" : piece.text;
    return line.empty() ? "none" : line;
}

} // namespace

TEST(MatchingLine, ShowsTheFirstLineWithAWord)
{
    EXPECT_EQ(shown("one\n  two Wörds\nwords", "words"), "two <Wörds>");
    EXPECT_EQ(shown("ab\ncd", "d a"), "<a>b");
    EXPECT_EQ(shown("ab", "x"), "none");
    EXPECT_EQ(shown("word", "word"), "<word>");
    EXPECT_EQ(shown("\n\nword\n", "word"), "<word>");
}

TEST(MatchingLine, MarksEveryPlaceOfEveryTerm)
{
    EXPECT_EQ(shown("x\nÄpfel and Pears, pears", "apfel pears"), "<Äpfel> and <Pears>, <pears>");
    EXPECT_EQ(shown("😀 apples pie", "pie \"apple\""), "😀 apples <pie>");
    EXPECT_EQ(shown("big red", "\"big red\" big"), "<big red>");
    EXPECT_EQ(shown("a piece of pie", "\"pie\" piece"), "a <piece> of <pie>");
}

TEST(MatchingLine, CutsALongLineAroundTheHit)
{
    const std::string line = shown(std::string(100, 'a') + " hit " + std::string(1'000'000, 'b'), "hit", 40);
    EXPECT_TRUE(line.starts_with("…")) << line;
    EXPECT_NE(line.find("<hit>"), std::string::npos) << line;
    EXPECT_TRUE(line.ends_with("…")) << line;
    EXPECT_LE(line.size(), 48U);
}

TEST(MatchingLine, CutsBetweenPlacesAndKeepsThemMarked)
{
    const std::string text
        = "b hit " + std::string(50, 'a') + " hit " + std::string(5, 'a') + " hit " + std::string(50, 'c') + " hit";
    const std::string whole = shown(text, "hit", 200);
    EXPECT_EQ(whole, "b <hit> " + std::string(50, 'a') + " <hit> aaaaa <hit> " + std::string(50, 'c') + " <hit>");
    for (std::size_t width = 1; width < 130; ++width) {
        std::string line = shown(text, "hit", width);
        std::erase(line, '<');
        std::erase(line, '>');
        EXPECT_LE(displayWidth(line), width) << line;
        const bool isWhole = line == text || line == "hit"; // there is no room for more than the word
        EXPECT_EQ(line.find("…") == std::string::npos, isWhole) << width << ": " << line;
    }
}

TEST(MatchingLine, EndsAWordOnlyWhereTheTextDoes)
{
    // The line is cut in the middle of "pies", which is no whole word for that.
    EXPECT_EQ(shown("pie " + std::string(30, 'a') + " pies", "\"pie\"", 38), "<pie> " + std::string(30, 'a') + " pi…");
}

} // namespace tarn
