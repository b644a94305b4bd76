// Any bytes give a predicate, nothing, or the parser's exception, in a time that grows with their length.

#include "tarnmodel/platform/foundation/system/Environment.h"
#include "tarnmodel/platform/foundation/text/UTF.h"
#include "tarnmodel/platform/foundation/values/NSException.h"
#include "tarnmodel/platform/predicate/PredicateTree.h"
#include "tarnmodel/search/ExpressionMatches.h"
#include "tarnmodel/search/OVNoteSearchManager.h"
#include "tarnmodel/search/SearchCompiler.h"
#include "tests/support/LinearGrowth.h"

#include <gtest/gtest.h>

#include <random>
#include <thread>

namespace tarn {

namespace {

std::string repeated(std::string_view part, std::size_t length)
{
    std::string text;
    while (text.size() < length)
        text += part;
    return text;
}

/// Compiles, highlights and finds the editor's term; the parser's exception alone may come out.
void useWholeLanguage(const std::string& query)
{
    try {
        const auto predicate = OVNoteSearchManager::predicateForSearchString(query);
        EXPECT_NE(predicate ? predicate->predicateFormat() : "nil", "");
    } catch (const NSException& exception) {
        EXPECT_EQ(exception.name(), NSInvalidArgumentException);
    }
    const std::string pattern = OVNoteSearchManager::likeOrPatternForSearchString(query);
    EXPECT_TRUE(isValidUTF8(pattern));
    EXPECT_TRUE(isValidUTF8(OVNoteSearchManager::searchStringForNoteEditor(query)));
    EXPECT_TRUE(OVNoteSearchManager::searchStringWithoutSpecialSearches(query).size() <= query.size());
}

constexpr std::size_t kBytes = 4'000;

} // namespace

TEST(HostileSearch, IsCompiledInTimeThatGrowsWithItsLength)
{
    const auto compile = [](const std::string& query) { OVNoteSearchManager::predicateForSearchString(query); };
    for (const std::string_view part : {" \"x", "#", "(#0", "# ", "@date(2021) ",
             "@前百千万亿百千万亿百千万亿百千万亿百千万亿百千万亿百千万亿百千万亿天 ",
             "@前一千一百一十一兆一千一百一十一亿一千一百一十一万一千一百一十一天 ", " \"a\"b", "\"", "#a ", " #0",
             "#0-0-", "#a b b b", "!#", "-#", "#a#", "- ", "-a ", "or ", "@today ", "@date(x) ", "@last7days ",
             "@前百百百百百百百百百百百百百百百百百百百百百百百百百百百百百百百百天 ", "@前百天 ",
             "@前七零七零七零七零七零七零七零七零七零七零七零七零七零七零七零七零天 ", "@前千兆亿百千天 ", "@pinned",
             "\"a\" ", "#a b# ", "@title ", "@ocr ", " ", "\n", "\\", "\"a b\" ", "é", "😀 ", "İ", "\xFF", "#*/a ",
             "!#a "}) {
        SCOPED_TRACE(std::string(part));
        expectLinear(
            compile, [part](std::size_t bytes) { return repeated(part, bytes); }, kBytes);
    }
}

TEST(HostileSearch, IsHighlightedInTimeThatGrowsWithItsLength)
{
    const auto highlight = [](const std::string& query) {
        OVNoteSearchManager::likeOrPatternForSearchString(query);
        OVNoteSearchManager::searchStringForNoteEditor(query);
        OVNoteSearchManager::searchStringWithoutSpecialSearches(query);
    };
    for (const std::string_view part :
        {" \"x", "#", "(#0", "a ", "@date(2021) ", "\"a\" ", "#a b# ", "-a ", "@pinned"}) {
        SCOPED_TRACE(std::string(part));
        expectLinear(
            highlight, [part](std::size_t bytes) { return repeated(part, bytes); }, kBytes);
    }
}

TEST(HostileSearch, OfFiftyThousandWordsIsOnePredicate)
{
    std::string query;
    for (int word = 0; word < 50'000; ++word)
        query += "w" + std::to_string(word) + (word % 2 == 0 ? " or " : " ");
    const auto predicate = OVNoteSearchManager::predicateForSearchString(query);
    ASSERT_TRUE(predicate);
    const auto& compound = std::get<CompoundPredicate>(predicate->node().form);
    EXPECT_EQ(compound.type, CompoundType::Or);
    // w0 or w1 w2 or w3 w4 or ...: an encrypted and a plain alternative of the first, an AND for each pair, and the
    // last.
    EXPECT_EQ(compound.members.size(), 2U + 24'999U + 2U);
}

TEST(HostileSearch, OfAnyBytesGivesAPredicateOrNothingOrTheParsersException)
{
    constexpr std::uint32_t kSeed = 4'711;
    SCOPED_TRACE("seed " + std::to_string(kSeed));
    std::mt19937 random(kSeed);
    const std::vector<std::string> pieces{"#", "\"", "“", "”", "-", "!", " ", "a", "B", "0", "/", "#*/", "(", ")", "<",
        ">", "@title", "@ocr", "@todo", "@done", "@last", "7days", "@date(", "@日期（", "）", "2021", "-03", "@前",
        "七", "天", "or", "OR", "NOT", "'", "\\", "%@", "$x", "text CONTAINS[cd]", "1 == 1", "\n", "\u200D", "\u2028",
        "İ", "\xF0\x9F", "\xC0", std::string(1, '\0'), "😀", "\u0301", "@empty", "\"x y\"", "#a b#"};
    std::size_t found = 0;
    for (int round = 0; round < 12'000; ++round) {
        std::string query;
        for (std::size_t left = random() % 12; left > 0; --left) {
            if (random() % 8 == 0)
                query += static_cast<char>(random() % 256);
            else
                query += pieces[random() % pieces.size()];
            if (random() % 3 == 0)
                query += ' ';
        }
        OVNoteSearchManager::setAllowOCRSearch(random() % 2 == 0);
        SCOPED_TRACE(testing::PrintToString(query));
        useWholeLanguage(query);
        found += SearchCompiler(query, false).predicateText().empty() ? 0 : 1;
    }
    OVNoteSearchManager::setAllowOCRSearch(false);
    EXPECT_GT(found, 8'000U);
}

TEST(HostileSearch, IsCompiledOnSeveralThreadsAtOnce)
{
    const std::vector<std::string> queries{
        "apple -pear", "\"big red\" or #fruit", "@前七天 @date(3/15/21)", "@empty -@done", "!#a #*/b", "@title \"x\""};
    const auto compile = [&queries] {
        std::string all;
        for (const std::string& query : queries)
            all += OVNoteSearchManager::predicateForSearchString(query)->predicateFormat()
                + OVNoteSearchManager::likeOrPatternForSearchString(query)
                + OVNoteSearchManager::searchStringForNoteEditor(query) + '\n';
        return all;
    };
    EnvironmentOverride world;
    world.setNow(dateFromISO8601String("2021-03-15T10:00:00Z").value());
    std::vector<std::string> results(4);
    std::vector<std::thread> threads;
    for (std::string& result : results)
        threads.emplace_back([&result, &compile] {
            for (int round = 0; round < 25; ++round)
                result = compile();
        });
    for (std::thread& thread : threads)
        thread.join();
    for (const std::string& result : results)
        EXPECT_EQ(result, compile());
}

TEST(HostileSearch, FindsTokensByIndexAsByLooking)
{
    constexpr std::uint32_t kSeed = 815;
    SCOPED_TRACE("seed " + std::to_string(kSeed));
    std::mt19937 random(kSeed);
    for (int round = 0; round < 3'000; ++round) {
        std::string query;
        for (std::size_t left = 1 + random() % 12; left > 0; --left)
            query += std::vector<std::string>{"\"a", "b\"", " ", "#x", "y#", "\"#z\"", "-", "w"}[random() % 8]
                + (random() % 2 ? " " : "");
        std::vector<OVNoteSearchToken> tokens = tokensOfSearchString(query, false);
        const TokenIndex index(tokens);
        for (std::uint64_t location = 0; location <= query.size(); ++location)
            ASSERT_EQ(index.tokenForLocation(location), OVNoteSearchToken::tokenForLocation(location, tokens))
                << query << " at " << location;
    }
}

} // namespace tarn
