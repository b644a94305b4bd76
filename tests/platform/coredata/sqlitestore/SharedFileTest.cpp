// One store file under several hands at once: threads, processes, programs that replace it.

#include "tarnmodel/platform/coredata/sqlite/ConnectionPool.h"
#include "tests/platform/coredata/OtherProgram.h"
#include "tests/platform/coredata/StoreFixture.h"

#include <atomic>
#include <barrier>
#include <filesystem>
#include <fstream>
#include <future>
#include <gmock/gmock.h>
#include <iterator>
#include <optional>
#include <set>
#include <sqlite3.h>
#include <thread>
#include <utility>

namespace tarn {
namespace {

namespace fs = std::filesystem;
using testing::HasSubstr;
using testing::Not;

class SharedFile : public testing::Test {
protected:
    OpenStore open(const StoreOptions& options = {}) const { return {StoreType::SQLite, folder.file(), options}; }

    TestFolder folder;
};

/// Does something in the moment in which a connection has rolled back and given up its lock.
class AfterRollback {
public:
    explicit AfterRollback(std::function<void()> work)
    {
        work_ = std::move(work);
        sqlite3_auto_extension(reinterpret_cast<void (*)()>(&AfterRollback::watch));
    }
    ~AfterRollback()
    {
        sqlite3_cancel_auto_extension(reinterpret_cast<void (*)()>(&AfterRollback::watch));
        work_ = nullptr;
    }
    AfterRollback(const AfterRollback&) = delete;
    AfterRollback& operator=(const AfterRollback&) = delete;

