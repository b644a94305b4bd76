#include "tarnmodel/corvel/CVKAST.h"
#include "tarnmodel/corvel/CVKHashtag.h"
#include "tarnmodel/corvel/blocks/Document.h"
#include "tests/corvel/RandomMarkdown.h"

#include "tarnmodel/platform/foundation/text/Folding.h"
#include "tarnmodel/platform/foundation/text/RegularExpression.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <array>
#include <set>

namespace tarn {

namespace {

// The expression by which the search field finds tags in what a user types.
constexpr std::string_view kTagExpression
    = R"~((?!#{2,}|#[0-9a-fA-F]{6}\s|#[0-9a-fA-F]{6}$)(!|-)?#([^#\n\s]{1}|[^#\n\s]{1}[^#\n]{1,500}?[^#\n\s-!]{1})#|(?<=^|\s|[\(\[\{"'])(!|-)?(?!#{2,}|#[0-9a-fA-F]{6}\s|#[0-9a-fA-F]{6}$)#(?!/)(?![0-9-]+(?=$|\s|[:;,،、…!.?\)\]\}"']))\S{1,500}?(?=$|\s|[:;,،、…!.?\)\]\}"']))~";

constexpr std::uint64_t kNamesSeed = 90125;
constexpr std::size_t kNameCount = 20000;
constexpr std::size_t kLongestName = 500;

// Among them what trimming takes from an end, and what the key loses: marks, a soft hyphen, a joiner.
constexpr std::array<std::string_view, 54> kPieces{"/", "/", "a", "b", "ab", "xyz", "1", "42", "facade", "0a1b2c", "-",
    "--", " ", "  ", "\t", "\n", "/", "//", "#", "\\", "`", "<", ">", "[", "]", "|", ":", ";", ",", ".", "!", "?", ")",
    "(", "}", "{", "\"", "'", "*", "_", "~", "=", "\xC3\xA4", "\xE2\x80\xA6", "\xE2\x80\x8B", "\xC2\xA0",
    "\xF0\x9F\x98\x80", "\x01", "\xCC\x81", "\xCD\x85", "\xC2\xAD", "\xE2\x80\x8D", "\xE3\x82\x99", "\xE2\x89\xA0"};

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

namespace {

/// Each path above a path, the topmost first, as a tag's record computes them.
std::vector<std::string> ancestorsOf(const std::string& path)
{
    std::vector<std::string> ancestors;
    std::vector<std::string> components = CVKHashtag::componentsForForTagName(path);
    while (components.size() > 1) {
        components.pop_back();
        ancestors.insert(ancestors.begin(), CVKHashtag::tagNameFromComponents(components));
    }
    return ancestors;
}

} // namespace

TEST(TagNames, AncestorsOfACleanNameAreCleanNames)
{
    forRandomNames([](const std::string& name) {
        for (const std::string& ancestor : ancestorsOf(CVKHashtag::sanitizeTagName(name)))
            EXPECT_EQ(CVKHashtag::sanitizeTagName(ancestor), ancestor);
    });
}

TEST(TagNames, TheParserDeliversTheAncestorsThatTheRecordComputes)
{
    forRandomNames([](const std::string& name) {
        for (const std::string& text : {CVKHashtag::hashtagStringForTagName(name), "#" + name + "#", "#" + name}) {
            const CVKAST document = CVKAST::fromMarkdown(text);
            const std::vector<std::string>& tags = document.textSummary().tags;
            std::set<std::string> keys;
            for (const std::string& tag : tags)
                EXPECT_TRUE(keys.insert(CVKHashtag::normalizeTagName(tag)).second) << "twice: " << tag;
            for (const std::string& tag : tags) {
                for (const std::string& ancestor : ancestorsOf(tag))
                    EXPECT_TRUE(keys.contains(fold(ancestor))) << text << " lacks " << ancestor;
            }
            if (tags.empty() || CVKAST::fromMarkdown(text).document().hashtags.size() > 1)
                continue;
            std::vector<std::string> expected = ancestorsOf(tags.back());
            expected.push_back(tags.back());
            EXPECT_EQ(tags, expected) << text;
        }
    });
}

TEST(TagNames, KeepNoComponentThatTheKeyWouldLose)
{
    forRandomNames([](const std::string& name) {
        const std::string clean = CVKHashtag::sanitizeTagName(name);
        EXPECT_EQ(
            CVKHashtag::componentsForForTagName(fold(clean)).size(), CVKHashtag::componentsForForTagName(clean).size())
            << clean;
    });
    for (const std::string_view nothing : {"\xC2\xAD", "\xC2\xAD/\xE2\x81\xA0", ".\xC2\xAD/", "\xC2\xAD\xC2\xAD"}) {
        EXPECT_EQ(CVKHashtag::normalizeTagName(nothing), "") << nothing;
        EXPECT_THAT(CVKAST::fromMarkdown("#" + std::string(nothing)).textSummary().tags, testing::IsEmpty());
    }
    EXPECT_EQ(CVKHashtag::sanitizeTagName("a/\xCC\x81/b"), "a/b");
    EXPECT_EQ(CVKHashtag::sanitizeTagName("a/\xC2\xAD/b"), "a/b");
}

TEST(TagNames, AreTrimmedComponentByComponent)
{
    EXPECT_EQ(CVKHashtag::sanitizeTagName("Miller & Co./Bills"), "Miller & Co/Bills");
    EXPECT_EQ(CVKHashtag::sanitizeTagName("x-/y"), "x/y");
    EXPECT_EQ(CVKHashtag::sanitizeTagName("Who?/me"), "Who/me");
    EXPECT_EQ(CVKHashtag::sanitizeTagName("a/*b*/c"), "a/b/c");
    EXPECT_EQ(CVKHashtag::sanitizeTagName("a)/b)/c"), "a/b)/c") << "as 'a)' alone loses it";
    EXPECT_EQ(CVKHashtag::sanitizeTagName("facade x/y"), "facade-x/y");
    EXPECT_EQ(CVKHashtag::sanitizeTagName("St. Gallen (CH)/x"), "St. Gallen (CH)/x");
    EXPECT_THAT(CVKAST::fromMarkdown("#Miller & Co./Bills#").textSummary().tags,
        testing::ElementsAre("Miller & Co", "Miller & Co/Bills"));
    EXPECT_EQ(CVKHashtag::renameTagName("x", "z", "#x-/y#").markdown(), "#z/y");
}

TEST(TagNames, AreCleanedInLinearTime)
{
    std::string name;
    for (int i = 0; i < 300000; ++i)
        name += "-)/";
    EXPECT_EQ(CVKHashtag::sanitizeTagName(name), "");
    EXPECT_EQ(CVKHashtag::sanitizeTagName(name + "a"), "a");
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
    EXPECT_EQ(CVKHashtag::sanitizeTagName("./a./.b/."), "a/b");
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
