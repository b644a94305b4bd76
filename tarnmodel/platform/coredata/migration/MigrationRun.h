#pragma once

#include "tarnmodel/platform/coredata/migration/EntityStep.h"
#include "tarnmodel/platform/coredata/migration/MigrationDestination.h"
#include "tarnmodel/platform/coredata/migration/MigrationRecords.h"
#include "tarnmodel/platform/coredata/migration/MigrationSource.h"
#include "tarnmodel/platform/coredata/migration/PolicyFunctions.h"

#include <cstdint>
#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace tarn {

struct BulkStatement;
class HeldStoreFile;
class MigrationProgress;
class NSMigrationManager;

/// One run of a migration manager: from the records of the old store to a new store. What fails throws.
class MigrationRun {
public:
    MigrationRun(HeldStoreFile& source, const NSMappingModel& mapping, const std::filesystem::path& destination,
        NSMigrationManager& manager, MigrationProgress& progress);
    MigrationRun(const MigrationRun&) = delete;
    MigrationRun& operator=(const MigrationRun&) = delete;

    void run();

    // For policies; see `NSMigrationManager` and `NSEntityMigrationPolicy`.
    MigrationRecord& insert(const NSEntityMapping& mapping, std::string_view entityName, const MigrationRecord& source);
    void createInstance(const MigrationRecord& source, const NSEntityMapping& mapping);
    void createRelationships(MigrationRecord& destination, const NSEntityMapping& mapping);
    std::vector<NSManagedObjectID> destinationsOf(std::string_view mappingName, const NSManagedObjectID& source);
    NSManagedObjectID sourceOf(std::string_view mappingName, const NSManagedObjectID& destination);
    const MigrationRecord* sourceRecord(const NSManagedObjectID& objectID);
    MigrationRecord* destinationRecord(const NSManagedObjectID& objectID);
    std::vector<NSManagedObjectID> destinationsWithFoldedValue(
        std::string_view entityName, std::string_view attribute, std::string_view text);

private:
    using Hook = bool (NSEntityMigrationPolicy::*)(const NSEntityMapping&, NSMigrationManager&, NSError*);

    void checkNothingIsUnknown();
    void makeInstances(EntityStep& step);
    void makeInstancesBySQL(EntityStep& step);
    /// Fills a table at once, if there is a statement for it that does; asked again, it only says whether that was so.
    bool fillAtOnce(const std::string& table, const std::function<std::optional<BulkStatement>()>& statement);
    void copyTable(const BulkStatement& statement);
    void makeInstancesOneByOne(EntityStep& step);
    void makeInstancesOf(EntityStep& step, std::int64_t key);
    void addIndexes();
    void makeRelationships(EntityStep& step);
    void makeRelationshipsBySQL(EntityStep& step);
    void makeRelationshipsOneByOne(EntityStep& step);
    void makeRelationshipsOf(
        EntityStep& step, std::int64_t sourceKey, const NSEntityDescription& root, std::int64_t destinationKey);
    bool isMadeOf(const EntityStep& step, std::int64_t sourceKey);
    void finish();
    /// Runs statements for the records of the source in portions, and tells how far that is.
    void runInPortions(const EntityStep& step, const std::vector<BulkStatement>& statements);
    void callHook(EntityStep& step, Hook hook);
    /// What a policy has come back with.
    void checkEnd(const EntityStep& step, bool isFine, const NSError& error);
    void writeRecordsInHand();
    void writeRecordLookedAt();
    NSManagedObjectID sourceID(const EntityStep& step, std::int64_t key) const;
    /// Empty when no record of the source names another one.
    const std::string& selectOf(const EntityStep& step, const NSPropertyMapping& property);

    NSMigrationManager& manager_;
    MigrationProgress& progress_;
    const NSMappingModel& mapping_;
    MigrationSource source_;
    MigrationDestination destination_;
    EntitySteps::NextKeys sourceKeys_;
    EntitySteps steps_;
    PolicyFunctions functions_;

    // Of the record in hand.
    bool isFirstPass_ = true;
    const EntityStep* stepInHand_ = nullptr;
    std::int64_t sourceKeyInHand_ = 0;
    std::int64_t sourceVersionInHand_ = 0;
    std::vector<std::unique_ptr<DestinationMigrationRecord>> recordsInHand_;
    std::unique_ptr<SourceMigrationRecord> sourceLookedAt_;
    std::unique_ptr<DestinationMigrationRecord> destinationLookedAt_;
    std::map<const NSPropertyMapping*, std::string> selects_;
    std::map<std::string, bool> filledAtOnce_; ///< tables of the destination that were asked about
};

} // namespace tarn
