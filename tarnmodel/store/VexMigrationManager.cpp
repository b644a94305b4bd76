#include "tarnmodel/store/VexMigrationManager.h"

#include "tarnmodel/files/OVLocalFileManager.h"
#include "tarnmodel/model/Resources.h"
#include "tarnmodel/platform/coredata/HeldStoreFile.h"
#include "tarnmodel/platform/coredata/NSManagedObjectModel.h"
#include "tarnmodel/platform/coredata/NSMappingModel.h"
#include "tarnmodel/platform/coredata/NSMigrationManager.h"
#include "tarnmodel/platform/foundation/filesystem/NSFileManager.h"
#include "tarnmodel/platform/foundation/system/NSUUID.h"
#include "tarnmodel/store/MigrationSpaceInternal.h"
#include "tarnmodel/store/VersionNumberInternal.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <iterator>
#include <mutex>
#include <optional>
#include <system_error>
#include <utility>

namespace tarn {

namespace {

namespace fs = std::filesystem;

constexpr std::string_view kModelsFolder = ".momd";
constexpr std::string_view kModelFile = ".json";
constexpr std::string_view kMappingFile = ".mapping.json";
constexpr std::string_view kModelFileAtTheTop = ".model.json";
constexpr std::string_view kVersionInformation = "VersionInfo.json";
constexpr std::string_view kProgressKey = "migrationProgress";

NSError migrationError(MigrationErrorCode code, std::string_view description)
{
    return {MigrationErrorDomain, code, description};
}

NSError missingMapping()
{
    return migrationError(MigrationErrorNoPath, "No mapping model found in bundle");
}

NSError cancellation()
{
    return migrationError(MigrationErrorCancelled, "The migration was cancelled");
}

std::string nameOfModelFile(const fs::path& file)
{
    std::string name = file.filename().string();
    name.resize(name.size() - (name.ends_with(kModelFileAtTheTop) ? kModelFileAtTheTop : kModelFile).size());
    return name;
}

/// What is in the folder and has a name that ends so, in the order of the versions.
std::vector<fs::path> itemsInFolder(const fs::path& folder, std::string_view ending)
{
    std::vector<fs::path> items;
    std::error_code failure;
    for (fs::directory_iterator entry(folder, failure), end; !failure && entry != end; entry.increment(failure))
        if (entry->path().filename().string().ends_with(ending))
            items.push_back(entry->path());
    std::ranges::sort(items, [](const fs::path& one, const fs::path& other) {
        const std::string name = nameOfModelFile(one);
        const std::string otherName = nameOfModelFile(other);
        return versionNumberOf(name) < versionNumberOf(otherName);
    });
    return items;
}

bool isVersionOfModel(const fs::path& file)
{
    const std::string name = file.filename().string();
    return name != kVersionInformation && !name.ends_with(kMappingFile);
}

/// The file of a new store while it is made; gone at the end of the scope unless it has got the store's name.
class SideFile {
public:
    explicit SideFile(fs::path path) : path_(std::move(path)) { remove(); }
    ~SideFile() { remove(); }
    SideFile(const SideFile&) = delete;
    SideFile& operator=(const SideFile&) = delete;

    const fs::path& path() const noexcept { return path_; }

private:
    /// Files, links and empty folders alone: what somebody keeps in a folder of that name is not for us to delete.
    void remove() const noexcept
    {
        for (const std::string_view ending : {"", "-journal", "-wal", "-shm"}) {
            std::error_code ignored;
            fs::remove(fs::path(path_) += ending, ignored);
        }
    }

    fs::path path_;
};

/// Turns the progress of several runs into that of the step, from 0 to 1, telling no value twice.
class StepProgress {
public:
    StepProgress(std::size_t runs, std::function<void(float)> tell) : runs_(runs), tell_(std::move(tell)) { at(0); }
    /// Of the run under way.
    void at(float progress)
    {
        const float all = (static_cast<float>(runsDone_) + progress) / static_cast<float>(runs_);
        if (std::exchange(last_, all) != all)
            tell_(all);
    }
    void finishRun()
    {
        at(1);
        ++runsDone_;
    }

private:
    std::size_t runs_;
    std::size_t runsDone_ = 0;
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

