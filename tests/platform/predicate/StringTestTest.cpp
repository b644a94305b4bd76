#include "tarnmodel/platform/predicate/StringTest.h"
#include "tarnmodel/platform/foundation/system/Log.h"
#include "tarnmodel/platform/foundation/text/RegularExpression.h"
#include "tarnmodel/platform/foundation/text/UTF.h"
#include "tarnmodel/platform/foundation/values/NSException.h"
#include "tarnmodel/platform/predicate/FoldedPattern.h"
#include "tarnmodel/platform/predicate/PredicateTree.h"
#include "tarnmodel/platform/predicate/WholeWordPattern.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <array>
#include <mutex>
#include <random>
#include <string>
#include <thread>
#include <vector>

namespace tarn {
namespace {

constexpr ComparisonOptions kPlain{};
constexpr ComparisonOptions kCase{.caseInsensitive = true, .diacriticInsensitive = false};
constexpr ComparisonOptions kDiacritics{.caseInsensitive = false, .diacriticInsensitive = true};
constexpr ComparisonOptions kBoth{.caseInsensitive = true, .diacriticInsensitive = true};

struct StringCase {
    ComparisonOperator operation;
    ComparisonOptions options;
    std::string_view left;
    std::string_view right;
    bool answer;
};

void expectAnswers(const std::vector<StringCase>& examples)
{
    for (const StringCase& example : examples) {
        const StringTest test(example.operation, example.options, example.right);
        EXPECT_EQ(test.matches(example.left), example.answer)
            << '"' << example.left << "\" against \"" << example.right << '"';
    }
}

using enum ComparisonOperator;

TEST(StringTest, ComparesAsTheOptionsFold)
{
    expectAnswers({{EqualTo, kPlain, "a", "a", true}, {EqualTo, kPlain, "a", "b", false},
        {EqualTo, kPlain, "", "", true}, {EqualTo, kPlain, "é", "e\xCC\x81", false},
        {EqualTo, kCase, "é", "E\xCC\x81", true}, {EqualTo, kCase, "é", "e", false},
        {EqualTo, kDiacritics, "é", "e", true}, {EqualTo, kDiacritics, "é", "E", false},
        {EqualTo, kBoth, "ÉTÉ", "ete", true}, {NotEqualTo, kBoth, "ÉTÉ", "ete", false},
        {NotEqualTo, kBoth, "ÉTÉ", "x", true}, {EqualTo, kBoth, "soft\xC2\xADly", "softly", true}});
}

TEST(StringTest, OrdersByCodePointsAfterFolding)
{
    expectAnswers({{LessThan, kPlain, "B", "a", true}, {LessThan, kCase, "B", "a", false},
        {LessThanOrEqualTo, kBoth, "É", "e", true}, {LessThan, kBoth, "É", "e", false},
        {GreaterThan, kPlain, "é", "z", true}, {GreaterThan, kBoth, "é", "z", false},
        {GreaterThanOrEqualTo, kBoth, "e", "É", true}, {LessThan, kPlain, "", "a", true}});
}

TEST(StringTest, FindsPartsButNoEmptyOnes)
{
    expectAnswers({{Contains, kPlain, "abc", "b", true}, {Contains, kPlain, "abc", "B", false},
        {Contains, kPlain, "abc", "", false}, {Contains, kBoth, "abc", "", false},
        {Contains, kBoth, "abc", "\xC2\xAD", false}, {Contains, kBoth, "Crème Brûlée", "brulee", true},
        {Contains, kCase, "Crème", "CRÈ", true}, {Contains, kCase, "Crème", "cre", false},
        {Contains, kDiacritics, "Crème", "Creme", true}, {Contains, kBoth, "かが", "が", true},
        {Contains, kBoth, "かか", "が", false}, {BeginsWith, kPlain, "abc", "ab", true},
        {BeginsWith, kPlain, "abc", "bc", false}, {BeginsWith, kPlain, "abc", "", false},
        {BeginsWith, kBoth, "Écrire", "ec", true}, {BeginsWith, kPlain, "a", "ab", false},
        {EndsWith, kPlain, "abc", "bc", true}, {EndsWith, kPlain, "abc", "ab", false},
        {EndsWith, kPlain, "abc", "", false}, {EndsWith, kBoth, "CAFÉ", "fe", true}});
}

TEST(StringTest, TakesWildcards)
{
    expectAnswers({{Like, kPlain, "abc", "abc", true}, {Like, kPlain, "abc", "a?c", true},
        {Like, kPlain, "aéc", "a?c", true}, {Like, kPlain, "a😀c", "a?c", true}, {Like, kPlain, "ac", "a?c", false},
        {Like, kPlain, "abc", "*", true}, {Like, kPlain, "", "*", true}, {Like, kPlain, "", "", true},
        {Like, kPlain, "", "?", false}, {Like, kPlain, "abc", "", false}, {Like, kPlain, "abcbc", "a*bc", true},
        {Like, kPlain, "abcb", "a*bc", false}, {Like, kPlain, "abc", "b", false}, {Like, kPlain, "abc", "*b*", true},
        {Like, kPlain, "abc", "**c", true}, {Like, kPlain, "aXbYb", "a*b", true}, {Like, kPlain, "ab", "a*?b", false},
        {Like, kPlain, "aab", "a*?b", true}, {Like, kPlain, "a*c", "a\\*c", true},
        {Like, kPlain, "abc", "a\\*c", false}, {Like, kPlain, "a?", "a\\?", true}, {Like, kPlain, "ab", "a\\?", false},
        {Like, kPlain, "a\\", "a\\\\", true}, {Like, kPlain, "a\\", "a\\", true}, {Like, kPlain, "a.c", "a.c", true},
        {Like, kPlain, "abc", "a.c", false}, {Like, kPlain, "a\nb", "a?b", true}, {Like, kBoth, "ÀBC", "a?C", true},
        {Like, kPlain, "ABC", "a?c", false}});
}

TEST(StringTest, MatchesFoldedPatternsAgainstFoldedText)
{
    expectAnswers({{Matches, kPlain, "abc", "a.c", true}, {Matches, kPlain, "abcd", "a.c", false},
        {Matches, kPlain, "ABC", "abc", false}, {Matches, kCase, "ABC", "abc", true},
        {Matches, kCase, "ÀBC", "abc", false}, {Matches, kCase, "ÀBC", "àbc", true},
        {Matches, kDiacritics, "àbc", "abc", true}, {Matches, kDiacritics, "ÀBC", "abc", false},
        {Matches, kBoth, "ÀBC", "abc", true}, {Matches, kBoth, "abc", "ÀBC", true},
        {Matches, kBoth, "abc",
            "A\xCC\x80"
            "BC",
            true},
        {Matches, kPlain, "aBc", "(?i)abc", true}, {Matches, kBoth, "C++", "c\\+\\+", true},
        {Matches, kBoth, "C++", "\\Qc++\\E", true}, {Matches, kBoth, "STRASSE", "straße", true},
        {Matches, kBoth, "STRASSESS", "straße+", false}, {Matches, kBoth, "strassß", "straß+", true},
        {Matches, kBoth, "stras", "straß?s", true}, {Matches, kBoth, "aaa", "(?:à){3}", true},
        {Matches, kBoth, "aaa", "à{3}", true}, {Matches, kBoth, "abc", "[ab]+c", true},
        {Matches, kBoth, "x", "[^a-c]", true}, {Matches, kBoth, "Ünder", "\\p{Lu}nder", true},
        {Matches, kBoth, "a b", "a\\sb", true}, {Matches, kBoth, "abab", "(ab)\\1", true},
        {Matches, kBoth, "abab", "(?<twice>ab)\\k<twice>", true}, {Matches, kBoth, "a.b", "a\\.b", true},
        {Matches, kBoth, "axb", "a\\.b", false}, {Matches, kBoth, "a\nb", "a.b", false},
        {Matches, kBoth, "a\nb", "(?s)a.b", true}, {Matches, kBoth, "e", "\\u0065", true},
        {Matches, kBoth, "ab", "(?x) a b # É", true}, {Matches, kBoth, "a b#", "(?x) a\\ b\\#", true},
        {Matches, kBoth, "", "", true}, {Matches, kBoth, "x", "", false},
        {Matches, kBoth,
            "co\xC2\xAD"
            "op",
            "coop", true},
        {Matches, kBoth, "coop",
            "co\xC2\xAD"
            "op",
            true}});
}

// Patterns ------------------------------------------------------------------------------------------------------------

struct PatternCase {
    std::string_view pattern;
    std::string_view folded;
};

void expectFolded(const std::vector<PatternCase>& examples)
{
    for (const PatternCase& example : examples) {
        EXPECT_EQ(foldedPattern(example.pattern, kBoth), example.folded);
        EXPECT_EQ(foldedPattern(example.pattern, kPlain), example.pattern);
    }
}

TEST(FoldedPattern, FoldsLiteralsAndNothingElse)
{
    expectFolded(
        {{"", ""}, {"Été", "ete"}, {"(É|È)", "(e|e)"}, {"[É]É", "[É]e"}, {"[[É]&&[^\\]É]]É", "[[É]&&[^\\]É]]e"},
            {"\\wÉ\\W", "\\we\\W"}, {"(?<Name>É)\\k<Name>", "(?<Name>e)\\k<Name>"}, {"(?i-S:É)", "(?i-S:e)"},
            {"(?#É)É", "(?#É)e"}, {"\\p{Lu}\\N{LATIN SMALL LETTER A}É", "\\p{Lu}\\N{LATIN SMALL LETTER A}e"},
            {"\\x{C9}\\u00C9\\xC9\\cA", "\\x{C9}\\u00C9\\xC9\\cA"}, {"É{2,3}", "e{2,3}"}, {"Eß+", "e(?:ss)+"},
            {"ß", "ss"}, {"aE\xCC\x84*", "ae*"}, {"c\\+\xCC\x81", "c\\+"}, {"\\QÉ+\\Ex", "e\\+x"}, {"\\É", "e"},
            {"\\Q\\E", ""}, {"\\#\\ # ", "\\#\\ # "}, {"A\\", "a\\"}, {"[É", "[É"}, {"(?<", "(?<"}, {"x{2", "x{2"},
            {"\\Qé", "e"}, {"か\xE3\x82\x99", "が"}});
}

TEST(FoldedPattern, SurvivesRandomPatterns)
{
    constexpr std::uint32_t kSeed = 4711;
    constexpr std::array kPieces{"\\", "Q", "E", "[", "]", "(", ")", "?", "{", "}", "É", "ß", "#", " ", "+", "*", "k",
        "<", ">", "p", "u", "x", ":", "\xCC\x81", "|", "\\Q"};
    std::mt19937 random(kSeed);
    for (int round = 0; round < 20'000; ++round) {
        std::string pattern;
        for (std::size_t count = random() % 12; count > 0; --count)
            pattern += kPieces[random() % kPieces.size()];
        const std::string once = foldedPattern(pattern, kBoth);
        EXPECT_TRUE(isValidUTF8(once)) << "seed " << kSeed << ": " << pattern;
        try {
            StringTest(Matches, kBoth, pattern).matches("é k");
        } catch (const NSException& exception) {
            EXPECT_EQ(exception.name(), NSInvalidArgumentException);
        }
    }
}

TEST(StringTest, RefusesAMalformedPattern)
{
    for (const ComparisonOptions options : {kPlain, kBoth}) {
        EXPECT_THROW(StringTest(Matches, options, "(a"), NSException);
        EXPECT_THROW(StringTest(Matches, options, "[a"), NSException);
        EXPECT_THROW(StringTest(Matches, options, "*"), NSException);
    }
}

TEST(StringTest, GivesUpOnARunawayPatternAndLogsItOnce)
{
    std::vector<std::string> lines;
    LogSink before = setLogSink([&lines](std::string_view line) { lines.emplace_back(line); });
    const StringTest test(Matches, kPlain, "(a+)+b");
    const std::string text(40, 'a');
    EXPECT_FALSE(test.matches(text));
    EXPECT_FALSE(StringTest(test).matches(text));
    setLogSink(std::move(before));
    ASSERT_EQ(lines.size(), 1U);
    EXPECT_THAT(lines[0], testing::HasSubstr("MATCHES"));
}

TEST(StringTest, AnswersOnSeveralThreadsAtOnce)
{
    const StringTest test(Matches, kBoth, "(?s).*É+x.*");
    std::vector<std::thread> threads;
    std::array<int, 4> hits{};
    for (int& count : hits) {
        threads.emplace_back([&test, &count] {
            for (int round = 0; round < 500; ++round)
                count += test.matches(round % 2 == 0 ? "an éex here" : "none") ? 1 : 0;
        });
    }
    for (std::thread& thread : threads)
        thread.join();
    EXPECT_THAT(hits, testing::Each(250));
}

// Whole words ---------------------------------------------------------------------------------------------------------

std::string wholeWordPattern(std::string_view word)
{
    return R"((?mis).*?(?:^|[^\w]))" + RegularExpression::escapedPattern(word) + R"((?:[^\w]|$).*)";
}

bool containsWord(std::string_view text, std::string_view word)
{
    return StringTest(Matches, kBoth, wholeWordPattern(word)).matches(text);
}

TEST(WholeWord, StandsBetweenBoundariesAnywhereInTheText)
{
    EXPECT_TRUE(containsWord("apple", "apple"));
    EXPECT_TRUE(containsWord("An Apple, please", "apple"));
    EXPECT_TRUE(containsWord("pineapple\napple", "apple"));
    EXPECT_TRUE(containsWord("(ÄPPLE)", "apple"));
    EXPECT_FALSE(containsWord("pineapple apples", "apple"));
    EXPECT_FALSE(containsWord("", "apple"));
    EXPECT_FALSE(containsWord("my_apple", "apple"));
    EXPECT_FALSE(containsWord("日本apple", "apple"));
    EXPECT_TRUE(containsWord("日本、apple。", "apple"));
    EXPECT_TRUE(containsWord("i like c++.", "c++"));
    EXPECT_FALSE(containsWord("i like c++x", "c++"));
    EXPECT_TRUE(containsWord("[x] a.b", "a.b"));
    EXPECT_FALSE(containsWord("axb", "a.b"));
}

TEST(WholeWord, IsRecognisedInItsOwnPatternOnly)
{
    EXPECT_TRUE(WholeWordPattern::recognise(wholeWordPattern("apple"), kBoth));
    EXPECT_EQ(WholeWordPattern::recognise(wholeWordPattern("Äpple+"), kBoth)->literal(), "apple+");
    EXPECT_FALSE(WholeWordPattern::recognise(wholeWordPattern("apple"), kDiacritics));
    EXPECT_FALSE(WholeWordPattern::recognise(wholeWordPattern("apple"), kPlain));
    EXPECT_FALSE(WholeWordPattern::recognise(wholeWordPattern(""), kBoth));
    EXPECT_FALSE(WholeWordPattern::recognise(wholeWordPattern("\xC2\xAD"), kBoth));
    EXPECT_FALSE(WholeWordPattern::recognise("apple", kBoth));
    EXPECT_FALSE(WholeWordPattern::recognise(R"((?mis).*?(?:^|[^\w])a.b(?:[^\w]|$).*)", kBoth));
    EXPECT_FALSE(WholeWordPattern::recognise(R"((?mis).*?(?:^|[^\w])a\db(?:[^\w]|$).*)", kBoth));
}

TEST(WholeWord, AgreesWithThePatternOnRandomTexts)
{
    constexpr std::uint32_t kSeed = 90210;
    constexpr std::array kPieces{"a", "b", "A", "é", "ß", "ss", " ", "\n", "\r\n", "_", "-", "+", ".", "1", "か", "が",
        "\xE2\x80\x8D", "\xC2\xAD", "\xCC\x81", "😀", "(", "\xE2\x80\xA8", "ͅ", "Σ", "ς", "\xF0\x9D\x9F\x99"};
    std::mt19937 random(kSeed);
    const auto randomText = [&](std::size_t longest) {
        std::string text;
        for (std::size_t count = random() % (longest + 1); count > 0; --count)
            text += kPieces[random() % kPieces.size()];
        return text;
    };
    int hits = 0;
    for (int round = 0; round < 400; ++round) {
        const std::string word = randomText(3);
        const ComparisonOptions options = round % 4 == 0 ? kCase : kBoth;
        const StringTest test(Matches, options, wholeWordPattern(word));
        const RegularExpression pattern(foldedPattern(wholeWordPattern(word), options), {.caseInsensitive = true});
        for (int texts = 0; texts < 5; ++texts) {
            const std::string text = randomText(12);
            const bool answer = test.matches(text);
            EXPECT_EQ(answer, pattern.matches(folded(text, options)).value())
                << "seed " << kSeed << ", round " << round << ": \"" << word << "\" in \"" << text << '"';
            hits += answer ? 1 : 0;
        }
    }
    EXPECT_GT(hits, 200);
}

TEST(WholeWord, AgreesWithThePatternOnEveryCharacterAsABoundary)
{
    // The pattern's own boundary, without the rest that makes it slow.
    const RegularExpression boundary(R"([^\w])", {.caseInsensitive = true});
    const std::optional<WholeWordPattern> word = WholeWordPattern::recognise(wholeWordPattern("x"), kBoth);
    int tested = 0;
    for (char32_t codePoint = 1; codePoint < 0x30000; ++codePoint) {
        std::string character;
        appendCodePoint(character, codePoint);
        const std::string text = fold(character + "x" + character);
        if (text.front() == 'x')
            continue; // a format character, which folding drops
        const bool isBoundary = boundary.matches(text.substr(0, text.find('x'))).value();
        ASSERT_EQ(word->matches(text), isBoundary) << std::hex << std::uint32_t{codePoint};
        ++tested;
    }
    EXPECT_GT(tested, 196'000);
}

} // namespace
} // namespace tarn
