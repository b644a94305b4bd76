#include "tarnmodel/platform/coredata/context/records/OrderedSet.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <random>

namespace tarn {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

/// A number that counts how often it is compared with another or hashed.
struct CountedNumber {
    int number = 0;
    static inline std::int64_t looks = 0;
    friend bool operator==(const CountedNumber& left, const CountedNumber& right)
    {
        ++looks;
        return left.number == right.number;
    }
    struct Hash {
        std::size_t operator()(const CountedNumber& counted) const
        {
            ++looks;
            return static_cast<std::size_t>(counted.number);
        }
    };
};

/// How often values are looked at while so many come, are asked for, and go, the middle ones first.
std::int64_t looksFor(int count)
{
    CountedNumber::looks = 0;
    OrderedSet<CountedNumber, CountedNumber::Hash> set;
    for (int number = 0; number < count; ++number)
        set.add({number});
    for (int number = 0; number < count; ++number)
        EXPECT_TRUE(set.contains({number}));
    for (int number = 0; number < count; ++number)
        EXPECT_TRUE(set.erase({(number + count / 2) % count}));
    EXPECT_TRUE(set.isEmpty());
    return CountedNumber::looks;
}

TEST(OrderedSet, KeepsTheOrderInWhichValuesCame)
{
    OrderedSet<int> set;
    for (const int value : {5, 3, 9, 3, 1})
        set.add(value);
    EXPECT_THAT(set.values(), ElementsAre(5, 3, 9, 1));
    EXPECT_TRUE(set.erase(3));
    EXPECT_FALSE(set.erase(3));
    EXPECT_TRUE(set.add(3));
    EXPECT_THAT(set.values(), ElementsAre(5, 9, 1, 3));
    set.eraseIf([](int value) { return value > 4; });
    EXPECT_THAT(set.values(), ElementsAre(1, 3));
    set.clear();
    EXPECT_THAT(set.values(), IsEmpty());
}

TEST(OrderedSet, LooksAtEachValueAFewTimesHoweverManyThereAre)
{
    const std::int64_t ofFew = looksFor(1000);
    const std::int64_t ofMany = looksFor(32000);
    EXPECT_LT(ofMany, 40 * ofFew) << "32 times as many values";
    EXPECT_LT(ofMany, 32000 * 20);
}

TEST(OrderedSet, DoesWhatAVectorWouldDo)
{
    constexpr unsigned seed = 20240711;
    std::mt19937 random(seed);
    for (const int range : {6, 40, 400}) {
        OrderedSet<int> set;
        std::vector<int> model;
        for (int step = 0; step < 20000; ++step) {
            const int value = static_cast<int>(random() % static_cast<unsigned>(range));
            const auto found = std::find(model.begin(), model.end(), value);
            switch (random() % 5) {
            case 0:
            case 1:
                ASSERT_EQ(set.add(value), found == model.end());
                if (found == model.end())
                    model.push_back(value);
                break;
            case 2:
                ASSERT_EQ(set.erase(value), found != model.end());
                std::erase(model, value);
                break;
            case 3:
                ASSERT_EQ(set.contains(value), found != model.end());
                break;
            default:
                if (random() % 8 == 0) {
                    ASSERT_EQ(set.values(), model) << "seed " << seed << ", step " << step;
                }
            }
            ASSERT_EQ(set.size(), model.size());
            ASSERT_EQ(set.isEmpty(), model.empty());
            if (random() % 700 == 0) {
                set.eraseIf([](int number) { return number % 3 == 0; });
                std::erase_if(model, [](int number) { return number % 3 == 0; });
            }
        }
        EXPECT_EQ(set.values(), model);
    }
}

} // namespace
} // namespace tarn
