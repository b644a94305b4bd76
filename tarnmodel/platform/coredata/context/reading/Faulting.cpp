#include "tarnmodel/platform/coredata/context/reading/Faulting.h"

#include "tarnmodel/platform/coredata/context/records/HeldRecords.h"
#include "tarnmodel/platform/coredata/context/records/RecordAccess.h"
#include "tarnmodel/platform/coredata/context/records/RelationshipMaintenance.h"
#include "tarnmodel/platform/foundation/values/NSException.h"

#include <algorithm>
#include <string>

namespace tarn {

namespace {

/// Faults filled together: what a list on a screen shows, and well within SQLite's limits.
constexpr std::size_t batchSize = 100;

[[noreturn]] void raiseUnreadable(const NSManagedObject& object, const NSError& error)
{
    throw NSException(NSInternalInconsistencyException,
        "The record " + object.objectID().URIRepresentation() + " could not be read: " + error.localizedDescription());
}

} // namespace

void Faulting::fire(const NSManagedObject& object)
{
    NSError error;
    if (object.isFault() && !fill(object, &error))
        raiseUnreadable(object, error);
}

bool Faulting::fill(const NSManagedObject& object, NSError* error)
{
    const NSEntityDescription& root = object.entity().rootEntity();
    std::vector<std::int64_t> keys{object.objectID().key()};
    const auto& faults = records_.faults(root);
    for (std::size_t at = RecordAccess::order(object) + 1; at < faults.size() && keys.size() < batchSize; ++at)
        if (faults[at]->isFault() && !faults[at]->isDeleted())
            keys.push_back(faults[at]->objectID().key());

    std::vector<StoreRow> rows;
    if (!records_.store().rowsForKeys(root, keys, RowContents::Row, rows, error))
        return false;
    for (StoreRow& row : rows)
        if (NSManagedObject* record = records_.registry.find(root, row.key); record && record->isFault())
            takeRow(*record, std::move(row));
    if (object.isFault())
        records_.noteGone(const_cast<NSManagedObject&>(object));
    return true;
}

void Faulting::loadLarge(const NSManagedObject& object)
{
    const NSManagedObjectID id = object.objectID();
    PropertyValues& values = RecordAccess::values(object);
    const PropertyMask missing = object.entity().largeMask() & ~values.loadedMask();
    if (id.isTemporaryID() || missing == 0)
        return;
    std::vector<StoreRow> rows;
    NSError error;
    const std::int64_t key = id.key();
    if (!records_.store().rowsForKeys(
            object.entity().rootEntity(), std::span(&key, 1), RowContents::WholeRow, rows, &error))
        raiseUnreadable(object, error);
    auto& record = const_cast<NSManagedObject&>(object);
    if (rows.empty()) {
        records_.noteGone(record);
        return;
    }
    StoreRow& row = rows.front();
    // Another writer moved the row: a clean record takes the whole new snapshot, so that no text meets another text's
    // title.
    if (row.version != object.rowVersion() && !object.hasChanges()) {
        takeRow(record, std::move(row));
        records_.noteRefreshed(record);
        return;
    }
    RecordDetails* details = RecordAccess::detailsIfAny(object);
    for (const NSPropertyDescription* property : object.entity().properties()) {
        const PropertyIndex index = property->index();
        if (!(missing & propertyBit(index)))
            continue;
        values.assign(index, row.values);
        if (details && !details->committed.isEmpty() && !details->committed.isLoaded(index))
            details->committed.assign(index, row.values);
    }
}

NSManagedObject& Faulting::adopt(StoreRow row)
{
    NSManagedObject& record = records_.recordOrFault(*row.entity, row.key);
    if (row.values.isEmpty() || record.isDeleted())
        return record;
    if (record.isFault()) {
        takeRow(record, std::move(row));
    } else if (row.version != record.rowVersion() && !record.hasChanges()) {
        takeRow(record, std::move(row));
        HeldRecords::unloadSets(record);
        records_.noteRefreshed(record);
    }
    return record;
}

void Faulting::takeRow(NSManagedObject& object, StoreRow row)
{
    const PropertyValues before = RecordAccess::takeValues(object);
    RecordAccess::fill(object, std::move(row.values), row.version);
    relationships_.followRow(object, before);
}

} // namespace tarn
