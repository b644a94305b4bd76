#include "tarnmodel/model/OVExternalChanges.h"

#include "tarnmodel/model/RecordFetch.h"
#include "tarnmodel/platform/coredata/NSFetchRequest.h"
#include "tarnmodel/platform/coredata/NSPersistentStoreCoordinator.h"
#include "tarnmodel/platform/foundation/system/Log.h"
#include "tarnmodel/sync/RecordDeletionInternal.h"

#include <sstream>

namespace tarn {
namespace {

using Records = std::vector<NSManagedObject*>;

std::vector<OVExternalChanges*> fetchQueue(NSManagedObjectContext& context)
{
    const NSFetchRequest request(OVExternalChanges::entityInManagedObjectContext(context));
    return fetchRecords<OVExternalChanges>(request, context).value_or(std::vector<OVExternalChanges*>());
}

/// Puts the identifier where its code belongs; other codes go nowhere.
void addToMerge(RemoteChanges& changes, const NSManagedObjectID& objectID, std::int16_t itemChange)
{
    switch (itemChange) {
    case OVExternalChanges::inserted:
        changes.inserted.push_back(objectID);
        break;
    case OVExternalChanges::updated:
        changes.updated.push_back(objectID);
        break;
    case OVExternalChanges::deleted:
        changes.deleted.push_back(objectID);
        break;
    default:
        break;
    }
}

} // namespace

OVExternalChanges* OVExternalChanges::newExternalChangeForModelObject(
    const NSManagedObject& record, std::uint32_t changeType)
{
    OVExternalChanges* change = insertInManagedObjectContext(record.managedObjectContext());
    change->setItemObjectID(record.objectID().URIRepresentation());
    change->setItemEntity(record.entity().name());
    change->setItemChangeValue(static_cast<std::int16_t>(changeType));
    return change;
}

std::vector<OVExternalChanges*> OVExternalChanges::newExternalChangesForInsertedObjects(
    std::span<NSManagedObject* const> insertedObjects, std::span<NSManagedObject* const> updatedObjects,
    std::span<NSManagedObject* const> deletedObjects, NSManagedObjectContext&)
{
    std::vector<OVExternalChanges*> changes;
    const auto add = [&changes](std::span<NSManagedObject* const> records, std::uint32_t changeType) {
        for (const NSManagedObject* record : records)
            changes.push_back(newExternalChangeForModelObject(*record, changeType));
    };
    add(insertedObjects, inserted);
    add(updatedObjects, updated);
    add(deletedObjects, deleted);
    return changes;
}

void OVExternalChanges::updateExternalChangesInManagedObjectContext(NSManagedObjectContext& context)
{
    const Records insertedRecords = context.insertedObjects();
    const Records updatedRecords = context.updatedObjects();
    const Records deletedRecords = context.deletedObjects();
    Records records = insertedRecords;
    records.insert(records.end(), updatedRecords.begin(), updatedRecords.end());
    records.insert(records.end(), deletedRecords.begin(), deletedRecords.end());
    NSError error;
    if (!context.obtainPermanentIDsForObjects(records, &error)) {
        std::ostringstream message;
        message << "Error while trying to save object from extension " << error;
        logMessage(message.str());
        return;
    }
    newExternalChangesForInsertedObjects(insertedRecords, updatedRecords, deletedRecords, context);
}

std::vector<OVExternalChanges*> OVExternalChanges::externalChangesInManagedObjectContext(
    NSManagedObjectContext& context)
{
    return fetchQueue(context);
}

void OVExternalChanges::deleteExternalChangesInManagedObjectContext(NSManagedObjectContext& context)
{
    deleteAllRecordsOfEntity(entityInManagedObjectContext(context), context);
}

std::optional<std::vector<NSManagedObjectID>> OVExternalChanges::mergeExternalChangesInManagedObjectContext(
    NSManagedObjectContext& context)
{
    const std::vector<OVExternalChanges*> queue = fetchQueue(context);
    if (queue.empty())
        return std::nullopt;
    RemoteChanges changes;
    for (const OVExternalChanges* change : queue) {
        if (const auto objectID = change->managedObjectIDInManagedObjectContext(context))
            addToMerge(changes, *objectID, change->itemChangeValue());
    }
    NSManagedObjectContext* const contexts[] = {&context};
    NSManagedObjectContext::mergeChangesFromRemoteContextSave(changes, contexts);
    for (OVExternalChanges* change : queue)
        context.deleteObject(*change);
    std::vector<NSManagedObjectID> merged = std::move(changes.inserted);
    merged.insert(merged.end(), changes.updated.begin(), changes.updated.end());
    merged.insert(merged.end(), changes.deleted.begin(), changes.deleted.end());
    return merged;
}

std::optional<NSManagedObjectID> OVExternalChanges::managedObjectIDInManagedObjectContext(
    NSManagedObjectContext& context) const
{
    const auto uri = itemObjectID();
    return uri ? context.persistentStoreCoordinator().managedObjectIDForURIRepresentation(*uri) : std::nullopt;
}

} // namespace tarn
