#include "tarnmodel/corvel/CVKAST.h"
#include "tarnmodel/corvel/CVKHashtag.h"
#include "tarnmodel/corvel/CVKWikiLink.h"
#include "tarnmodel/corvel/blocks/Document.h"

#include "tarnmodel/platform/foundation/text/UTF.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <functional>

namespace tarn {

namespace {

std::string times(std::string_view piece, std::size_t count)
{
    std::string text;
    for (; count > 0; --count)
        text += piece;
    return text;
}

/// A way to write something of which the parser takes a limited amount; "%" stands for that amount.
struct Syntax {
    std::string text;
    /// What is found when it was taken.
    std::function<bool(const CVKAST&)> isTaken;
};

bool hasLink(const CVKAST& document)
{
    return document.textSummary().links.size() == 1;
}
bool hasHashtag(const CVKAST& document)
{
    return document.document().hashtags.size() == 1;
}
bool hasTag(const CVKAST& document)
{
    return document.textSummary().tags.size() == 1;
}
std::function<bool(const CVKAST&)> showing(std::string html)
{
    return [html = std::move(html)](const CVKAST& document) { return document.html().find(html) != std::string::npos; };
}

std::string filledIn(std::string text, const std::string& amount)
{
    for (std::size_t at = text.find('%'); at != std::string::npos; at = text.find('%', at + amount.size()))
        text.replace(at, 1, amount);
    return text;
}

/// The text as it stands in a paragraph, in a quote, in items, nested.
std::vector<std::string> inContainers(const std::string& text)
{
    const auto prefixed = [&text](const std::string& first, const std::string& others) {
        std::string result = first;
        for (const char c : text) {
            result += c;
            if (c == '\n')
                result += others;
        }
        return result;
    };
    return {text, prefixed("> ", "> "), prefixed("- ", "  "), prefixed("1. > ", "   > "), prefixed("> - ", ">   ")};
}

/// The amount is taken at the limit and not beyond, in every syntax and every container.
void expectLimit(const std::vector<Syntax>& syntaxes, const std::string& most, const std::string& tooMuch)
{
    for (const Syntax& syntax : syntaxes) {
        for (const std::string& text : inContainers(syntax.text)) {
            SCOPED_TRACE(text);
            EXPECT_TRUE(syntax.isTaken(CVKAST::fromMarkdown(filledIn(text, most))));
            EXPECT_FALSE(syntax.isTaken(CVKAST::fromMarkdown(filledIn(text, tooMuch))));
        }
    }
}

void expectLimit(const std::vector<Syntax>& syntaxes, std::size_t most, const std::vector<std::string>& pieces)
{
    for (const std::string& piece : pieces)
        expectLimit(syntaxes, times(piece, most), times(piece, most + 1));
}

} // namespace

TEST(ParserLimits, LabelsHave999Characters)
{
    const std::vector<Syntax> syntaxes{
        {"[%]\n\n[%]: u", hasLink},
        {"[%][]\n\n[%]: u", hasLink},
        {"[text][%]\n\n[%]: u", hasLink},
        {"![%]\n\n[%]: u", hasLink},
        {"![%][]\n\n[%]: u", hasLink},
        {"![text][%]\n\n[%]: u 't'", hasLink},
        {"[%]:\nu\n\n*x [%]*", hasLink},
    };
    expectLimit(syntaxes, 999, {"a", "\u00E4", "\u4E2D", "\U0001F600"});
    // An escape has two characters, blanks count as written, and so do those at the ends.
    expectLimit(syntaxes, times("\\]", 499) + "x", times("\\]", 499) + "xx");
    expectLimit(syntaxes, times("a ", 499) + "a", times("a ", 499) + "aa");
    expectLimit(syntaxes, " " + times("a", 997) + " ", " " + times("a", 998) + " ");
    // Where a label is used its own length counts, not that of the one that defines it.
    const std::vector<Syntax> uses{{"[%]\n\n[a b]: u", hasLink}, {"[%][]\n\n[a b]: u", hasLink},
        {"![%]\n\n[a b]: u", hasLink}, {"[text][%]\n\n[a b]: u", hasLink}};
    expectLimit(uses, "a" + times(" ", 997) + "b", "a" + times(" ", 998) + "b");
}

TEST(ParserLimits, TextsOfLinksHaveNone)
{
    const std::string text = times("a ", 2000);
    for (const std::string syntax :
        {"[%](u)", "![%](u)", "[%][r]\n\n[r]: u", "[x](u '%')", "[x](<%>)", "[r]: u '%'\n\n[r]"})
        EXPECT_TRUE(hasLink(CVKAST::fromMarkdown(filledIn(syntax, text)))) << syntax;
}

TEST(ParserLimits, DestinationsNest32Parentheses)
{
    const std::vector<Syntax> syntaxes{{"[t](%)", hasLink}, {"![t](%)", hasLink}, {"[t]( % 'title')", hasLink},
        {"[r]: %\n\n[r]", hasLink}, {"[r]:\n%\n'title'\n\n![r]", hasLink}, {"[[1]](%)", hasLink},
        {"**[t](%)**", hasLink}};
    const auto nested = [](std::size_t depth) { return times("(", depth) + "u" + times(")", depth); };
    expectLimit(syntaxes, nested(32), nested(33));
    expectLimit(syntaxes, nested(32) + nested(32), nested(32) + nested(33));
    for (const Syntax& syntax : syntaxes) {
        EXPECT_TRUE(hasLink(CVKAST::fromMarkdown(filledIn(syntax.text, times("\\(", 100))))) << syntax.text;
        EXPECT_TRUE(hasLink(CVKAST::fromMarkdown(filledIn(syntax.text, "<" + times("(", 100) + ">")))) << syntax.text;
    }
    // What has no tail is a wiki link again.
    EXPECT_EQ(CVKAST::fromMarkdown(filledIn("[[1]](%)", nested(33))).textSummary().wikiLinks.size(), 1U);
}

TEST(ParserLimits, HashtagsHave500Characters)
{
    const std::vector<std::string> pieces{"a", "\u00E4", "\u4E2D", "\U0001F600"};
    const std::vector<Syntax> open{{"#%", hasHashtag}, {"x #% y", hasHashtag}, {"[#%](u)", hasHashtag},
        {"(#%)", hasHashtag}, {"| #% |", hasHashtag}, {"x\n#%\ny", hasHashtag}, {"#%", hasTag}};
    expectLimit(open, 500, pieces);
    // A closed hashtag is read up to 502; its name has 500 all the same.
    const std::vector<Syntax> closed{
        {"#%#", hasHashtag}, {"x #%# y", hasHashtag}, {"*#%#*", hasHashtag}, {"[#%#](u)", hasHashtag}};
    expectLimit(closed, 502, pieces);
    expectLimit({{"#%#", hasTag}, {"x #%#.", hasTag}}, 500, pieces);
    expectLimit({{"#%#", hasTag}}, "a " + times("b", 498), "a " + times("b", 499));
    for (const std::string& piece : pieces) {
        EXPECT_NE(CVKHashtag::sanitizeTagName(times(piece, 500)), "");
        EXPECT_EQ(CVKHashtag::sanitizeTagName(times(piece, 501)), "");
        EXPECT_EQ(CVKHashtag::hashtagStringForTagName(times(piece, 501)), "");
    }
}

TEST(ParserLimits, NumericReferencesHaveSevenDigitsOrSixHexDigits)
{
    const std::vector<Syntax> syntaxes{
        {"_&#%;_", showing("<em>A</em>")},
        {"x **&#%;**", showing("<strong>A</strong>")},
        {"[t](&#%;)", showing("href=\"A\"")},
        {"[t](<&#%;>)", showing("href=\"A\"")},
        {"![t](u '&#%;')", showing("title=\"A\"")},
        {"[r]: &#%; \"&#%;\"\n\n[r]", showing("href=\"A\" title=\"A\"")},
        {"x\n\n```&#%; y\nz\n```", showing("class=\"language-A\"")},
        {"x\n\n~~~ &#%;\nz", showing("class=\"language-A\"")},
    };
    expectLimit(syntaxes, "0000065", "00000065");
    expectLimit(syntaxes, "x000041", "x0000041");
    expectLimit(syntaxes, "X41", "X41x");
    EXPECT_EQ(CVKAST::fromMarkdown("&CounterClockwiseContourIntegral;").textSummary().title, "\u2233");
    EXPECT_EQ(CVKAST::fromMarkdown("&#0;&#xD800;&#9999999;").textSummary().title, "\uFFFD\uFFFD\uFFFD");
}

TEST(ParserLimits, AutolinksHaveSchemesOfTwoTo32CharactersAndLabelsOf63)
{
    const std::vector<Syntax> schemes{{"<%:x>", hasLink}, {"x <%:> y", hasLink}, {"[<%:x>]", hasLink}};
    expectLimit(schemes, 32, {"a"});
    expectLimit(schemes, "a1+.-", "1a");
    expectLimit(schemes, "ab", "a");
    const std::vector<Syntax> hosts{{"<me@%>", hasLink}, {"<me@%.org>", hasLink}, {"<me@a.%.%.org>", hasLink},
        {"x <me@%.a-b.c> y", hasLink}, {"[<me@%>]", hasLink}};
    expectLimit(hosts, 63, {"b", "1"});
    expectLimit(hosts, "b-b", "b-");
    EXPECT_TRUE(hasLink(CVKAST::fromMarkdown("<" + times("a", 300) + "@b.c>"))) << "a name may be as long as it likes";
}

TEST(ParserLimits, NumbersOfListsHaveNineDigits)
{
    expectLimit({{"%. x", showing("<ol start=\"123456789\">")}, {"%) x", showing("<ol start=\"123456789\">")},
                    {"%.", showing("<ol start=\"123456789\">")}, {"%.\tx", showing("<ol start=\"123456789\">")}},
        "123456789", "1234567890");
    EXPECT_EQ(CVKAST::fromMarkdown("123456789. [ ] x").textSummary().todoCount, 1U);
    EXPECT_EQ(CVKAST::fromMarkdown("1234567890. [ ] x").textSummary().todoCount, 0U);
}

TEST(ParserLimits, HeadingsHaveSixLevels)
{
    expectLimit({{"% x", showing("<h6>x</h6>")}, {"% x %", showing("<h6>x</h6>")}, {"%", showing("<h6></h6>")},
                    {"x\n\n%\ty", showing("<h6>y</h6>")}},
        "######", "#######");
}

TEST(ParserLimits, MarksAreIndentedByThreeBlanks)
{
    const std::vector<Syntax> syntaxes{{"x\n\n%# h", showing("<h1>h</h1>")}, {"x\n\n%```\ncode", showing("<pre>")},
        {"x\n\n%---", showing("<hr />")}, {"x\n%===", showing("<h1>")}, {"x\n\n%> q", showing("q</p>\n</blockquote>")},
        {"x\n\n%- item", showing("<li>item</li>")}, {"x\n\n%1) item", showing("<li>item</li>")},
        {"x\n\n%<div>", showing("<div>")}, {"[r]\n\n%[r]: u", hasLink}};
    for (const Syntax& syntax : syntaxes) {
        for (const std::string prefix : {"", "> "}) {
            std::string text = syntax.text;
            if (!prefix.empty()) {
                text = prefix + text;
                for (std::size_t at = text.find('\n'); at != std::string::npos; at = text.find('\n', at + 3))
                    text.insert(at + 1, prefix);
            }
            SCOPED_TRACE(text);
            EXPECT_TRUE(syntax.isTaken(CVKAST::fromMarkdown(filledIn(text, "   "))));
            const CVKAST beyond = CVKAST::fromMarkdown(filledIn(text, "    "));
            if (syntax.text.find("```") == std::string::npos) // which is code either way
                EXPECT_FALSE(syntax.isTaken(beyond));
            else
                EXPECT_NE(beyond.html().find("```"), std::string::npos);
        }
    }
}

TEST(ParserLimits, SubtitlesHave300UTF16Units)
{
    for (const std::string frame :
        {"# T\n\n%", "# T\n\n- %", "# T\n\n> %", "# T\n\n    %", "T\n%", "# T\n\n[%](u)", "# T\n\n`%`"}) {
        for (const std::string piece : {"a", "\u00E4", "\u4E2D"}) {
            const std::string subtitle
                = CVKAST::fromMarkdown(filledIn(frame, times(piece, 400))).textSummary().subtitle;
            EXPECT_EQ(subtitle, times(piece, 300)) << frame;
        }
        // Never half of a pair.
        const std::string text = filledIn(frame, "x" + times("\U0001F600", 200));
        EXPECT_EQ(CVKAST::fromMarkdown(text).textSummary().subtitle, "x" + times("\U0001F600", 149)) << frame;
    }
    const std::string title = times("a", 5000);
    for (const std::string frame : {"# %\n\nx", "%\nx", "- %\n- x", "> %\n>\n> x", "%\n===\nx", "- [ ] %\n- x"})
        EXPECT_EQ(CVKAST::fromMarkdown(filledIn(frame, title)).textSummary().title, title) << "titles have no limit";
}

TEST(ParserLimits, AFewLinksThatCannotBeRewrittenKeepNoOtherFromIt)
{
    std::string text;
    for (int number = 0; number < 1000; ++number)
        text += number % 500 == 250 ? "a ` [[Old]]\n\n" : "[[Old]] and [[Old|it]]\n\n";
    const std::string written = CVKWikiLink::updateWikiLinkWithTitle("Old", "x`y", false, text).markdown();
    std::string expected;
    for (int number = 0; number < 1000; ++number)
        expected += number % 500 == 250 ? "a ` [[Old]]\n\n" : "[[x`y]] and [[x`y|it]]\n\n";
    EXPECT_EQ(written, expected);
}

} // namespace tarn
