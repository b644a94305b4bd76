#include "tarnmodel/platform/foundation/events/NSNotificationCenter.h"
#include "tarnmodel/platform/foundation/events/NSProgress.h"
#include "tarnmodel/store/OVCoreDataStack.h"
#include "tarnmodel/store/OVCoreDataStackForExtensions.h"
#include "tarnmodel/store/OVCoreDataStackForWidgets.h"
#include "tests/store/StackFixture.h"

#include <atomic>
#include <fstream>
#include <sqlite3.h>
#include <thread>
#include <utility>

namespace tarn {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

/// Does what a test says in place of a migration.
class ScriptedMigration : public VexMigrationManager {
public:
    using Script = std::function<bool(ScriptedMigration&, const std::filesystem::path&, NSError*)>;
    explicit ScriptedMigration(Script script) : script_(std::move(script)) { }

    bool progressivelyMigrateURL(const std::filesystem::path& storeURL, StoreType type,
        const std::shared_ptr<const NSManagedObjectModel>& finalModel, NSError* error) override
    {
        EXPECT_EQ(type, StoreType::SQLite);
        EXPECT_EQ(finalModel->versionIdentifier(), "Model 3");
        return script_(*this, storeURL, error);
    }
    void tellProgress(float progress) { delegate()->migrationManagerMigrationProgress(*this, progress); }
    using VexMigrationManager::addMigratedVersion;
    using VexMigrationManager::isCancelled;

private:
    Script script_;
};

class StoreMigration : public StackFixture {
protected:
    /// Sets the stack up on the store that is there, with this script, until the stack has come to an end.
    void migrate(ScriptedMigration::Script script)
    {
        stack_->setMigrationManagerMaker(
            [script = std::move(script)] { return std::make_unique<ScriptedMigration>(script); });
        stack_->setupStackWithDelegate(&listener_);
        runUntil([&] { return hasEnded(); });
    }
    /// The same with the library's own migration.
    void migrate()
    {
        stack_->setupStackWithDelegate(&listener_);
        runUntil([&] { return hasEnded(); });
    }
    bool hasEnded() const
    {
        const auto isEnd
            = [](const std::string& event) { return event.starts_with("migrat") && event.find(':') != event.npos; };
        return std::ranges::any_of(listener_.events, isEnd);
    }
    static bool fail(NSError* error, std::string_view domain, long code)
    {
        assignError(error, NSError(domain, code, "scripted"));
        return false;
    }
    static constexpr std::string_view backupName = "database_backup 2020-01-31T101500Z.sqlite";

