#include "tarnmodel/platform/predicate/LiteralFinder.h"

#include <fmt/format.h>
#include <gtest/gtest.h>
#include <random>
#include <string>

namespace tarn {
namespace {

std::vector<bool> foundIn(LiteralFinder& finder, std::string_view text, std::size_t count)
{
    std::vector<bool> found(count);
    finder.find(text, [&](std::size_t literal) {
        EXPECT_FALSE(found[literal]) << "told twice of " << literal;
        found[literal] = true;
        return true;
    });
    return found;
}

std::string randomBytes(std::mt19937& random, std::size_t length, unsigned letters)
{
    std::string made;
    for (; length > 0; --length)
        made += static_cast<char>(letters == 256 ? random() : 'a' + random() % letters);
    return made;
}

TEST(LiteralFinder, FindsWhatTheTextContains)
{
    std::mt19937 random(20261122);
    for (int round = 0; round < 2000; ++round) {
        const unsigned letters = round % 7 == 0 ? 256 : 1 + random() % 3;
        const std::size_t longest = round % 50 == 0 ? 300 : 6;
        std::vector<std::string> literals(1 + random() % (round % 40 == 0 ? 3000 : 20));
        for (std::string& literal : literals)
            literal = randomBytes(random, 1 + random() % longest, letters);
        LiteralFinder finder(std::vector<std::string_view>(literals.begin(), literals.end()));
        for (int texts = 0; texts < 3; ++texts) {
            const std::string text = randomBytes(random, random() % 200, letters);
            const auto found = foundIn(finder, text, literals.size());
            for (std::size_t i = 0; i < literals.size(); ++i)
                ASSERT_EQ(found[i], text.find(literals[i]) != std::string::npos)
                    << round << ": " << literals[i] << " in " << text;
        }
    }
}

TEST(LiteralFinder, EndsThePassWhenItIsToldTo)
{
    const std::vector<std::string_view> literals{"b", "ab", "c", "b"};
    LiteralFinder finder(literals);
    std::vector<std::size_t> told;
    finder.find("xabc", [&](std::size_t literal) {
        told.push_back(literal);
        return false;
    });
    EXPECT_EQ(told, std::vector<std::size_t>{1});
    EXPECT_EQ(foundIn(finder, "xabc", 4), std::vector<bool>({true, true, true, true})) << "and begins anew";
    EXPECT_EQ(foundIn(finder, "", 4), std::vector<bool>(4));
}

TEST(LiteralFinder, HasLongTailsBeyondItsTable)
{
    // Each begins as the others do, deep into the tree; their ends lead from one into another.
    std::vector<std::string> literals;
    for (int i = 0; i < 2000; ++i)
        literals.push_back(fmt::format("abcabcabcabd{:04}abcabcabcabc{}", i, i % 10));
    literals.emplace_back("cabcabd1");
    LiteralFinder finder(std::vector<std::string_view>(literals.begin(), literals.end()));
    const std::string text = "xabcabcabcabcabd1234abcabcabcabcabd1777abcabcabcabc7";
    const auto found = foundIn(finder, text, literals.size());
    for (std::size_t i = 0; i < literals.size(); ++i)
        EXPECT_EQ(found[i], text.find(literals[i]) != std::string::npos) << literals[i];
    EXPECT_TRUE(found[1777]);
    EXPECT_FALSE(found[1234]);
}

} // namespace
} // namespace tarn
