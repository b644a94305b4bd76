#include "tools/tarn/session/StoreVersion.h"

#include "tarnmodel/model/ManagedObjectModel.h"
#include "tarnmodel/platform/coredata/NSPersistentStoreCoordinator.h"

namespace tarn {

namespace {

namespace fs = std::filesystem;

std::string versionOr(const StoreMigrationPlan& plan, const char* unknown)
{
    return plan.storeVersion.empty() ? unknown : plan.storeVersion;
}

std::string newerVersionOf(const StoreMigrationPlan& plan)
{
    if (plan.storeVersion == plan.currentVersion)
        return "version " + plan.currentVersion + " in a newer format than this tarn reads";
    return "a newer version (" + versionOr(plan, "unnamed") + ") than this tarn reads (" + plan.currentVersion + ")";
}

} // namespace

std::shared_ptr<const NSManagedObjectModel> modelOfStores()
{
    NSError error;
    auto model = OVManagedObjectModel::current(&error);
    if (!model)
        throw CommandFailure(ExitCode::Failed,
            "cannot read the model of the store: " + error.localizedDescription()
                + "; set TARN_RESOURCES to the folder of the resources");
    return model;
}

bool isStoreOfOtherVersion(
    const fs::path& database, const std::function<bool(std::chrono::milliseconds)>& whileWaiting, NSError* error)
{
    using Coordinator = NSPersistentStoreCoordinator;
    const auto metadata
        = Coordinator::metadataForPersistentStoreOfType(StoreType::SQLite, database, error, whileWaiting);
    return metadata
        && (Coordinator::formatOfStoreMetadata(*metadata) != Coordinator::currentStoreFormat()
            || !Coordinator::isModelCompatibleWithStoreMetadata(*modelOfStores(), *metadata));
}

CommandFailure failureForVersionOfStore(const fs::path& database, const StoreMigrationPlan& plan)
{
    const std::string store = database.string() + ": the store is of ";
    switch (plan.standing) {
    case StoreStanding::Older:
        return {ExitCode::NeedsMigration, store + "version " + plan.storeVersion + "; run 'tarn migrate' first"};
    case StoreStanding::Newer:
        return {ExitCode::NeedsMigration, store + newerVersionOf(plan) + ", and is left as it is; use a newer tarn"};
    case StoreStanding::Unreadable:
        return failureForStoreError(database.string(), plan.error);
    case StoreStanding::Missing:
    case StoreStanding::Current:
    case StoreStanding::Unknown:
        break;
    }
    return {ExitCode::NeedsMigration,
        store + "a version (" + versionOr(plan, "unnamed")
            + ") that this tarn neither reads nor can bring forward, and is left as it is; name another with --store"};
}

CommandFailure failureForVersionOfStore(const fs::path& database, const NSError& error)
{
    const StoreMigrationPlan plan = StoreMigrationPlan::planForStoreAtURL(database, *modelOfStores());
    if (plan.standing == StoreStanding::Missing || plan.standing == StoreStanding::Current)
        return failureForStoreError(database.string(), error);
    return failureForVersionOfStore(database, plan);
}

} // namespace tarn
