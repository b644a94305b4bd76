// What only the SQLite store does: its file, other programs, other processes, failures.

#include "tarnmodel/platform/coredata/sqlite/SQLiteConnection.h"
#include "tarnmodel/platform/coredata/sqlite/StoreSchema.h"
#include "tarnmodel/platform/foundation/text/Folding.h"
#include "tests/platform/coredata/OtherProgram.h"
#include "tests/platform/coredata/StoreFixture.h"
#include "tests/support/FaultyDisk.h"

#include <fstream>
#include <future>
#include <gmock/gmock.h>
#include <set>
#include <sqlite3.h>
#include <sstream>
#include <sys/wait.h>
#include <unistd.h>

namespace tarn {
namespace {

using testing::AllOf;
using testing::ElementsAre;
using testing::ElementsAreArray;
using testing::Ge;
using testing::Gt;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Lt;
using testing::SizeIs;
using testing::WhenSorted;

class SQLiteStoreFile : public testing::Test {
protected:
    OpenStore open(const StoreOptions& options = {}) const { return {StoreType::SQLite, folder.file(), options}; }
    static StoreOptions impatient() { return {.pragmas = {{"journal_mode", "DELETE"}, {"busy_timeout", "60"}}}; }

    TestFolder folder;
};

// What reaches the disk -----------------------------------------------------------------------------------------------

TEST_F(SQLiteStoreFile, HasTheTablesThatItsDocumentationLists)
{
    std::ifstream file(TARN_TEST_CASES "/store-schema.sql");
    std::stringstream expected;
    expected << file.rdbuf();
    std::string statements;
    for (const std::string& statement : StoreSchema(*storeTestModel()).creationStatements())
        statements += statement + ";\n";
    EXPECT_EQ(statements, expected.str());
}

TEST_F(SQLiteStoreFile, KeepsValuesInTheirDocumentedForms)
{
    {
        const OpenStore store = open();
        const auto person = store.insert("Person", {{"name", "Ann"}});
        store.insert("Document",
            {{"title", "Grüße"}, {"body", "text"}, {"raw", NSData::fromText("\x01")}, {"flag", true}, {"order", 7},
                {"ratio", 2.5}, {"created", dateWithMicrosecondsSince1970(1'500'000)}, {"owner", person}});
        store.insert("Picture", {{"width", 3}});
    }
    const OtherProgram shell(folder.file());
    EXPECT_THAT(shell.run("SELECT pk, rowVersion, title, title_folded, hex(raw), flag, \"order\", ratio, created, "
                          "owner, typeof(created), typeof(ratio), typeof(raw) FROM Document"),
        ElementsAre("1|1|Grüße|grusse|01|1|7|2.5|1500000|1|integer|real|blob"));
    EXPECT_THAT(shell.run("SELECT * FROM Document_large"), ElementsAre("1|text"));
    EXPECT_THAT(shell.run("SELECT pk, entity, width FROM Attachment"), ElementsAre("1|Picture|3"));
    EXPECT_THAT(
        shell.run("SELECT entity, nextKey FROM store_keys"), ElementsAre("Attachment|2", "Document|2", "Person|2"));
    EXPECT_THAT(shell.run("PRAGMA page_size"), ElementsAre("8192"));
    EXPECT_THAT(shell.run("PRAGMA journal_mode"), ElementsAre("delete"));
}

TEST_F(SQLiteStoreFile, NamesItsMetadata)
{
    const OpenStore store = open();
    const auto metadata = store->metadata(nullptr);
    std::vector<std::string> names;
    for (const auto& [name, value] : metadata)
        names.push_back(name);
    EXPECT_THAT(names,
        ElementsAre("entityHash.Attachment", "entityHash.Document", "entityHash.Label", "entityHash.Person",
            "entityHash.Picture", "entityHash.Record", "entityHash.Recording", "foldingVersion", "formatVersion",
            "modelVersion", "storeUUID"));
    EXPECT_EQ(metadata.at("formatVersion"), "1");
    EXPECT_EQ(metadata.at("modelVersion"), "Library");
    EXPECT_EQ(metadata.at("foldingVersion"), std::to_string(foldingVersion()));
}

TEST_F(SQLiteStoreFile, SetsItsConnectionsUp)
{
    SQLiteConnectionOptions options;
    options.create = true;
    SQLiteConnection connection(folder.file(), options);
    EXPECT_EQ(connection.integerOf("PRAGMA synchronous"), 3) << "EXTRA";
    EXPECT_EQ(connection.integerOf("PRAGMA secure_delete"), 1);
    EXPECT_EQ(connection.integerOf("PRAGMA foreign_keys"), 1);
    EXPECT_EQ(connection.integerOf("PRAGMA temp_store"), 2) << "memory";
    EXPECT_EQ(connection.integerOf("PRAGMA mmap_size"), 0);
    EXPECT_EQ(connection.integerOf("PRAGMA cache_size"), -12000);
}

TEST_F(SQLiteStoreFile, FindsItsRowsAgainWhenItIsOpenedAgain)
{
    std::string uuid;
    {
        const OpenStore store = open();
        uuid = store->identity().uuid();
        store.insert("Label", {{"name", "a"}});
    }
    const OpenStore store = open();
    EXPECT_EQ(store->identity().uuid(), uuid);
    EXPECT_THAT(store.keys("Label"), ElementsAre(1));
    EXPECT_EQ(store.newKey("Label"), 2);
}

// Other programs ------------------------------------------------------------------------------------------------------

TEST_F(SQLiteStoreFile, CanBeCheckedChangedAndVacuumedByAnyProgram)
{
    const OpenStore store = open();
    const auto key = store.insert("Label", {{"name", "Äpfel"}});
    const auto other = store.insert("Label", {{"name", "Pears"}});
    {
        const OtherProgram shell(folder.file());
        EXPECT_THAT(shell.run("PRAGMA integrity_check"), ElementsAre("ok"));
        shell.run("UPDATE Label SET name = 'Öl' WHERE pk = 1");
        shell.run("INSERT INTO Label (pk, rowVersion, name) VALUES (50, 1, 'Öl und Essig')");
        EXPECT_THAT(shell.run("SELECT name_folded FROM Label WHERE pk = 1"), ElementsAre("NULL"));
        shell.run("VACUUM");
    }
    EXPECT_THAT(store.keysWhere("Label", "name ==[cd] 'OL'"), ElementsAre(key));
    EXPECT_THAT(store.keysWhere("Label", "name BEGINSWITH[cd] 'ol'"), ElementsAre(key, 50));
    EXPECT_THAT(store.keysWhere("Label", "name ==[cd] 'apfel'"), IsEmpty());
    EXPECT_THAT(store.keysWhere("Label", "name ==[cd] 'ol' OR name ==[cd] 'PEARS'"), ElementsAre(key, other));
    EXPECT_THAT(store.keysWhere("Label", "NOT name ==[cd] 'ol'"), ElementsAre(other, 50));
    EXPECT_THAT(store.keysWhere("Label", "NOT name BEGINSWITH[cd] 'ol'"), ElementsAre(other));
    EXPECT_EQ(store.newKey("Label"), 51) << "beyond the row that was added without asking";
    EXPECT_THAT(store.problems(), IsEmpty());
    const OpenStore again = open();
    EXPECT_THAT(OtherProgram(folder.file()).run("SELECT name_folded FROM Label WHERE pk = 1"), ElementsAre("ol"));
}

TEST_F(SQLiteStoreFile, KeepsTheShadowWhenOnlyTheCaseChanges)
{
    const OpenStore store = open();
    const auto key = store.insert("Label", {{"name", "pears"}});
    ASSERT_TRUE(store.update("Label", key, "name", "PEARS"));
    EXPECT_THAT(OtherProgram(folder.file()).run("SELECT name, name_folded FROM Label"), ElementsAre("PEARS|pears"));
    ASSERT_TRUE(store.update("Label", key, "name", nullptr));
    EXPECT_THAT(OtherProgram(folder.file()).run("SELECT name, name_folded FROM Label"), ElementsAre("NULL|NULL"));
    ASSERT_TRUE(store.update("Label", key, "name", "Figs"));
    EXPECT_THAT(OtherProgram(folder.file()).run("SELECT name, name_folded FROM Label"), ElementsAre("Figs|figs"));
}

TEST_F(SQLiteStoreFile, FoldsAgainWhatAnotherVersionOfFoldingMade)
{
    std::int64_t key = 0;
    {
        const OpenStore store = open();
        key = store.insert("Label", {{"name", "Äpfel"}});
        ASSERT_TRUE(store->setMetadataValue("foldingVersion", "0", nullptr));
    }
    OtherProgram(folder.file()).run("UPDATE Label SET name_folded = 'something else'");
    {
        const OpenStore reader = open({.readOnly = true});
        EXPECT_THAT(reader.keysWhere("Label", "name ==[cd] 'apfel'"), ElementsAre(key)) << "without the shadows";
    }
    const OpenStore store = open();
    EXPECT_THAT(store.keysWhere("Label", "name ==[cd] 'apfel'"), ElementsAre(key));
    EXPECT_EQ(store->metadata(nullptr).at("foldingVersion"), std::to_string(foldingVersion()));
}

TEST_F(SQLiteStoreFile, FindsWhatAnotherProgramBroke)
{
    const OpenStore store = open();
    const auto document = store.insert("Document", {});
    store.join("Document", "labels", document, store.insert("Label", {{"name", "a"}}));
    EXPECT_THAT(store.problems(), IsEmpty());
    const OtherProgram shell(folder.file());
    shell.run("PRAGMA foreign_keys = OFF");
    shell.run("UPDATE Label SET name_folded = 'wrong'");
    EXPECT_THAT(store.problems(), ElementsAre(HasSubstr("name_folded")));
    shell.run("DELETE FROM Label");
    EXPECT_THAT(store.problems(), ElementsAre(HasSubstr("Document_labels")));
}

// Files that are none -------------------------------------------------------------------------------------------------

void write(const std::filesystem::path& file, const std::string& bytes)
{
    std::ofstream(file, std::ios::binary) << bytes;
}

TEST_F(SQLiteStoreFile, RefusesAFileThatIsNoDatabase)
{
    write(folder.file(), std::string(9000, 'x'));
    const OpenStore store = open();
    EXPECT_FALSE(store);
    EXPECT_EQ(store.error().code(), StoreErrorNotAStore);
    EXPECT_EQ(store.error().domain(), TarnStoreErrorDomain);
    NSError error;
    EXPECT_FALSE(
        NSPersistentStoreCoordinator::metadataForPersistentStoreOfType(StoreType::SQLite, folder.file(), &error));
    EXPECT_EQ(error.code(), StoreErrorNotAStore);
}

TEST_F(SQLiteStoreFile, RefusesTheDatabaseOfAnotherProgram)
{
    {
        sqlite3* handle = nullptr;
        sqlite3_open(folder.file().c_str(), &handle);
        sqlite3_exec(handle, "CREATE TABLE foreign_table(x)", nullptr, nullptr, nullptr);
        sqlite3_close(handle);
    }
    const OpenStore store = open();
    EXPECT_FALSE(store);
    EXPECT_EQ(store.error().code(), StoreErrorNotAStore);
}

TEST_F(SQLiteStoreFile, IsNotMadeUnlessThatIsAllowed)
{
    const OpenStore store = open({.createIfMissing = false});
    EXPECT_FALSE(store);
    EXPECT_EQ(store.error().code(), StoreErrorCannotOpen);
    EXPECT_FALSE(std::filesystem::exists(folder.file()));
}

TEST_F(SQLiteStoreFile, TakesAnEmptyFileForANewStore)
{
    write(folder.file(), "");
    EXPECT_FALSE(NSPersistentStoreCoordinator::metadataForPersistentStoreOfType(StoreType::SQLite, folder.file()));
    EXPECT_TRUE(open());
}

TEST_F(SQLiteStoreFile, RefusesAFolderThatDoesNotExist)
{
    const OpenStore store(StoreType::SQLite, folder.path() / "missing" / "database.sqlite");
    EXPECT_FALSE(store);
    EXPECT_EQ(store.error().code(), StoreErrorCannotOpen);
}

TEST_F(SQLiteStoreFile, RefusesAStoreOfAnotherModel)
{
    {
        const OpenStore store = open();
        ASSERT_TRUE(store->setMetadataValue("entityHash.Label", "0123456789abcdef", nullptr));
    }
    const OpenStore store = open();
    EXPECT_FALSE(store);
    EXPECT_EQ(store.error().code(), StoreErrorIncompatible);
    const auto metadata
        = NSPersistentStoreCoordinator::metadataForPersistentStoreOfType(StoreType::SQLite, folder.file());
    ASSERT_TRUE(metadata);
    EXPECT_FALSE(NSPersistentStoreCoordinator::isModelCompatibleWithStoreMetadata(*storeTestModel(), *metadata));
}

TEST_F(SQLiteStoreFile, ReportsDamage)
{
    {
        const OpenStore store = open();
        auto transaction = store->beginTransaction(nullptr);
        for (std::int64_t key = 1; key <= 500; ++key)
            ASSERT_TRUE(transaction->insertRow(
                makeRow(store.entity("Document"), key, {{"title", std::string(300, 'x')}}), nullptr));
        ASSERT_TRUE(transaction->commit(nullptr));
    }
    const auto size = std::filesystem::file_size(folder.file());
    {
        std::fstream file(folder.file(), std::ios::in | std::ios::out | std::ios::binary);
        file.seekp(static_cast<std::streamoff>(size / 2));
        file << std::string(size / 4, '\xEE');
    }
    const OpenStore store = open();
    ASSERT_TRUE(store) << store.error();
    StoreFetch fetch;
    fetch.entity = &store.entity("Document");
    std::vector<StoreRow> rows;
    NSError error;
    EXPECT_FALSE(store->fetch(fetch, rows, &error));
    EXPECT_EQ(error.code(), StoreErrorCorrupt);
    std::vector<std::string> problems;
    EXPECT_TRUE(!store->checkIntegrity(problems, nullptr) || !problems.empty());
}

// Read-only -----------------------------------------------------------------------------------------------------------

TEST_F(SQLiteStoreFile, ReadsButDoesNotWriteWhenOpenedReadOnly)
{
    open().insert("Label", {{"name", "a"}});
    const OpenStore store = open({.readOnly = true});
    ASSERT_TRUE(store) << store.error();
    EXPECT_THAT(store.keys("Label"), ElementsAre(1));
    NSError error;
    EXPECT_FALSE(store->beginTransaction(&error));
    EXPECT_EQ(error.code(), StoreErrorReadOnly);
    std::int64_t first = 0;
    EXPECT_FALSE(store->reserveKeys(store.entity("Label"), 1, first, &error));
    EXPECT_FALSE(store->setMetadataValue("a", "b", &error));
}

/// The superuser may write everything: while this lives, the process is not the superuser.
class OrdinaryUser {
public:
    OrdinaryUser() { EXPECT_TRUE(!wasSuperuser_ || seteuid(kNobody) == 0); }
    ~OrdinaryUser() { EXPECT_TRUE(!wasSuperuser_ || seteuid(0) == 0); }
    OrdinaryUser(const OrdinaryUser&) = delete;
    OrdinaryUser& operator=(const OrdinaryUser&) = delete;

private:
    static constexpr uid_t kNobody = 65534;
    bool wasSuperuser_ = geteuid() == 0;
};

TEST_F(SQLiteStoreFile, ReportsAFileThatMayNotBeWritten)
{
    open().insert("Label", {});
    using std::filesystem::perms;
    std::filesystem::permissions(folder.file(), perms::owner_read | perms::group_read | perms::others_read);
    const OrdinaryUser user;
    const OpenStore store = open();
    ASSERT_TRUE(store) << store.error();
    EXPECT_THAT(store.keys("Label"), ElementsAre(1));
    NSError error;
    EXPECT_FALSE(store->beginTransaction(&error));
    EXPECT_EQ(error.code(), StoreErrorReadOnly);
}

// A disk that fails ---------------------------------------------------------------------------------------------------

TEST_F(SQLiteStoreFile, LosesNothingWhenAnyWriteFails)
{
    const auto kept = open().insert("Document", {{"title", "kept"}, {"body", "text"}});
    bool committed = false;
    int failures = 0;
    for (int k = 1; !committed && k < 200; ++k) {
        FaultyDisk disk;
        NSError error;
        {
            const OpenStore store = open();
            ASSERT_TRUE(store) << store.error();
            auto transaction = store->beginTransaction(&error);
            ASSERT_TRUE(transaction) << error;
            disk.arm(k, DiskFault::FailsFromNowOn, DiskFailure::Full);
            const auto key = 1000 + k;
            const bool written = transaction->insertRow(
                makeRow(store.entity("Document"), key, {{"title", "new"}, {"body", std::string(50'000, 'x')}}), &error);
            committed = transaction->commit(written ? &error : nullptr) && written;
            if (committed)
                break;
            ++failures;
            EXPECT_EQ(error.code(), StoreErrorFull) << error << " at write " << k;
            transaction.reset();
            disk.heal();
            EXPECT_THAT(store.keys("Document"), ElementsAre(kept)) << "at write " << k;
        }
        const OpenStore store = open();
        EXPECT_THAT(store.keys("Document"), ElementsAre(kept)) << "opened again, at write " << k;
        EXPECT_THAT(store.problems(), IsEmpty());
    }
    EXPECT_TRUE(committed);
    EXPECT_GT(failures, 5);
    EXPECT_EQ(open().keys("Document").size(), 2U);
}

TEST_F(SQLiteStoreFile, GoesOnAfterAFullDiskHasSpaceAgain)
{
    open();
    FaultyDisk disk;
    const OpenStore store = open();
    disk.arm(3, DiskFault::FailsFromNowOn, DiskFailure::Full);
    NSError error;
    auto transaction = store->beginTransaction(&error);
    ASSERT_TRUE(transaction) << error;
    const StoreRow row = makeRow(store.entity("Document"), 1, {{"body", std::string(50'000, 'x')}});
    EXPECT_FALSE(transaction->insertRow(row, &error) && transaction->commit(&error));
    transaction.reset();
    disk.heal();
    transaction = store->beginTransaction(&error);
    ASSERT_TRUE(transaction) << error;
    EXPECT_TRUE(transaction->insertRow(row, &error)) << error;
    EXPECT_TRUE(transaction->commit(&error)) << error;
    EXPECT_THAT(store.keys("Document"), ElementsAre(1));
}

// Several at once -----------------------------------------------------------------------------------------------------

TEST_F(SQLiteStoreFile, ReportsALockThatIsHeldForTooLong)
{
    const OpenStore patient = open();
    const OpenStore store = open(impatient());
    ASSERT_TRUE(store) << store.error();
    auto held = patient->beginTransaction(nullptr);
    NSError error;
    EXPECT_FALSE(store->beginTransaction(&error));
    EXPECT_EQ(error.code(), StoreErrorBusy);
    EXPECT_THAT(store.keys("Label"), IsEmpty()) << "reading goes on";
    held.reset();
    EXPECT_TRUE(store->beginTransaction(&error)) << error;
}

TEST_F(SQLiteStoreFile, TellsItsHostOfTheWaitAndLetsItGiveUp)
{
    const OpenStore holder = open();
    std::vector<std::chrono::milliseconds> waits;
    StoreOptions options;
    options.whileWaiting = [&waits](std::chrono::milliseconds waited) {
        waits.push_back(waited);
        return waited < std::chrono::milliseconds(30);
    };
    const OpenStore store = open(options);
    ASSERT_TRUE(store) << store.error();
    ASSERT_TRUE(store->beginTransaction(nullptr));
    EXPECT_THAT(waits, IsEmpty()) << "nobody was in the way";
    auto held = holder->beginTransaction(nullptr);
    NSError error;
    EXPECT_FALSE(store->beginTransaction(&error));
    EXPECT_EQ(error.code(), StoreErrorBusy);
    ASSERT_THAT(waits, SizeIs(Gt(1U)));
    EXPECT_THAT(waits, WhenSorted(ElementsAreArray(waits)));
    EXPECT_THAT(waits.back(), AllOf(Ge(std::chrono::milliseconds(30)), Lt(std::chrono::seconds(10))));
    held.reset();
    EXPECT_TRUE(store->beginTransaction(&error)) << error;
}

TEST_F(SQLiteStoreFile, WaitsForALockThatIsGivenBackInTime)
{
    const OpenStore first = open();
    const OpenStore second = open();
    std::promise<void> locked;
    auto holding = std::async(std::launch::async, [&] {
        auto held = first->beginTransaction(nullptr);
        locked.set_value();
        usleep(50'000);
        return held->commit(nullptr);
    });
    locked.get_future().wait();
    EXPECT_GT(second.insert("Label", {}), 0);
    EXPECT_TRUE(holding.get());
}

TEST_F(SQLiteStoreFile, TakesBackACommitThatAReaderKeepsWaitingForTooLong)
{
    const OpenStore store = open(impatient());
    const OtherProgram shell(folder.file());
    shell.run("BEGIN");
    shell.run("SELECT count(*) FROM Label");
    NSError error;
    auto transaction = store->beginTransaction(&error);
    ASSERT_TRUE(transaction) << error;
    ASSERT_TRUE(transaction->insertRow(makeRow(store.entity("Label"), 1, {}), &error)) << error;
    EXPECT_FALSE(transaction->commit(&error));
    EXPECT_EQ(error.code(), StoreErrorBusy);
    transaction.reset();
    shell.run("COMMIT");
    EXPECT_THAT(store.keys("Label"), IsEmpty());
    EXPECT_GT(store.insert("Label", {}), 0);
}

TEST_F(SQLiteStoreFile, GivesStoresThatWriteAtOnceDifferentKeys)
{
    open();
    constexpr int kStores = 4;
    constexpr int kRows = 12;
    std::vector<std::future<void>> writers;
    for (int i = 0; i < kStores; ++i)
        writers.push_back(std::async(std::launch::async, [&] {
            const OpenStore store = open();
            for (int row = 0; row < kRows; ++row)
                store.insert("Label", {{"weight", row}});
        }));
    for (auto& writer : writers)
        writer.get();
    const OpenStore store = open();
    EXPECT_EQ(store.keys("Label").size(), std::size_t{kStores * kRows});
    EXPECT_THAT(store.problems(), IsEmpty());
}

TEST_F(SQLiteStoreFile, MovesItsDataVersionForCommitsOfOthersOnly)
{
    const OpenStore store = open();
    const OpenStore other = open();
    const auto before = store->dataVersion();
    store.insert("Label", {});
    EXPECT_EQ(store->dataVersion(), before);
    other.insert("Label", {});
    const auto after = store->dataVersion();
    EXPECT_NE(after, before);
    EXPECT_EQ(store->dataVersion(), after);
    auto transaction = store->beginTransaction(nullptr);
    EXPECT_EQ(store->dataVersion(), after) << "answers also while a transaction is open";
}

TEST_F(SQLiteStoreFile, NoticesThatAnotherFileHasTakenItsPlace)
{
    const OpenStore store = open();
    store.insert("Label", {});
    const OpenStore other(StoreType::SQLite, folder.path() / "other.sqlite");
    std::filesystem::rename(folder.path() / "other.sqlite", folder.file());
    NSError error;
    EXPECT_FALSE(store->beginTransaction(&error));
    EXPECT_EQ(error.code(), StoreErrorReplaced);
    EXPECT_EQ(error.localizedDescription(), "the store was replaced; open it again");
    StoreFetch fetch;
    fetch.entity = &store.entity("Label");
    std::vector<StoreRow> rows;
    EXPECT_FALSE(store->fetch(fetch, rows, &error));
    EXPECT_EQ(error.code(), StoreErrorReplaced);
}

TEST_F(SQLiteStoreFile, IsMadeOnceByManyThatStartAtOnce)
{
    constexpr int kStarters = 24;
    std::vector<std::future<std::string>> starters;
    std::promise<void> go;
    const std::shared_future<void> signal = go.get_future().share();
    for (int i = 0; i < kStarters; ++i)
        starters.push_back(std::async(std::launch::async, [&] {
            signal.wait();
            const OpenStore store = open();
            EXPECT_TRUE(store) << store.error();
            return store ? store->identity().uuid() : std::string();
        }));
    go.set_value();
    std::set<std::string> uuids;
    for (auto& starter : starters)
        uuids.insert(starter.get());
    EXPECT_EQ(uuids.size(), 1U);
    EXPECT_THAT(OtherProgram(folder.file()).run("PRAGMA page_size"), ElementsAre("8192"));
}

constexpr const char* kFileVariable = "TARN_TEST_STORE_FILE";

/// Runs in a process of its own for the test below; by itself it writes to a store of its own.
TEST(StoreProcess, WritesRowsToTheStoreThatItIsGiven)
{
    const auto given = Environment::current().variable(kFileVariable);
    const TestFolder folder;
    const OpenStore store(StoreType::SQLite, given ? std::filesystem::path(*given) : folder.file());
    ASSERT_TRUE(store) << store.error();
    for (int i = 0; i < 5; ++i)
        EXPECT_GT(store.insert("Label", {{"weight", i}}), 0);
}

pid_t startWriter(const std::filesystem::path& file)
{
    const pid_t process = fork();
    if (process != 0)
        return process;
    setenv(kFileVariable, file.c_str(), 1);
    execl("/proc/self/exe", "test_coredata", "--gtest_filter=StoreProcess.*", "--gtest_brief=1", nullptr);
    _exit(127);
}

TEST_F(SQLiteStoreFile, IsSharedByProcessesThatStartOnAnEmptyFolder)
{
    constexpr int kProcesses = 6;
    std::vector<pid_t> processes;
    for (int i = 0; i < kProcesses; ++i)
        processes.push_back(startWriter(folder.file()));
    for (const pid_t process : processes) {
        int status = -1;
        ASSERT_EQ(waitpid(process, &status, 0), process);
        EXPECT_EQ(status, 0);
    }
    const OpenStore store = open();
    EXPECT_EQ(store.keys("Label").size(), std::size_t{kProcesses * 5});
    EXPECT_THAT(store.problems(), IsEmpty());
}

} // namespace
} // namespace tarn
