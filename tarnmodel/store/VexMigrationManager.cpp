#include "tarnmodel/store/VexMigrationManager.h"

#include "tarnmodel/files/OVLocalFileManager.h"
#include "tarnmodel/platform/coredata/HeldStoreFile.h"
#include "tarnmodel/platform/coredata/NSManagedObjectModel.h"
#include "tarnmodel/platform/coredata/NSMigrationManager.h"
#include "tarnmodel/platform/foundation/filesystem/NSFileManager.h"
#include "tarnmodel/platform/foundation/system/NSUUID.h"
#include "tarnmodel/store/MigrationPolicies.h"
#include "tarnmodel/store/MigrationSpaceInternal.h"

#include <cerrno>
#include <mutex>
#include <optional>
#include <system_error>
#include <utility>

namespace tarn {

namespace {

namespace fs = std::filesystem;

constexpr std::string_view kProgressKey = "migrationProgress";

NSError cancellation()
{
    return {MigrationErrorDomain, MigrationErrorCancelled, "The migration was cancelled"};
}

/// Empty, with an error, when there can be none.
fs::path folderOfBackups(NSError* error)
{
    fs::path folder = OVLocalFileManager::temporaryDirectoryURL();
    if (folder.empty())
        assignError(error, NSError(NSPOSIXErrorDomain, ENOENT, "There is no folder to keep the old store in"));
    return folder;
}

/// What the stores were before the migrations of this process.
struct KeptStores {
    std::mutex mutex;
    std::vector<fs::path> files;
};

KeptStores& keptStores()
{
    static auto* const stores = new KeptStores;
    return *stores;
}

/// The file of a new store while it is made; gone at the end of the scope unless it has got the store's name.
class SideFile {
public:
    explicit SideFile(fs::path path) : path_(std::move(path)) { remove(); }
    ~SideFile()
    {
        if (isOurs_)
            remove();
    }
    SideFile(const SideFile&) = delete;
    SideFile& operator=(const SideFile&) = delete;

    const fs::path& path() const noexcept { return path_; }
    /// Its name is free: another process may use it already.
    void isTheStoreNow() noexcept { isOurs_ = false; }

private:
    /// With what SQLite and a second mapping model leave beside it. Files, links and empty folders alone: what somebody
    /// keeps in a folder of that name is not for us to delete.
    void remove() const noexcept
    {
        for (const std::string_view ending : {"", "-journal", "-wal", "-shm", "-before"}) {
            std::error_code ignored;
            fs::remove(fs::path(path_) += ending, ignored);
        }
    }

    fs::path path_;
    bool isOurs_ = true;
};

/// Turns the progress of several runs into that of the step, from 0 to 1, telling no value twice.
class StepProgress {
public:
    StepProgress(std::size_t runs, std::function<void(float)> tell) : runs_(runs), tell_(std::move(tell)) { at(0); }
    /// Of those before it some may have failed.
    void beginRun(std::size_t run) { run_ = run; }
    void at(float progress)
    {
        const float all = (static_cast<float>(run_) + progress) / static_cast<float>(runs_);
        if (std::exchange(last_, all) != all)
            tell_(all);
    }

private:
    std::size_t runs_;
    std::size_t run_ = 0;
    std::optional<float> last_;
    std::function<void(float)> tell_;
};

} // namespace

void VexMigrationManagerDelegate::migrationManagerMigrationProgress(VexMigrationManager&, float) { }

std::vector<std::shared_ptr<const NSMappingModel>>
VexMigrationManagerDelegate::migrationManagerMappingModelsForSourceModel(
    VexMigrationManager&, const std::shared_ptr<const NSManagedObjectModel>&)
{
    return {};
}

// Cancelling ----------------------------------------------------------------------------------------------------------

/// What `cancelMigration` reaches from other threads.
struct VexMigrationManager::Cancellation {
    std::mutex mutex;
    bool isAskedFor = false;
    NSMigrationManager* running = nullptr;

    /// Makes a run known for a scope.
    class Run {
    public:
        Run(Cancellation& reached, NSMigrationManager& manager) : reached_(reached)
        {
            const std::lock_guard lock(reached_.mutex);
            reached_.running = &manager;
            if (reached_.isAskedFor)
                manager.cancelMigrationWithError(cancellation());
        }
        ~Run()
        {
            const std::lock_guard lock(reached_.mutex);
            reached_.running = nullptr;
        }
        Run(const Run&) = delete;
        Run& operator=(const Run&) = delete;

