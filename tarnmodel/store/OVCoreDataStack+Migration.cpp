#include "tarnmodel/files/OVLocalFileManager.h"
#include "tarnmodel/platform/coredata/StoreErrors.h"
#include "tarnmodel/platform/coredata/StoreFileMove.h"
#include "tarnmodel/platform/foundation/events/NSProgress.h"
#include "tarnmodel/platform/foundation/system/Log.h"
#include "tarnmodel/platform/foundation/values/NSDate+Chrono.h"
#include "tarnmodel/platform/foundation/values/NSDate.h"
#include "tarnmodel/store/OVCoreDataStack.h"

#include <algorithm>
#include <filesystem>
#include <system_error>
#include <utility>

namespace tarn {

namespace {

constexpr std::int64_t kProgressUnits = 100;
constexpr std::string_view kBackupPrefix = "database_backup ";
constexpr std::string_view kBackupSuffix = ".sqlite";

/// Makes a progress the current one of this thread for a scope.
class CurrentProgress {
public:
    CurrentProgress(NSProgress& progress, std::int64_t pendingUnits) : progress_(progress)
    {
        progress_.becomeCurrentWithPendingUnitCount(pendingUnits);
    }
    ~CurrentProgress() { progress_.resignCurrent(); }
    CurrentProgress(const CurrentProgress&) = delete;
    CurrentProgress& operator=(const CurrentProgress&) = delete;

private:
    NSProgress& progress_;
};

/// "database_backup 2020-01-31T101500Z.sqlite" beside the store. The name is part of the layout on disk.
std::filesystem::path backupOfStore(const std::filesystem::path& store)
{
    std::string stamp
        = iso8601String(dateWithSystemTime(std::chrono::floor<std::chrono::seconds>(systemTimeOfDate(now()))));
    std::erase(stamp, ':');
    return store.parent_path() / (std::string(kBackupPrefix) + stamp + std::string(kBackupSuffix));
}

void moveAside(const std::filesystem::path& store, const std::filesystem::path& place)
{
    NSError error;
    // What stays in its place cannot be opened, and the delegate hears of that.
    if (!moveStoreFile(store, place, &error))
        logMessage("Error while setting the old store aside\n" + error.localizedDescription());
}

bool isWithoutPath(const std::optional<NSError>& error)
{
    return error && error->domain() == MigrationErrorDomain && error->code() == MigrationErrorNoPath;
}

} // namespace

bool OVCoreDataStack::isMigrationNeeded() const
{
    const auto metadata
        = NSPersistentStoreCoordinator::metadataForPersistentStoreOfType(persistentStoreType(), persistentStoreURL());
    const auto model = metadata ? managedObjectModel() : nullptr;
    return model && !NSPersistentStoreCoordinator::isModelCompatibleWithStoreMetadata(*model, *metadata);
}

void OVCoreDataStack::setMigrationManagerMaker(MigrationManagerMaker maker)
{
    makeMigrationManager_ = std::move(maker);
}

void OVCoreDataStack::migrate()
{
    if (migrationQueue_)
        return;
    migrationQueue_ = SerialQueue::make("migrationQueue");
    // A migration that was killed may have left a second name of the store.
    OVLocalFileManager::removeAbandonedTemporaryDirectories();
    const auto progress = NSProgress::progressWithTotalUnitCount(kProgressUnits);
    if (OVCoreDataStackDelegate* const listener = delegate())
        listener->coreDataStackDidBeginMigrationWithProgress(*this, progress);
    // The destructor waits for this task, not for the one that it leaves on the main queue.
    migrationQueue_->async([this, progress, makeManager = makeMigrationManager_] {
        MigrationEnd end = [&] {
            const CurrentProgress current(*progress, 0);
            return runMigration(*progress, makeManager);
        }();
        progress->setCancellationHandler({});
        MainQueue::main().async([this, stack = lifeline(), end = std::move(end)] {
            if (stack.expired())
                return;
            if (isWithoutPath(end.error))
                setStoreAside(end);
            else
                endMigration(end);
        });
    });
}

OVCoreDataStack::MigrationEnd OVCoreDataStack::runMigration(
    NSProgress& progress, const MigrationManagerMaker& makeManager)
{
    MigrationEnd end;
    try {
        const std::shared_ptr<VexMigrationManager> manager
            = makeManager ? makeManager() : std::make_unique<VexMigrationManager>();
        manager->setDelegate(this);
        manager->setWhileWaiting(persistentStoreOptions().whileWaiting);
        progress.setCancellationHandler([manager] { manager->cancelMigration(); });
        NSError error;
        const auto model = managedObjectModel(&error);
        if (!model || !manager->progressivelyMigrateURL(persistentStoreURL(), persistentStoreType(), model, &error))
            end.error = error;
        end.migratedVersions = manager->migratedVersions();
        if (model && isWithoutPath(end.error))
            end.standing = StoreMigrationPlan::planForStoreAtURL(persistentStoreURL(), *model).standing;
    } catch (...) {
        end.error = errorOfCurrentException();
    }
    return end;
}

/// On the main queue, where the delegate can be asked; the store is moved on the migration's. Neither waits for the
/// other: the main queue may be waiting for the migration to end.
void OVCoreDataStack::setStoreAside(const MigrationEnd& end)
{
    const Lifeline stack = lifeline();
    const std::filesystem::path place = backupOfStore(persistentStoreURL());
    OVCoreDataStackDelegate* const listener = delegate();
    const bool mayMove = !listener || listener->coreDataStackShouldSetStoreAsideAtURL(*this, end.standing, place);
    if (stack.expired())
        return;
    if (!mayMove) {
        endMigration(end);
        return;
    }
    migrationQueue_->async([this, place, versions = end.migratedVersions] {
        if (isMigrationNeeded()) // another process may have made good what could not be read
            moveAside(persistentStoreURL(), place);
        MainQueue::main().async([this, stack = lifeline(), versions] {
            if (!stack.expired())
                endMigration({.error = std::nullopt, .migratedVersions = versions});
        });
    });
}

std::vector<std::filesystem::path> OVCoreDataStack::storesSetAsideInFolder(const std::filesystem::path& folder)
{
    std::vector<std::filesystem::path> stores;
    std::error_code failure;
    for (std::filesystem::directory_iterator entry(folder, failure), end; !failure && entry != end;
         entry.increment(failure)) {
        const std::string name = entry->path().filename().string();
        if (name.starts_with(kBackupPrefix) && name.ends_with(kBackupSuffix))
            stores.push_back(entry->path());
    }
    std::ranges::sort(stores);
    return stores;
}

void OVCoreDataStack::migrationManagerMigrationProgress(VexMigrationManager&, float progress)
{
    if (const auto current = NSProgress::currentProgress())
        current->setCompletedUnitCount(static_cast<std::int64_t>(progress * static_cast<float>(kProgressUnits)));
}

void OVCoreDataStack::endMigration(const MigrationEnd& end)
{
    migrationQueue_.reset();
    if (OVCoreDataStackDelegate* const listener = delegate())
        listener->coreDataStackDidEndMigration(*this, end.error, end.migratedVersions);
    else if (end.error)
        logMessage("Error while migrating the store\n" + end.error->localizedDescription());
    if (!end.error)
        setupStack();
}

void OVCoreDataStack::waitForMigration()
{
    try {
        if (migrationQueue_)
            migrationQueue_->sync([] {});
    } catch (const std::exception& failure) {
        logMessage(std::string("Error while waiting for the migration\n") + failure.what());
    }
}

} // namespace tarn
