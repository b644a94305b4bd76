#include "tarnmodel/search/HighlightTerms.h"
#include "tarnmodel/search/OVNoteSearchManager.h"

#include <gtest/gtest.h>

namespace tarn {

namespace {

using Manager = OVNoteSearchManager;

/// What the expression of a search marks in a text, "[...]" around each.
std::string marked(std::string_view query, std::string text)
{
    const auto expression = Manager::likeOrRegexForSearchString(query);
    const auto matches = expression.value().allMatches(text);
    for (auto match = matches.rbegin(); match != matches.rend(); ++match) { // ASCII texts: units are bytes
        text.insert(match->range.end(), "]");
        text.insert(match->range.location, "[");
    }
    return text;
}

} // namespace

TEST(Highlighting, MarksWordsPhrasesAndTags)
{
    EXPECT_EQ(marked("apple #fruit \"big red\"", "Apple, big red, #fruit/pie"), "[Apple], [big red], [#fruit]/pie");
    EXPECT_EQ(marked("\"pie\"", "pie PIE pies applepie (pie)"), "[pie] [PIE] pies applepie ([pie])");
    EXPECT_EQ(marked("a.b", "a.b axb"), "[a.b] axb");
    EXPECT_EQ(marked("#*/ideas", "#x/ideas/y"), "#x[/ideas]/y");
    EXPECT_EQ(marked("-apple @todo", "apple"), "[]a[]p[]p[]l[]e[]");
}

TEST(Highlighting, OnlyRaisesFlags)
{
    bool title = true;
    bool ocr = false;
    Manager::likeOrPatternForSearchString("apple", &title, &ocr);
    EXPECT_TRUE(title);
    EXPECT_FALSE(ocr);
    Manager::defaultSearchRegexForSearchString("@ocr apple", &title, &ocr);
    EXPECT_TRUE(ocr);
    title = false;
    EXPECT_TRUE(Manager::likeOrRegexForSearchString("@title", &title, nullptr));
    EXPECT_TRUE(title);
    EXPECT_TRUE(Manager::defaultSearchRegexForSearchString("@title @ocr"));
}

TEST(Highlighting, TakesTheStringAsItIs)
{
    EXPECT_EQ(Manager::likeOrPatternForSearchString("\u200E@todo"), "(\u200E@todo)");
    EXPECT_EQ(Manager::likeOrPatternForSearchString("\"big\nred\""), "(\"big\nred\")");
    EXPECT_EQ(Manager::likeOrPatternForSearchString("\"big\tred\""), "(big\tred)");
    EXPECT_EQ(Manager::likeOrPatternForSearchString("a\tb"), "(a\tb)");
    EXPECT_EQ(Manager::likeOrPatternForSearchString("\n#a"), "(#a)|(\n)");
    EXPECT_EQ(Manager::searchStringForNoteEditor("\n#a"), "\n#a");
    EXPECT_EQ(Manager::searchStringForNoteEditor(" apple"), "apple");
    EXPECT_EQ(Manager::likeOrPatternForSearchString("\xFF"), "(\uFFFD)");
}

TEST(Highlighting, OfNothingIsEmpty)
{
    EXPECT_EQ(Manager::likeOrPatternForSearchString(""), "");
    EXPECT_EQ(Manager::searchStringForNoteEditor(""), "");
    EXPECT_TRUE(Manager::likeOrRegexForSearchString("").has_value());
    EXPECT_TRUE(highlightTermsOfSearchString("-a @todo or").terms.empty());
}

TEST(Highlighting, ClosesUpWhatQuotesAndTagsLeave)
{
    // Words on both sides of a phrase or a tag that leaves only a blank stay apart; those that touch it become one.
    EXPECT_EQ(Manager::likeOrPatternForSearchString("a \"b c\" d"), "(b c)|(a)|(d)");
    EXPECT_EQ(Manager::likeOrPatternForSearchString("(#a)b"), "(#a)|(\\(\\)b)");
    // A phrase that leaves makes the tag behind it the first of its word.
    EXPECT_EQ(Manager::likeOrPatternForSearchString("\"a b\" #c"), "(a b)|(#c)");
}

} // namespace tarn
