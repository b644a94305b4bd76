#include "tarnmodel/corvel/CVKAST.h"
#include "tarnmodel/corvel/CVKHashtag.h"
#include "tarnmodel/corvel/CVKWikiLink.h"
#include "tests/support/LinearGrowth.h"

#include <gtest/gtest.h>

#include <functional>
#include <ostream>
#include <string>
#include <vector>

namespace tarn {

namespace {

std::string repeated(std::string_view piece, std::size_t bytes)
{
    std::string text;
    text.reserve(bytes + piece.size());
    while (text.size() < bytes)
        text += piece;
    return text;
}

/// before + middle, over and over, + after.
std::string around(std::string_view before, std::string_view middle, std::string_view after, std::size_t bytes)
{
    return repeated(before, bytes / 2) + std::string(middle) + repeated(after, bytes / 2);
}

/// Runs of marks of all lengths.
std::string growingRuns(char mark, std::string_view separator, std::size_t bytes)
{
    std::string text;
    for (std::size_t length = 1; text.size() < bytes; ++length)
        text += std::string(length, mark) + std::string(separator);
    return text;
}

struct Family {
    const char* name;
    std::function<std::string(std::size_t)> text;
    friend std::ostream& operator<<(std::ostream& stream, const Family& family) { return stream << family.name; }
};

Family repeating(const char* name, std::string piece)
{
    return {name, [piece = std::move(piece)](std::size_t bytes) { return repeated(piece, bytes); }};
}

std::vector<Family> families()
{
    return {
        repeating("OpeningBrackets", "["),
        repeating("ClosingBrackets", "]"),
        repeating("ImageOpeners", "!["),
        repeating("ImagesInBrackets", "![[]()"),
        repeating("EmptyLinks", "[]()"),
        repeating("OpenLinks", "[a]("),
        repeating("OpenLinksInAngles", "[a](<b"),
        repeating("OpenLinkTitles", "[a](b \""),
        repeating("OpenLinkTitlesInParentheses", "[a](b ("),
        repeating("OpenLinkTitlesOfAllKinds", "[a](b \"[a](b '[a](b ("),
        repeating("NestedLinks", "[a [b](c) "),
        repeating("References", "[a][a]"),
        repeating("LabelsThatStayOpen", "[a][b"),
        repeating("BracketPairsInside", "[a[b]]"),
        repeating("WikiLinkOpeners", "[["),
        repeating("WikiLinksThatStayOpen", "[[a"),
        repeating("WikiLinks", "[[a]]"),
        repeating("WikiLinksBeforeOpenTails", "[[a]](b \""),
        repeating("EscapedBrackets", "\\[\\]"),
        {"NestedBrackets", [](std::size_t n) { return around("[", "a", "]", n); }},
        {"NestedBracketsWithTails", [](std::size_t n) { return around("[", "a", "](u)", n); }},
        {"NestedImages", [](std::size_t n) { return around("![", "a", "](u)", n); }},
        {"NestedParentheses", [](std::size_t n) { return "[a](" + around("(", "b", ")", n) + ")"; }},
        {"OneLongLabel", [](std::size_t n) { return "[" + repeated("a ", n) + "]"; }},
        {"LongLabelsInARow", [](std::size_t n) { return repeated("[" + std::string(990, 'a') + "]", n); }},
        {"NestedEmphasis", [](std::size_t n) { return around("*a ", "b", " a*", n); }},
        {"NestedStrong", [](std::size_t n) { return around("**a ", "b", " a**", n); }},
        {"NestedEmphasisOfBothMarks", [](std::size_t n) { return around("*a _b ", "c", " b_ a*", n); }},
        repeating("EmphasisOpeners", "*a "),
        repeating("EmphasisClosers", "a* "),
        repeating("EmphasisOpenersOfBothMarks", "*a _b "),
        repeating("MarksThatOpenAndClose", "a**b"),
        repeating("UnderscoresWithin", "_a_b"),
        repeating("MarksOfMixedLengths", "*a **b ***c "),
        repeating("MismatchedRuns", "a*** b_ "),
        {"OpenersOfOneMarkBeforeClosersOfTheOther", [](std::size_t n) { return around("*a ", "b", " c_", n); }},
        repeating("Highlights", "==a "),
        {"GrowingRunsOfStars", [](std::size_t n) { return growingRuns('*', "a", n); }},
        {"GrowingRunsOfBackticks", [](std::size_t n) { return growingRuns('`', "a", n); }},
        {"GrowingRunsOfHashMarks", [](std::size_t n) { return growingRuns('#', "a", n); }},
        repeating("BackticksThatClose", "`a` "),
        repeating("BackticksOfTwoLengths", "`a``"),
        {"BackticksBehindOneThatNeverCloses", [](std::size_t n) { return "``` " + repeated("`` x ", n) + "`"; }},
        repeating("CommentOpeners", "a <!-- "),
        repeating("InstructionOpeners", "a <? "),
        repeating("DeclarationOpeners", "a <!X "),
        repeating("CDataOpeners", "a <![CDATA["),
        repeating("TagsThatStayOpen", "<a b=\"c "),
        repeating("AttributesWithoutEnd", "<a x "),
        repeating("AngleBrackets", "<"),
        repeating("AutolinksThatStayOpen", "<http://a"),
        repeating("MailsThatStayOpen", "<a@b"),
        repeating("Entities", "&amp"),
        repeating("NumericEntities", "&#12345"),
        repeating("HashMarks", "#a"),
        repeating("OpenHashtags", "#a "),
        repeating("ClosedHashtags", "#a b# "),
        repeating("HashtagsInParentheses", "(#a "),
        {"OneLongHashtag", [](std::size_t n) { return "#" + repeated("a", n); }},
        {"HashtagsAfterMarks", [](std::size_t n) { return repeated("*#", n); }},
        {"MarksBeforeAHashtag", [](std::size_t n) { return repeated("*", n) + "#a"; }},
        repeating("BareURLs", "a://"),
        repeating("SchemesWithoutEnd", "abcdefgh:"),
        repeating("Backslashes", "\\"),
        repeating("Quotes", ">"),
        repeating("QuotesLineByLine", "> a\n"),
        repeating("NestedItems", "- "),
        repeating("NestedOrderedItems", "1. "),
        repeating("ItemsOfAllMarks", "* - + "),
        repeating("MarksOfABreak", "* * * * a\n"),
        repeating("BreakMarksOfBothKinds", "* - * - "),
        {"ALongBreakWithInkAtItsEnd", [](std::size_t n) { return repeated("* ", n) + "a"; }},
        {"ALongUnderline", [](std::size_t n) { return "a\n" + repeated("-", n) + "a"; }},
        {"DeepItemsBeforeBlankLines",
            [](std::size_t n) { return repeated("- ", n / 2) + "a" + repeated("\n", n / 2); }},
        {"DeepQuotesBeforeBlankLines",
            [](std::size_t n) { return repeated("> ", n / 2) + "a" + repeated("\n", n / 2); }},
        {"DeepQuotesBeforeLazyLines",
            [](std::size_t n) { return repeated("> ", n / 2) + "a" + repeated("\na", n / 2); }},
        {"DeepItemsBeforeLazyLines",
            [](std::size_t n) { return repeated("- ", n / 2) + "a" + repeated("\na", n / 2); }},
        {"DeepItemsInAQuoteBeforeBlankLines",
            [](std::size_t n) { return "> " + repeated("- ", n / 2) + "a" + repeated("\n>", n / 2); }},
        repeating("Fences", "```\n"),
        repeating("FencesWithBackticksBehind", "```a`\n"),
        repeating("HtmlBlocks", "<div>\n"),
        repeating("HtmlBlocksOfOneKind", "<script>\n"),
        repeating("Definitions", "[a]: b\n"),
        {"DefinitionsOfManyLabels",
            [](std::size_t n) {
                std::string text;
                for (std::size_t i = 0; text.size() < n; ++i)
                    text += "[l" + std::to_string(i) + "]: u\n";
                return text + repeated("[l1]", n);
            }},
        repeating("DefinitionsWithoutDestination", "[a]:\n"),
        {"DefinitionsWithOpenTitles", [](std::size_t n) { return repeated("[a]: b 'c\n", n); }},
        repeating("RowsOfTables", "[a](b) | c\n-|-\n"),
        repeating("RowsOfBars", "[a](b) |||\n"),
        repeating("DefinitionsInQuotes", "> [a]: b\n\n"),
        repeating("Underlines", "[a]: b\n===\n"),
        repeating("LineFeeds", "\n"),
        repeating("Returns", "\r"),
        repeating("ReturnsAndText", "a\r"),
        repeating("Tabs", "\t"),
        repeating("TabsInItems", "-\t"),
        {"OneLongLine", [](std::size_t n) { return std::string(n, 'a'); }},
        {"InvalidBytes", [](std::size_t n) { return std::string(n, '\xFF'); }},
        {"Nuls", [](std::size_t n) { return std::string(n, '\0'); }},
    };
}

std::string nameOfFamily(const testing::TestParamInfo<Family>& info)
{
    return info.param.name;
}

} // namespace

class LinearTime : public testing::TestWithParam<Family> { };

TEST_P(LinearTime, ParsingTheSummaryAndHtml)
{
    const auto parse = [](const std::string& text) {
        const CVKAST document = CVKAST::fromMarkdown(text);
        document.textSummary();
        document.html();
    };
    expectLinear(parse, GetParam().text, 32 * 1024);
}

TEST_P(LinearTime, ListingLinksAndBlocks)
{
    const auto list = [](const std::string& text) {
        const CVKAST document = CVKAST::fromMarkdown(text);
        document.links();
        document.linkDefinitions();
        document.topLevelBlocks(text.size());
    };
    expectLinear(list, GetParam().text, 32 * 1024);
}

TEST_P(LinearTime, Rewriting)
{
    const auto rewrite = [](const std::string& text) {
        CVKHashtag::renameTagName("a", "b c", text);
        CVKHashtag::removeTagName("a", text);
        CVKHashtag::addTagNameToTheTopOfString("b", text);
        CVKHashtag::addTagNameToTheBottomOfString("b", text);
        CVKWikiLink::updateWikiLinkWithTitle("a", "b", false, text);
        CVKAST::fromMarkdown(text).updateLinksURL("b", "c", {});
    };
    expectLinear(rewrite, GetParam().text, 8 * 1024);
}

INSTANTIATE_TEST_SUITE_P(Families, LinearTime, testing::ValuesIn(families()), nameOfFamily);

namespace {

/// Names that people cannot have meant, but can paste.
std::vector<Family> namesOfTags()
{
    return {
        repeating("Slashes", "/"),
        repeating("DotsAndSlashes", "./"),
        repeating("BlanksAndSlashes", " /"),
        repeating("MarksAndSlashes", "*/-/"),
        {"DotsAndSlashesAroundAName", [](std::size_t n) { return around("./", "a", "/-", n); }},
        {"TerminatorsBehindAColor", [](std::size_t n) { return "facade " + repeated(")/", n); }},
        repeating("Components", "a/"),
        repeating("HashMarks", "#"),
    };
}

} // namespace

class LinearNames : public testing::TestWithParam<Family> { };

TEST_P(LinearNames, Sanitizing)
{
    const auto sanitize = [](const std::string& name) { CVKHashtag::sanitizeTagName(name); };
    expectLinear(sanitize, GetParam().text, 8 * 1024);
}

INSTANTIATE_TEST_SUITE_P(Families, LinearNames, testing::ValuesIn(namesOfTags()), nameOfFamily);

TEST(DeepNesting, EmphasisNestsTwentyFiveThousandDeep)
{
    constexpr std::size_t kDepth = 25000;
    std::string text;
    for (std::size_t i = 0; i < kDepth; ++i)
        text += "*a ";
    text += 'b';
    for (std::size_t i = 0; i < kDepth; ++i)
        text += " a*";
    const CVKAST document = CVKAST::fromMarkdown(text);
    const std::string html = document.html();
    EXPECT_EQ(html.find("</em>"), html.rfind("<em>") + std::string("<em>a b a").size());
    EXPECT_EQ(document.textSummary().title.find('*'), std::string::npos);
}

TEST(DeepNesting, QuotesAndItemsNestWithoutDeepStacks)
{
    constexpr std::size_t kDepth = 100000;
    for (const std::string_view marker : {"> ", "- ", "1. "}) {
        const CVKAST document = CVKAST::fromMarkdown(repeated(marker, kDepth * marker.size()) + "end");
        EXPECT_EQ(document.textSummary().title, "end");
        EXPECT_NE(document.html().find("end"), std::string::npos);
    }
}

TEST(DeepNesting, ADestinationHoldsThirtyTwoParenthesesAndNoMore)
{
    const auto linkWith
        = [](std::size_t depth) { return "[a](" + std::string(depth, '(') + "b" + std::string(depth, ')') + ")"; };
    EXPECT_EQ(CVKAST::fromMarkdown(linkWith(32)).textSummary().links.size(), 1U);
    EXPECT_TRUE(CVKAST::fromMarkdown(linkWith(33)).textSummary().links.empty());
}

TEST(DeepNesting, ALabelHasNineHundredNinetyNineCharactersAtMost)
{
    for (const std::string_view character : {"a", "\xC3\xA4"}) {
        const std::string fits = repeated(character, 999 * character.size());
        const std::string tooLong = repeated(character, 1000 * character.size());
        EXPECT_EQ(CVKAST::fromMarkdown("[" + fits + "]: u\n\n[" + fits + "]").textSummary().links.size(), 1U);
        EXPECT_TRUE(CVKAST::fromMarkdown("[" + tooLong + "]: u\n\n[" + tooLong + "]").textSummary().links.empty());
    }
}

} // namespace tarn
