#include "tarnmodel/platform/coredata/context/SavePlan.h"

#include "tarnmodel/platform/coredata/context/ContextCore.h"
#include "tarnmodel/platform/coredata/context/records/RecordAccess.h"
#include "tarnmodel/platform/foundation/events/NSNotificationCenter.h"

#include <algorithm>
#include <any>
#include <bit>
#include <unordered_map>
#include <unordered_set>

namespace tarn {

namespace {

/// How often a save into a parent that keeps changing is tried.
constexpr int kMostTries = 8;

/// What really differs from the row: a value that was changed and changed back is not written.
PropertyMask changedInRow(const NSManagedObject& record)
{
    const RecordDetails& details = RecordAccess::details(record);
    const PropertyValues& values = RecordAccess::values(record);
    PropertyMask mask = details.rowChanged;
    for (const NSPropertyDescription* property : record.entity().properties()) {
        const PropertyIndex index = property->index();
        if ((mask & propertyBit(index)) && details.committed.isLoaded(index) && values.equals(index, details.committed))
            mask &= ~propertyBit(index);
    }
    return mask;
}

StoreRow rowOf(const NSManagedObject& record)
{
    const NSManagedObjectID id = record.objectID();
    return {&id.entity(), id.key(), record.rowVersion(), RecordAccess::values(record)};
}

/// Only with the values of `changed`.
StoreRow rowOf(const NSManagedObject& record, PropertyMask changed)
{
    const NSManagedObjectID id = record.objectID();
    StoreRow row{&id.entity(), id.key(), record.rowVersion(), PropertyValues(id.entity(), ~PropertyMask{0})};
    for (PropertyMask rest = changed & ~id.entity().toManyMask(); rest != 0; rest &= rest - 1)
        row.values.assign(static_cast<PropertyIndex>(std::countr_zero(rest)), RecordAccess::values(record));
    return row;
}

bool fail(NSError* error, StoreErrorCode code, const std::string& description)
{
    assignError(error, NSError(TarnStoreErrorDomain, code, description));
    return false;
}

} // namespace

SavePlan::SavePlan(ContextCore& core) : core_(core) { }

bool SavePlan::run(std::unique_ptr<StoreTransaction> transaction, NSError* error)
{
    core_.assertOnQueue();
    if (core_.isSaving())
        return fail(error, StoreErrorGeneric, "A save is under way");
    const ContextCore::RecordsInHand inHand(core_);
    core_.processPendingChanges();
    if (!core_.records.tracker.hasChanges()) {
        core_.relationships.settleMerged({});
        if (transaction && !transaction->commit(error))
            return false;
        tellOfSave(); // what came and went again since the last save has left nothing to be written
        return true;
    }
    // Others need not wait for what takes long.
    if (!prepareParticipants(error))
        return false;
    if (!transaction)
        transaction = core_.store().beginTransaction(error);
    if (!transaction)
        return false;
    {
        const ContextCore::Saving saving(core_);
        try {
            if (!write(transaction, error)) {
                transaction.reset();
                takeBack();
                return false;
            }
        } catch (...) {
            transaction.reset();
            takeBack();
            throw;
        }
    }
    transaction.reset();
    finish();
    return true;
}

bool SavePlan::write(std::unique_ptr<StoreTransaction>& transaction, NSError* error)
{
    announcedBefore_ = core_.records.tracker.insertedObjects();
    if (!core_.catchUp(*transaction, error))
        return false;
    announcedBefore_
        = core_.records.tracker.insertedObjects(); // what was derived anew stays, whatever comes of the save
    announce();
    NSError failure;
    for (int tries = 1; !writeRows(*transaction, &failure); ++tries) {
        const bool isOvertaken = !transaction->isExclusive() && failure.domain() == TarnStoreErrorDomain
            && failure.code() == StoreErrorMergeConflict && tries < kMostTries;
        if (!isOvertaken) {
            assignError(error, std::move(failure));
            return false;
        }
        transaction = core_.store().beginTransaction(error);
        if (!transaction || !core_.catchUp(*transaction, error))
            return false;
    }
    core_.knownState = transaction->stateNumber();
    for (auto& [record, version] : newVersions_)
        version = transaction->versionAfterCommit(record->entity(), record->objectID().key(), version);
    return true;
}

bool SavePlan::writeRows(StoreTransaction& transaction, NSError* error)
{
    inserted_ = core_.records.tracker.insertedObjects();
    updated_ = core_.records.tracker.updatedObjects();
    deleted_ = core_.records.tracker.deletedObjects();
    newVersions_.clear();
    return deletionsAllowed(error) && assignKeys(error) && validate(error) && insertRows(transaction, error)
        && updateRows(transaction, error) && changeJoins(transaction, error) && deleteRows(transaction, error)
        && commit(transaction, error);
}

bool SavePlan::prepareParticipants(NSError* error) const
{
    return core_.parentStore || std::ranges::all_of(core_.participants, [&](const auto& participant) {
        return participant->prepareForSave(error);
    });
}

void SavePlan::tellOfSave() const
{
    if (core_.parentStore)
        return;
    for (const auto& participant : core_.participants)
        participant->didSave(core_.records.context);
}

bool SavePlan::commit(StoreTransaction& transaction, NSError* error) const
{
    transaction.whenTakenByContext([this](NSManagedObjectContext& parent) {
        for (const auto& participant : core_.participants)
            participant->didSaveIntoParent(parent);
    });
    return prepareParticipants(error) && transaction.commit(error);
}

void SavePlan::announce()
{
    for (NSManagedObject* record : core_.records.tracker.insertedObjects())
        record->willSave();
    for (NSManagedObject* record : core_.records.tracker.updatedObjects())
        record->willSave();
    NSNotificationCenter::defaultCenter().postNotification(
        NSManagedObjectContextWillSaveNotification, &core_.records.context);
}

bool SavePlan::assignKeys(NSError* error)
{
    std::unordered_map<const NSEntityDescription*, std::vector<NSManagedObject*>> byRoot;
    for (NSManagedObject* record : inserted_)
        if (record->objectID().isTemporaryID())
            byRoot[&record->entity().rootEntity()].push_back(record);
    for (const auto& [root, records] : byRoot) {
        std::int64_t key = 0;
        if (!core_.store().reserveKeys(*root, records.size(), key, error))
            return false;
        for (NSManagedObject* record : records) {
            const NSManagedObjectID former = record->objectID();
            formerIDs_.emplace_back(record, former);
            core_.readdress(*record, NSManagedObjectID(former.store(), former.entity(), key++));
        }
    }
    // Somebody may have asked for a key before it was given, and deleted what was not there.
    std::erase_if(deleted_, [](const NSManagedObject* record) { return RecordAccess::isGone(*record); });
    return true;
}

bool SavePlan::validate(NSError* error) const
{
    for (const auto* records : {&inserted_, &updated_})
        for (const NSManagedObject* record : *records)
            for (const NSPropertyDescription* property : record->entity().properties()) {
                const PropertyValues& values = RecordAccess::values(*record);
                const bool isMissing = !property->isOptional() && !values.isEmpty()
                    && values.isLoaded(property->index()) && values.isNil(property->index())
                    && !(record->entity().toManyMask() & propertyBit(property->index()));
                if (isMissing)
                    return fail(error, StoreErrorValidation,
                        "\"" + property->name() + "\" of " + record->entity().name() + " must have a value");
            }
    return true;
}

bool SavePlan::deletionsAllowed(NSError* error) const
{
    const auto hasMember = [&](NSManagedObject& record, const NSRelationshipDescription& relationship) {
        core_.relationships.forgetStoredMembers(record); // others may have come or gone since they were read
        const auto members = core_.relationships.related(record, relationship);
        return std::any_of(
            members.begin(), members.end(), [](const NSManagedObject* member) { return !member->isDeleted(); });
    };
    for (NSManagedObject* record : deleted_)
        for (const NSRelationshipDescription* relationship : record->entity().relationships())
            if (relationship->deleteRule() == NSDeleteRule::Deny && hasMember(*record, *relationship))
                return fail(error, StoreErrorDeleteDenied,
                    "A record of " + record->entity().name() + " cannot be deleted while \"" + relationship->name()
                        + "\" has members");
    return true;
}

bool SavePlan::insertRows(StoreTransaction& transaction, NSError* error)
{
    for (NSManagedObject* record : inserted_) {
        if (!transaction.insertRow(rowOf(*record), error))
            return false;
        newVersions_.emplace_back(record, 1);
    }
    return true;
}

bool SavePlan::updateRows(StoreTransaction& transaction, NSError* error)
{
    return std::all_of(updated_.begin(), updated_.end(),
        [&](NSManagedObject* record) { return updateRow(transaction, *record, error); });
}

bool SavePlan::updateRow(StoreTransaction& transaction, NSManagedObject& record, NSError* error)
{
    const PropertyMask changed = changedInRow(record);
    if (changed == 0)
        return true;
    switch (transaction.updateRow(rowOf(record, changed), changed, error)) {
    case RowWriteResult::Written:
        newVersions_.emplace_back(&record, record.rowVersion() + 1);
        return true;
    case RowWriteResult::Failed:
        return false;
    case RowWriteResult::Gone:
    case RowWriteResult::Conflict:
        break;
    }
    return fail(error, StoreErrorMergeConflict,
        record.objectID().URIRepresentation() + " was changed by another writer while it was saved");
}

bool SavePlan::changeJoins(StoreTransaction& transaction, NSError* error)
{
    std::vector<JoinChange> changes;
    const auto collect = [&](const NSManagedObject& record) {
        const RecordDetails* details = RecordAccess::detailsIfAny(record);
        if (!details)
            return;
        for (const auto& set : details->toManySets) {
            if (!set->relationship().ownsJoinTable())
                continue;
            for (const bool added : {false, true})
                for (const NSManagedObject* member : added ? set->added() : set->removed())
                    if (!member->isDeleted() && !member->objectID().isTemporaryID())
                        changes.push_back(
                            {&set->relationship(), record.objectID().key(), member->objectID().key(), added});
        }
    };
    for (const auto* records : {&inserted_, &updated_})
        for (const NSManagedObject* record : *records)
            collect(*record);
    return changes.empty() || transaction.changeJoins(changes, error);
}

bool SavePlan::deleteRows(StoreTransaction& transaction, NSError* error)
{
    for (NSManagedObject* record : deleted_) {
        const std::int64_t key = record->objectID().key();
        const std::int64_t version
            = core_.mergePolicy == NSMergePolicy::Error && !record->isFault() ? record->rowVersion() : 0;
        switch (transaction.deleteRow(record->entity(), key, version, error)) {
        case RowWriteResult::Written:
        case RowWriteResult::Gone:
            break;
        case RowWriteResult::Failed:
            return false;
        case RowWriteResult::Conflict:
            return fail(error, StoreErrorMergeConflict,
                "Another writer changed " + record->objectID().URIRepresentation() + ", which was to be deleted");
        }
    }
    return true;
}

void SavePlan::finish()
{
    for (const auto& [record, version] : newVersions_)
        RecordAccess::markSaved(*record, version);
    for (const auto* records : {&inserted_, &updated_})
        for (NSManagedObject* record : *records) {
            RecordDetails& details = RecordAccess::details(*record);
            details.changed = details.rowChanged = 0;
            details.committed = PropertyValues();
            core_.relationships.settle(*record);
        }
    core_.records.tracker.clearPending();
    core_.records.pendingIndex.clear();
    core_.relationships.settleMerged(deleted_);
    core_.publish();
    tellOfSave();
    // From here on nothing is pending but what observers change.
    const std::uint64_t resets = core_.resetCount();
    core_.processPendingChanges();
    if (core_.resetCount() != resets)
        return;
    NSNotificationCenter::defaultCenter().postNotification(NSManagedObjectContextDidSaveNotification,
        &core_.records.context, std::any(ObjectChanges{inserted_, updated_, deleted_, {}}));
    if (core_.resetCount() != resets)
        return;
    for (NSManagedObject* record : deleted_) {
        RecordAccess::markGone(*record);
        HeldRecords::unloadSets(*record);
        core_.records.registry.forget(*record);
    }
    core_.shedFromChildren();
}

/// After a failure: records have the identifiers that they had, and what will-save observers inserted is gone.
void SavePlan::takeBack()
{
    for (const auto& [record, former] : formerIDs_)
        core_.readdress(*record, former);
    const std::unordered_set<const NSManagedObject*> before(announcedBefore_.begin(), announcedBefore_.end());
    for (NSManagedObject* record : core_.records.tracker.insertedObjects())
        if (!before.contains(record))
            core_.remove(*record);
}

} // namespace tarn