    void setRunning(NSMigrationManager* manager)
    {
        const std::lock_guard lock(mutex);
        running = manager;
        if (running && isAskedFor)
            running->cancelMigrationWithError(cancellation());
    }
};

VexMigrationManager::VexMigrationManager() : cancellation_(std::make_unique<Cancellation>()) { }
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
    const std::shared_ptr<void> release(nullptr, [this](void*) { held_.reset(); });
    if (!held_)
        return false;
    if (NSPersistentStoreCoordinator::isModelCompatibleWithStoreMetadata(finalModel, held_->metadata()))
        return true;
    Step step;
    if (!findStep(step, error))
        return false;
    const SideFile side(destinationStoreURLWithSourceStoreURL(held_->file(), step.modelName));
    if (!hasSpaceForStep(error) || !runStep(step, side.path(), error)
        || !backupSourceStoreAtURL(held_->file(), side.path(), error))
        return false;
    addMigratedVersion(step.modelName);
    return true;
}

bool VexMigrationManager::findStep(Step& step, NSError* error)
{
    if (modelPaths().empty()) {
        assignError(error, migrationError(MigrationErrorNoPath, "No models found!"));
        return false;
    }
    step.source = sourceModelForSourceMetadata(held_->metadata());
    std::shared_ptr<const NSMappingModel> found;
    const bool isReadable = NSPersistentStoreCoordinator::formatOfStoreMetadata(held_->metadata())
        == NSPersistentStoreCoordinator::currentStoreFormat();
    if (!step.source || !isReadable) {
        assignError(error, missingMapping());
        return false;
    }
    if (!getDestinationModel(step.destination, found, step.modelName, *step.source, error))
        return false;
    // Mappings that lead back to where the run has been would go on for ever.
    if (std::ranges::find(validMigratedVersions_, step.modelName) != validMigratedVersions_.end()) {
        assignError(error, missingMapping());
        return false;
    }
    if (VexMigrationManagerDelegate* const listener = delegate())
        step.mappings = listener->migrationManagerMappingModelsForSourceModel(*this, step.source);
    std::erase(step.mappings, nullptr);
    if (step.mappings.empty())
        step.mappings.push_back(std::move(found));
    return true;
}

bool VexMigrationManager::hasSpaceForStep(NSError* error) const
{
    const fs::path backups = OVLocalFileManager::temporaryDirectoryURL();
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
    cancellation_->setRunning(&manager);
    const std::shared_ptr<void> end(nullptr, [&](void*) { cancellation_->setRunning(nullptr); });
    bool isMigrated = false;
    for (const auto& mapping : step.mappings) {
        isMigrated = manager.migrateStore(*held_, *mapping, destination, error);
        if (isMigrated)
            progress.finishRun();
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

std::vector<fs::path> VexMigrationManager::modelPaths()
{
    std::vector<fs::path> paths;
    const auto resources = resourceFolder();
    if (!resources)
        return paths;
    for (const fs::path& folder : itemsInFolder(*resources, kModelsFolder))
        std::ranges::copy_if(itemsInFolder(folder, kModelFile), std::back_inserter(paths), isVersionOfModel);
    std::ranges::copy(itemsInFolder(*resources, kModelFileAtTheTop), std::back_inserter(paths));
    return paths;
}

std::shared_ptr<const NSManagedObjectModel> VexMigrationManager::sourceModelForSourceMetadata(
    const std::map<std::string, std::string>& metadata)
{
    for (const fs::path& path : modelPaths()) {
        const auto model = NSManagedObjectModel::modelWithContentsOfFile(path);
        if (model && NSPersistentStoreCoordinator::isModelCompatibleWithStoreMetadata(*model, metadata))
            return model;
    }
    return nullptr;
}

bool VexMigrationManager::getDestinationModel(std::shared_ptr<const NSManagedObjectModel>& destinationModel,
    std::shared_ptr<const NSMappingModel>& mappingModel, std::string& modelName,
    const NSManagedObjectModel& sourceModel, NSError* error)
{
    const std::vector<fs::path> paths = modelPaths();
    if (paths.empty()) {
        assignError(error, migrationError(MigrationErrorNoPath, "No models found!"));
        return false;
    }
    const std::array bundles{resourceFolder().value_or(fs::path())};
    for (const fs::path& path : paths) {
        std::shared_ptr<const NSManagedObjectModel> model = NSManagedObjectModel::modelWithContentsOfFile(path);
        auto mapping = model ? NSMappingModel::mappingModelFromBundles(bundles, sourceModel, *model) : nullptr;
        if (!mapping)
            continue;
        destinationModel = std::move(model);
        mappingModel = std::move(mapping);
        modelName = nameOfModelFile(path);
        return true;
    }
    assignError(error, missingMapping());
    return false;
}

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
    if (!source || source->file() != sourceStoreURL) {
        heldForThis = HeldStoreFile::hold(sourceStoreURL, goesOnWaiting(), error);
        source = heldForThis.get();
    }
    const fs::path folder = source ? OVLocalFileManager::temporaryDirectoryURL() : fs::path();
    if (source && folder.empty())
        assignError(error,
            NSError(NSPOSIXErrorDomain, ENOENT, "There is no folder for temporary files to keep the old store in"));
    return source && !folder.empty()
        && source->replaceWith(movingDestinationStoreAtURL, folder / (newUUIDString() + ".sqlite"), error);
}

} // namespace tarn