    std::unique_ptr<OVCoreDataStack> stack_ = std::make_unique<OVCoreDataStack>();
};

TEST_F(StoreMigration, IsNeededForEveryOtherVersionOfTheModel)
{
    for (const std::string_view version : {"Model", "Model 2"}) {
        makeStoreOfVersion(version);
        EXPECT_TRUE(stack_->isMigrationNeeded()) << version;
        std::filesystem::remove(storeFile());
    }
    makeStoreOfUnknownModel();
    EXPECT_TRUE(stack_->isMigrationNeeded());
    std::filesystem::remove(storeFile());
    makeStoreOfVersion("Model 3");
    EXPECT_FALSE(stack_->isMigrationNeeded());
}

TEST_F(StoreMigration, IsFollowedByTheContexts)
{
    makeStoreOfVersion("Model 2");
    migrate([this](ScriptedMigration& manager, const std::filesystem::path& file, NSError*) {
        EXPECT_EQ(file, storeFile());
        std::filesystem::remove(file);
        makeStoreOfVersion("Model 3");
        manager.addMigratedVersion("Model 2");
        manager.addMigratedVersion("Model 3");
        return true;
    });

    EXPECT_THAT(listener_.events, ElementsAre("migration of 100", "migrated: Model 2 Model 3", "initialized"));
    EXPECT_FALSE(listener_.error);
    EXPECT_TRUE(stack_->managedObjectContext());
    EXPECT_TRUE(stack_->inMemoryManagedObjectContext());
}

TEST_F(StoreMigration, RunsOnAQueueOfItsOwnAndTellsItsProgress)
{
    makeStoreOfVersion("Model");
    std::vector<std::int64_t> units;
    NSNotificationSubscription watching;
    migrate([&](ScriptedMigration& manager, const std::filesystem::path& file, NSError*) {
        EXPECT_EQ(Queue::current()->label(), "migrationQueue");
        EXPECT_EQ(NSProgress::currentProgress(), listener_.progress);
        watching = listener_.progress->observe(
            [&](const NSProgress& progress) { units.push_back(progress.completedUnitCount()); });
        for (const float progress : {0.0F, 0.25F, 0.999F, 1.0F, 0.5F})
            manager.tellProgress(progress);
        std::filesystem::remove(file);
        return true;
    });

    EXPECT_THAT(units, ElementsAre(0, 25, 99, 100, 50)) << "truncated; each step begins anew";
    EXPECT_EQ(NSProgress::currentProgress(), nullptr);
}

TEST_F(StoreMigration, WithoutAPathSetsTheStoreAside)
{
    makeStoreOfVersion("Model 2");
    const std::string bytes = bytesOf(storeFile());
    migrate([](auto&, const auto&, NSError* error) { return fail(error, "Kelpa", 8001); });

    EXPECT_THAT(listener_.events, ElementsAre("migration of 100", "migrated:", "initialized"));
    EXPECT_FALSE(listener_.error);
    EXPECT_THAT(files(), ElementsAre("database.sqlite", backupName));
    EXPECT_THAT(OVCoreDataStack::storesSetAsideInFolder(folder()), ElementsAre(folder() / backupName));
    EXPECT_TRUE(bytesOf(folder() / backupName) == bytes) << "the backup is the old store, byte by byte";
    EXPECT_THAT(titlesIn(*stack_->managedObjectContext()), IsEmpty());
}

TEST_F(StoreMigration, WithoutAPathTellsTheStepsThatItMadeBefore)
{
    makeStoreOfVersion("Model");
    migrate([](ScriptedMigration& manager, const auto&, NSError* error) {
        manager.addMigratedVersion("Model 2");
        return fail(error, "Kelpa", 8001);
    });
    EXPECT_THAT(listener_.events, ElementsAre("migration of 100", "migrated: Model 2", "initialized"));
}

TEST_F(StoreMigration, NeverReplacesAnEarlierBackup)
{
    makeStoreOfVersion("Model 2");
    std::ofstream(folder() / backupName) << "an earlier one";
    const UntouchedFile store(storeFile());
    migrate([](auto&, const auto&, NSError* error) { return fail(error, "Kelpa", 8001); });

    EXPECT_THAT(listener_.events, ElementsAre("migration of 100", "migrated:", "failed"))
        << "that it could not be moved shows when the old store is opened";
    EXPECT_EQ(listener_.error->code(), StoreErrorIncompatible);
    EXPECT_EQ(bytesOf(folder() / backupName), "an earlier one");
    store.expectUntouched();
    EXPECT_THAT(takeLog(), ElementsAre(HasSubstr("Error while setting the old store aside\n")));
}

TEST_F(StoreMigration, ThatFailsLeavesTheStackWithoutContexts)
{
    const NSError failures[] = {{"Kelpa", 8002, "scripted"}, {"Other", 8001, ""}, {"TarnStore", 11, "scripted"}};
    makeStoreOfVersion("Model 2");
    const UntouchedFile store(storeFile());
    for (const NSError& failure : failures) {
        listener_.events.clear();
        stack_ = std::make_unique<OVCoreDataStack>();
        migrate([&](ScriptedMigration& manager, const auto&, NSError* error) {
            manager.addMigratedVersion("Model 2");
            assignError(error, failure);
            return false;
        });

        EXPECT_THAT(listener_.events, ElementsAre("migration of 100", "migration failed: Model 2"));
        EXPECT_EQ(listener_.error, failure);
        EXPECT_FALSE(stack_->managedObjectContext());
        EXPECT_FALSE(stack_->inMemoryManagedObjectContext());
        EXPECT_THAT(files(), ElementsAre("database.sqlite"));
    }
    store.expectUntouched();
}

TEST_F(StoreMigration, ThatThrowsHasFailed)
{
    makeStoreOfVersion("Model 2");
    migrate([](auto&, const auto&, NSError*) -> bool { throw std::runtime_error("out of order"); });

    EXPECT_THAT(listener_.events, ElementsAre("migration of 100", "migration failed:"));
    EXPECT_EQ(listener_.error->localizedDescription(), "out of order");
}

TEST_F(StoreMigration, HearsOfACancellationAtAnyTime)
{
    for (const bool isEarly : {true, false}) {
        listener_.events.clear();
        stack_ = std::make_unique<OVCoreDataStack>();
        std::filesystem::remove(storeFile());
        makeStoreOfVersion("Model 2");
        listener_.onBegin = [&](NSProgress& progress) {
            if (isEarly)
                progress.cancel();
        };
        migrate([&](ScriptedMigration& manager, const auto&, NSError* error) {
            EXPECT_EQ(manager.isCancelled(), isEarly);
            std::thread([&] { listener_.progress->cancel(); }).join();
            EXPECT_TRUE(manager.isCancelled());
            return fail(error, "Kelpa", 8003);
        });
        EXPECT_THAT(listener_.events, ElementsAre("migration of 100", "migration failed:"));
        listener_.progress->cancel();
    }
}

TEST_F(StoreMigration, ThatFailsUnheardIsLogged)
{
    makeStoreOfVersion("Model 2");
    stack_->setMigrationManagerMaker([] {
        return std::make_unique<ScriptedMigration>(
            [](auto&, const auto&, NSError* error) { return fail(error, "Kelpa", 8002); });
    });
    stack_->setupStackWithDelegate(nullptr);
    std::vector<std::string> log;
    runUntil([&] { return !(log = takeLog()).empty(); });
    EXPECT_THAT(log, ElementsAre("Error while migrating the store\nscripted"));
}

TEST_F(StoreMigration, RunsOnceAtATime)
{
    makeStoreOfVersion("Model 2");
    std::atomic<int> runs = 0;
    std::atomic<bool> mayGo = false;
    stack_->setMigrationManagerMaker([&] {
        return std::make_unique<ScriptedMigration>([&](auto&, const auto&, NSError* error) {
            ++runs;
            while (!mayGo)
                std::this_thread::yield();
            return fail(error, "Kelpa", 8002);
        });
    });
    stack_->setupStackWithDelegate(&listener_);
    stack_->setupStackWithDelegate(&listener_);
    mayGo = true;
    runUntil([&] { return hasEnded(); });
    MainQueue::main().drain();

    EXPECT_EQ(runs, 1);
    EXPECT_THAT(listener_.events, ElementsAre("migration of 100", "migration failed:"));
}

TEST_F(StoreMigration, IsWaitedForByAStackThatEnds)
{
    makeStoreOfVersion("Model 2");
    std::atomic<bool> hasFinished = false;
    stack_->setMigrationManagerMaker([&] {
        return std::make_unique<ScriptedMigration>([&](auto&, const auto&, NSError* error) {
            std::this_thread::sleep_for(std::chrono::milliseconds(50));
            hasFinished = true;
            return fail(error, "Kelpa", 8002);
        });
    });
    stack_->setupStackWithDelegate(&listener_);
    stack_.reset();
    EXPECT_TRUE(hasFinished);
    MainQueue::main().drain();
    EXPECT_THAT(listener_.events, ElementsAre("migration of 100"));
}

// The library's own migration -----------------------------------------------------------------------------------------

TEST_F(StoreMigration, BringsAnOlderStoreToTheCurrentModel)
{
    const std::vector<std::string> titles{"Groceries", "Rome"};
    for (const auto& [version, end] :
        {std::pair("Model", "migrated: Model 2 Model 3"), std::pair("Model 2", "migrated: Model 3")}) {
        listener_.events.clear();
        stack_ = std::make_unique<OVCoreDataStack>();
        makeStoreOfVersion(version, titles);
        migrate();

        EXPECT_THAT(listener_.events, ElementsAre("migration of 100", end, "initialized"));
        EXPECT_FALSE(listener_.error) << *listener_.error;
        ASSERT_TRUE(stack_->managedObjectContext());
        EXPECT_EQ(titlesIn(*stack_->managedObjectContext()), titles);
        EXPECT_THAT(files(), ElementsAre("database.sqlite"));
        EXPECT_EQ(listener_.progress->completedUnitCount(), 100);
        EXPECT_THAT(listener_.asides, IsEmpty());
        stack_.reset();
        std::filesystem::remove(storeFile());
    }
}

TEST_F(StoreMigration, ThatHasNoSpaceLeavesTheStore)
{
    makeStoreOfVersion("Model 2", {"Groceries"});
    const UntouchedFile store(storeFile());
    world_.setAvailableSpace(1);
    migrate();
    EXPECT_THAT(listener_.events, ElementsAre("migration of 100", "migration failed:"));
    EXPECT_EQ(listener_.error->code(), 8002);
    EXPECT_FALSE(stack_->managedObjectContext());
    store.expectUntouched();
}

TEST_F(StoreMigration, IsCancelledByWhoeverHasItsProgress)
{
    makeStoreOfVersion("Model", {"Groceries"});
    const UntouchedFile store(storeFile());
    listener_.onBegin = [](NSProgress& progress) { progress.cancel(); };
    migrate();
    EXPECT_THAT(listener_.events, ElementsAre("migration of 100", "migration failed:"));
    EXPECT_EQ(*listener_.error, NSError("Kelpa", 8003, "The migration was cancelled"));
    store.expectUntouched();
}

TEST_F(StoreMigration, SetsAStoreOfAnUnknownModelAside)
{
    makeStoreOfUnknownModel();
    const std::string bytes = bytesOf(storeFile());
    migrate();

    EXPECT_THAT(listener_.events, ElementsAre("migration of 100", "migrated:", "initialized"));
    EXPECT_THAT(files(), ElementsAre("database.sqlite", backupName));
    EXPECT_TRUE(bytesOf(folder() / backupName) == bytes);
    EXPECT_THAT(listener_.asides, ElementsAre(std::pair(StoreStanding::Unknown, folder() / backupName)));
}

TEST_F(StoreMigration, SetsNoStoreAsideAgainstTheWillOfItsDelegate)
{
    listener_.letsSetAside = false;
    makeStoreOfUnknownModel();
    const UntouchedFile store(storeFile());
    migrate();

    EXPECT_THAT(listener_.events, ElementsAre("migration of 100", "migration failed:"));
    EXPECT_EQ(*listener_.error, NSError("Kelpa", 8001, "No mapping model found in bundle"));
    EXPECT_FALSE(stack_->managedObjectContext());
    EXPECT_THAT(files(), ElementsAre("database.sqlite"));
    store.expectUntouched();
}

TEST_F(StoreMigration, TellsTheDelegateOfANewerStoreBeforeItIsSetAside)
{
    makeStoreOfUnknownModel();
    sqlite3* other = nullptr;
    ASSERT_EQ(sqlite3_open(storeFile().c_str(), &other), SQLITE_OK);
    ASSERT_EQ(sqlite3_exec(other, "UPDATE store_metadata SET value = 'Model 4' WHERE key = 'modelVersion'", nullptr,
                  nullptr, nullptr),
        SQLITE_OK);
    sqlite3_close(other);
    listener_.letsSetAside = false;
    const UntouchedFile store(storeFile());
    migrate();

    EXPECT_THAT(listener_.asides, ElementsAre(std::pair(StoreStanding::Newer, folder() / backupName)));
    store.expectUntouched();
}

TEST_F(StoreMigration, SetsAsideWithoutADelegate)
{
    makeStoreOfUnknownModel();
    stack_->setupStackWithDelegate(nullptr);
    runUntil([&] { return stack_->managedObjectContext() != nullptr; });
    EXPECT_THAT(files(), ElementsAre("database.sqlite", backupName));
}

TEST_F(StoreMigration, SetsNoStoreAsideThatAnotherProgramHasMigratedMeanwhile)
{
    makeStoreOfUnknownModel();
    listener_.onAside = [this] {
        std::filesystem::remove(storeFile());
        makeStoreOfVersion("Model 3", {"Groceries"});
    };
    migrate();
    EXPECT_THAT(files(), ElementsAre("database.sqlite"));
    EXPECT_THAT(titlesIn(*stack_->managedObjectContext()), ElementsAre("Groceries"));
}

TEST_F(StoreMigration, ThatWaitsForAnAnswerDoesNotKeepTheStackFromEnding)
{
    makeStoreOfUnknownModel();
    const UntouchedFile store(storeFile());
    std::atomic<bool> hasRun = false;
    stack_->setMigrationManagerMaker([&] {
        return std::make_unique<ScriptedMigration>([&](auto&, const auto&, NSError* error) {
            hasRun = true;
            return fail(error, "Kelpa", 8001);
        });
    });
    stack_->setupStackWithDelegate(&listener_);
    while (!hasRun)
        std::this_thread::yield();
    stack_.reset();
    MainQueue::main().drain();
    EXPECT_THAT(listener_.asides, IsEmpty());
    store.expectUntouched();
}

TEST_F(StoreMigration, MayEndTheStackInItsQuestion)
{
    makeStoreOfUnknownModel();
    const UntouchedFile store(storeFile());
    stack_->setupStackWithDelegate(&listener_);
    listener_.onAside = [this] { stack_.reset(); };
    runUntil([&] { return !stack_; });
    store.expectUntouched();
    EXPECT_THAT(listener_.events, ElementsAre("migration of 100"));
}

// What the last process left ------------------------------------------------------------------------------------------

using LeftByAMigration = StoreMigration;

TEST_F(LeftByAMigration, IsGoneWhenTheStoreIsOpened)
{
    makeStoreOfVersion("Model 3", {"Groceries"});
    const auto second = leaveSecondName();
    stack_->setupStackWithDelegate(&listener_);
    EXPECT_FALSE(std::filesystem::exists(second));
    EXPECT_THAT(titlesIn(*stack_->managedObjectContext()), ElementsAre("Groceries"));
}

TEST_F(LeftByAMigration, IsGoneWhenAnExtensionOrAWidgetOpensTheStore)
{
    makeStoreOfVersion("Model 3", {"Groceries"});
    const auto second = leaveSecondName();
    const auto extension = OVCoreDataStackForExtensions::initStackOutputError(nullptr);
    EXPECT_FALSE(std::filesystem::exists(second));
    leaveSecondName();
    const auto widget = OVCoreDataStackForWidgets::initStack(nullptr);
    EXPECT_FALSE(std::filesystem::exists(second));
    EXPECT_EQ(std::filesystem::hard_link_count(storeFile()), 1U);
}

TEST_F(LeftByAMigration, IsGoneBeforeTheNextOneBegins)
{
    makeStoreOfVersion("Model 2");
    const auto second = leaveSecondName();
    migrate([&](auto&, const auto&, NSError* error) {
        EXPECT_FALSE(std::filesystem::exists(second));
        return fail(error, "Kelpa", 8002);
    });
}

} // namespace
} // namespace tarn
