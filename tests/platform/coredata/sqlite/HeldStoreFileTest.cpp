#include "tarnmodel/platform/coredata/HeldStoreFile.h"

#include "tarnmodel/platform/coredata/sqlite/SQLiteConnection.h"
#include "tarnmodel/platform/foundation/filesystem/NSFileManager.h"
#include "tests/platform/coredata/OtherProgram.h"
#include "tests/platform/coredata/StoreFixture.h"

#include <atomic>
#include <cstdlib>
#include <fcntl.h>
#include <fstream>
#include <future>
#include <gmock/gmock.h>
#include <sys/wait.h>
#include <thread>
#include <unistd.h>

namespace tarn {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;

namespace fs = std::filesystem;
using std::chrono::milliseconds;

std::string bytesOfFile(const fs::path& file)
{
    std::ifstream stream(file, std::ios::binary);
    return {std::istreambuf_iterator<char>(stream), {}};
}

/// Whether another process could begin to read: nobody holds SQLite's bytes for readers against it.
bool isFreeForAnotherProcess(const fs::path& file)
{
    const pid_t child = ::fork();
    if (child == 0) {
        const int descriptor = ::open(file.c_str(), O_RDONLY);
        struct flock lock { };
        lock.l_type = F_RDLCK;
        lock.l_whence = SEEK_SET;
        lock.l_start = 0x40000002;
        lock.l_len = 510;
        ::_exit(descriptor >= 0 && ::fcntl(descriptor, F_GETLK, &lock) == 0 && lock.l_type == F_UNLCK ? 0 : 1);
    }
    int status = -1;
    ::waitpid(child, &status, 0);
    return status == 0;
}

class HeldFile : public testing::Test {
protected:
    void SetUp() override
    {
        const OpenStore store(StoreType::SQLite, file_);
        key_ = store.insert("Label", {{"name", Value("old")}});
        const OpenStore next(StoreType::SQLite, successor_);
        next.insert("Label", {{"name", Value("new")}});
        next.insert("Label", {{"name", Value("newer")}});
    }
    std::unique_ptr<HeldStoreFile> hold()
    {
        error_ = NSError();
        auto held = HeldStoreFile::hold(file_, {}, &error_);
        EXPECT_NE(held, nullptr) << error_;
        return held;
    }
    bool replace(HeldStoreFile& held) { return held.replaceWith(successor_, backup_, &error_); }
    static std::vector<std::string> namesIn(const fs::path& file)
    {
        return OtherProgram(file).run("SELECT name FROM Label ORDER BY pk");
    }

