#include "tarnmodel/corvel/CVKAST.h"
#include "tarnmodel/corvel/CVKHashtag.h"
#include "tarnmodel/corvel/CVKWikiLink.h"
#include "tarnmodel/corvel/blocks/Document.h"
#include "tests/corvel/RandomMarkdown.h"

#include "tarnmodel/platform/foundation/text/Folding.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>

namespace tarn {

namespace {

constexpr std::uint64_t kRewritingSeed = 4711;
constexpr std::size_t kTexts = 4000;

constexpr std::array<std::string_view, 12> kNames{
    "a", "a b", "x/y", "2024", "facade", "a/b", "\xC3\xA4", "St. Gallen (CH)", "decade in review", "work", "-x", "a)"};

std::vector<std::string> hashtagNames(const CVKAST& document)
{
    std::vector<std::string> names;
    for (const corvel::Hashtag& hashtag : document.document().hashtags)
        names.push_back(CVKHashtag::sanitizeTagName(document.document().slice(hashtag.name)));
    return names;
}

std::vector<std::string> sorted(std::vector<std::string> names)
{
    std::sort(names.begin(), names.end());
    return names;
}

std::vector<std::string> titlesOf(const CVKTextSummary& summary)
{
    std::vector<std::string> titles;
    for (const CVKWikiLink& link : summary.wikiLinks)
        titles.push_back(link.decodedTitle());
    return titles;
}

void expectSameLinksAndCounts(const CVKTextSummary& before, const CVKTextSummary& after)
{
    EXPECT_EQ(before.todoCount, after.todoCount);
    EXPECT_EQ(before.doneCount, after.doneCount);
    EXPECT_EQ(before.codeBlockCount, after.codeBlockCount);
    EXPECT_EQ(before.links, after.links);
    EXPECT_EQ(titlesOf(before), titlesOf(after));
}

bool isBlank(const std::string& text)
{
    return text.find_first_not_of(" \t\r\n") == std::string::npos;
}

bool mixesLineEnds(const std::string& text)
{
    const bool hasPairs = text.find("\r\n") != std::string::npos;
    const bool hasSingle = text.find("\n") == 0 || [&] {
        for (std::size_t i = 1; i < text.size(); ++i) {
            if (text[i] == '\n' && text[i - 1] != '\r')
                return true;
        }
        return false;
    }();
    return hasPairs && hasSingle;
}

/// All hashtags as they would be written anew, in lower case, and none as the rename will call them.
bool isWrittenInOneWay(const CVKAST& document)
{
    const auto& hashtags = document.document().hashtags;
    return std::all_of(hashtags.begin(), hashtags.end(), [&](const corvel::Hashtag& hashtag) {
        const std::string name(document.document().slice(hashtag.name));
        return CVKHashtag::hashtagStringForTagName(name) == document.document().slice(hashtag.range)
            && fold(name) == name && !name.starts_with("zz");
    });
}

/// Runs the check on random notes; says which one failed.
template <typename Check> void forRandomNotes(Check check)
{
    RandomMarkdown random(kRewritingSeed, notePieces());
    const std::size_t count = fuzzCount(kTexts);
    for (std::size_t i = 0; i < count && !testing::Test::HasFailure(); ++i) {
        const std::string text = random.text(20);
        const std::string name(kNames[random.below(kNames.size())]);
        SCOPED_TRACE("seed " + std::to_string(kRewritingSeed) + ", text " + std::to_string(i) + ", tag '" + name
            + "':\n" + text);
        check(text, name);
    }
}

void expectOneTagMore(const std::string& text, const std::string& name, const CVKAST& after)
{
    const CVKAST before = CVKAST::fromMarkdown(text);
    std::vector<std::string> expected = hashtagNames(before);
    expected.push_back(CVKHashtag::sanitizeTagName(name));
    EXPECT_EQ(sorted(expected), sorted(hashtagNames(after))) << after.markdown();
    EXPECT_EQ(before.textSummary().title, after.textSummary().title) << after.markdown();
    EXPECT_EQ(before.textSummary().subtitle, after.textSummary().subtitle) << after.markdown();
    expectSameLinksAndCounts(before.textSummary(), after.textSummary());
}

} // namespace

TEST(RewritingProperties, ATagAtTheTopChangesNothingElse)
{
    forRandomNotes([](const std::string& text, const std::string& name) {
        expectOneTagMore(text, name, CVKHashtag::addTagNameToTheTopOfString(name, text));
    });
}

TEST(RewritingProperties, ATagAtTheBottomChangesNothingElse)
{
    forRandomNotes([](const std::string& text, const std::string& name) {
        expectOneTagMore(text, name, CVKHashtag::addTagNameToTheBottomOfString(name, text));
    });
}

TEST(RewritingProperties, RemovingATagThatWasAddedAtTheBottomRestoresTheText)
{
    std::size_t atBottom = 0;
    forRandomNotes([&](const std::string& text, const std::string&) {
        if (isBlank(text) || mixesLineEnds(text))
            return;
        const std::string added = CVKHashtag::addTagNameToTheBottomOfString("new tag", text).markdown();
        const bool isAtBottom = added.find("#new tag#") >= text.find_last_not_of(" \t\r\n");
        if (!isAtBottom) // nothing can be added behind an open fence
            return;
        ++atBottom;
        EXPECT_EQ(CVKHashtag::removeTagName("new tag", added).markdown(), text) << "--- added\n" << added;
    });
    EXPECT_GT(atBottom, kTexts / 4);
}

TEST(RewritingProperties, ARemovedTagIsGoneAndRemovingAgainChangesNothing)
{
    forRandomNotes([](const std::string& text, const std::string&) {
        const CVKAST after = CVKHashtag::removeTagName("a", text);
        for (const std::string& name : hashtagNames(after))
            EXPECT_FALSE(fold(name) == "a" || fold(name).starts_with("a/")) << after.markdown();
        EXPECT_EQ(CVKHashtag::removeTagName("a", after.markdown()).markdown(), after.markdown());
    });
}

TEST(RewritingProperties, RemovingATagThatIsNotThereChangesNothing)
{
    forRandomNotes([](const std::string& text, const std::string&) {
        EXPECT_EQ(CVKHashtag::removeTagName("elsewhere", text).markdown(), text);
        EXPECT_EQ(CVKHashtag::renameTagName("elsewhere", "b", text).markdown(), text);
    });
}

TEST(RewritingProperties, ARenameChangesOnlyTheHashtagsOfTheTag)
{
    forRandomNotes([](const std::string& text, const std::string& name) {
        const CVKAST before = CVKAST::fromMarkdown(text);
        const CVKAST after = CVKHashtag::renameTagName("a", name, text);
        const auto was = hashtagNames(before);
        const auto is = hashtagNames(after);
        ASSERT_EQ(was.size(), is.size()) << after.markdown();
        const std::string renamed = CVKHashtag::sanitizeTagName(name);
        for (std::size_t i = 0; i < was.size(); ++i) {
            const bool concerned = fold(was[i]) == "a" || fold(was[i]).starts_with("a/");
            const std::string tail = was[i].substr(std::min(was[i].find('/'), was[i].size()));
            const std::string expected = concerned ? renamed + tail : was[i];
            EXPECT_TRUE(is[i] == was[i] || is[i] == expected) << is[i] << " in\n" << after.markdown();
        }
        expectSameLinksAndCounts(before.textSummary(), after.textSummary());
    });
}

TEST(RewritingProperties, ARenameThereAndBackRestoresTheText)
{
    std::size_t renamed = 0;
    forRandomNotes([&](const std::string& text, const std::string&) {
        if (!isWrittenInOneWay(CVKAST::fromMarkdown(text)))
            return;
        const std::string there = CVKHashtag::renameTagName("a", "zz top", text).markdown();
        renamed += there != text;
        EXPECT_EQ(CVKHashtag::renameTagName("zz top", "a", there).markdown(), text) << "--- there\n" << there;
    });
    EXPECT_GT(renamed, kTexts / 20);
}

TEST(RewritingProperties, AWikiTitleChangesOnlyItsLinks)
{
    constexpr std::array<std::string_view, 6> kTitles{"B", "AC/DC", "x [y] | z\\", "two\nlines", "`code", "#tag"};
    forRandomNotes([&](const std::string& text, const std::string& name) {
        const std::string title(kTitles[(text.size() + name.size()) % kTitles.size()]);
        const CVKAST before = CVKAST::fromMarkdown(text);
        const CVKAST after = CVKWikiLink::updateWikiLinkWithTitle("a", title, false, text);
        const auto was = titlesOf(before.textSummary());
        const auto is = titlesOf(after.textSummary());
        ASSERT_EQ(was.size(), is.size()) << after.markdown();
        const std::string written = title == "two\nlines" ? "two lines" : title;
        for (std::size_t i = 0; i < was.size(); ++i)
            EXPECT_TRUE(is[i] == was[i] || (fold(was[i]) == "a" && is[i] == written)) << after.markdown();
        EXPECT_EQ(before.textSummary().links, after.textSummary().links) << after.markdown();
        EXPECT_EQ(before.textSummary().tags, after.textSummary().tags) << after.markdown();
    });
}

TEST(RewritingProperties, LinksLeadWhereTheyWereSent)
{
    constexpr std::array<std::string_view, 5> kTargets{
        "new.png", "a b (1).png", "x<y>&\\%.png", "\xC3\xA4[b]*.png", ""};
    forRandomNotes([&](const std::string& text, const std::string& name) {
        const std::string target(kTargets[(text.size() + name.size()) % kTargets.size()]);
        const CVKAST before = CVKAST::fromMarkdown(text);
        const auto result = before.updateLinksURL("x.png", target, {});
        const CVKAST after = before.applyTextOperationResults(result);
        const auto& was = before.textSummary().links;
        const auto& is = after.textSummary().links;
        ASSERT_EQ(was.size(), is.size()) << after.markdown();
        for (std::size_t i = 0; i < was.size(); ++i) {
            EXPECT_EQ(was[i] == is[i], was[i] != "x.png") << after.markdown();
        }
        // The way back leads to the same links again.
        const CVKAST back = after.applyTextOperationResults(after.updateLinksURL(target, "x.png", {}));
        const bool targetWasThere = std::find(was.begin(), was.end(), target) != was.end();
        EXPECT_TRUE(targetWasThere || back.textSummary().links == was) << after.markdown();
    });
}

} // namespace tarn
