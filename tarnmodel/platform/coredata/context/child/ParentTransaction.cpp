#include "tarnmodel/platform/coredata/context/child/ParentTransaction.h"

#include "tarnmodel/platform/coredata/context/ContextCore.h"
#include "tarnmodel/platform/coredata/context/records/RecordAccess.h"
#include "tarnmodel/platform/foundation/system/Log.h"

#include <algorithm>
#include <set>

namespace tarn {

namespace {

/// Null when it is deleted. Reads nothing: what a save touches was read before.
NSManagedObject* recordOfKey(const ContextCore& core, const NSEntityDescription& entity, std::int64_t key)
{
    NSManagedObject* record = core.records.registry.find(entity.rootEntity(), key);
    return record && !record->isDeleted() ? record : nullptr;
}

PropertyMask loadedAttributes(const StoreRow& row)
{
    return row.values.loadedMask() & ~row.entity->relationshipMask();
}

/// Those that stand in the row's own columns.
std::vector<const NSRelationshipDescription*> changedToOnes(const StoreRow& row, PropertyMask changed)
{
    std::vector<const NSRelationshipDescription*> found = row.entity->relationships();
    std::erase_if(found, [&](const NSRelationshipDescription* relationship) {
        return relationship->isToMany() || relationship->storage() != RelationshipStorage::Column
            || !(changed & propertyBit(relationship->index()));
    });
    return found;
}

} // namespace

bool ParentTransaction::insertRow(const StoreRow& row, NSError*)
{
    insertions_.push_back(row);
    insertedKeys_[&row.entity->rootEntity()].insert(row.key);
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
    bool isApplied = false;
    NSError failure;
    const auto work = [&](ContextCore& parent) {
        if (!rowsAreAsRead(parent, &failure) || !readRecords(parent, &failure))
            return;
        apply(parent);
        stateNumber_ = store_.stateNumber();
        noteVersions();
        if (whenTaken_)
            whenTaken_(parent.records.context);
        isApplied = true;
    };
    if (!parent_->perform(work, error))
        return false;
    if (!isApplied)
        assignError(error, std::move(failure));
    return isApplied;
}

/// The parent may have changed a record after the child had caught up with it, and not published that yet.
bool ParentTransaction::rowsAreAsRead(ContextCore& parent, NSError* error) const
{
    parent.processPendingChanges();
    if (parent.records.tracker.hasEvent()) // it is being told of what came before
        parent.publish();
    std::map<const NSEntityDescription*, std::map<std::int64_t, std::int64_t>> expected;
    for (const Update& update : updates_)
        expected[&update.row.entity->rootEntity()].emplace(update.row.key, update.row.version);
    for (const auto& [root, versions] : expected) {
        std::vector<std::int64_t> keys;
        for (const auto& [key, version] : versions)
            keys.push_back(key);
        std::vector<StoreRow> rows;
        if (!store_.rowsForKeys(*root, keys, RowContents::Keys, rows, error))
            return false;
        const auto isAsRead = [&, known = &versions](const StoreRow& row) { return known->at(row.key) == row.version; };
        if (rows.size() == keys.size() && std::all_of(rows.begin(), rows.end(), isAsRead))
            continue;
        assignError(error,
            NSError(TarnStoreErrorDomain, StoreErrorMergeConflict, "The parent context changed what is saved into it"));
        return false;
    }
    return true;
}

/// A row that is pending in the parent has the parent's version of it.
void ParentTransaction::noteVersions()
{
    std::map<const NSEntityDescription*, std::vector<std::int64_t>> keys;
    for (const StoreRow& row : insertions_)
        keys[&row.entity->rootEntity()].push_back(row.key);
    for (const Update& update : updates_)
        keys[&update.row.entity->rootEntity()].push_back(update.row.key);
    for (const auto& [root, wanted] : keys) {
        std::vector<StoreRow> rows;
        if (store_.rowsForKeys(*root, wanted, RowContents::Keys, rows, nullptr))
            for (const StoreRow& row : rows)
                versions_.insert_or_assign({root, row.key}, row.version);
    }
}

std::int64_t ParentTransaction::versionAfterCommit(
    const NSEntityDescription& entity, std::int64_t key, std::int64_t written) const
{
    const auto found = versions_.find({&entity.rootEntity(), key});
    return found == versions_.end() ? written : found->second;
}

/// A record that cannot be read must not look like one that was deleted, and a save must not stop half-way: everything
/// is read before the first change.
bool ParentTransaction::readRecords(ContextCore& parent, NSError* error) const
{
    std::map<const NSEntityDescription*, std::set<std::int64_t>> missing;
    const auto want = [&](const NSEntityDescription& entity, std::int64_t key) {
        const NSManagedObject* known = parent.records.registry.find(entity.rootEntity(), key);
        if (!isInserted(entity, key) && (!known || known->isFault()))
            missing[&entity.rootEntity()].insert(key);
    };
    const auto wantTargets = [&](const StoreRow& row, PropertyMask changed) {
        for (const NSRelationshipDescription* relationship : changedToOnes(row, changed))
            if (!row.values.isNil(relationship->index()))
                want(relationship->destinationEntity(), row.values.integer(relationship->index()));
    };
    for (const StoreRow& row : insertions_)
        wantTargets(row, row.values.loadedMask());
    for (const Update& changed : updates_) {
        want(*changed.row.entity, changed.row.key);
        wantTargets(changed.row, changed.changed);
    }
    for (const JoinChange& change : joins_) {
        want(change.relationship->inverseRelationship().destinationEntity(), change.ownerKey);
        want(change.relationship->destinationEntity(), change.memberKey);
    }
    for (const Deletion& deletion : deletions_)
        want(*deletion.entity, deletion.key);

    for (const auto& [root, keys] : missing) {
        const std::vector<std::int64_t> wanted(keys.begin(), keys.end());
        std::vector<StoreRow> rows;
        if (!parent.store().rowsForKeys(*root, wanted, RowContents::Row, rows, error))
            return false;
        for (StoreRow& row : rows)
            parent.faulting.adopt(std::move(row));
    }
    readOtherEnds(parent);
    return true;
}

bool ParentTransaction::isInserted(const NSEntityDescription& entity, std::int64_t key) const
{
    const auto keys = insertedKeys_.find(&entity.rootEntity());
    return keys != insertedKeys_.end() && keys->second.contains(key);
}

NSManagedObject* ParentTransaction::formerRecord(
    const ContextCore& parent, const NSEntityDescription& entity, std::int64_t key) const
{
    // Somebody may have asked the parent for a record that is inserted only now: reading it would find nothing.
    return isInserted(entity, key) ? nullptr : recordOfKey(parent, entity, key);
}

/// Who held a target before, and whom a deletion leaves behind. Raises where that cannot be read.
void ParentTransaction::readOtherEnds(ContextCore& parent) const
{
    const auto fire = [&](const NSManagedObject* record) {
        if (record && record->isFault())
            parent.faulting.fire(*record);
    };
    const auto readEnds = [&](const StoreRow& row, PropertyMask changed) {
        const NSManagedObject* record = formerRecord(parent, *row.entity, row.key);
        for (const NSRelationshipDescription* relationship : changedToOnes(row, changed)) {
            if (record)
                fire(parent.relationships.toOne(*record, *relationship));
            const NSRelationshipDescription& inverse = relationship->inverseRelationship();
            const NSManagedObject* target = row.values.isNil(relationship->index())
                ? nullptr
                : formerRecord(parent, relationship->destinationEntity(), row.values.integer(relationship->index()));
            if (target && !inverse.isToMany())
                fire(parent.relationships.toOne(*target, inverse));
        }
    };
    for (const StoreRow& row : insertions_)
        readEnds(row, row.values.loadedMask());
    for (const Update& changed : updates_)
        readEnds(changed.row, changed.changed);
    for (const Deletion& deletion : deletions_)
        if (const NSManagedObject* record = recordOfKey(parent, *deletion.entity, deletion.key))
            for (const NSRelationshipDescription* relationship : record->entity().relationships())
                for (const NSManagedObject* related : parent.relationships.related(*record, *relationship))
                    fire(related);
}

void ParentTransaction::apply(ContextCore& parent) const
{
    for (const StoreRow& row : insertions_)
        insert(parent, row);
    for (const StoreRow& row : insertions_)
        if (NSManagedObject* record = recordOfKey(parent, *row.entity, row.key))
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
    if (!parent.adoptInsertion(*row.entity, row.key, std::move(values), loadedAttributes(row)))
        logMessage("A record was deleted in the parent context; the child's insertion was dropped");
}

void ParentTransaction::update(ContextCore& parent, const StoreRow& row, PropertyMask changed)
{
    NSManagedObject* record = recordOfKey(parent, *row.entity, row.key);
    if (!record || !parent.records.beginWrite(*record)) {
        logMessage("A record was deleted in the parent context; the child's changes were dropped");
        return;
    }
    parent.noteFromChild(*record);
    for (const NSAttributeDescription* attribute : row.entity->attributes()) {
        const PropertyIndex index = attribute->index();
        if (!(changed & propertyBit(index)))
            continue;
        RecordAccess::values(*record).assign(index, row.values);
        parent.records.noteChange(*record, index, true);
        RecordAccess::tellObservers(*record, attribute->name());
    }
    relate(parent, *record, row, changed);
}

void ParentTransaction::relate(ContextCore& parent, NSManagedObject& record, const StoreRow& row, PropertyMask changed)
{
    for (const NSRelationshipDescription* relationship : changedToOnes(row, changed)) {
        const PropertyIndex index = relationship->index();
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
