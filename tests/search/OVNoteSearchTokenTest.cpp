#include "tarnmodel/search/OVNoteSearchToken.h"

#include <gtest/gtest.h>

#include <limits>

namespace tarn {

TEST(SearchToken, BeginsUnused)
{
    OVNoteSearchToken token({3, 4}, "(x)");
    EXPECT_EQ(token.range(), (NSRange{3, 4}));
    EXPECT_EQ(token.predicateString(), "(x)");
    EXPECT_FALSE(token.predicatedUsed());
    token.setPredicatedUsed(true);
    token.setRange({0, 1});
    token.setPredicateString("");
    EXPECT_TRUE(token.predicatedUsed());
    EXPECT_EQ(token.range(), (NSRange{0, 1}));
    EXPECT_EQ(token.predicateString(), "");
}

TEST(SearchToken, IncludesWhatLiesInItsRange)
{
    const OVNoteSearchToken token({3, 4}, "");
    EXPECT_FALSE(token.includeLocation(2));
    EXPECT_TRUE(token.includeLocation(3));
    EXPECT_TRUE(token.includeLocation(6));
    EXPECT_FALSE(token.includeLocation(7));
    EXPECT_FALSE(OVNoteSearchToken({3, 0}, "").includeLocation(3));
    // A sum of location and length would overflow here.
    constexpr std::uint64_t kLast = std::numeric_limits<std::uint64_t>::max();
    EXPECT_TRUE(OVNoteSearchToken({kLast - 1, kLast}, "").includeLocation(kLast));
    EXPECT_FALSE(OVNoteSearchToken({kLast - 1, kLast}, "").includeLocation(0));
}

TEST(SearchToken, IsTheFirstOfTheListThatIncludesALocation)
{
    std::vector<OVNoteSearchToken> tokens{{{5, 3}, "a"}, {{0, 6}, "b"}, {{2, 0}, "c"}};
    EXPECT_EQ(OVNoteSearchToken::tokenForLocation(5, tokens), &tokens[0]);
    EXPECT_EQ(OVNoteSearchToken::tokenForLocation(2, tokens), &tokens[1]);
    EXPECT_EQ(OVNoteSearchToken::tokenForLocation(8, tokens), nullptr);
    std::vector<OVNoteSearchToken> none;
    EXPECT_EQ(OVNoteSearchToken::tokenForLocation(0, none), nullptr);
}

} // namespace tarn