    private:
        Cancellation& reached_;
    };
};

VexMigrationManager::VexMigrationManager() : cancellation_(std::make_unique<Cancellation>())
{
    // Once: a host that has another policy of such a name registers it after its first manager.
    static std::once_flag once;
    std::call_once(once, registerMigrationPolicies);
}

VexMigrationManager::~VexMigrationManager() = default;

void VexMigrationManager::cancelMigration()
{
    const std::lock_guard lock(cancellation_->mutex);
    cancellation_->isAskedFor = true;
    if (cancellation_->running)
        cancellation_->running->cancelMigrationWithError(cancellation());
}

bool VexMigrationManager::isCancelled() const
{
    const std::lock_guard lock(cancellation_->mutex);
    return cancellation_->isAskedFor;
}

// The run -------------------------------------------------------------------------------------------------------------

void VexMigrationManager::setDelegate(VexMigrationManagerDelegate* delegate)
{
    delegate_ = WeakReference<VexMigrationManagerDelegate>(delegate);
}

void VexMigrationManager::setWhileWaiting(std::function<bool(std::chrono::milliseconds)> whileWaiting)
{
    whileWaiting_ = std::move(whileWaiting);
}

std::function<bool(std::chrono::milliseconds)> VexMigrationManager::goesOnWaiting() const
{
    return [this](std::chrono::milliseconds waited) {
        return !isCancelled() && (!whileWaiting_ || whileWaiting_(waited));
    };
}

void VexMigrationManager::addMigratedVersion(std::string_view modelName)
{
    validMigratedVersions_.emplace_back(modelName);
}

bool VexMigrationManager::progressivelyMigrateURL(const fs::path& storeURL, StoreType type,
    const std::shared_ptr<const NSManagedObjectModel>& finalModel, NSError* error)
{
    while (true) {
        NSError failure;
        const auto metadata
            = NSPersistentStoreCoordinator::metadataForPersistentStoreOfType(type, storeURL, &failure, goesOnWaiting());
        if (metadata && NSPersistentStoreCoordinator::isModelCompatibleWithStoreMetadata(*finalModel, *metadata)) {
            assignError(error, NSError());
            return true;
        }
        if (!metadata || isCancelled() || !migrateOneStep(storeURL, *finalModel, &failure)) {
            assignError(error, isCancelled() ? cancellation() : failure);
            return false;
        }
    }
}

/// The store is read under its lock from beginning to end; true without a step when another process has been faster.
bool VexMigrationManager::migrateOneStep(
    const fs::path& storeURL, const NSManagedObjectModel& finalModel, NSError* error)
{
    held_ = HeldStoreFile::hold(storeURL, goesOnWaiting(), error);
    if (!held_)
        return false;
    try {
        const bool isDone
            = NSPersistentStoreCoordinator::isModelCompatibleWithStoreMetadata(finalModel, held_->metadata())
            || migrateHeldStore(error);
        held_.reset();
        return isDone;
    } catch (...) {
        held_.reset();
        throw;
    }
}

bool VexMigrationManager::migrateHeldStore(NSError* error)
{
    Step step;
    if (!findStep(step, error))
        return false;
    SideFile side(destinationStoreURLWithSourceStoreURL(held_->file(), step.modelName));
    if (!hasSpaceForStep(error) || !runStep(step, side.path(), error)
        || !backupSourceStoreAtURL(held_->file(), side.path(), error))
        return false;
    side.isTheStoreNow();
    addMigratedVersion(step.modelName);
    return true;
}

bool VexMigrationManager::hasSpaceForStep(NSError* error) const
{
    const fs::path backups = folderOfBackups(error);
    if (backups.empty())
        return false;
    const bool isCopied = !NSFileManager::areOnOneFileSystem(backups, held_->file());
    const MigrationSpace need = MigrationSpace::forStore(held_->size(), 1, isCopied);
    return hasSpace(need.besideStore, held_->file().parent_path(), error)
        && (!isCopied || hasSpace(need.forBackups, backups, error));
}

bool VexMigrationManager::runStep(const Step& step, const fs::path& destination, NSError* error)
{
    NSMigrationManager manager(step.source, step.destination);
    StepProgress progress(
        step.mappings.size(), [&](float change) { observeValueForKeyPath(kProgressKey, manager, change); });
    manager.observeMigrationProgress([&](float change) { progress.at(change); });
    const Cancellation::Run reached(*cancellation_, manager);
    bool isMigrated = false;
    for (std::size_t index = 0; index < step.mappings.size(); ++index) {
        progress.beginRun(index);
        isMigrated = manager.migrateStore(*held_, *step.mappings[index], destination, error);
        if (isMigrated)
            progress.at(1);
    }
    return isMigrated && !isCancelled();
}

void VexMigrationManager::observeValueForKeyPath(std::string_view keyPath, NSMigrationManager&, float change)
{
    VexMigrationManagerDelegate* const listener = delegate();
    if (listener && keyPath == kProgressKey)
        listener->migrationManagerMigrationProgress(*this, change);
}

// Parts of a step -----------------------------------------------------------------------------------------------------

fs::path VexMigrationManager::destinationStoreURLWithSourceStoreURL(
    const fs::path& sourceStoreURL, std::string_view modelName)
{
    std::string name = sourceStoreURL.stem().string();
    name.append(".").append(modelName).append(sourceStoreURL.extension().string());
    return sourceStoreURL.parent_path() / name;
}

bool VexMigrationManager::backupSourceStoreAtURL(
    const fs::path& sourceStoreURL, const fs::path& movingDestinationStoreAtURL, NSError* error)
{
    std::unique_ptr<HeldStoreFile> heldForThis;
    HeldStoreFile* source = held_.get();
    std::error_code ignored;
    if (!source || !fs::equivalent(source->file(), sourceStoreURL, ignored)) {
        heldForThis = HeldStoreFile::hold(sourceStoreURL, goesOnWaiting(), error);
        source = heldForThis.get();
    }
    const fs::path backups = source ? folderOfBackups(error) : fs::path();
    if (backups.empty())
        return false;
    const fs::path backup = backups / (newUUIDString() + ".sqlite");
    if (!source->replaceWith(movingDestinationStoreAtURL, backup, error))
        return false;
    const std::lock_guard lock(keptStores().mutex);
    keptStores().files.push_back(backup);
    return true;
}

void VexMigrationManager::removeBackups()
{
    OVLocalFileManager::removeAbandonedTemporaryDirectories();
    const std::lock_guard lock(keptStores().mutex);
    for (const fs::path& backup : std::exchange(keptStores().files, {}))
        NSFileManager::removeItemAtURL(backup);
}

} // namespace tarn
