#pragma once

#include "tarnmodel/platform/coredata/NSPersistentStoreCoordinator.h"
#include "tarnmodel/platform/foundation/values/NSError.h"
#include "tarnmodel/platform/foundation/values/WeakReference.h"

#include <chrono>
#include <filesystem>
#include <functional>
#include <map>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace tarn {

class HeldStoreFile;
class NSManagedObjectModel;
class NSMappingModel;
class NSMigrationManager;
class VexMigrationManager;

/// Errors of a migration. The numbers are part of the interface.
inline constexpr std::string_view MigrationErrorDomain = "Kelpa";
enum MigrationErrorCode : long {
    MigrationErrorNoPath = 8001,    ///< no version of the library can read this store
    MigrationErrorNoSpace = 8002,   ///< the disk has no room for the new store beside the old one; nothing was written
    MigrationErrorCancelled = 8003, ///< `cancelMigration` was called; the store has the last version that it reached
};

/// Hears of a migration, on the thread that migrates.
class VexMigrationManagerDelegate : public WeaklyReferenced {
public:
    virtual ~VexMigrationManagerDelegate() = default;

    /// How far the current step is, from 0 to 1.
    virtual void migrationManagerMigrationProgress(VexMigrationManager& manager, float progress);
    /// The mapping models of a step, instead of the installed one; none keeps that. They are gone through one after the
    /// other into the same new store, and the end of the last one decides.
    virtual std::vector<std::shared_ptr<const NSMappingModel>> migrationManagerMappingModelsForSourceModel(
        VexMigrationManager& manager, const std::shared_ptr<const NSManagedObjectModel>& sourceModel);
};

/// Brings a store forward to the current model, one version at a time. One manager serves one run, on one thread.
///
/// Each step makes the store anew in a file beside it ("database.Model 2.sqlite"), under the lock of the old one, and
/// then exchanges the files without a moment in which there is no store. What it was before stays in the process's
/// temporary folder, until the process has ended and another one sets up a stack.
class VexMigrationManager {
public:
    /// The first one of a process registers the policies that the installed mapping models name.
    VexMigrationManager();
    virtual ~VexMigrationManager();
    VexMigrationManager(const VexMigrationManager&) = delete;
    VexMigrationManager& operator=(const VexMigrationManager&) = delete;

    /// Not owned; null once it is gone.
    VexMigrationManagerDelegate* delegate() const noexcept { return delegate_.get(); }
    void setDelegate(VexMigrationManagerDelegate* delegate);

    /// Whether the store has the final model in the end; it stays at the last version that it reached otherwise.
    virtual bool progressivelyMigrateURL(const std::filesystem::path& storeURL, StoreType type,
        const std::shared_ptr<const NSManagedObjectModel>& finalModel, NSError* error = nullptr);
    /// The names of the models that the store was brought to, in order.
    const std::vector<std::string>& migratedVersions() const noexcept { return validMigratedVersions_; }
    /// Ends the run soon, with `MigrationErrorCancelled`; the step under way leaves nothing behind. Any thread.
    void cancelMigration();
    /// Called again and again while a lock of another process is waited for; see `StoreOptions::whileWaiting`. Set it
    /// before the run.
    void setWhileWaiting(std::function<bool(std::chrono::milliseconds)> whileWaiting);

    // Parts of a step -------------------------------------------------------------------------------------------------
    /// The file of every version of the model that is installed: first those in the "momd" folders of the resources
    /// ("Model 2.json"), in the order of the versions, then those at the top ("Other 2.model.json"). Their names
    /// without these endings are the versions' names.
    static std::vector<std::filesystem::path> modelPaths();
    /// The installed version that a store with this metadata was written with; null when there is none.
    static std::shared_ptr<const NSManagedObjectModel> sourceModelForSourceMetadata(
        const std::map<std::string, std::string>& metadata);
    /// The first installed model to which an installed mapping model leads. False and an error (domain "Kelpa", 8001)
    /// when there is none.
    static bool getDestinationModel(std::shared_ptr<const NSManagedObjectModel>& destinationModel,
        std::shared_ptr<const NSMappingModel>& mappingModel, std::string& modelName,
        const NSManagedObjectModel& sourceModel, NSError* error = nullptr);
    /// Where the new store of a step is made: "database.Model 2.sqlite" beside "database.sqlite".
    static std::filesystem::path destinationStoreURLWithSourceStoreURL(
        const std::filesystem::path& sourceStoreURL, std::string_view modelName);
    /// Puts the file at `destinationStoreURL` in the place of the store, which stays in the process's temporary folder
    /// under a name of its own. Takes the store's lock unless a step has it. False and an error when that fails; the
    /// store is then where it was.
    bool backupSourceStoreAtURL(const std::filesystem::path& sourceStoreURL,
        const std::filesystem::path& movingDestinationStoreAtURL, NSError* error = nullptr);
    /// Tells the delegate of "migrationProgress"; other keys are nobody's.
    virtual void observeValueForKeyPath(std::string_view keyPath, NSMigrationManager& object, float change);

    /// Removes at once what the stores were before the migrations of this process, and of those that have ended: they
    /// hold in clear what was protected since. Any thread.
    static void removeBackups();

protected:
    /// For subclasses: the store has come to this version.
    void addMigratedVersion(std::string_view modelName);
    /// For subclasses: `cancelMigration` was called. Any thread.
    bool isCancelled() const;

private:
    /// From one version to the next.
    struct Step {
        std::shared_ptr<const NSManagedObjectModel> source;
        std::shared_ptr<const NSManagedObjectModel> destination;
        std::vector<std::shared_ptr<const NSMappingModel>> mappings;
        std::string modelName; ///< of the destination
    };
    struct Cancellation;

    bool migrateOneStep(const std::filesystem::path& storeURL, const NSManagedObjectModel& finalModel, NSError* error);
    bool migrateHeldStore(NSError* error);
    bool findStep(Step& step, NSError* error);
    bool hasSpaceForStep(NSError* error) const;
    bool runStep(const Step& step, const std::filesystem::path& destination, NSError* error);
    std::function<bool(std::chrono::milliseconds)> goesOnWaiting() const;

    WeakReference<VexMigrationManagerDelegate> delegate_;
    std::vector<std::string> validMigratedVersions_;
    std::function<bool(std::chrono::milliseconds)> whileWaiting_;
    std::unique_ptr<HeldStoreFile> held_; ///< the store, while a step is under way
    std::unique_ptr<Cancellation> cancellation_;
};

} // namespace tarn
