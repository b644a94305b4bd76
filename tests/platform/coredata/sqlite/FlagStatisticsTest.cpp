#include "tarnmodel/platform/coredata/sqlite/FlagStatistics.h"
#include "tarnmodel/platform/coredata/sqlite/SQLText.h"
#include "tarnmodel/platform/coredata/sqlite/SQLiteConnection.h"
#include "tests/platform/coredata/StoreFixture.h"

namespace tarn {
namespace {

class CommonFlagsOfATable : public testing::Test {
protected:
    CommonFlagsOfATable() { connection_.execute("CREATE TABLE t (pk INTEGER PRIMARY KEY, flag INTEGER)"); }

    void addRows(int flag, int count)
    {
        SQLiteStatement insert
            = connection_.prepare("WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL SELECT i + 1 FROM n WHERE i < ?2) "
                                  "INSERT INTO t (flag) SELECT ?1 FROM n");
        insert.bindInteger(1, flag);
        insert.bindInteger(2, count);
        insert.run();
    }
    bool contains(std::int64_t value)
    {
        return flags_.contains(connection_, {"SELECT 1 FROM t WHERE flag = ?1", {value}});
    }
    bool containsAfter(int uses, std::int64_t value)
    {
        for (int use = 1; use < uses; ++use)
            contains(value);
        return contains(value);
    }

private:
    static SQLiteConnectionOptions madeWhenMissing()
    {
        SQLiteConnectionOptions options;
        options.create = true;
        return options;
    }

    TestFolder folder_;
    SQLiteConnection connection_{folder_.file(), madeWhenMissing()};
    FlagStatistics flags_;
};

TEST_F(CommonFlagsOfATable, AreThoseOfManyRows)
{
    addRows(0, 2000);
    addRows(1, 1999);
    EXPECT_TRUE(contains(0));
    EXPECT_FALSE(contains(1));
    EXPECT_FALSE(contains(2));
}

TEST_F(CommonFlagsOfATable, AreRememberedForAWhile)
{
    addRows(0, 10);
    ASSERT_FALSE(contains(0));
    ASSERT_FALSE(contains(1));
    addRows(0, 5000);
    EXPECT_FALSE(contains(0)) << "asked again at once";
    EXPECT_TRUE(containsAfter(1000, 0)) << "never asked again";
    EXPECT_FALSE(containsAfter(1000, 1)) << "taken for the other value";
}

} // namespace
} // namespace tarn
