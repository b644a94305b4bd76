#include "tarnmodel/corvel/CVKAST.h"
#include "tarnmodel/corvel/CVKWikiLink.h"

#include "tarnmodel/platform/foundation/values/NSException.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <thread>
#include <vector>

namespace tarn {

namespace {

CVKTextSummary summaryOf(std::string_view text)
{
    return CVKAST::fromMarkdown(text).textSummary();
}

} // namespace

TEST(Document, KeepsTheTextAsItIs)
{
    const std::string text("\xEF\xBB\xBF# T\r\n\r\na\0b\xFF\tc\n", 17);
    EXPECT_EQ(CVKAST::fromMarkdown(text).markdown(), text);
}

TEST(Document, RefusesATextOfMoreThanTwoGibibytes)
{
    // The length alone is looked at; nothing is read.
    const char byte = 'a';
    const std::string_view tooLong(&byte, std::size_t{0x80000001});
    try {
        CVKAST::fromMarkdown(tooLong);
        FAIL() << "taken";
    } catch (const NSException& exception) {
        EXPECT_EQ(exception.name(), NSInvalidArgumentException);
    }
}

TEST(Document, CopiesShareTheParse)
{
    const CVKAST document = CVKAST::fromMarkdown("# T");
    const CVKAST copy = document;
    EXPECT_EQ(&copy.document(), &document.document());
}

TEST(Document, MakesItsSummaryOnceForAllThreads)
{
    const CVKAST document = CVKAST::fromMarkdown("# Title\n\n#tag [[Other]]");
    std::vector<const CVKTextSummary*> summaries(8);
    std::vector<std::thread> threads;
    for (auto& summary : summaries)
        threads.emplace_back([&] { summary = &document.textSummary(); });
    for (std::thread& thread : threads)
        thread.join();
    EXPECT_THAT(summaries, testing::Each(summaries.front()));
    EXPECT_EQ(summaries.front()->title, "Title");
}

TEST(Document, SkipsAByteOrderMark)
{
    const CVKTextSummary summary = summaryOf("\xEF\xBB\xBF# Title [[A]]");
    EXPECT_EQ(summary.title, "Title A");
    EXPECT_EQ(summary.wikiLinks, (std::vector<CVKWikiLink>{{"A", 9}}));
}

TEST(Document, TakesAllLineEnds)
{
    for (const std::string_view lineEnd : {"\n", "\r", "\r\n"}) {
        const std::string end(lineEnd);
        const CVKTextSummary summary
            = summaryOf("# T" + end + end + "one `a" + end + "b` two" + end + "- [ ] x" + end + "```" + end + "c");
        EXPECT_EQ(summary.title, "T");
        EXPECT_EQ(summary.subtitle, "one a b two");
        EXPECT_EQ(summary.todoCount, 1U);
        EXPECT_EQ(summary.codeBlockCount, 1U);
    }
}

TEST(Subtitle, IsCutAfterThreeHundredUnitsAndNotWithinAPair)
{
    EXPECT_EQ(summaryOf("T\n\n" + std::string(400, 'a')).subtitle, std::string(300, 'a'));
    std::string pairs = "a";
    for (int i = 0; i < 200; ++i)
        pairs += "\xF0\x9F\x98\x80";
    EXPECT_EQ(summaryOf("T\n\n" + pairs).subtitle, pairs.substr(0, 1 + 149 * 4));
}

TEST(Subtitle, SkipsHtmlAndTagLines)
{
    EXPECT_EQ(summaryOf("T\n\n<div>\nno\n</div>\n\n#tag\n\n#tag x").subtitle, "#tag x");
    EXPECT_EQ(summaryOf("T\n#tag\nnext").subtitle, "next");
    EXPECT_EQ(summaryOf("T\n\n![](a.png)\n\n[r]: u\n\n***\n\n> quoted").subtitle, "quoted");
    EXPECT_EQ(summaryOf("T\n\n    code\n\n      more").subtitle, "code more");
}

TEST(Title, DropsMarksThatPairAndKeepsOthers)
{
    EXPECT_EQ(summaryOf("**a** _b_ ~~c~~ ==d== `e*` <b>f</b>").title, "a b c d e* f");
    EXPECT_EQ(summaryOf("2 * 3 = 6, a == b, x ~~ y, snake_case").title, "2 * 3 = 6, a == b, x ~~ y, snake_case");
    EXPECT_EQ(summaryOf("![a *picture*](u) [[N|alias]] &lt; \\#").title, "a picture alias < #");
}

TEST(Title, IsOneLineOfItsBlock)
{
    EXPECT_EQ(summaryOf("#a\n*one\ntwo* three").title, "one");
    EXPECT_EQ(summaryOf("- a\n  b").title, "a");
    EXPECT_EQ(summaryOf("> > 1. [x] deep").title, "deep");
    EXPECT_EQ(summaryOf("one  \ntwo").title, "one");
}

TEST(Title, IsEmptyWhereTheLineShowsNoText)
{
    for (const std::string_view text :
        {"", "\n\n", "<div>\nx", "    code", "***", "[r]: u\nText", ">\n> x", "#", "-\n"})
        EXPECT_EQ(summaryOf(text).title, "") << text;
}

TEST(UpdateLinksURL, GivesEditsAndMovesTheSelection)
{
    const CVKAST document = CVKAST::fromMarkdown("\xF0\x9F\x98\x80 [a](x.png) and [b](x.png) end");
    const auto result = document.updateLinksURL("x.png", "longer.png", {28, 3});
    EXPECT_EQ(result.edits, (std::vector<CVKTextEdit>{{{9, 5}, "longer.png"}, {{24, 5}, "longer.png"}}));
    EXPECT_EQ(result.selectionRange, (CVKRange{38, 3}));
    const CVKAST after = document.applyTextOperationResults(result);
    EXPECT_EQ(after.markdown(), "\xF0\x9F\x98\x80 [a](longer.png) and [b](longer.png) end");
}

TEST(UpdateLinksURL, LeavesASelectionBeforeTheEditsAlone)
{
    const CVKAST document = CVKAST::fromMarkdown("text [a](x.png)");
    EXPECT_EQ(document.updateLinksURL("x.png", "y", {0, 0}).selectionRange, (CVKRange{0, 0}));
    EXPECT_EQ(document.updateLinksURL("x.png", "y", {2, 2}).selectionRange, (CVKRange{2, 2}));
}

TEST(UpdateLinksURL, WritesAnEmptyDestinationInBrackets)
{
    const CVKAST document = CVKAST::fromMarkdown("[r] [a](x)\n\n[r]: x");
    EXPECT_EQ(
        document.applyTextOperationResults(document.updateLinksURL("x", "", {})).markdown(), "[r] [a](<>)\n\n[r]: <>");
}

TEST(UpdateLinksURLs, ExchangesNamesInOneStep)
{
    const CVKAST document = CVKAST::fromMarkdown("![](a) [r] [b](<b>) <a:b>\n\n[r]: c%20d 'title'");
    std::vector<std::string> asked;
    const auto newURL = [&](const std::string& destination) -> std::optional<std::string> {
        asked.push_back(destination);
        if (destination == "c%20d")
            return std::nullopt;
        return destination == "a" ? "b" : "a (b)";
    };
    const CVKAST after = document.applyTextOperationResults(document.updateLinksURLs(newURL, {}));
    EXPECT_EQ(after.markdown(), "![](b) [r] [b](<a (b)>) <a:b>\n\n[r]: c%20d 'title'");
    EXPECT_EQ(asked, (std::vector<std::string>{"a", "b", "c%20d"}));
}

TEST(ApplyTextOperationResults, RefusesEditsThatDoNotFit)
{
    const CVKAST document = CVKAST::fromMarkdown("text");
    const auto apply = [&](std::vector<CVKTextEdit> edits) {
        document.applyTextOperationResults({std::move(edits), {}});
    };
    EXPECT_THROW(apply({{{3, 2}, "x"}}), NSException);
    EXPECT_THROW(apply({{{5, 0}, "x"}}), NSException);
    EXPECT_THROW(apply({{{0, 2}, "x"}, {{1, 1}, "y"}}), NSException);
    EXPECT_EQ(document.applyTextOperationResults({{{{4, 0}, "!"}}, {}}).markdown(), "text!");
}

TEST(WikiLinks, AreRewrittenBelowTheTitleLineOnlyWhereItIsNotTheFirst)
{
    const auto rewritten = [](std::string_view text, bool skipInTitle) {
        return CVKWikiLink::updateWikiLinkWithTitle("A", "B", skipInTitle, text).markdown();
    };
    EXPECT_EQ(rewritten("[[A]]\n[[A]]", false), "[[B]]\n[[B]]");
    EXPECT_EQ(rewritten("\n[[A]]\n[[A]]", false), "\n[[A]]\n[[B]]");
    EXPECT_EQ(rewritten("#tag\n[[A]]\n[[A]]", false), "#tag\n[[A]]\n[[B]]");
    EXPECT_EQ(rewritten("[[\xC3\xA1]]", false), "[[B]]");
}

TEST(WikiLinks, StayWhereTheNewTitleWouldBreakTheText)
{
    EXPECT_EQ(CVKWikiLink::updateWikiLinkWithTitle("A", "x`y", false, "a ` b [[A]]\n\n[[A]]").markdown(),
        "a ` b [[A]]\n\n[[x`y]]");
}

} // namespace tarn
