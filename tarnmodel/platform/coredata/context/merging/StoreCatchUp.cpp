#include "tarnmodel/platform/coredata/context/merging/StoreCatchUp.h"

#include "tarnmodel/platform/coredata/context/merging/VersionComparison.h"
#include "tarnmodel/platform/coredata/context/records/HeldRecords.h"
#include "tarnmodel/platform/coredata/context/records/RecordAccess.h"

#include <algorithm>

namespace tarn {

namespace {

MergeSide preferredSide(NSMergePolicy policy)
{
    return policy == NSMergePolicy::MergeByPropertyStoreTrump ? MergeSide::Store : MergeSide::Context;
}

/// Of a record that has a row and was read from it.
bool isOfRow(const NSManagedObject& record)
{
    return !record.isFault() && !record.isInserted() && !record.objectID().isTemporaryID()
        && !RecordAccess::isGone(record);
}

bool failForConflict(NSError* error, std::string_view what, const NSManagedObject& record)
{
    assignError(error,
        NSError(TarnStoreErrorDomain, StoreErrorMergeConflict,
            "Another writer " + std::string(what) + record.objectID().URIRepresentation()));
    return false;
}

} // namespace

StoreCatchUp::StoreCatchUp(HeldRecords& records, RelationshipMaintenance& relationships, NSMergePolicy policy,
    const MergeConflictHandler& handler)
    : records_(records), relationships_(relationships), policy_(policy),
      conflicts_(records, relationships, handler, preferredSide(policy))
{ }

bool StoreCatchUp::run(NSError* error)
{
    if (!findWhatMoved(error) || !allowedByPolicy(error) || !readRows(error))
        return false;
    for (auto& [root, records] : moved_)
        takeRows(records, rows_[root]);
    letGo(moved_);
    // Join rows come and go without a new version, and so does what other rows say of a record.
    for (NSManagedObject* record : records_.registry.objects())
        relationships_.forgetEndsWithoutColumn(*record);
    if (!detachFromDeleted(error))
        return false;
    conflicts_.awakeRecords();
    for (const auto& pending : {records_.tracker.insertedObjects(), records_.tracker.updatedObjects()})
        for (NSManagedObject* record : pending)
            if (!record->isDeleted())
                record->deriveFromOthers();
    conflicts_.tell();
    return true;
}

bool StoreCatchUp::findWhatMoved(NSError* error)
{
    std::unordered_map<const NSEntityDescription*, std::vector<NSManagedObject*>> held;
    for (NSManagedObject* record : records_.registry.objects())
        if (isOfRow(*record))
            held[&record->entity().rootEntity()].push_back(record);
    for (const auto& [root, those] : held) {
        VersionDifferences differences;
        if (!compareVersions(records_.store(), *root, those, differences, error))
            return false;
        Records& records = moved_[root];
        records.gone = std::move(differences.gone);
        for (NSManagedObject* record : differences.moved)
            (record->isDeleted()           ? records.deleted
                    : record->hasChanges() ? records.changed
                                           : records.clean)
                .push_back(record);
    }
    return true;
}

bool StoreCatchUp::allowedByPolicy(NSError* error) const
{
    if (policy_ != NSMergePolicy::Error)
        return true;
    // Members that come and go change no row.
    const auto changesItsRow = [](const NSManagedObject* record) {
        const RecordDetails* details = RecordAccess::detailsIfAny(*record);
        return details && details->rowChanged != 0;
    };
    for (const auto& [root, records] : moved_) {
        if (const auto found = std::ranges::find_if(records.changed, changesItsRow); found != records.changed.end())
            return failForConflict(error, "changed ", **found);
        if (!records.deleted.empty())
            return failForConflict(error, "changed ", *records.deleted.front());
        for (const NSManagedObject* record : records.gone)
            if (record->isUpdated() && changesItsRow(record))
                return failForConflict(error, "deleted ", *record);
    }
    return true;
}

/// All before the first change, so that a failing read leaves the context as it was.
bool StoreCatchUp::readRows(NSError* error)
{
    return std::all_of(moved_.begin(), moved_.end(), [&](const auto& entry) {
        const auto& [root, records] = entry;
        Rows& rows = rows_[root];
        return readInto(rows, *root, records.clean, RowContents::Row, error)
            && readInto(rows, *root, records.changed, RowContents::WholeRow, error)
            && readInto(rows, *root, records.deleted, RowContents::WholeRow, error);
    });
}

bool StoreCatchUp::readInto(Rows& rows, const NSEntityDescription& root, const std::vector<NSManagedObject*>& records,
    RowContents contents, NSError* error) const
{
    std::vector<std::int64_t> keys;
    keys.reserve(records.size());
    for (const NSManagedObject* record : records)
        keys.push_back(record->objectID().key());
    std::vector<StoreRow> read;
    if (!keys.empty() && !records_.store().rowsForKeys(root, keys, contents, read, error))
        return false;
    for (StoreRow& row : read) {
        const std::int64_t key = row.key;
        rows.insert_or_assign(key, std::move(row));
    }
    return true;
}

void StoreCatchUp::takeRows(Records& records, Rows& rows)
{
    const auto takeEach = [&](std::vector<NSManagedObject*>& those, auto&& take) {
        for (NSManagedObject* record : those) {
            if (const auto row = rows.find(record->objectID().key()); row != rows.end())
                take(*record, row->second);
            else
                records.gone.push_back(record); // between two reads of a store without a lock
        }
    };
    takeEach(records.deleted, [&](NSManagedObject& record, StoreRow& row) { conflicts_.noteDeletedHere(record, row); });
    takeEach(records.clean, [&](NSManagedObject& record, StoreRow& row) {
        RecordAccess::fill(record, std::move(row.values), row.version);
        records_.noteRefreshed(record);
    });
    takeEach(
        records.changed, [&](NSManagedObject& record, StoreRow& row) { conflicts_.mergeRow(record, std::move(row)); });
}

void StoreCatchUp::letGo(const RecordsByRoot& records)
{
    KeysOfEntities gone;
    for (const auto& [root, those] : records) {
        for (NSManagedObject* record : those.gone) {
            if (record->isDeleted())
                continue; // both sides deleted it
            conflicts_.noteDeletedElsewhere(*record);
            gone[root].insert(record->objectID().key());
            records_.noteGone(*record);
        }
    }
    if (!gone.empty())
        relationships_.dropReferences(gone);
}

/// What others have tied to a record that is deleted here loses it in this save, and counts as changed. It does not go
/// along: nobody who deleted knew of it.
bool StoreCatchUp::detachFromDeleted(NSError* error)
{
    for (NSManagedObject* record : records_.tracker.deletedObjects()) {
        for (const NSRelationshipDescription* relationship : record->entity().relationships()) {
            if (relationship->storage() == RelationshipStorage::Column
                || relationship->deleteRule() == NSDeleteRule::Deny)
                continue;
            std::vector<RelatedKey> stored;
            if (!records_.store().relatedKeys(*relationship, record->objectID().key(), stored, error))
                return false;
            for (const RelatedKey& key : stored)
                detach(*record, *relationship, key);
        }
    }
    return true;
}

void StoreCatchUp::detach(
    NSManagedObject& deleted, const NSRelationshipDescription& relationship, const RelatedKey& stored)
{
    NSManagedObject& other = records_.recordOrFault(*stored.entity, stored.key);
    const PropertyIndex inverse = relationship.inverseRelationship().index();
    if (other.isDeleted() || (RecordAccess::changed(other) & propertyBit(inverse)))
        return;
    relationships_.detachFromDeleted(other, relationship.inverseRelationship(), deleted);
}

} // namespace tarn
