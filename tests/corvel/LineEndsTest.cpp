#include "tarnmodel/corvel/CVKAST.h"
#include "tarnmodel/corvel/CVKHashtag.h"
#include "tarnmodel/corvel/CVKWikiLink.h"
#include "tarnmodel/corvel/blocks/Document.h"
#include "tests/corvel/CommonMarkExamples.h"
#include "tests/corvel/RandomMarkdown.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <array>
#include <functional>

namespace tarn {

namespace {

using testing::ElementsAre;
using testing::IsEmpty;

constexpr std::uint64_t kLineEndsSeed = 1310;

/// The text with every LF replaced by what `lineEnd` gives, and which offset of the text each offset of it was.
struct Variant {
    std::string text;
    std::vector<std::size_t> originOf;
};

Variant withLineEnds(const std::string& text, const std::function<std::string_view()>& lineEnd)
{
    Variant variant;
    for (std::size_t at = 0; at < text.size(); ++at) {
        std::string_view written = std::string_view(text).substr(at, 1);
        if (written == "\n") {
            written = lineEnd();
            if (written == "\n" && variant.text.ends_with('\r'))
                written = "\r\n"; // both would be one line end
        }
        variant.text += written;
        variant.originOf.insert(variant.originOf.end(), written.size(), at);
    }
    variant.originOf.push_back(text.size());
    return variant;
}

std::string withLineFeeds(std::string_view text)
{
    std::string result;
    for (std::size_t at = 0; at < text.size(); ++at) {
        if (text[at] != '\r')
            result += text[at];
        else if (at + 1 == text.size() || text[at + 1] != '\n')
            result += '\n';
    }
    return result;
}

/// CR, CRLF, and all three at random.
std::vector<Variant> variantsOf(const std::string& text, RandomMarkdown& random)
{
    constexpr std::array<std::string_view, 3> kEnds{"\n", "\r", "\r\n"};
    return {withLineEnds(text, [] { return "\r"; }), withLineEnds(text, [] { return "\r\n"; }),
        withLineEnds(text, [&] { return kEnds[random.below(kEnds.size())]; })};
}

void expectSameRange(corvel::SourceRange given, corvel::SourceRange expected, const Variant& variant)
{
    EXPECT_EQ(variant.originOf[given.begin], expected.begin);
    EXPECT_EQ(variant.originOf[given.end], expected.end);
}

template <typename Part>
void expectSameRanges(const std::vector<Part>& given, const std::vector<Part>& expected, const Variant& variant)
{
    ASSERT_EQ(given.size(), expected.size());
    for (std::size_t i = 0; i < given.size(); ++i)
        expectSameRange(given[i].range, expected[i].range, variant);
}

/// A text with other line ends is read as the text with line feeds.
void expectSameParse(const Variant& variant, const CVKAST& expected)
{
    const CVKAST document = CVKAST::fromMarkdown(variant.text);
    const CVKTextSummary& is = document.textSummary();
    const CVKTextSummary& was = expected.textSummary();
    EXPECT_EQ(withLineFeeds(document.html()), expected.html());
    EXPECT_EQ(is.title, was.title);
    EXPECT_EQ(is.subtitle, was.subtitle);
    EXPECT_EQ(is.tags, was.tags);
    EXPECT_EQ(is.links, was.links);
    EXPECT_EQ(is.todoCount, was.todoCount);
    EXPECT_EQ(is.doneCount, was.doneCount);
    EXPECT_EQ(is.codeBlockCount, was.codeBlockCount);
    expectSameRanges(document.document().links, expected.document().links, variant);
    expectSameRanges(document.document().wikiLinks, expected.document().wikiLinks, variant);
    expectSameRanges(document.document().hashtags, expected.document().hashtags, variant);
    for (std::size_t i = 0; i < document.document().links.size() && !testing::Test::HasFailure(); ++i)
        expectSameRange(document.document().links[i].destination, expected.document().links[i].destination, variant);
}

void expectSameRewriting(const Variant& variant, const std::string& text)
{
    const std::vector<std::function<CVKAST(const std::string&)>> rewritings{
        [](const std::string& one) { return CVKHashtag::renameTagName("a", "z y", one); },
        [](const std::string& one) { return CVKHashtag::removeTagName("a", one); },
        [](const std::string& one) { return CVKHashtag::addTagNameToTheTopOfString("new", one); },
        [](const std::string& one) { return CVKHashtag::addTagNameToTheBottomOfString("new", one); },
        [](const std::string& one) { return CVKWikiLink::updateWikiLinkWithTitle("A", "Z", false, one); },
        [](const std::string& one) {
            const CVKAST document = CVKAST::fromMarkdown(one);
            return document.applyTextOperationResults(document.updateLinksURL("x.png", "z 1.png", {0, 0}));
        },
    };
    for (std::size_t i = 0; i < rewritings.size(); ++i) {
        SCOPED_TRACE("rewriting " + std::to_string(i));
        EXPECT_EQ(withLineFeeds(rewritings[i](variant.text).markdown()), rewritings[i](text).markdown());
    }
}

/// A text with inline constructs that line ends stand in or beside, and what is found in it.
struct InlineCase {
    std::string text;
    std::vector<std::string> links;
    std::vector<std::string> tags;
    std::vector<std::string> wikiTitles;
};

std::vector<std::string> titlesOf(const std::vector<CVKWikiLink>& links)
{
    std::vector<std::string> titles;
    for (const CVKWikiLink& link : links)
        titles.push_back(link.decodedTitle());
    return titles;
}

const std::vector<InlineCase>& inlineCases()
{
    static const std::vector<InlineCase> cases{
        {"[two\nlines](\nu\n'a\ntitle'\n)", {"u"}, {}, {}},
        {"![two\nlines](<u v>\n\"t\")", {"u v"}, {}, {}},
        {"[a](u\n\n't')", {}, {}, {}},
        {"[a](<u\nv>)", {}, {}, {}},
        {"[a](u\nv)", {}, {}, {}},
        {"[x][two\nwords] [two\n words][] ![two\nwords]\n\n[two words]:\n/u\n'title\non two lines'\n",
            {"/u", "/u", "/u"}, {}, {}},
        {"[one\ntwo]: /u\n\n[one two]", {"/u"}, {}, {}},
        {"[r]: /u\n[s]: /v 'not\n\na title'\n\n[r] [s]", {"/u"}, {}, {}},
        {"[r]: /u 'title'\n'text'\n\n[r]", {"/u"}, {}, {}},
        {"[r]: /u\n'text' and more\n\n[r]", {"/u"}, {}, {}},
        {"[x]\n[r] [y]\n(u)\n\n[r]: /u", {"/u"}, {}, {}},
        {"`code\n#a [[A]]` #b", {}, {"b"}, {}},
        {"`` a\n`\nb `` #a", {}, {"a"}, {}},
        {"<a\nhref='#a\n[[A]]'\n/> #b", {}, {"b"}, {}},
        {"x <!-- #a\n[[A]] --> #b <?php\n#a ?> <!X\n#a> <![CDATA[\n#a]]>", {}, {"b"}, {}},
        {"<http://a\nb> <me@e.org\n>", {}, {}, {}},
        {"http://e.org/#a\n#b", {}, {"b"}, {}},
        {"#a b\nc# #d e#\n#f", {}, {"a", "d e", "f"}, {}},
        {"[[A\nB]] [[C|d\ne]] [[F]]\n[[G|h]]\n", {}, {}, {"F", "G"}},
        {"*two\nlines* **#a\n#b** ~~x\ny~~ ==x\ny==", {}, {"a", "b"}, {}},
        {"a  \nb\\\nc &amp;\n&#\n35; \\\n#a", {}, {"a"}, {}},
        {"> [two\n> lines](\n> u\n> 't')\n> [r\n> s]\n>\n> [r s]:\n> /v", {"u", "/v"}, {}, {}},
        {"- [two\n  lines](\n  u\n  't') #a\n\n  [r]: /v\n  't'\n- [r] #b", {"u", "/v"}, {"a", "b"}, {}},
        {"Setext #a\n[[A]]\n===\n\n# ATX #b\n[t](\nx)", {"x"}, {"a", "b"}, {"A"}},
    };
    return cases;
}

} // namespace

TEST(LineEnds, StandInEveryInlineConstruct)
{
    RandomMarkdown random(kLineEndsSeed, notePieces());
    for (const InlineCase& one : inlineCases()) {
        SCOPED_TRACE(one.text);
        const CVKAST expected = CVKAST::fromMarkdown(one.text);
        EXPECT_EQ(expected.textSummary().links, one.links);
        EXPECT_EQ(expected.textSummary().tags, one.tags);
        EXPECT_EQ(titlesOf(expected.textSummary().wikiLinks), one.wikiTitles);
        for (const Variant& variant : variantsOf(one.text, random)) {
            SCOPED_TRACE(testing::PrintToString(variant.text));
            expectSameParse(variant, expected);
            expectSameRewriting(variant, one.text);
        }
    }
}

TEST(LineEnds, ChangeNothingInTheExamplesOfCommonMark)
{
    RandomMarkdown random(kLineEndsSeed, commonMarkPieces());
    for (const CommonMarkExample& example : commonMarkExamples()) {
        const CVKAST expected = CVKAST::fromMarkdown(example.markdown);
        for (const Variant& variant : variantsOf(example.markdown, random)) {
            SCOPED_TRACE("example " + std::to_string(example.number) + ": " + testing::PrintToString(variant.text));
            expectSameParse(variant, expected);
        }
    }
}

TEST(LineEnds, ChangeNothingInRandomTexts)
{
    for (const auto pieces : {commonMarkPieces(), notePieces()}) {
        RandomMarkdown random(kLineEndsSeed, pieces);
        const std::size_t count = fuzzCount(1500);
        for (std::size_t i = 0; i < count && !HasFailure(); ++i) {
            const std::string text = withLineFeeds(random.text(24));
            const CVKAST expected = CVKAST::fromMarkdown(text);
            for (const Variant& variant : variantsOf(text, random)) {
                SCOPED_TRACE("seed " + std::to_string(kLineEndsSeed) + ", text " + std::to_string(i) + ": "
                    + testing::PrintToString(variant.text));
                expectSameParse(variant, expected);
                expectSameRewriting(variant, text);
            }
        }
    }
}

} // namespace tarn
