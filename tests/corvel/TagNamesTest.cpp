#include "corvel/CVKAST.h"
#include "corvel/CVKHashtag.h"
#include "tests/corvel/RandomMarkdown.h"

#include "platform/foundation/Folding.h"
#include "platform/foundation/RegularExpression.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <array>

namespace tarn {

namespace {

// The expression by which the search field finds tags in what a user types.
constexpr std::string_view kTagExpression
    = R"~((?!#{2,}|#[0-9a-fA-F]{6}\s|#[0-9a-fA-F]{6}$)(!|-)?#([^#\n\s]{1}|[^#\n\s]{1}[^#\n]{1,500}?[^#\n\s-!]{1})#|(?<=^|\s|[\(\[\{"'])(!|-)?(?!#{2,}|#[0-9a-fA-F]{6}\s|#[0-9a-fA-F]{6}$)#(?!/)(?![0-9-]+(?=$|\s|[:;,،、…!.?\)\]\}"']))\S{1,500}?(?=$|\s|[:;,،、…!.?\)\]\}"']))~";

constexpr std::uint64_t kNamesSeed = 90125;
constexpr std::size_t kNameCount = 20000;
constexpr std::size_t kLongestName = 500;

constexpr std::array<std::string_view, 46> kPieces{"a", "b", "ab", "xyz", "1", "42", "facade", "0a1b2c", "-", "--", " ",
    "  ", "\t", "\n", "/", "//", "#", "\\", "`", "<", ">", "[", "]", "|", ":", ";", ",", ".", "!", "?", ")", "(", "}",
    "{", "\"", "'", "*", "_", "~", "=", "\xC3\xA4", "\xE2\x80\xA6", "\xE2\x80\x8B", "\xC2\xA0", "\xF0\x9F\x98\x80",
    "\x01"};

template <typename Check> void forRandomNames(Check check)
{
    RandomMarkdown random(kNamesSeed, kPieces);
    const std::size_t count = fuzzCount(kNameCount);
    for (std::size_t i = 0; i < count && !testing::Test::HasFailure(); ++i) {
        const std::string name = random.text(i % 100 == 0 ? 300 : 8);
        SCOPED_TRACE("seed " + std::to_string(kNamesSeed) + ", name " + std::to_string(i) + ": '" + name + "'");
        check(name);
    }
}

} // namespace

TEST(TagNames, SanitizingTwiceGivesTheSame)
{
    forRandomNames([](const std::string& name) {
        const std::string clean = CVKHashtag::sanitizeTagName(name);
        EXPECT_EQ(CVKHashtag::sanitizeTagName(clean), clean);
    });
}

TEST(TagNames, EveryHashtagStringIsReadAsItsTag)
{
    forRandomNames([](const std::string& name) {
        const std::string clean = CVKHashtag::sanitizeTagName(name);
        const std::string hashtag = CVKHashtag::hashtagStringForTagName(name);
        if (clean.empty()) {
            EXPECT_EQ(hashtag, "");
            return;
        }
        EXPECT_THAT(CVKAST::fromMarkdown(hashtag).textSummary().tags, testing::Contains(clean)) << hashtag;
        const std::string within = "Text (" + hashtag + ") and **" + hashtag + "**, " + hashtag + ".";
        EXPECT_THAT(CVKAST::fromMarkdown(within).textSummary().tags, testing::Contains(clean)) << within;
    });
}

TEST(TagNames, EveryHashtagStringIsFoundWholeByTheSearchField)
{
    const RegularExpression expression(kTagExpression);
    forRandomNames([&](const std::string& name) {
        const std::string hashtag = CVKHashtag::hashtagStringForTagName(name);
        EXPECT_TRUE(hashtag.empty() || expression.matches(hashtag) == true) << hashtag;
    });
}

TEST(TagNames, TheKeyIsTheFoldedCleanName)
{
    forRandomNames([](const std::string& name) {
        EXPECT_EQ(CVKHashtag::normalizeTagName(name), fold(CVKHashtag::sanitizeTagName(name)));
    });
}

TEST(TagNames, HaveFiveHundredCharactersAtMost)
{
    EXPECT_EQ(CVKHashtag::sanitizeTagName(std::string(kLongestName, 'a')).size(), kLongestName);
    EXPECT_EQ(CVKHashtag::sanitizeTagName(std::string(kLongestName + 1, 'a')), "");
    std::string umlauts;
    for (std::size_t i = 0; i < kLongestName; ++i)
        umlauts += "\xC3\xA4";
    EXPECT_EQ(CVKHashtag::sanitizeTagName(umlauts), umlauts);
    EXPECT_EQ(CVKHashtag::sanitizeTagName(umlauts + "\xC3\xA4"), "");
}

TEST(TagNames, LoseSlashesThatComeToStandAtAnEnd)
{
    EXPECT_EQ(CVKHashtag::sanitizeTagName("./.. /a b/(/-/."), "a b");
    EXPECT_EQ(CVKHashtag::sanitizeTagName("./a./.b/."), "a./.b");
    EXPECT_EQ(CVKHashtag::sanitizeTagName("./*/./"), "");
    EXPECT_EQ(CVKHashtag::sanitizeTagName("./facade x/."), "facade-x");
    EXPECT_EQ(CVKHashtag::sanitizeTagName("/a)/."), "a");
}

TEST(TagNames, SplitAtSlashesAndJoinAgain)
{
    EXPECT_THAT(CVKHashtag::componentsForForTagName("a/b c/d"), testing::ElementsAre("a", "b c", "d"));
    EXPECT_THAT(CVKHashtag::componentsForForTagName("/a//b/"), testing::ElementsAre("a", "b"));
    EXPECT_THAT(CVKHashtag::componentsForForTagName(""), testing::IsEmpty());
    EXPECT_EQ(CVKHashtag::tagNameFromComponents({"a", "b c", "d"}), "a/b c/d");
    EXPECT_EQ(CVKHashtag::tagNameFromComponents({}), "");
}

TEST(TagNames, AWrittenPathStandsBeforeADerivedAncestor)
{
    EXPECT_THAT(CVKAST::fromMarkdown("#Work/a #work #WORK").textSummary().tags, testing::ElementsAre("work", "Work/a"));
    EXPECT_THAT(CVKAST::fromMarkdown("#work #Work/a").textSummary().tags, testing::ElementsAre("work", "Work/a"));
    EXPECT_THAT(CVKAST::fromMarkdown("#a/b #A/c").textSummary().tags, testing::ElementsAre("a", "a/b", "A/c"));
}

} // namespace tarn
