#pragma once

#include "tarnmodel/platform/coredata/NSPersistentStoreCoordinator.h"
#include "tarnmodel/platform/foundation/values/NSError.h"
#include "tarnmodel/platform/foundation/values/WeakReference.h"

#include <filesystem>
#include <map>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace tarn {

class NSManagedObjectModel;
class VexMigrationManager;

/// Errors of a migration. The numbers are part of the interface.
inline constexpr std::string_view MigrationErrorDomain = "Kelpa";
enum MigrationErrorCode : long {
    MigrationErrorNoPath = 8001,      ///< no version of the library can read this store; it is set aside
    MigrationErrorNotYetBuilt = 8002, ///< a known older version that this build cannot bring forward; it stays
};

/// Hears of a migration, on the thread that migrates.
class VexMigrationManagerDelegate : public WeaklyReferenced {
public:
    virtual ~VexMigrationManagerDelegate() = default;

    /// How far the current step is, from 0 to 1.
    virtual void migrationManagerMigrationProgress(VexMigrationManager& manager, float progress);
};

/// Brings a store forward to the current model, one version at a time. One manager serves one run, on one thread.
///
/// The steps themselves are not built yet: a store of a known older version fails with `MigrationErrorNotYetBuilt` and
/// is left alone, a store of a model that this library does not know with `MigrationErrorNoPath`.
class VexMigrationManager {
public:
    VexMigrationManager();
    virtual ~VexMigrationManager();
    VexMigrationManager(const VexMigrationManager&) = delete;
    VexMigrationManager& operator=(const VexMigrationManager&) = delete;

    /// Not owned; null once it is gone.
    VexMigrationManagerDelegate* delegate() const noexcept { return delegate_.get(); }
    void setDelegate(VexMigrationManagerDelegate* delegate);

    /// Whether the store has the final model in the end; it stays at the last version that it reached otherwise.
    virtual bool progressivelyMigrateURL(const std::filesystem::path& storeURL, StoreType type,
        const NSManagedObjectModel& finalModel, NSError* error = nullptr);
    /// The names of the models that the store was brought to, in order.
    const std::vector<std::string>& migratedVersions() const noexcept { return validMigratedVersions_; }

    /// The file of every version of the model that is installed, in the order of the versions.
    static std::vector<std::filesystem::path> modelPaths();
    /// The installed version that a store with this metadata was written with; null when there is none.
    static std::shared_ptr<const NSManagedObjectModel> sourceModelForSourceMetadata(
        const std::map<std::string, std::string>& metadata);

protected:
    /// For subclasses: the store has come to this version.
    void addMigratedVersion(std::string_view modelName);

private:
    WeakReference<VexMigrationManagerDelegate> delegate_;
    std::vector<std::string> validMigratedVersions_;
};

} // namespace tarn
