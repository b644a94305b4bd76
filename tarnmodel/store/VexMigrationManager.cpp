#include "tarnmodel/store/VexMigrationManager.h"

#include "tarnmodel/model/ManagedObjectModel.h"
#include "tarnmodel/platform/coredata/NSManagedObjectModel.h"

#include <algorithm>
#include <system_error>

namespace tarn {

namespace {

namespace fs = std::filesystem;

constexpr std::string_view kModelExtension = ".json";
constexpr std::string_view kVersionInformation = "VersionInfo";

NSError migrationError(MigrationErrorCode code, std::string_view description)
{
    return {MigrationErrorDomain, code, description};
}

/// Why there is no step from the model that wrote this metadata.
NSError errorOfMissingStep(const std::map<std::string, std::string>& metadata)
{
    if (VexMigrationManager::modelPaths().empty())
        return migrationError(MigrationErrorNoPath, "No models found!");
    const auto source = VexMigrationManager::sourceModelForSourceMetadata(metadata);
    if (!source)
        return migrationError(MigrationErrorNoPath, "No mapping model found in bundle");
    return migrationError(MigrationErrorNotYetBuilt,
        "The store has the version \"" + source->versionIdentifier()
            + "\", which this release cannot migrate; it was left as it is");
}

} // namespace

void VexMigrationManagerDelegate::migrationManagerMigrationProgress(VexMigrationManager&, float) { }

VexMigrationManager::VexMigrationManager() = default;
VexMigrationManager::~VexMigrationManager() = default;

void VexMigrationManager::setDelegate(VexMigrationManagerDelegate* delegate)
{
    delegate_ = WeakReference<VexMigrationManagerDelegate>(delegate);
}

void VexMigrationManager::addMigratedVersion(std::string_view modelName)
{
    validMigratedVersions_.emplace_back(modelName);
}

bool VexMigrationManager::progressivelyMigrateURL(
    const fs::path& storeURL, StoreType type, const NSManagedObjectModel& finalModel, NSError* error)
{
    const auto metadata = NSPersistentStoreCoordinator::metadataForPersistentStoreOfType(type, storeURL, error);
    if (!metadata)
        return false;
    if (NSPersistentStoreCoordinator::isModelCompatibleWithStoreMetadata(finalModel, *metadata)) {
        assignError(error, NSError());
        return true;
    }
    assignError(error, errorOfMissingStep(*metadata));
    return false;
}

std::vector<fs::path> VexMigrationManager::modelPaths()
{
    std::vector<fs::path> paths;
    const auto folder = OVManagedObjectModel::modelURL();
    if (!folder)
        return paths;
    std::error_code failure;
    for (const fs::directory_entry& entry : fs::directory_iterator(*folder, failure))
        if (entry.path().extension() == kModelExtension && entry.path().stem() != kVersionInformation)
            paths.push_back(entry.path());
    std::ranges::sort(paths, {}, [](const fs::path& path) { return path.stem(); });
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

} // namespace tarn
