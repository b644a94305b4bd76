#include "tarnmodel/search/ExpressionMatches.h"
#include "tarnmodel/platform/foundation/text/UTF.h"
#include "tarnmodel/search/OVNoteSearchManager.h"

#include <gtest/gtest.h>

#include <random>

namespace tarn {

namespace {

std::vector<NSRange> matchesOf(const RegularExpression& expression, std::string_view text)
{
    std::vector<NSRange> ranges;
    bool limitExceeded = false;
    for (const RegularExpressionMatch& match : expression.allMatches(text, &limitExceeded))
        ranges.push_back(match.range);
    EXPECT_FALSE(limitExceeded) << text;
    return ranges;
}

std::string shown(const std::vector<NSRange>& ranges)
{
    std::string text;
    for (const NSRange& range : ranges)
        text += "{" + std::to_string(range.location) + "," + std::to_string(range.length) + "} ";
    return text;
}

/// Strings of pieces that mean something to one of the two expressions.
class SearchTexts {
public:
    explicit SearchTexts(std::uint32_t seed) : random_(seed) { }

    std::string next()
    {
        static const std::vector<std::vector<std::string>> kAlphabets{
            {"\"", "“", "”", "-", " ", "a", "é", "😀", "x y", "\n", "\u2028", "\t", "\"a\"", " \""},
            {"#", "##", "-", "!", " ", "a", "é", "😀", "x y", "\n", "0", "a0b1c2", ",", "(", "/", "*", "\t", " #"},
            {"#", "##", "\"", "“", "”", "-", "!", " ", "  ", "a", "b", "Z", "0", "9", "/", "*", "#*/", "(", ")", "[",
                "]", "{", "}", "'", ":", ";", ",", "،", "、", "…", ".", "?", "\n", "\r", "\r\n", "\t", "\v", "\u0085",
                "\u00A0", "\u2028", "\u2029", "\u3000", "\u200D", "日本", "é", "😀", "a0b1c2", "#a0b1c2", "2021-03",
                "x y", "„", "_", "@", "\\"}};
        const std::vector<std::string>& pieces = kAlphabets[random_() % kAlphabets.size()];
        std::string text;
        for (std::size_t left = 1 + random_() % 14; left > 0; --left)
            text += pieces[random_() % pieces.size()];
        if (random_() % 50 == 0)
            text += "#" + repeated(490 + random_() % 20) + (random_() % 2 ? "#" : " ");
        return text;
    }

private:
    std::string repeated(std::size_t count)
    {
        std::string text;
        for (; count > 0; --count)
            text += random_() % 40 == 0 ? "😀" : "b";
        return text;
    }

    std::mt19937 random_;
};

} // namespace

TEST(SearchExpressions, AreMadeOnceAndMatchAtEveryLine)
{
    const RegularExpression& quoted = OVNoteSearchManager::quotedSearchRegularExpression();
    const RegularExpression& tags = OVNoteSearchManager::tagSearchRegularExpression();
    EXPECT_EQ(&quoted, &OVNoteSearchManager::quotedSearchRegularExpression());
    EXPECT_EQ(&tags, &OVNoteSearchManager::tagSearchRegularExpression());
    const std::string lines = "a\n\"b\"\n-“c d”\n#e\n!#f g#\n#a0b1c2\n##\n-#2021\n(#😀)";
    EXPECT_EQ(shown(matchesOf(quoted, lines)), "{2,3} {6,6} ");
    EXPECT_EQ(shown(matchesOf(tags, lines)), "{13,2} {16,6} {42,3} ");
}

TEST(ExpressionMatches, AreWhatTheExpressionsMatch)
{
    constexpr std::uint32_t kSeed = 20211105;
    SCOPED_TRACE("seed " + std::to_string(kSeed));
    SearchTexts texts(kSeed);
    std::size_t quoted = 0;
    std::size_t tags = 0;
    for (int round = 0; round < 150'000; ++round) {
        const std::string text = texts.next();
        const std::u16string units = utf16FromUTF8(text);
        const auto expectedQuoted = matchesOf(OVNoteSearchManager::quotedSearchRegularExpression(), text);
        const auto expectedTags = matchesOf(OVNoteSearchManager::tagSearchRegularExpression(), text);
        ASSERT_EQ(shown(quotedMatches(units)), shown(expectedQuoted)) << round << ": " << text;
        ASSERT_EQ(shown(tagMatches(units)), shown(expectedTags)) << round << ": " << text;
        quoted += expectedQuoted.size();
        tags += expectedTags.size();
    }
    // The texts are worth looking at.
    EXPECT_GT(quoted, 15'000U);
    EXPECT_GT(tags, 25'000U);
}

} // namespace tarn
