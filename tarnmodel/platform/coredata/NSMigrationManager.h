#pragma once

#include "tarnmodel/platform/coredata/NSEntityMapping.h"
#include "tarnmodel/platform/coredata/NSManagedObjectID.h"
#include "tarnmodel/platform/coredata/NSPersistentStoreCoordinator.h"
#include "tarnmodel/platform/foundation/values/NSError.h"

#include <filesystem>
#include <functional>
#include <memory>
#include <string_view>
#include <vector>

namespace tarn {

class HeldStoreFile;
class MigrationProgress;
class MigrationRecord;
class MigrationRun;
class NSManagedObjectModel;
class NSMappingModel;

/// Makes of a store of one model a store of another, in a file of its own; the source stays as it is.
///
/// Two passes over the records: first all are made, then their relationships. Entity mappings without a policy (and the
/// pass that a policy leaves to the base) run as SQL over many records at once; the others record by record. Neither
/// holds more than one record of a policy in memory. The new store has the identifier of the old one, and a record that
/// is not made by a policy keeps its key, so that `URIRepresentation`s stay good.
///
/// One run at a time, on one thread; `cancelMigrationWithError` and `migrationProgress` may be called on any.
class NSMigrationManager {
public:
    /// Keeps both models alive.
    NSMigrationManager(std::shared_ptr<const NSManagedObjectModel> sourceModel,
        std::shared_ptr<const NSManagedObjectModel> destinationModel);
    ~NSMigrationManager();
    NSMigrationManager(const NSMigrationManager&) = delete;
    NSMigrationManager& operator=(const NSMigrationManager&) = delete;

    /// The model of the stores that it reads.
    const std::shared_ptr<const NSManagedObjectModel>& sourceModel() const noexcept { return sourceModel_; }
    /// The model of those that it makes.
    const std::shared_ptr<const NSManagedObjectModel>& destinationModel() const noexcept { return destinationModel_; }

    /// Migrates the store at one place into a store at another, which is made where there is none and added to
    /// otherwise. When it comes back with true the new file is on disk (its name in the folder is not yet). False and
    /// an error otherwise; a file that this call made is removed again.
    bool migrateStoreFromURL(const std::filesystem::path& source, StoreType sourceType, const NSMappingModel& mapping,
        const std::filesystem::path& destination, StoreType destinationType, NSError* error = nullptr);
    /// The same for a store whose lock is held, and is held afterwards.
    bool migrateStore(HeldStoreFile& source, const NSMappingModel& mapping, const std::filesystem::path& destination,
        NSError* error = nullptr);

    // Progress ------------------------------------------------------------------------------------------------------
    /// How far the run is, from 0 to 1, by records. Never falls during a run.
    float migrationProgress() const noexcept;
    /// Calls `observer` with each new progress, on the thread that migrates; an empty one ends it.
    void observeMigrationProgress(std::function<void(float)> observer);
    /// Ends the run soon with this error, and each later one at once.
    void cancelMigrationWithError(const NSError& error);

    // For policies, during a run ------------------------------------------------------------------------------------
    /// Makes a record of a destination's entity for a record of the source. Its identifier is permanent. In the first
    /// pass alone; good until the policy comes back from the call for `source`.
    MigrationRecord& insertDestinationInstance(
        const NSEntityMapping& mapping, std::string_view entityName, const MigrationRecord& source);
    /// The records that were made of a source's record by an entity mapping, in the order in which they were made;
    /// the one in hand included.
    std::vector<NSManagedObjectID> destinationInstancesForEntityMappingNamed(
        std::string_view mappingName, const NSManagedObjectID& source);
    /// The record of the source that a destination's record was made of; none when it has gone.
    NSManagedObjectID sourceInstanceForEntityMappingNamed(
        std::string_view mappingName, const NSManagedObjectID& destination);
    /// A record of the source, or of the destination, for reading; null when there is none. Good until the next call.
    const MigrationRecord* sourceInstanceWithID(const NSManagedObjectID& objectID);
    /// One of the destination to read and write: in the first pass only those made of the source's record in hand. Good
    /// until the next call, and those in hand until the policy comes back.
    MigrationRecord* destinationInstanceWithID(const NSManagedObjectID& objectID);
    /// The records of an entity of the destination whose string attribute, folded, is this text folded; ascending by
    /// key. Once all records are there, that is in the second pass.
    std::vector<NSManagedObjectID> destinationInstancesWithFoldedValue(
        std::string_view entityName, std::string_view attribute, std::string_view text);

private:
    friend class NSEntityMigrationPolicy;

    MigrationRun& run();

    std::shared_ptr<const NSManagedObjectModel> sourceModel_;
    std::shared_ptr<const NSManagedObjectModel> destinationModel_;
    std::unique_ptr<MigrationProgress> progress_;
    std::unique_ptr<MigrationRun> run_; ///< while one is under way
};

} // namespace tarn