    TestFolder folder_;
    fs::path file_ = folder_.file();
    fs::path successor_ = folder_.path() / "database.Model 2.sqlite";
    fs::path backup_ = folder_.path() / "backup.sqlite";
    std::int64_t key_ = 0;
    NSError error_;
};

// The lock
// -------------------------------------------------------------------------------------------------------------

TEST_F(HeldFile, TellsWhatIsInTheStore)
{
    const auto metadata = NSPersistentStoreCoordinator::metadataForPersistentStoreOfType(StoreType::SQLite, file_);
    const auto held = hold();
    EXPECT_EQ(held->metadata(), metadata);
    EXPECT_EQ(held->size(), fs::file_size(file_));
    EXPECT_EQ(held->file(), fs::canonical(file_));
}

TEST_F(HeldFile, IsReadByNobodyElse)
{
    EXPECT_TRUE(isFreeForAnotherProcess(file_));
    auto held = hold();
    EXPECT_FALSE(isFreeForAnotherProcess(file_));
    EXPECT_ANY_THROW(SQLiteConnection(file_, {.patience = milliseconds(0)}));
    EXPECT_FALSE(isFreeForAnotherProcess(file_));
    held.reset();
    EXPECT_TRUE(isFreeForAnotherProcess(file_));
    EXPECT_THAT(namesIn(file_), ElementsAre("old"));
}

TEST_F(HeldFile, KeepsTheLockOverTransactionsOfItsConnection)
{
    const auto held = hold();
    SQLiteConnection& connection = held->connection();
    const fs::path side = folder_.path() / "side.sqlite";
    SQLiteConnection(side, {.create = true}).execute("PRAGMA user_version = 1");
    connection.execute("ATTACH '" + side.string() + "' AS side");
    connection.execute("BEGIN IMMEDIATE; CREATE TABLE side.Copy AS SELECT * FROM main.Label; COMMIT");
    EXPECT_FALSE(isFreeForAnotherProcess(file_));
    connection.execute("BEGIN EXCLUSIVE; DELETE FROM side.Copy; ROLLBACK");
    EXPECT_ANY_THROW(connection.execute("BEGIN; INSERT INTO side.Copy SELECT * FROM nowhere"));
    connection.execute("ROLLBACK");
    EXPECT_FALSE(isFreeForAnotherProcess(file_));
    EXPECT_EQ(connection.integerOf("SELECT count(*) FROM side.Copy"), 1);
    connection.execute("DETACH side");
    EXPECT_FALSE(isFreeForAnotherProcess(file_));
    EXPECT_EQ(connection.integerOf("SELECT count(*) FROM Label"), 1);
    EXPECT_FALSE(isFreeForAnotherProcess(file_));
}

TEST_F(HeldFile, WaitsForAWriter)
{
    const OtherProgram other(file_);
    other.run("BEGIN IMMEDIATE; UPDATE Label SET name = 'in time'");
    std::thread thread([&] {
        std::this_thread::sleep_for(milliseconds(100));
        other.run("COMMIT");
    });
    const auto held = hold();
    thread.join();
    SQLiteStatement statement = held->connection().prepare("SELECT name FROM Label");
    ASSERT_TRUE(statement.step());
    EXPECT_EQ(statement.bytes(0), "in time");
}

TEST_F(HeldFile, IsGivenUpWhenTheCallerDoesNotWantToWait)
{
    const OtherProgram other(file_);
    other.run("BEGIN EXCLUSIVE");
    EXPECT_EQ(HeldStoreFile::hold(
                  file_, [](milliseconds) { return false; }, &error_),
        nullptr);
    EXPECT_EQ(error_.code(), StoreErrorBusy);
    other.run("ROLLBACK");
}

TEST_F(HeldFile, IsTheOneThatStandsThereWhenTheWaitIsOver)
{
    auto first = hold();
    std::atomic<bool> waits = false;
    auto second = std::async(std::launch::async, [&] {
        return HeldStoreFile::hold(file_, [&](milliseconds) {
            waits = true;
            return true;
        });
    });
    while (!waits)
        std::this_thread::yield();
    ASSERT_TRUE(replace(*first)) << error_;
    first.reset();
    const auto held = second.get();
    ASSERT_NE(held, nullptr);
    EXPECT_EQ(held->connection().integerOf("SELECT count(*) FROM Label"), 2);
}

TEST_F(HeldFile, BringsBackAnUnfinishedTransactionAndLeavesNoJournal)
{
    const TestFolder crashed;
    fs::copy_file(file_, crashed.file());
    const fs::path journal = fs::path(file_) += "-journal";
    {
        const OtherProgram program(crashed.file());
        program.run("CREATE TABLE many (text); PRAGMA cache_size = 1; BEGIN IMMEDIATE; UPDATE Label SET name = 'half';"
                    "WITH RECURSIVE n(n) AS (SELECT 1 UNION ALL SELECT n + 1 FROM n WHERE n < 2000)"
                    "INSERT INTO many SELECT hex(randomblob(200)) FROM n");
        fs::copy_file(crashed.file(), file_, fs::copy_options::overwrite_existing);
        fs::copy_file(fs::path(crashed.file()) += "-journal", journal);
        program.run("ROLLBACK");
    }
    {
        const auto held = hold();
        EXPECT_FALSE(fs::exists(journal));
    }
    EXPECT_FALSE(fs::exists(journal));
    EXPECT_THAT(namesIn(file_), ElementsAre("old"));
}

TEST_F(HeldFile, IsNoFileOfAnotherProgramAndNoneThatIsNotThere)
{
    const fs::path other = folder_.path() / "other.sqlite";
    EXPECT_EQ(HeldStoreFile::hold(other, {}, &error_), nullptr);
    EXPECT_EQ(error_.code(), StoreErrorCannotOpen);
    EXPECT_THAT(error_.localizedDescription(), HasSubstr("other.sqlite"));
    EXPECT_FALSE(fs::exists(other));
    std::ofstream(other) << "a diary";
    EXPECT_EQ(HeldStoreFile::hold(other, {}, &error_), nullptr);
    EXPECT_EQ(error_.code(), StoreErrorNotAStore);
    EXPECT_EQ(bytesOfFile(other), "a diary");
}

// Another file in its place
// --------------------------------------------------------------------------------------------

TEST_F(HeldFile, MakesPlaceForAnotherAndStaysAsABackup)
{
    const std::string old = bytesOfFile(file_);
    const std::string next = bytesOfFile(successor_);
    {
        const auto held = hold();
        ASSERT_TRUE(replace(*held)) << error_;
        EXPECT_TRUE(isFreeForAnotherProcess(file_)) << "the new store's lock is given back";
        EXPECT_FALSE(isFreeForAnotherProcess(backup_));
    }
    EXPECT_EQ(bytesOfFile(file_), next);
    EXPECT_EQ(bytesOfFile(backup_), old);
    EXPECT_FALSE(fs::exists(successor_));
    EXPECT_EQ(std::distance(fs::directory_iterator(folder_.path()), {}), 2) << "nothing else lies there";
}

TEST_F(HeldFile, HandsItsPermissionsDown)
{
    const fs::perms permissions = fs::perms::owner_read | fs::perms::owner_write | fs::perms::group_read;
    fs::permissions(file_, permissions);
    fs::permissions(successor_, fs::perms::owner_all | fs::perms::others_read);
    const auto held = hold();
    ASSERT_TRUE(replace(*held)) << error_;
    EXPECT_EQ(fs::status(file_).permissions(), permissions);
    EXPECT_EQ(fs::status(backup_).permissions(), permissions);
}

TEST_F(HeldFile, IsCopiedToAnotherFileSystem)
{
    std::string name = "/dev/shm/tarn-held-XXXXXX";
    if (!::mkdtemp(name.data()) || NSFileManager::areOnOneFileSystem(name, folder_.path()))
        GTEST_SKIP() << "there is no other file system";
    backup_ = fs::path(name) / "backup.sqlite";
    const std::string old = bytesOfFile(file_);
    {
        const auto held = hold();
        ASSERT_TRUE(replace(*held)) << error_;
        EXPECT_FALSE(held->connection().isInTransaction());
    }
    EXPECT_EQ(bytesOfFile(backup_), old);
    EXPECT_EQ(fs::status(backup_).permissions(), fs::perms::owner_read | fs::perms::owner_write);
    EXPECT_THAT(namesIn(file_), ElementsAre("new", "newer"));
    fs::remove_all(name);
}

TEST_F(HeldFile, KeepsItsLockWhileItIsCopied)
{
    std::string name = "/dev/shm/tarn-held-XXXXXX";
    if (!::mkdtemp(name.data()) || NSFileManager::areOnOneFileSystem(name, folder_.path()))
        GTEST_SKIP() << "there is no other file system";
    // The successor lies there too, so that the copy succeeds and the renaming cannot.
    const fs::path elsewhere = fs::path(name) / "next.sqlite";
    fs::copy_file(successor_, elsewhere);
    const auto held = hold();
    EXPECT_FALSE(held->replaceWith(elsewhere, fs::path(name) / "backup.sqlite", &error_));
    EXPECT_THAT(error_.localizedDescription(), HasSubstr("next.sqlite"));
    EXPECT_FALSE(isFreeForAnotherProcess(file_));
    EXPECT_FALSE(fs::exists(fs::path(name) / "backup.sqlite"));
    fs::remove_all(name);
}

TEST_F(HeldFile, StaysWhenItsBackupCannotBeMade)
{
    const std::string old = bytesOfFile(file_);
    auto held = hold();
    backup_ = folder_.path() / "no such folder" / "backup.sqlite";
    EXPECT_FALSE(replace(*held));
    EXPECT_THAT(error_.localizedDescription(), HasSubstr("no such folder"));
    EXPECT_FALSE(isFreeForAnotherProcess(file_));

    backup_ = folder_.path() / "taken";
    std::ofstream(backup_) << "here first";
    EXPECT_FALSE(replace(*held));
    EXPECT_EQ(error_.code(), EEXIST);
    EXPECT_EQ(bytesOfFile(backup_), "here first");
    EXPECT_FALSE(isFreeForAnotherProcess(file_));
    held.reset();
    EXPECT_EQ(bytesOfFile(file_), old);
    EXPECT_TRUE(fs::exists(successor_));
}

TEST_F(HeldFile, StaysWhenTheSuccessorIsNoStoreOrNotThere)
{
    const std::string old = bytesOfFile(file_);
    auto held = hold();
    std::ofstream(successor_) << "not a store";
    EXPECT_FALSE(replace(*held));
    EXPECT_EQ(error_.code(), StoreErrorNotAStore);
    std::ofstream(successor_, std::ios::trunc).flush();
    EXPECT_FALSE(replace(*held)) << "an empty file is none either";
    EXPECT_EQ(error_.code(), StoreErrorNotAStore);
    fs::remove(successor_);
    EXPECT_FALSE(replace(*held));
    EXPECT_EQ(error_.code(), ENOENT);
    EXPECT_FALSE(fs::exists(backup_));
    EXPECT_FALSE(fs::exists(successor_));
    held.reset();
    EXPECT_EQ(bytesOfFile(file_), old);
}

TEST_F(HeldFile, TellsWhoeverHadTheStoreOpen)
{
    const OpenStore open(StoreType::SQLite, file_);
    ASSERT_EQ(open.value("Label", key_, "name"), Value("old"));
    {
        const auto held = hold();
        ASSERT_TRUE(replace(*held)) << error_;
    }
    NSError error;
    EXPECT_FALSE(open->beginTransaction(&error));
    EXPECT_EQ(error.code(), StoreErrorReplaced);
    std::vector<StoreRow> rows;
    const std::int64_t key = key_;
    EXPECT_FALSE(open->rowsForKeys(open.entity("Label"), std::span(&key, 1), RowContents::WholeRow, rows, &error));
    EXPECT_EQ(error.code(), StoreErrorReplaced);
}

TEST_F(HeldFile, AWriterThatWaitedNeverWritesIntoTheBackup)
{
    const OpenStore open(StoreType::SQLite, file_);
    auto held = hold();
    const std::string old = bytesOfFile(successor_);
    NSError error;
    auto writer = std::async(std::launch::async, [&] { return open->beginTransaction(&error); });
    std::this_thread::sleep_for(milliseconds(50));
    ASSERT_TRUE(replace(*held)) << error_;
    held.reset();
    EXPECT_EQ(writer.get(), nullptr);
    EXPECT_EQ(error.code(), StoreErrorReplaced);
    EXPECT_THAT(namesIn(backup_), ElementsAre("old"));
    EXPECT_EQ(bytesOfFile(file_), old);
}

TEST_F(HeldFile, AReaderThatWaitedReadsTheWholeOldStoreOnce)
{
    const OpenStore open(StoreType::SQLite, file_);
    ASSERT_EQ(open.value("Label", key_, "name"), Value("old")); // which opens a connection for reading
    auto held = hold();
    auto reader = std::async(std::launch::async, [&] {
        std::vector<StoreRow> rows;
        EXPECT_TRUE(open->rowsForKeys(open.entity("Label"), std::span(&key_, 1), RowContents::WholeRow, rows, nullptr));
        return rows.size();
    });
    std::this_thread::sleep_for(milliseconds(50));
    ASSERT_TRUE(replace(*held)) << error_;
    held.reset();
    EXPECT_EQ(reader.get(), 1U);
    NSError error;
    std::vector<StoreRow> rows;
    EXPECT_FALSE(open->rowsForKeys(open.entity("Label"), std::span(&key_, 1), RowContents::WholeRow, rows, &error));
    EXPECT_EQ(error.code(), StoreErrorReplaced);
}

TEST_F(HeldFile, IsOpenedWholeHoweverOftenItIsExchanged)
{
    constexpr int kOpenings = 60;
    std::atomic<int> openings = 0;
    auto exchanges = std::async(std::launch::async, [&] {
        for (int seen = 0; openings < kOpenings; seen = openings) {
            const fs::path next = folder_.path() / "next.sqlite";
            fs::copy_file(successor_, next);
            NSError error;
            auto held = HeldStoreFile::hold(file_, {}, &error);
            EXPECT_TRUE(held && held->replaceWith(next, backup_, &error)) << error;
            held.reset();
            fs::remove(backup_);
            while (openings == seen) // one for each opening, at any moment of it
                std::this_thread::yield();
        }
    });
    for (; openings < kOpenings; ++openings) {
        const OpenStore store(StoreType::SQLite, file_);
        EXPECT_TRUE(store) << store.error();
    }
    exchanges.wait();
}

TEST_F(HeldFile, WhoOpensMeanwhileSeesTheNewStore)
{
    auto held = hold();
    auto metadata = std::async(std::launch::async,
        [&] { return NSPersistentStoreCoordinator::metadataForPersistentStoreOfType(StoreType::SQLite, file_); });
    auto opened = std::async(std::launch::async, [&] {
        const OpenStore store(StoreType::SQLite, file_);
        return store.count("Label", "TRUEPREDICATE");
    });
    std::this_thread::sleep_for(milliseconds(50));
    const auto uuid = held->metadata().at("storeUUID");
    ASSERT_TRUE(replace(*held)) << error_;
    held.reset();
    EXPECT_EQ(opened.get(), 2U);
    EXPECT_NE(metadata.get()->at("storeUUID"), uuid);
}

} // namespace
} // namespace tarn
