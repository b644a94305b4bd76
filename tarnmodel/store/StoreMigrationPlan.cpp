#include "tarnmodel/store/StoreMigrationPlan.h"

#include "tarnmodel/files/OVLocalFileManager.h"
#include "tarnmodel/platform/coredata/NSManagedObjectModel.h"
#include "tarnmodel/platform/coredata/NSMappingModel.h"
#include "tarnmodel/platform/coredata/NSPersistentStoreCoordinator.h"
#include "tarnmodel/platform/foundation/filesystem/NSFileManager.h"
#include "tarnmodel/platform/foundation/system/Environment.h"
#include "tarnmodel/store/MigrationSpaceInternal.h"
#include "tarnmodel/store/VersionNumberInternal.h"
#include "tarnmodel/store/VexMigrationManager.h"

#include <algorithm>
#include <map>
#include <memory>
#include <system_error>
#include <utility>

namespace tarn {

namespace {

namespace fs = std::filesystem;

using Metadata = std::map<std::string, std::string>;

/// The models that installed mappings lead to from the one that wrote this metadata, up to the current one; none when
/// they do not lead there.
std::vector<std::string> pathFrom(const Metadata& metadata, const NSManagedObjectModel& currentModel)
{
    std::vector<std::string> versions;
    auto model = VexMigrationManager::sourceModelForSourceMetadata(metadata);
    while (model && model->entityVersionHashes() != currentModel.entityVersionHashes()) {
        std::shared_ptr<const NSManagedObjectModel> next;
        std::shared_ptr<const NSMappingModel> mapping;
        std::string name;
        if (!VexMigrationManager::getDestinationModel(next, mapping, name, *model)
            || std::ranges::find(versions, name) != versions.end())
            return {};
        versions.push_back(name);
        model = std::move(next);
    }
    return model ? versions : std::vector<std::string>();
}

} // namespace

StoreMigrationPlan StoreMigrationPlan::planForStoreAtURL(const fs::path& storeURL,
    const NSManagedObjectModel& currentModel, const std::function<bool(std::chrono::milliseconds)>& whileWaiting)
{
    StoreMigrationPlan plan;
    plan.currentVersion = currentModel.versionIdentifier();
    std::error_code failure;
    const std::uintmax_t size = fs::file_size(storeURL, failure);
    if (failure == std::errc::no_such_file_or_directory || (!failure && size == 0))
        return plan;
    plan.storeSize = failure ? 0 : size;
    const auto metadata = NSPersistentStoreCoordinator::metadataForPersistentStoreOfType(
        StoreType::SQLite, storeURL, &plan.error, whileWaiting);
    if (!metadata) {
        plan.standing = StoreStanding::Unreadable;
        return plan;
    }
    plan.judge(*metadata, currentModel);
    if (plan.standing == StoreStanding::Older)
        plan.measure(storeURL);
    return plan;
}

void StoreMigrationPlan::judge(const Metadata& metadata, const NSManagedObjectModel& currentModel)
{
    using Coordinator = NSPersistentStoreCoordinator;
    storeVersion = Coordinator::modelVersionOfStoreMetadata(metadata);
    const int format = Coordinator::formatOfStoreMetadata(metadata);
    const VersionNumber stored = versionNumberOf(storeVersion);
    const VersionNumber current = versionNumberOf(currentVersion);
    if (format > Coordinator::currentStoreFormat())
        standing = StoreStanding::Newer;
    else if (format < Coordinator::currentStoreFormat())
        standing = StoreStanding::Unknown;
    else if (Coordinator::isModelCompatibleWithStoreMetadata(currentModel, metadata))
        standing = StoreStanding::Current;
    else if (versions = pathFrom(metadata, currentModel); !versions.empty())
        standing = StoreStanding::Older;
    else if (stored.name == current.name && stored.number > current.number)
        standing = StoreStanding::Newer;
    else
        standing = StoreStanding::Unknown;
}

void StoreMigrationPlan::measure(const fs::path& storeURL)
{
    // Temporary folders lie where the group folder does, and are not made for a mere look.
    const bool isBackupCopied = !NSFileManager::areOnOneFileSystem(OVLocalFileManager::applicationGroupURL(), storeURL);
    neededSpace = MigrationSpace::forStore(storeSize, versions.size(), isBackupCopied).besideStore;
    availableSpace = Environment::current().availableSpace(storeURL.parent_path());
}

} // namespace tarn
