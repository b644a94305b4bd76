#include "tarnmodel/platform/coredata/context/child/UnsavedSnapshot.h"

#include "tarnmodel/platform/coredata/context/ContextCore.h"
#include "tarnmodel/platform/coredata/context/records/RecordAccess.h"
#include "tarnmodel/platform/foundation/system/Log.h"

namespace tarn {

namespace {

constexpr int kGenerationShift = 32;

bool haveEqualValues(const PropertyValues& left, const PropertyValues& right)
{
    if (left.loadedMask() != right.loadedMask())
        return false;
    for (const NSPropertyDescription* property : left.entity().properties())
        if (left.isLoaded(property->index()) && !left.equals(property->index(), right))
            return false;
    return true;
}

/// The record's values as a row holds them: to-ones of its own columns, by permanent keys.
PropertyValues rowValues(const ContextCore& core, const NSManagedObject& record)
{
    PropertyValues values = RecordAccess::values(record);
    for (const NSRelationshipDescription* relationship : record.entity().relationships()) {
        const PropertyIndex index = relationship->index();
        if (relationship->isToMany())
            continue;
        if (relationship->storage() != RelationshipStorage::Column) {
            values.setUnloaded(index);
            continue;
        }
        if (!values.isLoaded(index) || values.isNil(index) || values.integer(index) > 0)
            continue;
        const NSManagedObject* target
            = core.records.registry.find(relationship->destinationEntity().rootEntity(), values.integer(index));
        if (target && !target->objectID().isTemporaryID())
            values.setInteger(index, target->objectID().key());
        else
            values.setNil(index);
    }
    return values;
}

} // namespace

std::shared_ptr<const UnsavedSnapshot> UnsavedSnapshot::ofContext(ContextCore& core, const UnsavedSnapshot* previous)
{
    const auto snapshot = std::make_shared<UnsavedSnapshot>();
    snapshot->generation_ = previous ? previous->generation_ + 1 : 1;
    const auto inserted = core.records.tracker.insertedObjects();
    NSError error;
    if (!core.obtainPermanentIDs(inserted, &error))
        logMessage("New records are not seen by child contexts: " + error.localizedDescription());
    const std::vector<NSManagedObject*> lists[]
        = {inserted, core.records.tracker.updatedObjects(), core.records.tracker.deletedObjects()};
    for (const auto& records : lists)
        for (const NSManagedObject* record : records)
            snapshot->takeRecord(core, *record, previous);
    for (const auto& records : lists)
        for (const NSManagedObject* record : records)
            snapshot->takeJoins(*record);
    return snapshot;
}

void UnsavedSnapshot::takeRecord(
    const ContextCore& core, const NSManagedObject& record, const UnsavedSnapshot* previous)
{
    const NSManagedObjectID id = record.objectID();
    if (id.isTemporaryID())
        return;
    const NSEntityDescription& root = id.entity().rootEntity();
    EntryPointer& place = entries_[&root][id.key()];
    if (record.isDeleted()) {
        place = std::make_shared<const Entry>(
            Entry{.row = {&id.entity(), id.key(), record.rowVersion(), {}}, .isDeleted = true});
        return;
    }
    PropertyValues values = rowValues(core, record);
    const bool isInserted = record.isInserted();
    const PropertyMask changed = isInserted ? ~PropertyMask{0} : RecordAccess::changed(record);
    const Entry* const before = previous ? previous->entry(root, id.key()) : nullptr;
    std::int64_t version = record.rowVersion() + (static_cast<std::int64_t>(generation_) << kGenerationShift);
    // Who has read the same values before has nothing to read again.
    if (before && !before->isDeleted && haveEqualValues(before->row.values, values))
        version = before->row.version;
    place = std::make_shared<const Entry>(
        Entry{{&id.entity(), id.key(), version, std::move(values)}, changed, isInserted, false});
    indexToOnes(*place);
}

void UnsavedSnapshot::indexToOnes(const Entry& entry)
{
    for (const NSRelationshipDescription* relationship : entry.row.entity->relationships()) {
        if (relationship->isToMany() || relationship->storage() != RelationshipStorage::Column
            || entry.row.values.isNil(relationship->index()))
            continue;
        holders_[{relationship, entry.row.values.integer(relationship->index())}].push_back(
            {entry.row.entity, entry.row.key});
    }
}

void UnsavedSnapshot::takeJoins(const NSManagedObject& record)
{
    const RecordDetails* details = RecordAccess::detailsIfAny(record);
    if (!details || record.objectID().isTemporaryID())
        return;
    for (const auto& set : details->toManySets) {
        const NSRelationshipDescription& relationship = set->relationship();
        if (!relationship.ownsJoinTable())
            continue;
        for (const bool isAdded : {false, true}) {
            for (const NSManagedObject* member : isAdded ? set->added() : set->removed()) {
                const NSManagedObjectID id = member->objectID();
                if (id.isTemporaryID())
                    continue;
                joins_[{&relationship, record.objectID().key()}].push_back({{&id.entity(), id.key()}, isAdded});
                joins_[{&relationship.inverseRelationship(), id.key()}].push_back(
                    {{&record.entity(), record.objectID().key()}, isAdded});
            }
        }
    }
}

const UnsavedSnapshot::Entries& UnsavedSnapshot::entriesOfRoot(const NSEntityDescription& root) const
{
    static const Entries none;
    const auto found = entries_.find(&root);
    return found == entries_.end() ? none : found->second;
}

const UnsavedSnapshot::Entry* UnsavedSnapshot::entry(const NSEntityDescription& root, std::int64_t key) const
{
    const Entries& entries = entriesOfRoot(root);
    const auto found = entries.find(key);
    return found == entries.end() ? nullptr : found->second.get();
}

std::vector<RelatedKey> UnsavedSnapshot::holders(const NSRelationshipDescription& column, std::int64_t target) const
{
    const auto found = holders_.find({&column, target});
    return found == holders_.end() ? std::vector<RelatedKey>() : found->second;
}

const std::vector<UnsavedSnapshot::JoinDelta>& UnsavedSnapshot::joinDeltas(
    const NSRelationshipDescription& relationship, std::int64_t key) const
{
    static const std::vector<JoinDelta> none;
    const auto found = joins_.find({&relationship, key});
    return found == joins_.end() ? none : found->second;
}

} // namespace tarn
