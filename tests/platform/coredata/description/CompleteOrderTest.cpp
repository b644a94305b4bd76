#include "tarnmodel/platform/coredata/description/CompleteOrder.h"

#include "tests/platform/coredata/StoreFixture.h"

#include <random>

namespace tarn {
namespace {

using Order = std::vector<NSSortDescriptor>;

struct Completed {
    Order wanted;
    Order whole;
    bool keysAscend;
    bool isIndexed;
};

TEST(CompleteOrder, GoesOnAsTheIndexDoes)
{
    const std::vector<Completed> cases{
        {{}, {}, true, true},
        {{{"flag", false}, {"modified", false}}, {{"flag", false}, {"modified", false}, {"order", true}}, true, true},
        {{{"flag", true}, {"modified", true}}, {{"flag", true}, {"modified", true}, {"order", false}}, false, true},
        {{{"flag", false}}, {{"flag", false}, {"modified", false}, {"order", true}}, true, true},
        {{{"flag", false}, {"modified", true}}, {{"flag", false}, {"modified", true}}, true, false},
        {{{"modified", false}}, {{"modified", false}}, true, false},
        {{{"code", true}}, {{"code", true}}, true, true},
        {{{"code", false}}, {{"code", false}}, false, true},
        {{{"code", false, SortComparison::LocalizedStandard}}, {{"code", false, SortComparison::LocalizedStandard}},
            true, false},
        {{{"code", false}, {"order", true}}, {{"code", false}, {"order", true}}, true, false},
        {{{"owner.name", false}}, {{"owner.name", false}}, true, false},
    };
    const NSEntityDescription& document = *storeTestModel()->entityNamed("Document");
    for (const Completed& one : cases) {
        const CompleteOrder order = completeOrder(one.wanted, document);
        const std::string name = one.wanted.empty() ? "nothing" : one.wanted.front().key;
        EXPECT_EQ(order.descriptors, one.whole) << name;
        EXPECT_EQ(order.keysAscend, one.keysAscend) << name;
        EXPECT_EQ(order.isIndexed, one.isIndexed) << name;
    }
}

class OrderOfEqualRows : public testing::Test {
protected:
    static constexpr int kCount = 400;

    OrderOfEqualRows()
    {
        std::mt19937 random(20261122);
        for (int i = 0; i < kCount; ++i) {
            const std::vector<std::pair<std::string, Value>> values{{"flag", random() % 3 == 0},
                {"modified", random() % 8 ? Value(dateWithMicrosecondsSinceReferenceDate(random() % 2)) : Value()},
                {"order", static_cast<std::int64_t>(random() % 3)},
                {"code", random() % 8 ? Value(std::string(1, static_cast<char>('a' + random() % 3))) : Value()}};
            EXPECT_EQ(sql_.insert("Document", values), memory_.insert("Document", values));
        }
    }

    std::string explained(
        const Order& order, std::size_t limit, const std::optional<NSPredicate>& predicate = std::nullopt) const
    {
        StoreFetch fetch;
        fetch.entity = &sql_.entity("Document");
        fetch.sortDescriptors = order;
        fetch.limit = limit;
        fetch.predicate = predicate ? &*predicate : nullptr;
        return sql_->explain(fetch);
    }

    TestFolder folder_;
    OpenStore sql_{StoreType::SQLite, folder_.file(), {.pragmas = {{"journal_mode", "MEMORY"}}}};
    OpenStore memory_{StoreType::InMemory, {}};
};

TEST_F(OrderOfEqualRows, IsReadFromTheIndexForwardsAndBackwards)
{
    for (const Order& order : {Order{{"flag", false}, {"modified", false}}, Order{{"flag", true}, {"modified", true}},
             Order{{"flag", false}}, Order{{"flag", true}}, Order{{"code", true}}, Order{{"code", false}}}) {
        const std::string text = explained(order, 50);
        EXPECT_EQ(text.find("TEMP B-TREE"), std::string::npos) << text;
    }
}

TEST_F(OrderOfEqualRows, IsReadFromTheIndexWhereWhatSettlesTiesIsGiven)
{
    for (const Order& order : {Order{{"flag", false}, {"modified", false}}, Order{{"flag", true}}}) {
        const std::string text = explained(order, 50, NSPredicate::predicateWithFormat("order == 1"));
        EXPECT_EQ(text.find("TEMP B-TREE"), std::string::npos) << text;
    }
}

TEST_F(OrderOfEqualRows, IsTheSameInEveryStore)
{
    const Order orders[] = {{{"flag", false}, {"modified", false}}, {{"flag", true}, {"modified", true}},
        {{"flag", false}}, {{"flag", true}}, {{"code", true}}, {{"code", false}}, {{"modified", false}},
        {{"flag", false}, {"modified", true}}, {{"code", false}, {"flag", true}}, {}};
    const auto predicate = NSPredicate::predicateWithFormat("order != 1");
    for (const Order& order : orders) {
        const auto all = memory_.keys("Document", predicate, order);
        ASSERT_EQ(sql_.keys("Document", predicate, order), all);
        for (const std::size_t offset : {0, 7, 133})
            ASSERT_EQ(sql_.keys("Document", predicate, order, 50, offset),
                std::vector<std::int64_t>(all.begin() + static_cast<std::ptrdiff_t>(offset),
                    all.begin() + static_cast<std::ptrdiff_t>(offset + 50)));
    }
}

} // namespace
} // namespace tarn
