#include "platform/coredata/ParentTransaction.h"

#include "platform/coredata/ContextCore.h"
#include "platform/coredata/RecordAccess.h"
#include "platform/foundation/Log.h"

namespace tarn {

namespace {

NSManagedObject* recordOfKey(ContextCore& core, const NSEntityDescription& entity, std::int64_t key)
{
    return core.context.existingObjectWithID(NSManagedObjectID(core.store().identity(), entity, key));
}

PropertyMask loadedAttributes(const StoreRow& row)
{
    return row.values.loadedMask() & ~row.entity->relationshipMask();
}

} // namespace

bool ParentTransaction::insertRow(const StoreRow& row, NSError*)
{
    insertions_.push_back(row);
    return true;
}

RowWriteResult ParentTransaction::readVersion(
    const NSEntityDescription& entity, std::int64_t key, std::int64_t& version, NSError* error)
{
    std::vector<StoreRow> rows;
    if (!store_.rowsForKeys(entity.rootEntity(), std::span(&key, 1), RowContents::Row, rows, error))
        return RowWriteResult::Failed;
    if (rows.empty())
        return RowWriteResult::Gone;
    version = rows.front().version;
    return RowWriteResult::Written;
}

RowWriteResult ParentTransaction::updateRow(const StoreRow& row, PropertyMask changed, NSError* error)
{
    std::int64_t version = 0;
    if (const auto read = readVersion(*row.entity, row.key, version, error); read != RowWriteResult::Written)
        return read;
    if (version != row.version)
        return RowWriteResult::Conflict;
    updates_.push_back({row, changed});
    return RowWriteResult::Written;
}

RowWriteResult ParentTransaction::deleteRow(
    const NSEntityDescription& entity, std::int64_t key, std::int64_t version, NSError* error)
{
    std::int64_t present = 0;
    if (const auto read = readVersion(entity, key, present, error); read != RowWriteResult::Written)
        return read;
    if (version != 0 && present != version)
        return RowWriteResult::Conflict;
    deletions_.push_back({&entity, key});
    return RowWriteResult::Written;
}

bool ParentTransaction::changeJoins(std::span<const JoinChange> changes, NSError*)
{
    joins_.insert(joins_.end(), changes.begin(), changes.end());
    return true;
}

bool ParentTransaction::commit(NSError* error)
{
    return parent_->perform([this](ContextCore& parent) { apply(parent); }, error);
}

void ParentTransaction::apply(ContextCore& parent) const
{
    for (const StoreRow& row : insertions_)
        insert(parent, row);
    for (const StoreRow& row : insertions_)
        if (NSManagedObject* record = parent.registry.find(row.entity->rootEntity(), row.key))
            relate(parent, *record, row, row.values.loadedMask());
    for (const Update& changed : updates_)
        update(parent, changed.row, changed.changed);
    for (const JoinChange& change : joins_)
        join(parent, change);
    for (const Deletion& deletion : deletions_)
        remove(parent, deletion);
    parent.processPendingChanges();
    parent.publish();
}

/// The record comes with its values and is not told that it was inserted: that happened in the child.
void ParentTransaction::insert(ContextCore& parent, const StoreRow& row)
{
    PropertyValues values(*row.entity);
    for (const NSAttributeDescription* attribute : row.entity->attributes())
        values.assign(attribute->index(), row.values);
    parent.adoptInsertion(*row.entity, row.key, std::move(values), loadedAttributes(row));
}

void ParentTransaction::update(ContextCore& parent, const StoreRow& row, PropertyMask changed)
{
    NSManagedObject* record = recordOfKey(parent, *row.entity, row.key);
    if (!record || !parent.beginWrite(*record)) {
        logMessage("A record was deleted in the parent context; the child's changes were dropped");
        return;
    }
    parent.noteFromChild(*record);
    for (const NSAttributeDescription* attribute : row.entity->attributes()) {
        const PropertyIndex index = attribute->index();
        if (!(changed & propertyBit(index)))
            continue;
        RecordAccess::values(*record).assign(index, row.values);
        parent.noteChange(*record, index, true);
        RecordAccess::tellObservers(*record, attribute->name());
    }
    relate(parent, *record, row, changed);
}

void ParentTransaction::relate(ContextCore& parent, NSManagedObject& record, const StoreRow& row, PropertyMask changed)
{
    for (const NSRelationshipDescription* relationship : row.entity->relationships()) {
        const PropertyIndex index = relationship->index();
        if (relationship->isToMany() || relationship->storage() != RelationshipStorage::Column
            || !(changed & propertyBit(index)))
            continue;
        NSManagedObject* target = row.values.isNil(index)
            ? nullptr
            : recordOfKey(parent, relationship->destinationEntity(), row.values.integer(index));
        parent.relationships.setToOne(record, *relationship, target);
    }
}

void ParentTransaction::join(ContextCore& parent, const JoinChange& change)
{
    const NSRelationshipDescription& relationship = *change.relationship;
    NSManagedObject* owner
        = recordOfKey(parent, relationship.inverseRelationship().destinationEntity(), change.ownerKey);
    NSManagedObject* member = recordOfKey(parent, relationship.destinationEntity(), change.memberKey);
    if (!owner || !member)
        return; // deleted meanwhile
    parent.noteFromChild(*owner);
    parent.noteFromChild(*member);
    ToManySet& set = parent.relationships.toMany(*owner, relationship);
    if (change.added)
        parent.relationships.addMember(set, *member);
    else
        parent.relationships.removeMember(set, *member);
}

void ParentTransaction::remove(ContextCore& parent, const Deletion& deletion)
{
    if (NSManagedObject* record = recordOfKey(parent, *deletion.entity, deletion.key))
        parent.remove(*record, ContextCore::Preparation::Done);
}

} // namespace tarn
