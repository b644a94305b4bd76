#include "tarnmodel/platform/coredata/context/merging/RemoteMerge.h"

#include "tarnmodel/platform/coredata/context/merging/VersionComparison.h"
#include "tarnmodel/platform/coredata/context/reading/Faulting.h"
#include "tarnmodel/platform/coredata/context/records/HeldRecords.h"
#include "tarnmodel/platform/coredata/context/records/RecordAccess.h"
#include "tarnmodel/platform/foundation/system/Log.h"

#include <algorithm>

namespace tarn {

namespace {

bool isEdited(const NSManagedObject& record)
{
    const RecordDetails* details = RecordAccess::detailsIfAny(record);
    return !record.isFault() && details && details->rowChanged != 0;
}

} // namespace

void RemoteMerge::take(const RemoteChanges& changes)
{
    const bool hasNews = !changes.inserted.empty() || !changes.updated.empty() || !changes.deleted.empty();
    if (hasNews && records_.tracker.hasChanges())
        relationships_.noteMerged();
    takeRows(keysOf(changes.inserted), true);
    takeRows(movedKeys(knownKeys(keysOf(changes.updated))), false);
    for (const auto& [root, keys] : keysOf(changes.deleted))
        for (const std::int64_t key : keys)
            remove(*root, key);
    if (!gone_.empty())
        relationships_.dropReferences(gone_);
    conflicts_.awakeRecords();
    conflicts_.tell();
}

RemoteMerge::KeysByRoot RemoteMerge::keysOf(const std::vector<NSManagedObjectID>& objectIDs) const
{
    const StoreIdentity& store = records_.store().identity();
    KeysByRoot keys;
    for (const NSManagedObjectID& id : objectIDs) {
        if (!id || id.isTemporaryID() || &id.store() != &store)
            continue;
        // The identifier may come from a coordinator that read the model for itself.
        if (const NSEntityDescription* entity = records_.context.managedObjectModel().entityNamed(id.entity().name()))
            keys[&entity->rootEntity()].push_back(id.key());
    }
    for (auto& [root, some] : keys) {
        std::sort(some.begin(), some.end());
        some.erase(std::unique(some.begin(), some.end()), some.end());
    }
    return keys;
}

RemoteMerge::KeysByRoot RemoteMerge::knownKeys(KeysByRoot keys) const
{
    for (auto& [root, some] : keys)
        std::erase_if(some, [&, entity = root](std::int64_t key) { return !records_.registry.find(*entity, key); });
    return keys;
}

/// Whose rows are not as they were read. Who was brought up to date before is not read again.
RemoteMerge::KeysByRoot RemoteMerge::movedKeys(KeysByRoot keys)
{
    for (auto& [root, some] : keys) {
        std::vector<NSManagedObject*> read;
        for (const std::int64_t key : some)
            if (NSManagedObject* record = records_.registry.find(*root, key); !record->isFault())
                read.push_back(record);
        VersionDifferences differences;
        if (!compareVersions(records_.store(), *root, read, differences, nullptr))
            continue; // reading the rows tells what is wrong
        std::unordered_set<const NSManagedObject*> differing(differences.moved.begin(), differences.moved.end());
        differing.insert(differences.gone.begin(), differences.gone.end());
        std::unordered_set<std::int64_t> unmoved;
        for (NSManagedObject* record : read) {
            if (differing.contains(record))
                continue;
            unmoved.insert(record->objectID().key());
            // Members come and go without a new version.
            relationships_.forgetEndsWithoutColumn(*record);
            if (!record->isDeleted() && !isEdited(*record))
                records_.noteRefreshed(*record);
        }
        std::erase_if(some, [&](std::int64_t key) { return unmoved.contains(key); });
    }
    return keys;
}

void RemoteMerge::takeRows(const KeysByRoot& keys, bool areInserted)
{
    for (const auto& [root, some] : keys) {
        if (some.empty())
            continue;
        std::vector<StoreRow> rows;
        NSError error;
        if (!records_.store().rowsForKeys(*root, some, RowContents::Row, rows, &error)) {
            logMessage("Error while merging\n" + error.localizedDescription());
            continue;
        }
        std::unordered_set<std::int64_t> missing(some.begin(), some.end());
        for (StoreRow& row : rows) {
            missing.erase(row.key);
            takeRow(std::move(row), areInserted);
        }
        for (const std::int64_t key : missing) // deleted since
            remove(*root, key);
    }
}

void RemoteMerge::takeRow(StoreRow row, bool isInserted)
{
    NSManagedObject* known = records_.registry.find(row.entity->rootEntity(), row.key);
    if (known) {
        take(*known, std::move(row));
    } else if (isInserted) {
        NSManagedObject& record = faulting_.adopt(std::move(row));
        records_.noteAppeared(record);
    }
}

void RemoteMerge::take(NSManagedObject& record, StoreRow row)
{
    if (record.isDeleted())
        return; // its deletion waits for the save here
    relationships_.forgetStoredMembers(record);
    if (!isEdited(record)) {
        if (RecordDetails* details = RecordAccess::detailsIfAny(record); details && details->changed)
            details->committed = row.values;
        const PropertyValues before = RecordAccess::takeValues(record);
        RecordAccess::fill(record, std::move(row.values), row.version);
        relationships_.followRow(record, before);
        records_.noteRefreshed(record);
        return;
    }
    if (row.version == record.rowVersion())
        return;
    std::vector<StoreRow> whole;
    NSError error;
    const std::int64_t key = row.key;
    if (!records_.store().rowsForKeys(
            record.entity().rootEntity(), std::span(&key, 1), RowContents::WholeRow, whole, &error)) {
        logMessage("Error while merging\n" + error.localizedDescription());
        return;
    }
    if (!whole.empty())
        conflicts_.mergeRow(record, std::move(whole.front()));
}

void RemoteMerge::remove(const NSEntityDescription& root, std::int64_t key)
{
    gone_[&root].insert(key); // a record may name it that was never read here
    NSManagedObject* record = records_.registry.find(root, key);
    if (!record)
        return;
    conflicts_.noteDeletedElsewhere(*record);
    records_.noteGone(*record);
}

} // namespace tarn
