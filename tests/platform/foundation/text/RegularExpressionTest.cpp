#include "tarnmodel/platform/foundation/text/RegularExpression.h"
#include "tarnmodel/platform/foundation/values/NSException.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <atomic>
#include <thread>
#include <vector>

using namespace tarn;
using testing::ElementsAre;
using testing::HasSubstr;

namespace {

std::vector<NSRange> rangesOf(std::string_view pattern, std::string_view text)
{
    std::vector<NSRange> ranges;
    for (const RegularExpressionMatch& match : RegularExpression(pattern).allMatches(text))
        ranges.push_back(match.range);
    return ranges;
}

TEST(RegularExpression, MatchesTheWholeText)
{
    const RegularExpression expression("a+b");
    EXPECT_EQ(expression.matches("aab"), true);
    EXPECT_EQ(expression.matches("aabc"), false);
    EXPECT_EQ(expression.matchesSomewhere("xaabc"), true);
    EXPECT_EQ(expression.matchesSomewhere("xyz"), false);
    EXPECT_EQ(RegularExpression("").matches(""), true);
}

TEST(RegularExpression, CountsInUTF16Units)
{
    EXPECT_THAT(rangesOf("b+", "é😀bb日b"), ElementsAre(NSRange{3, 2}, NSRange{6, 1}));
}

TEST(RegularExpression, GivesGroupsAndSaysWhichTookNoPart)
{
    const auto match = RegularExpression("(a)|(b)(c)?").firstMatch("xxb");
    ASSERT_TRUE(match);
    EXPECT_EQ(match->range, (NSRange{2, 1}));
    EXPECT_THAT(match->groups, ElementsAre(NSRange{NSNotFound, 0}, NSRange{2, 1}, NSRange{NSNotFound, 0}));
}

TEST(RegularExpression, SearchesFromAnOffset)
{
    const RegularExpression expression("a");
    EXPECT_EQ(expression.firstMatch("aXa", 1)->range, (NSRange{2, 1}));
    EXPECT_FALSE(expression.firstMatch("aXa", 3));
    EXPECT_FALSE(expression.firstMatch("aXa", 4));
}

TEST(RegularExpression, AdvancesBehindEmptyMatches)
{
    EXPECT_THAT(rangesOf("x*", "a😀"), ElementsAre(NSRange{0, 0}, NSRange{1, 0}, NSRange{3, 0}));
}

TEST(RegularExpression, FollowsItsOptions)
{
    EXPECT_EQ(RegularExpression("ABC").matches("abc"), false);
    EXPECT_EQ(RegularExpression("STRASSE", {.caseInsensitive = true}).matches("straße"), true);
    EXPECT_EQ(RegularExpression("a.b").matches("a\nb"), false);
    EXPECT_EQ(RegularExpression("a.b", {.dotMatchesLineSeparators = true}).matches("a\nb"), true);
    EXPECT_EQ(RegularExpression("^b$").matchesSomewhere("a\nb\nc"), false);
    EXPECT_EQ(RegularExpression("^b$", {.anchorsMatchLines = true}).matchesSomewhere("a\nb\nc"), true);
}

TEST(RegularExpression, RefusesAMalformedPattern)
{
    try {
        const RegularExpression expression("ab(c");
        FAIL() << "it was taken";
    } catch (const NSException& exception) {
        EXPECT_EQ(exception.name(), NSInvalidArgumentException);
        EXPECT_THAT(exception.reason(), HasSubstr("offset 4"));
    }
}

TEST(RegularExpression, GivesUpAtItsTimeLimit)
{
    const RegularExpression expression("(a+)+b", {.timeLimit = 50});
    const std::string hostile(40, 'a');
    EXPECT_EQ(expression.matches(hostile), std::nullopt);
    EXPECT_EQ(expression.matchesSomewhere(hostile), std::nullopt);
    EXPECT_FALSE(expression.firstMatch(hostile));
    bool limitExceeded = false;
    EXPECT_TRUE(expression.allMatches("ab " + hostile, &limitExceeded).size() == 1U);
    EXPECT_TRUE(limitExceeded);
    expression.allMatches("ab", &limitExceeded);
    EXPECT_FALSE(limitExceeded);
}

TEST(RegularExpression, GivesUpAtItsStackLimit)
{
    const RegularExpression expression("(?:.|x)*b", {.stackLimit = 10'000});
    EXPECT_EQ(expression.matches(std::string(100'000, 'a')), std::nullopt);
}

TEST(RegularExpression, EscapesWhatHasAMeaning)
{
    for (const std::string_view text :
        {"a.b", "c++", "(x)", "a\\b", "[z]", "^$", "x-y #tag {1}", "a|b?*", "日本 é😀", "a\nb", "&&", "~"}) {
        const RegularExpression expression(RegularExpression::escapedPattern(text));
        EXPECT_EQ(expression.matches(text), true) << text;
        EXPECT_EQ(expression.matches(std::string(text) + "x"), false) << text;
    }
}

TEST(RegularExpression, IsSharedByThreads)
{
    const RegularExpression expression("#[a-z]+", {.caseInsensitive = true});
    std::atomic<int> wrong = 0;
    std::vector<std::thread> threads;
    for (int thread = 0; thread < 4; ++thread) {
        threads.emplace_back([copy = expression, &wrong] {
            for (int round = 0; round < 2'000; ++round)
                wrong += copy.allMatches("a #Tag and #another").size() == 2 ? 0 : 1;
        });
    }
    for (std::thread& thread : threads)
        thread.join();
    EXPECT_EQ(wrong, 0);
}

TEST(RegularExpression, ReadsIllFormedTextAsReplacementCharacters)
{
    EXPECT_EQ(RegularExpression("a\\uFFFDb")
                  .matches("a\xFF"
                           "b"),
        true);
}

} // namespace
