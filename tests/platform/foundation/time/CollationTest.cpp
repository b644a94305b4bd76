#include "tarnmodel/platform/foundation/time/Collation.h"
#include "tarnmodel/platform/foundation/system/Environment.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <random>
#include <vector>

using namespace tarn;
using testing::ElementsAreArray;

namespace {

std::vector<std::string> sorted(std::vector<std::string> texts)
{
    std::sort(texts.begin(), texts.end(),
        [](const auto& left, const auto& right) { return localizedStandardCompare(left, right) < 0; });
    return texts;
}

const std::vector<std::string> kInOrder = {"_x", "#tag", "1", "9", "10", "apfel", "Äpfel", "Emil", "émile", "Note 2",
    "note 10", "Öl", "zebra", "работа", "日本"};

std::vector<std::string> shuffled(std::vector<std::string> texts)
{
    std::mt19937 random(31);
    std::shuffle(texts.begin(), texts.end(), random);
    return texts;
}

TEST(Collation, PutsTextsInTheOrderOfTheLocale)
{
    EnvironmentOverride world;
    for (const char* locale : {"en_US", "de_DE", "en_US_POSIX", ""}) {
        world.setLocaleIdentifier(locale);
        EXPECT_THAT(sorted(shuffled(kInOrder)), ElementsAreArray(kInOrder)) << locale;
    }
    world.setLocaleIdentifier("sv_SE");
    EXPECT_TRUE(localizedStandardCompare("Äpfel", "zebra") > 0);
    EXPECT_TRUE(localizedStandardCompare("apfel", "zebra") < 0);
    world.setLocaleIdentifier("de_DE");
    EXPECT_TRUE(localizedStandardCompare("Äpfel", "zebra") < 0);
}

TEST(Collation, ReadsNumbersByTheirValue)
{
    EnvironmentOverride world;
    world.setLocaleIdentifier("en_US");
    EXPECT_TRUE(localizedStandardCompare("file2", "file10") < 0);
    EXPECT_TRUE(localizedStandardCompare("1.10", "1.9") > 0);
    EXPECT_TRUE(localizedStandardCompare("résumé", "resume") > 0);
    EXPECT_TRUE(localizedStandardCompare("ß", "ss") > 0);
    EXPECT_TRUE(localizedStandardCompare("co-op", "coop") < 0);
}

TEST(Collation, BreaksTiesByBytes)
{
    EnvironmentOverride world;
    world.setLocaleIdentifier("en_US");
    EXPECT_TRUE(localizedStandardCompare("File2", "file2") < 0);
    EXPECT_TRUE(localizedStandardCompare("file002", "file2") < 0);
    EXPECT_TRUE(localizedStandardCompare("same", "same") == 0);
    EXPECT_TRUE(localizedStandardCompare("", "") == 0);
    EXPECT_TRUE(localizedStandardCompare("", "a") < 0);
}

TEST(Collation, HasKeysThatCompareAlike)
{
    EnvironmentOverride world;
    world.setLocaleIdentifier("en_US");
    std::vector<std::string> texts = kInOrder;
    for (const char* more : {"", "File2", "file2", "file002", "file10", "a", "A", "ä", "a\u0308", "ab", "a b", "\xFF"})
        texts.emplace_back(more);
    texts.push_back(std::string(5'000, 'x'));
    texts.push_back(std::string(5'000, 'x') + "y");
    for (const std::string& left : texts) {
        for (const std::string& right : texts)
            EXPECT_TRUE((localizedStandardSortKey(left) <=> localizedStandardSortKey(right))
                == localizedStandardCompare(left, right))
                << left << " and " << right;
    }
}

TEST(Collation, HoldsForALocaleThatNobodyKnows)
{
    EnvironmentOverride world;
    world.setLocaleIdentifier("xx_NOWHERE");
    EXPECT_TRUE(localizedStandardCompare("file2", "file10") < 0);
}

} // namespace
