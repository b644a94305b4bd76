#include "tarnmodel/platform/coredata/StoreFileMove.h"

#include "tests/platform/coredata/OtherProgram.h"
#include "tests/platform/coredata/StoreFixture.h"

#include <atomic>
#include <fstream>
#include <gmock/gmock.h>
#include <thread>

namespace tarn {
namespace {

using testing::ElementsAre;

namespace fs = std::filesystem;

class StoreFileMove : public testing::Test {
protected:
    fs::path journal() const { return fs::path(folder_.file()) += "-journal"; }
    bool move()
    {
        error_ = NSError();
        return moveStoreFile(folder_.file(), target_, &error_);
    }
    std::vector<std::string> rowsOf(const fs::path& file) { return OtherProgram(file).run("SELECT text FROM notes"); }

    TestFolder folder_;
    fs::path target_ = folder_.path() / "elsewhere.sqlite";
    NSError error_;
};

TEST_F(StoreFileMove, TakesAWholeStoreToAnotherName)
{
    std::int64_t key = 0;
    {
        const OpenStore store(StoreType::SQLite, folder_.file());
        key = store.insert("Label", {{"name", Value("kept")}});
    }
    ASSERT_TRUE(move()) << error_;
    EXPECT_FALSE(fs::exists(folder_.file()));
    EXPECT_EQ(OpenStore(StoreType::SQLite, target_).value("Label", key, "name"), Value("kept"));
}

TEST_F(StoreFileMove, NeverTakesThePlaceOfAnotherFile)
{
    OpenStore(StoreType::SQLite, folder_.file());
    std::ofstream(target_) << "here first";
    EXPECT_FALSE(move());
    EXPECT_EQ(error_.code(), StoreErrorIO);
    EXPECT_TRUE(fs::exists(folder_.file()));
    EXPECT_EQ(fs::file_size(target_), 10U);
}

TEST_F(StoreFileMove, MakesNoFileWhereThereIsNone)
{
    EXPECT_FALSE(move());
    EXPECT_EQ(error_.code(), StoreErrorCannotOpen);
    EXPECT_TRUE(fs::is_empty(folder_.path()));
}

TEST_F(StoreFileMove, WaitsForOthers)
{
    OpenStore(StoreType::SQLite, folder_.file());
    const OtherProgram other(folder_.file());
    other.run("CREATE TABLE notes (text); BEGIN IMMEDIATE; INSERT INTO notes VALUES ('in time')");
    std::atomic<bool> wasThere = false;
    std::thread thread([&] {
        std::this_thread::sleep_for(std::chrono::milliseconds(100));
        wasThere = fs::exists(folder_.file()) && !fs::exists(target_);
        other.run("COMMIT");
    });
    EXPECT_TRUE(move()) << error_;
    thread.join();
    EXPECT_TRUE(wasThere);
    EXPECT_THAT(rowsOf(target_), ElementsAre("in time"));
}

TEST_F(StoreFileMove, TakesBackAnUnfinishedTransactionFirst)
{
    const TestFolder crashed;
    OpenStore(StoreType::SQLite, crashed.file());
    {
        const OtherProgram program(crashed.file());
        program.run("CREATE TABLE notes (text); INSERT INTO notes VALUES ('before');"
                    "PRAGMA cache_size = 1; BEGIN IMMEDIATE; UPDATE notes SET text = 'half-way';"
                    "WITH RECURSIVE many(n) AS (SELECT 1 UNION ALL SELECT n + 1 FROM many WHERE n < 2000)"
                    "INSERT INTO notes SELECT hex(randomblob(200)) FROM many");
        // As the file and its journal are when the program dies now.
        fs::copy_file(crashed.file(), folder_.file());
        fs::copy_file(fs::path(crashed.file()) += "-journal", journal());
        program.run("ROLLBACK");
    }
    ASSERT_GT(fs::file_size(journal()), 0U);

    ASSERT_TRUE(move()) << error_;

    EXPECT_FALSE(fs::exists(journal()));
    EXPECT_THAT(rowsOf(target_), ElementsAre("before"));
}

TEST_F(StoreFileMove, TellsWhoeverHasTheStoreOpen)
{
    const OpenStore store(StoreType::SQLite, folder_.file());
    ASSERT_TRUE(move()) << error_;
    NSError error;
    EXPECT_FALSE(store->beginTransaction(&error));
    EXPECT_EQ(error.code(), StoreErrorReplaced);
}

} // namespace
} // namespace tarn
