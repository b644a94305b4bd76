#include "tests/store/MigrationManagerFixture.h"

#include "tarnmodel/platform/coredata/HeldStoreFile.h"

#include <atomic>
#include <fstream>
#include <future>
#include <optional>
#include <sqlite3.h>
#include <thread>
#include <utility>

namespace tarn {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

namespace fs = std::filesystem;

// Steps ---------------------------------------------------------------------------------------------------------------

TEST_F(MigrationManager, HasNothingToDoForACurrentStore)
{
    makeStoreOfVersion("Model 3");
    const UntouchedFile store(storeFile());
    EXPECT_TRUE(migrate());
    EXPECT_EQ(error_, NSError());
    EXPECT_THAT(manager_.migratedVersions(), IsEmpty());
    EXPECT_THAT(watcher_.progresses, IsEmpty());
    store.expectUntouched();
}

TEST_F(MigrationManager, PassesThroughEveryVersion)
{
    makeStoreOfVersion("Model", {"Groceries", "Rome"});
    const std::string uuid = HeldStoreFile::hold(storeFile())->metadata().at("storeUUID");
    ASSERT_TRUE(migrate()) << error_;

    EXPECT_EQ(error_, NSError());
    EXPECT_THAT(manager_.migratedVersions(), ElementsAre("Model 2", "Model 3"));
    EXPECT_EQ(versionOfStore(), "Model 3");
    EXPECT_THAT(titlesInStore(), ElementsAre("Groceries", "Rome"));
    EXPECT_EQ(HeldStoreFile::hold(storeFile())->metadata().at("storeUUID"), uuid);
    EXPECT_THAT(files(), ElementsAre("database.sqlite"));
}

TEST_F(MigrationManager, GoesOnFromWhereAStoreIs)
{
    makeStoreOfVersion("Model 2", {"Groceries"});
    ASSERT_TRUE(migrate()) << error_;
    EXPECT_THAT(manager_.migratedVersions(), ElementsAre("Model 3"));
    EXPECT_THAT(watcher_.sources, ElementsAre("Model 2"));
    EXPECT_THAT(titlesInStore(), ElementsAre("Groceries"));
}

TEST_F(MigrationManager, TellsTheProgressOfEachStepFromItsBeginningToItsEnd)
{
    makeStoreOfVersion("Model", {"Groceries", "Rome", "Trip"});
    ASSERT_TRUE(migrate()) << error_;
    ASSERT_EQ(watcher_.progresses.size(), 2U);
    for (const auto& progress : watcher_.progresses) {
        EXPECT_EQ(progress.front(), 0.0F);
        EXPECT_EQ(progress.back(), 1.0F);
    }
}

TEST_F(MigrationManager, KeepsWhatTheStoreWasInTheTemporaryFolder)
{
    makeStoreOfVersion("Model 2", {"Groceries"});
    const std::string bytes = bytesOf(storeFile());
    ASSERT_TRUE(migrate()) << error_;
    ASSERT_EQ(backups().size(), 1U);
    EXPECT_EQ(backups().front().parent_path(), OVLocalFileManager::temporaryDirectoryURL());
    EXPECT_EQ(backups().front().extension(), ".sqlite");
    EXPECT_TRUE(bytesOf(backups().front()) == bytes);
}

TEST_F(MigrationManager, RemovesItsBackupsWhenItIsAskedTo)
{
    makeStoreOfVersion("Model", {"Groceries"});
    ASSERT_TRUE(migrate()) << error_;
    ASSERT_EQ(backups().size(), 2U);
    const fs::path ofADeadProcess = leaveSecondName();
    const fs::path others = OVLocalFileManager::temporaryDirectoryURL() / "others.sqlite";
    std::ofstream(others) << "not a backup";
    VexMigrationManager::removeBackups();
    EXPECT_THAT(backups(), ElementsAre(others));
    EXPECT_FALSE(fs::exists(ofADeadProcess));
    fs::remove(others);
    VexMigrationManager::removeBackups();
}

TEST_F(MigrationManager, CopiesTheBackupToAnotherFileSystem)
{
    const fs::path elsewhere = fs::path("/dev/shm") / caches().filename();
    makeStoreOfVersion("Model 2", {"Groceries"});
    const std::string bytes = bytesOf(storeFile());
    // Neither the cache folder nor the group's can be made, which leaves the folder that all programs share.
    std::ofstream(caches()) << "no folder";
    OVLocalFileManager::setApplicationGroupURL(caches() / "group");
    std::error_code failure;
    fs::create_directory(elsewhere, failure);
    world_.setTemporaryDirectory(elsewhere);
    const bool isPossible = !failure && fs::status(elsewhere).type() == fs::file_type::directory;
    const bool isMigrated = isPossible && migrate();
    OVLocalFileManager::setApplicationGroupURL(std::nullopt);
    const auto copies = filesBelow(elsewhere);
    const std::string copied = copies.empty() ? "" : bytesOf(copies.front());
    fs::remove_all(elsewhere, failure);
    if (!isPossible)
        GTEST_SKIP() << "there is no other file system";
    EXPECT_TRUE(isMigrated) << error_;
    EXPECT_EQ(copies.size(), 1U);
    EXPECT_TRUE(copied == bytes);
    EXPECT_THAT(titlesInStore(), ElementsAre("Groceries"));
}

TEST_F(MigrationManager, FollowsALinkToTheStore)
{
    makeStoreOfVersion("Model 2", {"Groceries"});
    fs::create_directory(folder() / "real");
    fs::rename(storeFile(), folder() / "real" / "notes.sqlite");
    fs::create_symlink(folder() / "real" / "notes.sqlite", storeFile());
    ASSERT_TRUE(migrate()) << error_;
    EXPECT_TRUE(fs::is_symlink(storeFile()));
    EXPECT_EQ(filesBelow(folder() / "real").size(), 1U);
    EXPECT_THAT(titlesInStore(), ElementsAre("Groceries"));
}

// Stores without a path -----------------------------------------------------------------------------------------------

TEST_F(MigrationManager, HasNoPathFromAModelThatNobodyKnows)
{
    makeStoreOfUnknownModel();
    expectFailsWithoutATrace();
    EXPECT_EQ(error_, NSError("Kelpa", 8001, "No mapping model found in bundle"));
}

TEST_F(MigrationManager, HasNoPathWithoutModels)
{
    makeStoreOfVersion("Model 2");
    world_.setVariable("TARN_RESOURCES", folder().string());
    expectFailsWithoutATrace();
    EXPECT_EQ(error_, NSError("Kelpa", 8001, "No models found!"));
}

TEST_F(ScratchMigration, StopsWhereThePathEnds)
{
    addThreeVersions();
    fs::remove(versions_.folder() / "Model.momd" / "Model 2 to Model 3.mapping.json");
    makeThings("Model");
    EXPECT_FALSE(migrate());
    EXPECT_EQ(error_, NSError("Kelpa", 8001, "No mapping model found in bundle"));
    EXPECT_THAT(manager_.migratedVersions(), ElementsAre("Model 2"));
    EXPECT_EQ(versionOfStore(), "Model 2");
    EXPECT_THAT(things(), ElementsAre("one", "two", "three"));
}

TEST_F(ScratchMigration, DoesNotGoRoundInCircles)
{
    for (const char* version : {"Model", "Model 2", "Model 3"})
        versions_.addModel(version);
    versions_.addMapping("Model", "Model 2");
    versions_.addMapping("Model 2", "Model");
    model_ = ScratchVersions::model("Model 3");
    makeThings("Model");
    EXPECT_FALSE(migrate());
    EXPECT_EQ(error_.code(), 8001);
    EXPECT_THAT(manager_.migratedVersions(), ElementsAre("Model 2", "Model"));
    EXPECT_THAT(things(), ElementsAre("one", "two", "three"));
}

TEST_F(MigrationManager, TellsWhyAStoreCannotBeRead)
{
    EXPECT_FALSE(migrate());
    EXPECT_EQ(error_.domain(), TarnStoreErrorDomain);
    EXPECT_EQ(error_.code(), StoreErrorCannotOpen);
    EXPECT_THAT(files(), IsEmpty()) << "looking makes no file";

    std::ofstream(storeFile()) << std::string(1000, 'x');
    expectFailsWithoutATrace();
    EXPECT_EQ(error_.code(), StoreErrorNotAStore);
}

// Steps that fail -----------------------------------------------------------------------------------------------------

TEST_F(ScratchMigration, ThatIsRefusedLeavesTheStoreAtTheLastVersion)
{
    addThreeVersions("RefusingPolicy");
    makeThings("Model");
    EXPECT_FALSE(migrate());
    EXPECT_EQ(error_, NSError("Test", 5, "refused"));
    EXPECT_THAT(manager_.migratedVersions(), ElementsAre("Model 2"));
    EXPECT_EQ(versionOfStore(), "Model 2");
    EXPECT_THAT(things(), ElementsAre("one", "two", "three"));
    EXPECT_THAT(files(), ElementsAre("database.sqlite")) << "no side file is left";
}

TEST_F(ScratchMigration, WhoseFirstStepFailsHasNotTouchedTheStore)
{
    addThreeVersions("RefusingPolicy");
    makeThings("Model 2");
    expectFailsWithoutATrace();
    EXPECT_EQ(watcher_.progresses.size(), 1U);
    EXPECT_LT(watcher_.progresses.back().back(), 1.0F);
}

TEST_F(ScratchMigration, ThatThrowsHasFailed)
{
    addThreeVersions("ThrowingPolicy");
    makeThings("Model 2");
    expectFailsWithoutATrace();
    EXPECT_THAT(error_.localizedDescription(), HasSubstr("out of order"));
    EXPECT_NE(HeldStoreFile::hold(storeFile()), nullptr) << "the lock is given back";
}

TEST_F(ScratchMigration, EndsWithTheExceptionOfItsDelegateAndGivesTheLockBack)
{
    addThreeVersions();
    makeThings("Model 2");
    watcher_.atProgress = [](VexMigrationManager&, float) { throw std::runtime_error("no more"); };
    const UntouchedFile store(storeFile());
    bool isMigrated = false;
    try {
        isMigrated = migrate();
    } catch (const std::runtime_error&) { }
    EXPECT_FALSE(isMigrated);
    EXPECT_NE(HeldStoreFile::hold(storeFile()), nullptr);
    EXPECT_THAT(files(), ElementsAre("database.sqlite"));
    store.expectUntouched();
}

TEST_F(MigrationManager, HasFailedWhenTheOldStoreCannotBeKept)
{
    makeStoreOfVersion("Model 2", {"Groceries"});
    std::ofstream(caches()) << "no folder";
    OVLocalFileManager::setApplicationGroupURL(caches() / "group");
    world_.setTemporaryDirectory(caches() / "temporary");
    const UntouchedFile store(storeFile());
    EXPECT_FALSE(migrate());
    OVLocalFileManager::setApplicationGroupURL(std::nullopt);
    EXPECT_EQ(error_, NSError("NSPOSIXErrorDomain", ENOENT, "There is no folder to keep the old store in"));
    EXPECT_THAT(manager_.migratedVersions(), IsEmpty());
    EXPECT_THAT(files(), ElementsAre("database.sqlite"));
    store.expectUntouched();
}

TEST_F(MigrationManager, CountsNoVersionWhoseFilesCouldNotBeExchanged)
{
    makeStoreOfVersion("Model 2", {"Groceries"});
    const UntouchedFile store(storeFile());
    // The side file is gone when the files are to be exchanged.
    watcher_.atProgress = [&](VexMigrationManager&, float progress) {
        if (progress == 1)
            fs::remove(sideFile("Model 3"));
    };
    EXPECT_FALSE(migrate());
    EXPECT_EQ(error_.code(), ENOENT);
    EXPECT_THAT(error_.localizedDescription(), HasSubstr("database.Model 3.sqlite"));
    EXPECT_THAT(manager_.migratedVersions(), IsEmpty());
    EXPECT_THAT(backups(), IsEmpty());
    store.expectUntouched();
}

// Space ---------------------------------------------------------------------------------------------------------------

TEST_F(MigrationManager, WritesNothingWhenThereIsNoSpace)
{
    makeStoreOfVersion("Model", {"Groceries"});
    world_.setAvailableSpace(123'456);
    expectFailsWithoutATrace();
    EXPECT_EQ(error_.domain(), "Kelpa");
    EXPECT_EQ(error_.code(), 8002);
    EXPECT_THAT(error_.localizedDescription(), testing::StartsWith("The migration of the store needs 1."));
    EXPECT_THAT(error_.localizedDescription(), HasSubstr(" MB in \"" + folder().string() + "\""));
    EXPECT_THAT(error_.localizedDescription(), HasSubstr("123.5 kB are left"));
    EXPECT_THAT(watcher_.progresses, IsEmpty());
}

TEST_F(MigrationManager, GoesOnWhenNobodyKnowsTheSpace)
{
    makeStoreOfVersion("Model 2", {"Groceries"});
    world_.setAvailableSpace(std::nullopt);
    EXPECT_TRUE(migrate()) << error_;
}

// What lies in the way ------------------------------------------------------------------------------------------------

TEST_F(MigrationManager, RemovesAStaleSideFile)
{
    makeStoreOfVersion("Model", {"Groceries"});
    std::ofstream(sideFile()) << "left by a program that died";
    std::ofstream(sideFile("Model 3")) << "and another";
    ASSERT_TRUE(migrate()) << error_;
    EXPECT_THAT(titlesInStore(), ElementsAre("Groceries"));
    EXPECT_THAT(files(), ElementsAre("database.sqlite"));
}

TEST_F(MigrationManager, RemovesAStaleSideFileWithItsHotJournal)
{
    // Half of a store of its own, whose journal SQLite would play back into whatever has its name.
    makeStoreOfVersion("Model 3", {"Stale"});
    sqlite3* other = nullptr;
    ASSERT_EQ(sqlite3_open(storeFile().c_str(), &other), SQLITE_OK);
    ASSERT_EQ(sqlite3_exec(other,
                  "PRAGMA cache_size = 1; BEGIN; CREATE TABLE many (t); WITH RECURSIVE n(n) AS (SELECT 1 UNION ALL "
                  "SELECT n + 1 FROM n WHERE n < 2000) INSERT INTO many SELECT hex(randomblob(200)) FROM n;"
                  "UPDATE store_metadata SET value = 'half-way' WHERE key = 'modelVersion'",
                  nullptr, nullptr, nullptr),
        SQLITE_OK);
    const fs::path journal = fs::path(storeFile()) += "-journal";
    ASSERT_TRUE(fs::exists(journal));
    fs::copy_file(storeFile(), sideFile());
    fs::copy_file(journal, fs::path(sideFile()) += "-journal");
    sqlite3_close(other);
    fs::remove(storeFile());

    makeStoreOfVersion("Model", {"Groceries"});
    ASSERT_TRUE(migrate()) << error_;
    EXPECT_THAT(titlesInStore(), ElementsAre("Groceries"));
    EXPECT_THAT(files(), ElementsAre("database.sqlite"));
}

TEST_F(MigrationManager, RemovesAnEmptyFolderInTheWay)
{
    makeStoreOfVersion("Model 2", {"Groceries"});
    fs::create_directory(sideFile("Model 3"));
    EXPECT_TRUE(migrate()) << error_;
}

TEST_F(MigrationManager, LeavesAFolderWithSomethingInIt)
{
    makeStoreOfVersion("Model 2", {"Groceries"});
    fs::create_directory(sideFile("Model 3"));
    std::ofstream(sideFile("Model 3") / "diary") << "dear diary";
    const UntouchedFile store(storeFile());
    EXPECT_FALSE(migrate());
    EXPECT_THAT(error_.localizedDescription(), HasSubstr("database.Model 3.sqlite"));
    EXPECT_EQ(bytesOf(sideFile("Model 3") / "diary"), "dear diary");
    store.expectUntouched();
}

TEST_F(MigrationManager, RemovesNoSideFileBeforeItHoldsTheStore)
{
    makeStoreOfVersion("Model 2");
    std::ofstream(sideFile("Model 3")) << "of a migration under way";
    sqlite3* other = nullptr;
    ASSERT_EQ(sqlite3_open(storeFile().c_str(), &other), SQLITE_OK);
    ASSERT_EQ(sqlite3_exec(other, "BEGIN EXCLUSIVE", nullptr, nullptr, nullptr), SQLITE_OK);
    manager_.setWhileWaiting([](std::chrono::milliseconds) { return false; });
    EXPECT_FALSE(migrate());
    EXPECT_EQ(error_.code(), StoreErrorBusy);
    EXPECT_TRUE(fs::exists(sideFile("Model 3")));
    sqlite3_close(other);
}

// Cancelling ----------------------------------------------------------------------------------------------------------

TEST_F(MigrationManager, IsCancelledInTheMiddleOfAStep)
{
    makeStoreOfVersion("Model", {"Groceries", "Rome"});
    watcher_.atProgress = [](VexMigrationManager& manager, float progress) {
        if (progress > 0 && progress < 1)
            manager.cancelMigration();
    };
    expectFailsWithoutATrace();
    EXPECT_EQ(error_, NSError("Kelpa", 8003, "The migration was cancelled"));
}

TEST_F(MigrationManager, IsCancelledByAnotherThreadBetweenSteps)
{
    makeStoreOfVersion("Model", {"Groceries"});
    watcher_.atProgress = [](VexMigrationManager& manager, float) {
        if (!manager.migratedVersions().empty())
            std::thread([&] { manager.cancelMigration(); }).join();
    };
    EXPECT_FALSE(migrate());
    EXPECT_EQ(error_.code(), 8003);
    EXPECT_THAT(manager_.migratedVersions(), ElementsAre("Model 2"));
    EXPECT_EQ(versionOfStore(), "Model 2");
    EXPECT_THAT(files(), ElementsAre("database.sqlite"));
    VexMigrationManager next;
    EXPECT_TRUE(migrate(next)) << error_;
    EXPECT_THAT(next.migratedVersions(), ElementsAre("Model 3"));
    EXPECT_THAT(titlesInStore(), ElementsAre("Groceries"));
}

TEST_F(MigrationManager, ThatWasCancelledBeforeDoesNothing)
{
    makeStoreOfVersion("Model");
    manager_.cancelMigration();
    expectFailsWithoutATrace();
    EXPECT_EQ(error_.code(), 8003);
}

TEST_F(MigrationManager, IsCancelledWhileItWaitsForALock)
{
    makeStoreOfVersion("Model 2");
    sqlite3* other = nullptr;
    ASSERT_EQ(sqlite3_open(storeFile().c_str(), &other), SQLITE_OK);
    ASSERT_EQ(sqlite3_exec(other, "BEGIN EXCLUSIVE", nullptr, nullptr, nullptr), SQLITE_OK);
    manager_.setWhileWaiting([&](std::chrono::milliseconds) {
        manager_.cancelMigration();
        return true;
    });
    EXPECT_FALSE(migrate());
    EXPECT_EQ(error_.code(), 8003);
    sqlite3_close(other);
}

// Several at once -----------------------------------------------------------------------------------------------------

TEST_F(MigrationManager, ThatComesSecondWaitsAndFindsTheStoreCurrent)
{
    makeStoreOfVersion("Model 2", {"Groceries"});
    std::promise<void> isUnderWay;
    std::atomic<bool> mayGoOn = false;
    watcher_.atProgress = [&, told = false](VexMigrationManager&, float) mutable {
        if (!std::exchange(told, true))
            isUnderWay.set_value();
        while (!mayGoOn)
            std::this_thread::yield();
    };
    auto first = std::async(std::launch::async, [&] { return migrate(); });
    if (isUnderWay.get_future().wait_for(std::chrono::seconds(10)) != std::future_status::ready)
        mayGoOn = true;
    EXPECT_FALSE(mayGoOn) << "the first one has not begun";
    VexMigrationManager second;
    second.setWhileWaiting([&](std::chrono::milliseconds waited) {
        mayGoOn = waited > std::chrono::milliseconds(50);
        return true;
    });
    NSError error;
    EXPECT_TRUE(second.progressivelyMigrateURL(storeFile(), StoreType::SQLite, model_, &error)) << error;
    EXPECT_TRUE(first.get()) << error_;
    EXPECT_THAT(manager_.migratedVersions(), ElementsAre("Model 3"));
    EXPECT_THAT(second.migratedVersions(), IsEmpty());
    EXPECT_THAT(titlesInStore(), ElementsAre("Groceries"));
}

TEST_F(MigrationManager, OfManyOneDoesEachStep)
{
    makeStoreOfVersion("Model", {"Groceries", "Rome"});
    std::vector<std::future<std::vector<std::string>>> runs;
    for (int run = 0; run < 6; ++run)
        runs.push_back(std::async(std::launch::async, [&] {
            VexMigrationManager manager;
            NSError error;
            EXPECT_TRUE(manager.progressivelyMigrateURL(storeFile(), StoreType::SQLite, model_, &error)) << error;
            return manager.migratedVersions();
        }));
    std::vector<std::string> steps;
    for (auto& run : runs)
        for (const std::string& version : run.get())
            steps.push_back(version);
    EXPECT_THAT(steps, testing::UnorderedElementsAre("Model 2", "Model 3"));
    EXPECT_THAT(titlesInStore(), ElementsAre("Groceries", "Rome"));
    EXPECT_THAT(files(), ElementsAre("database.sqlite"));
}

// Parts of a step -----------------------------------------------------------------------------------------------------

TEST_F(MigrationManager, MakesTheNewStoreBesideTheOldOne)
{
    EXPECT_EQ(VexMigrationManager::destinationStoreURLWithSourceStoreURL("/a b/database.sqlite", "Model 2"),
        "/a b/database.Model 2.sqlite");
    EXPECT_EQ(VexMigrationManager::destinationStoreURLWithSourceStoreURL("/a/x.y.db", "Model"), "/a/x.y.Model.db");
    EXPECT_EQ(VexMigrationManager::destinationStoreURLWithSourceStoreURL("/a.b/store", "Model"), "/a.b/store.Model");
}

TEST_F(MigrationManager, ExchangesFilesByItself)
{
    makeStoreOfVersion("Model 3", {"New"});
    fs::rename(storeFile(), folder() / "next.sqlite");
    makeStoreOfVersion("Model 3", {"Old"});
    NSError error;
    ASSERT_TRUE(manager_.backupSourceStoreAtURL(storeFile(), folder() / "next.sqlite", &error)) << error;
    EXPECT_THAT(titlesInStore(), ElementsAre("New"));
    EXPECT_EQ(backups().size(), 1U);
    EXPECT_FALSE(manager_.backupSourceStoreAtURL(storeFile(), folder() / "next.sqlite", &error));
    EXPECT_THAT(titlesInStore(), ElementsAre("New"));
    EXPECT_EQ(backups().size(), 1U);
}

TEST_F(MigrationManager, TellsItsDelegateOfNoOtherKey)
{
    NSMigrationManager run(model_, model_);
    manager_.observeValueForKeyPath("sourceModel", run, 0.5F);
    EXPECT_THAT(watcher_.progresses, IsEmpty());
    manager_.observeValueForKeyPath("migrationProgress", run, 0.5F);
    EXPECT_THAT(watcher_.progresses, ElementsAre(ElementsAre(0.5F)));
    manager_.setDelegate(nullptr);
    manager_.observeValueForKeyPath("migrationProgress", run, 0.75F);
    EXPECT_EQ(watcher_.progresses.size(), 1U);
}

TEST_F(MigrationManager, ForgetsADelegateThatHasEnded)
{
    {
        VexMigrationManagerDelegate delegate;
        manager_.setDelegate(&delegate);
        EXPECT_EQ(manager_.delegate(), &delegate);
    }
    EXPECT_EQ(manager_.delegate(), nullptr);
}

} // namespace
} // namespace tarn