    static void arm() { isArmed_ = true; }

private:
    static int watch(sqlite3* database, char**, const sqlite3_api_routines*)
    {
        sqlite3_rollback_hook(
            database,
            [](void*) {
                if (std::exchange(isArmed_, false))
                    work_();
            },
            nullptr);
        return SQLITE_OK;
    }
    static inline std::function<void()> work_;
    static inline bool isArmed_ = false;
};

// Keys ----------------------------------------------------------------------------------------------------------------

TEST_F(SharedFile, GivesNoOtherProcessTheKeysOfATransactionThatFails)
{
    std::vector<std::int64_t> taken;
    std::function<void()> take;
    const AfterRollback afterRollback([&] { take(); });
    const OpenStore ours = open();
    const OpenStore theirs = open();
    take = [&] { taken.push_back(theirs.newKey("Person")); };
    for (const bool commits : {false, true}) {
        NSError error;
        auto transaction = ours->beginTransaction(&error);
        ASSERT_TRUE(transaction) << error;
        const std::int64_t key = ours.newKey("Person");
        const StoreRow broken = makeRow(ours.entity("Person"), key, {});
        ASSERT_TRUE(transaction->insertRow(broken, &error)) << error;
        ASSERT_FALSE(transaction->insertRow(broken, nullptr)) << "the same key twice";
        AfterRollback::arm();
        EXPECT_TRUE(!commits || transaction->commit(&error)) << error;
        transaction.reset();
        take();
        EXPECT_THAT(std::exchange(taken, {}), testing::Each(testing::Gt(key)));
        EXPECT_EQ(ours.keysWhere("Person", "TRUEPREDICATE").size(), commits ? 1U : 0U);
    }
    EXPECT_THAT(ours.problems(), testing::IsEmpty());
}

TEST_F(SharedFile, KeepsKeysForTheNextTransactionWhenTheyCannotBeWrittenAtOnce)
{
    const OpenStore ours = open({.pragmas = {{"journal_mode", "DELETE"}, {"busy_timeout", "20"}}});
    NSError error;
    auto transaction = ours->beginTransaction(&error);
    ASSERT_TRUE(transaction) << error;
    const std::int64_t key = ours.newKey("Person");
    const OtherProgram reader(folder.file());
    reader.run("BEGIN; SELECT count(*) FROM store_keys");
    // Whoever reads keeps any commit out, also that of the keys alone.
    EXPECT_FALSE(transaction->commit(&error));
    EXPECT_EQ(error.code(), StoreErrorBusy);
    transaction.reset();
    reader.run("COMMIT");
    EXPECT_GT(ours.insert("Person", {}), key);
}

// Triggers ------------------------------------------------------------------------------------------------------------

TEST_F(SharedFile, RunsNoTriggers)
{
    const OpenStore store = open();
    const OtherProgram other(folder.file());
    other.run("CREATE TRIGGER refuse BEFORE INSERT ON Document BEGIN SELECT RAISE(ABORT, 'refused'); END");
    const std::int64_t key = store.insert("Document", {{"title", "Before"}, {"body", "a text"}});
    const auto signature = [&] {
        return other.run("SELECT hex(signature) FROM Document_body_signature WHERE pk = " + std::to_string(key));
    };
    const auto first = signature();
    EXPECT_NE(first, std::vector<std::string>{""});

    EXPECT_TRUE(store.update("Document", key, "title", "After"));
    EXPECT_TRUE(store.update("Document", key, "body", "another text"));
    EXPECT_EQ(other.run("SELECT rowVersion, title_folded FROM Document"), std::vector<std::string>{"3|after"});
    EXPECT_NE(signature(), first);
    EXPECT_NE(signature(), std::vector<std::string>{""});
    EXPECT_EQ(other.run("SELECT count(*) FROM Document_body_changes"), std::vector<std::string>{"2"});
}

// Readers -------------------------------------------------------------------------------------------------------------

/// Descriptors of this process that name the file.
std::size_t openings(const fs::path& file)
{
    std::size_t count = 0;
    std::error_code ignored;
    for (const auto& descriptor : fs::directory_iterator("/proc/self/fd"))
        count += fs::read_symlink(descriptor.path(), ignored) == file;
    return count;
}

TEST_F(SharedFile, ServesMoreThreadsThanItHasConnections)
{
    const OpenStore store = open();
    for (int number = 0; number < 300; ++number)
        store.insert("Document", {{"title", Value("Page " + std::to_string(number))}, {"body", "some words"}});
    constexpr int threads = 12;
    std::barrier together(threads + 1);
    std::atomic<int> answers = 0;
    std::atomic<int> running = threads;
    std::vector<std::thread> readers;
    readers.reserve(threads);
    for (int thread = 0; thread < threads; ++thread) {
        readers.emplace_back([&] {
            together.arrive_and_wait();
            for (int round = 0; round < 30; ++round)
                answers += static_cast<int>(store.keysWhere("Document", "body ENDSWITH 'words'").size()) == 300;
            --running;
        });
    }
    together.arrive_and_wait();
    std::size_t most = 0;
    while (running > 0)
        most = std::max(most, openings(fs::canonical(folder.file())));
    for (std::thread& reader : readers)
        reader.join();
    EXPECT_EQ(answers, threads * 30);
    EXPECT_LE(most, 5U) << "one connection that writes, four that read";
}

TEST_F(SharedFile, LetsReadersWaitForAConnectionUntilOneIsGivenBack)
{
    open();
    ConnectionPool pool(folder.file(), {});
    std::vector<ReadAccess> held;
    std::set<const SQLiteConnection*> different{&pool.writer()};
    for (int number = 0; number < 4; ++number) {
        held.push_back(pool.read());
        different.insert(&held.back().connection());
    }
    EXPECT_EQ(different.size(), 5U);
    EXPECT_FALSE(pool.readAtOnce());
    std::atomic<int> served = 0;
    std::vector<std::future<void>> readers;
    for (int thread = 0; thread < 12; ++thread) {
        readers.push_back(std::async(std::launch::async, [&] {
            const ReadAccess access = pool.read();
            access.connection().integerOf("SELECT count(*) FROM \"store_keys\"");
            ++served;
        }));
    }
    std::this_thread::sleep_for(std::chrono::milliseconds(20));
    EXPECT_EQ(served, 0) << "a connection in two hands";
    while (!held.empty()) {
        held.pop_back();
        // One connection serves all of them, one after the other.
        for (auto& reader : readers)
            ASSERT_EQ(reader.wait_for(std::chrono::seconds(60)), std::future_status::ready);
        EXPECT_EQ(served, 12);
    }
    EXPECT_TRUE(pool.readAtOnce());
    EXPECT_EQ(openings(fs::canonical(folder.file())), 5U);
}

// Deleted text --------------------------------------------------------------------------------------------------------

std::string bytesOf(const fs::path& file)
{
    std::ifstream stream(file, std::ios::binary);
    return {std::istreambuf_iterator<char>(stream), {}};
}

/// What the file of a store holds after a long text and a short one were deleted.
std::string bytesAfterDeletion(const fs::path& file, const StoreOptions& options)
{
    {
        const OpenStore store(StoreType::SQLite, file, options);
        std::string text;
        while (text.size() < 60'000)
            text += "buried treasure ";
        const auto deleted = store.insert("Document", {{"title", "silver spoon"}, {"body", Value(text)}});
        store.insert("Document", {{"title", "stays"}});
        store.remove("Document", deleted);
    }
    return bytesOf(file);
}

TEST_F(SharedFile, HoldsNothingOfWhatWasDeleted)
{
    const std::string carelessly
        = bytesAfterDeletion(folder.path() / "careless", {.pragmas = {{"secure_delete", "OFF"}}});
    EXPECT_THAT(carelessly, HasSubstr("buried treasure")) << "else this test could not fail";
    EXPECT_THAT(carelessly, HasSubstr("silver spoon"));
    const std::string kept = bytesAfterDeletion(folder.file(), {});
    EXPECT_THAT(kept, HasSubstr("stays"));
    EXPECT_THAT(kept, Not(HasSubstr("buried treasure")));
    EXPECT_THAT(kept, Not(HasSubstr("silver spoon")));
}

// Names ---------------------------------------------------------------------------------------------------------------

/// Another working folder, until its end.
class WorkingFolder {
public:
    explicit WorkingFolder(const fs::path& folder) : former_(fs::current_path()) { fs::current_path(folder); }
    ~WorkingFolder() { fs::current_path(former_); }
    WorkingFolder(const WorkingFolder&) = delete;
    WorkingFolder& operator=(const WorkingFolder&) = delete;

private:
    fs::path former_;
};

TEST_F(SharedFile, MayHaveAnyNameOfAFile)
{
    const WorkingFolder here(folder.path());
    for (const char* name : {":memory:", "file:notes", "file:notes?mode=memory", "a#b?c%20d", "-x", "notes"}) {
        {
            const OpenStore store(StoreType::SQLite, name);
            ASSERT_TRUE(store) << name << ": " << store.error();
            store.insert("Person", {{"name", "Ada"}});
            EXPECT_EQ(store.keysWhere("Person", "TRUEPREDICATE").size(), 1U) << name;
        }
        EXPECT_TRUE(fs::is_regular_file(folder.path() / name)) << name;
        const OpenStore again(StoreType::SQLite, folder.path() / name);
        EXPECT_EQ(again.keysWhere("Person", "name == 'Ada'").size(), 1U) << name;
    }
    const OpenStore nameless(StoreType::SQLite, "");
    EXPECT_FALSE(nameless);
    EXPECT_EQ(nameless.error().code(), StoreErrorCannotOpen);
}

TEST_F(SharedFile, StaysTheSameWhenTheProgramGoesToAnotherFolder)
{
    std::optional<WorkingFolder> here(folder.path());
    const OpenStore store(StoreType::SQLite, "relative.sqlite");
    here.reset();
    store.insert("Person", {{"name", "Ada"}});
    EXPECT_EQ(store.keysWhere("Person", "TRUEPREDICATE").size(), 1U);
}

// Another file in its place -------------------------------------------------------------------------------------------

TEST_F(SharedFile, IsNotWrittenWhenItWasReplacedWhileSomebodyWaitedForItsLock)
{
    const OpenStore store = open();
    store.insert("Person", {{"name", "before"}});
    const auto other = std::make_unique<OtherProgram>(folder.file());
    other->run("BEGIN IMMEDIATE");
    std::atomic<bool> isAsking = false;
    auto answer = std::async(std::launch::async, [&] {
        NSError error;
        isAsking = true;
        const auto transaction = store->beginTransaction(&error);
        return transaction ? 0 : error.code();
    });
    while (!isAsking)
        std::this_thread::yield();
    ASSERT_EQ(answer.wait_for(std::chrono::milliseconds(150)), std::future_status::timeout) << "it does not wait";
    fs::rename(folder.file(), folder.path() / "moved away");
    OpenStore(StoreType::SQLite, folder.file());
    other->run("COMMIT");
    EXPECT_EQ(answer.get(), StoreErrorReplaced);
}

} // namespace
} // namespace tarn
