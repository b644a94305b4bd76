#include "tarnmodel/platform/coredata/migration/MigrationRun.h"

#include "tarnmodel/platform/coredata/HeldStoreFile.h"
#include "tarnmodel/platform/coredata/NSManagedObjectModel.h"
#include "tarnmodel/platform/coredata/NSMigrationManager.h"
#include "tarnmodel/platform/coredata/migration/InstanceStatements.h"
#include "tarnmodel/platform/coredata/migration/MigrationProgress.h"
#include "tarnmodel/platform/coredata/migration/WholeTableCopy.h"
#include "tarnmodel/platform/coredata/rows/StoreFailure.h"
#include "tarnmodel/platform/coredata/sqlite/TransactionGuards.h"

#include <sqlite3.h>

#include <algorithm>
#include <limits>
#include <set>

namespace tarn {

namespace {

/// How many records one statement makes, between two looks at whether the run is to end.
constexpr std::size_t kPortion = 2048;
constexpr std::size_t kPage = 256;
constexpr std::int64_t kBeforeAllKeys = std::numeric_limits<std::int64_t>::min();

/// Lets a statement that takes long be cancelled, for a scope.
class Interruptible {
public:
    Interruptible(SQLiteConnection& connection, const MigrationProgress& progress) : connection_(connection)
    {
        constexpr int kInstructions = 20'000;
        const auto isToEnd
            = [](void* seen) { return static_cast<const MigrationProgress*>(seen)->isCancelled() ? 1 : 0; };
        sqlite3_progress_handler(
            connection_.handle(), kInstructions, isToEnd, const_cast<MigrationProgress*>(&progress));
    }
    ~Interruptible() { sqlite3_progress_handler(connection_.handle(), 0, nullptr, nullptr); }
    Interruptible(const Interruptible&) = delete;
    Interruptible& operator=(const Interruptible&) = delete;

private:
    SQLiteConnection& connection_;
};

} // namespace

MigrationRun::MigrationRun(HeldStoreFile& source, const NSMappingModel& mapping,
    const std::filesystem::path& destination, NSMigrationManager& manager, MigrationProgress& progress)
    : manager_(manager), progress_(progress), mapping_(mapping), source_(source, *manager.sourceModel()),
      destination_(destination, *manager.destinationModel()), sourceKeys_(source_.nextKeys()),
      steps_(mapping, *manager.sourceModel(), *manager.destinationModel(), sourceKeys_),
      functions_(source_.connection())
{
    for (const auto& [root, next] : destination_.nextKeys())
        steps_.reserveKeys(*root, next);
}

void MigrationRun::run()
{
    const Interruptible source(source_.connection(), progress_);
    const Interruptible destination(destination_.connection(), progress_);
    checkNothingIsUnknown();
    std::size_t total = 0;
    for (EntityStep& step : steps_.all()) {
        step.recordCount = step.from ? source_.countOf(*step.from) : 0;
        total += step.recordCount;
    }
    constexpr std::size_t kPhases = 3; // records, indexes, relationships
    progress_.begin(total * kPhases);
    for (EntityStep& step : steps_.all())
        makeInstances(step);
    addIndexes();
    isFirstPass_ = false;
    for (EntityStep& step : steps_.all())
        makeRelationships(step);
    finish();
    progress_.finish();
}

/// What no entity mapping looks at would be lost without a word.
void MigrationRun::checkNothingIsUnknown()
{
    std::set<std::string_view> mentioned;
    for (const EntityStep& step : steps_.all())
        if (step.from)
            mentioned.insert(step.from->name());
    std::map<const NSEntityDescription*, std::size_t> known; // by root
    for (const NSEntityDescription* entity : manager_.sourceModel()->entities()) {
        const std::size_t count = source_.countOf(*entity);
        known[&entity->rootEntity()] += count;
        if (count > 0 && !mapping_.isPartial() && !mentioned.contains(entity->name()))
            throw StoreFailure(StoreErrorValidation,
                "The store has records of \"" + entity->name()
                    + "\", of which no entity mapping says what they become.");
    }
    for (const auto& [root, count] : known)
        if (source_.rowCountOf(*root) != count)
            throw StoreFailure(
                StoreErrorCorrupt, "The store has rows in \"" + root->name() + "\" that are of no known entity.");
}

void MigrationRun::callHook(EntityStep& step, Hook hook)
{
    if (!step.hasBoth())
        return;
    NSError error;
    const bool isFine = (*step.policy.*hook)(*step.mapping, manager_, &error);
    checkEnd(step, isFine, error);
    writeRecordsInHand();
}

void MigrationRun::checkEnd(const EntityStep& step, bool isFine, const NSError& error)
{
    if (isFine)
        return;
    if (!error.localizedDescription().empty())
        throw StoreFailure(error);
    throw StoreFailure(
        StoreErrorGeneric, "The policy of the entity mapping \"" + step.mapping->name() + "\" ended the migration.");
}

// First pass: records -------------------------------------------------------------------------------------------------

void MigrationRun::makeInstances(EntityStep& step)
{
    if (!step.hasBoth())
        return progress_.advance(step.recordCount);
    callHook(step, &NSEntityMigrationPolicy::beginEntityMapping);
    if (isMadeBySQL(step) && !step.passes.createsInstances)
        makeInstancesBySQL(step);
    else
        makeInstancesOneByOne(step);
    callHook(step, &NSEntityMigrationPolicy::endInstanceCreationForEntityMapping);
}

void MigrationRun::makeInstancesBySQL(EntityStep& step)
{
    std::vector<BulkStatement> statements
        = instanceStatements(step, source_, destination_, steps_, functions_, !step.passes.createsRelationships);
    const StoreTable& table = destination_.schema().table(*step.to);
    if (fillAtOnce(table.name, [&] { return wholeTableStatement(table, source_, destination_, steps_); }))
        statements.erase(statements.begin()); // the one that makes the rows
    runInPortions(step, statements);
}

bool MigrationRun::fillAtOnce(const std::string& table, const std::function<std::optional<BulkStatement>()>& statement)
{
    const auto [found, isNew] = filledAtOnce_.try_emplace(table, false);
    if (!isNew)
        return found->second;
    const auto copy = statement();
    if (copy)
        copyTable(*copy);
    return found->second = copy.has_value();
}

void MigrationRun::copyTable(const BulkStatement& statement)
{
    // Of a table with the same name: with others an index would be another one.
    if (source_.indexStatements(statement.table) == destination_.indexStatements(statement.table))
        destination_.addIndexesOf(statement.table);
    const MigrationSource::Attachment attachment(source_, destination_.file());
    WriteTransaction transaction(source_.connection(), WriteTransaction::Lock::Immediate);
    source_.connection().execute(statement.sql);
    destination_.noteRows(statement.table, source_.connection().changedRowCount());
    transaction.commit();
}

void MigrationRun::runInPortions(const EntityStep& step, const std::vector<BulkStatement>& statements)
{
    if (statements.empty() || step.recordCount == 0)
        return progress_.advance(step.recordCount);
    const MigrationSource::Attachment attachment(source_, destination_.file());
    SQLiteConnection& connection = source_.connection();
    WriteTransaction transaction(connection, WriteTransaction::Lock::Immediate);
    std::size_t left = step.recordCount;
    for (std::int64_t key = kBeforeAllKeys; left > 0;) {
        const std::int64_t last = source_.lastKeyOfNext(*step.from, key, kPortion);
        for (const BulkStatement& bulk : statements) {
            SQLiteStatement statement = connection.prepare(bulk.sql);
            statement.bindInteger(1, key);
            statement.bindInteger(2, last);
            statement.run();
            destination_.noteRows(bulk.table, connection.changedRowCount());
        }
        const std::size_t done = std::min(left, kPortion);
        left -= done;
        key = last;
        progress_.advance(done);
    }
    transaction.commit();
}

void MigrationRun::makeInstancesOneByOne(EntityStep& step)
{
    WriteTransaction sourceTransaction(source_.connection(), WriteTransaction::Lock::Immediate);
    WriteTransaction transaction(destination_.connection(), WriteTransaction::Lock::Immediate);
    std::int64_t key = kBeforeAllKeys;
    for (auto keys = source_.keysAfter(*step.from, key, kPage); !keys.empty();
         keys = source_.keysAfter(*step.from, key, kPage)) {
        for (const std::int64_t next : keys) {
            makeInstancesOf(step, next);
            progress_.advance(1);
        }
        key = keys.back();
    }
    transaction.commit();
    sourceTransaction.commit();
}

void MigrationRun::makeInstancesOf(EntityStep& step, std::int64_t key)
{
    auto row = source_.selects().row(source_.connection(), *step.from, key, RowContents::WholeRow);
    if (!row)
        throw StoreFailure(StoreErrorCorrupt, "A row of \"" + step.from->name() + "\" cannot be read.");
    stepInHand_ = &step;
    sourceKeyInHand_ = key;
    sourceVersionInHand_ = row->version;
    const SourceMigrationRecord source(source_, std::move(*row));
    NSError error;
    const bool isFine
        = step.policy->createDestinationInstancesForSourceInstance(source, *step.mapping, manager_, &error);
    checkEnd(step, isFine, error);
    writeRecordsInHand();
}

void MigrationRun::writeRecordsInHand()
{
    writeRecordLookedAt();
    for (const auto& record : recordsInHand_)
        record->write();
    recordsInHand_.clear();
    sourceLookedAt_.reset();
}

void MigrationRun::writeRecordLookedAt()
{
    if (destinationLookedAt_)
        destinationLookedAt_->write();
    destinationLookedAt_.reset();
}

void MigrationRun::addIndexes()
{
    WriteTransaction transaction(destination_.connection(), WriteTransaction::Lock::Immediate);
    for (const auto& table : destination_.schema().tables()) {
        destination_.addIndexes(*table);
        for (const EntityStep& step : steps_.all())
            if (step.to && &step.to->rootEntity() == table->root)
                progress_.advance(step.recordCount);
    }
    transaction.commit();
}

// Second pass: relationships ------------------------------------------------------------------------------------------

void MigrationRun::makeRelationships(EntityStep& step)
{
    if (!step.hasBoth())
        return progress_.advance(step.recordCount);
    if (step.passes.createsRelationships || !step.keyOffset)
        makeRelationshipsOneByOne(step);
    else
        makeRelationshipsBySQL(step);
    callHook(step, &NSEntityMigrationPolicy::endRelationshipCreationForEntityMapping);
}

void MigrationRun::makeRelationshipsBySQL(EntityStep& step)
{
    std::vector<BulkStatement> statements;
    for (const NSPropertyMapping& property : step.mapping->relationshipMappings()) {
        const NSRelationshipDescription& relationship = *step.to->relationshipNamed(property.name);
        if (relationship.ownsJoinTable()) {
            const JoinTable& join = destination_.schema().join(relationship);
            if (fillAtOnce(join.name, [&] { return wholeJoinStatement(join, source_, destination_, steps_); }))
                continue;
        }
        if (auto statement = relationshipStatement(step, property, source_, destination_, steps_))
            statements.push_back(std::move(*statement));
    }
    runInPortions(step, statements);
}

void MigrationRun::makeRelationshipsOneByOne(EntityStep& step)
{
    WriteTransaction transaction(destination_.connection(), WriteTransaction::Lock::Immediate);
    stepInHand_ = &step;
    if (step.keyOffset) {
        const std::int64_t last = step.destinationKey(sourceKeys_.at(&step.from->rootEntity()) - 1);
        std::int64_t key = step.destinationKey(0);
        // Keys that another program gave may be below 1.
        if (*step.keyOffset == 0)
            key = kBeforeAllKeys;
        for (auto keys = destination_.keysBetween(*step.to, key, last, kPage); !keys.empty();
             keys = destination_.keysBetween(*step.to, key, last, kPage)) {
            for (const std::int64_t next : keys)
                if (isMadeOf(step, next - *step.keyOffset))
                    makeRelationshipsOf(step, next - *step.keyOffset, step.to->rootEntity(), next);
            key = keys.back();
        }
    }
    for (const auto& table : destination_.schema().tables()) {
        std::int64_t key = kBeforeAllKeys;
        for (auto made = source_.associationsAfter(step, *table->root, key, kPage); !made.empty();
             made = source_.associationsAfter(step, *table->root, key, kPage)) {
            for (const MigrationSource::Association& one : made)
                makeRelationshipsOf(step, one.source, *one.root, one.destination);
            key = made.back().destination;
        }
    }
    stepInHand_ = nullptr;
    transaction.commit();
}

/// Records of several entities of the source may have become records of one.
bool MigrationRun::isMadeOf(const EntityStep& step, std::int64_t sourceKey)
{
    if (!source_.schema().table(*step.from).hasDiscriminator)
        return true;
    const auto row = source_.selects().row(source_.connection(), step.from->rootEntity(), sourceKey, RowContents::Keys);
    return row && row->entity == step.from;
}

void MigrationRun::makeRelationshipsOf(
    EntityStep& step, std::int64_t sourceKey, const NSEntityDescription& root, std::int64_t destinationKey)
{
    auto row = destination_.selects().row(destination_.connection(), root, destinationKey, RowContents::Row);
    if (!row)
        throw StoreFailure(StoreErrorCorrupt, "A row of \"" + root.name() + "\" of the new store is gone.");
    sourceKeyInHand_ = sourceKey;
    recordsInHand_.push_back(std::make_unique<DestinationMigrationRecord>(
        source_.identity(), destination_, std::move(*row), DestinationMigrationRecord::Kind::Written));
    NSError error;
    const bool isFine = step.policy->createRelationshipsForDestinationInstance(
        *recordsInHand_.front(), *step.mapping, manager_, &error);
    checkEnd(step, isFine, error);
    writeRecordsInHand();
    progress_.advance(1);
}

// The end -------------------------------------------------------------------------------------------------------------

void MigrationRun::finish()
{
    {
        WriteTransaction transaction(destination_.connection(), WriteTransaction::Lock::Immediate);
        destination_.addJoinIndexes();
        destination_.clearDanglingReferences();
        transaction.commit();
    }
    for (EntityStep& step : steps_.all())
        callHook(step, &NSEntityMigrationPolicy::performCustomValidationForEntityMapping);
    WriteTransaction transaction(destination_.connection(), WriteTransaction::Lock::Immediate);
    for (EntityStep& step : steps_.all())
        callHook(step, &NSEntityMigrationPolicy::endEntityMapping);
    destination_.completeDerivedValues([this] { progress_.checkIsNotCancelled(); });
    // What SQL has made alone has been looked through.
    const auto hasPolicy
        = [](const EntityStep& step) { return !step.mapping->entityMigrationPolicyClassName().empty(); };
    if (std::ranges::any_of(steps_.all(), hasPolicy))
        destination_.checkReferences();
    destination_.writeMetadata(*manager_.destinationModel(), source_.metadata(), steps_.nextKeys());
    progress_.checkIsNotCancelled();
    transaction.commit();
}

} // namespace tarn
