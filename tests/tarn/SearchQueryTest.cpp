#include "tools/tarn/SearchQuery.h"
#include "tools/tarn/MatchingLine.h"

#include <gtest/gtest.h>

namespace tarn {

namespace {

std::string shown(std::string_view text, std::vector<std::string> words, std::size_t width = 80)
{
    const auto line = firstMatchingLine(text, words, width);
    return line ? line->before + "<" + line->match + ">" + line->after : "none";
}

} // namespace

TEST(SearchQuery, ReadsWordsTagsAndTheirNegations)
{
    EXPECT_EQ(searchQueryOfText("  Ünder -b #a -#c/d #x y# # -").words, (std::vector<std::string>{"under", "#", "-"}));
    EXPECT_FALSE(searchQueryOfText("").predicate.has_value());
    EXPECT_FALSE(searchQueryOfText("   ").predicate.has_value());
}

TEST(SearchQuery, NamesTagsAsTheyAreWritten)
{
    const std::string format = searchQueryOfText("#one two# rest").predicate->predicateFormat();
    EXPECT_NE(format.find("\"one two\""), std::string::npos) << format;
    EXPECT_EQ(format.find("\"one\""), std::string::npos) << format;
    const std::string open = searchQueryOfText("#one #two").predicate->predicateFormat();
    EXPECT_NE(open.find("\"one\""), std::string::npos) << open;
    EXPECT_NE(open.find("\"two\""), std::string::npos) << open;
}

TEST(SearchQuery, KeepsQuotesAndBackslashesOfWords)
{
    const std::string format = searchQueryOfText("\"a\\'b").predicate->predicateFormat();
    EXPECT_EQ(NSPredicate::predicateWithFormat(format).predicateFormat(), format);
}

TEST(MatchingLine, ShowsTheFirstLineWithAWord)
{
    EXPECT_EQ(shown("one\n  two Wörds\nwords", {"words"}), "two <Wörds>");
    EXPECT_EQ(shown("ab\ncd", {"d", "a"}), "<a>b");
    EXPECT_EQ(shown("ab", {"x"}), "none");
    EXPECT_EQ(shown("word", {"word"}), "<word>");
    EXPECT_EQ(shown("\n\nword\n", {"word"}), "<word>");
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
