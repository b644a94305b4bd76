#include "tarnmodel/model/OVChange.h"

#include "tarnmodel/model/OVChangeItem.h"
#include "tarnmodel/model/RecordFetch.h"
#include "tarnmodel/model/Syncable.h"
#include "tarnmodel/platform/coredata/NSFetchRequest.h"
#include "tarnmodel/platform/foundation/system/NSUUID.h"
#include "tarnmodel/sync/ChangeLogFetchInternal.h"

#include <algorithm>
#include <set>

namespace tarn {
namespace {

bool holdsSyncable(std::span<NSManagedObject* const> records)
{
    return std::any_of(
        records.begin(), records.end(), [](const NSManagedObject* record) { return isSyncable(*record); });
}

void addItems(OVChange& change, std::span<NSManagedObject* const> records, bool deleted)
{
    for (const NSManagedObject* record : records) {
        if (!isSyncable(*record))
            continue;
        OVChangeItem* item = OVChangeItem::insertInManagedObjectContext(change.managedObjectContext());
        item->setUniqueIdentifier(record->storedValueForKey("uniqueIdentifier").asString());
        item->setItemEntity(record->entity().name());
        if (deleted)
            item->setItemDeletedValue(true);
        item->setChange(&change);
    }
}

OVChange* firstOf(const std::optional<std::vector<OVChange*>>& changes)
{
    return changes && !changes->empty() ? changes->front() : nullptr;
}

} // namespace

std::span<const std::string_view> OVChange::syncableClasses()
{
    return tarn::syncableClasses;
}

bool OVChange::isObjectSyncable(const NSManagedObject& record)
{
    return isSyncable(record);
}

OVChange* OVChange::latestChangeInManagedObjectContext(NSManagedObjectContext& context)
{
    return fetchLatestChange(context).value_or(nullptr);
}

OVChange* OVChange::changeWithToken(std::string_view token, NSManagedObjectContext& context)
{
    NSFetchRequest request(entityInManagedObjectContext(context));
    request.predicate = NSPredicate::predicateWithFormat("token = %@", token);
    request.fetchLimit = 1;
    return firstOf(fetchRecords<OVChange>(request, context));
}

OVChange* OVChange::createChangeInManagedObjectContext(NSManagedObjectContext& context)
{
    const auto latest = fetchLatestChange(context);
    // A change that got the order of an earlier one would never be found by those who read on from there.
    if (!latest)
        return nullptr;
    OVChange* change = insertInManagedObjectContext(context);
    change->setOrderValue(*latest ? (*latest)->orderValue() + 1 : 0);
    change->setToken(newUUIDString());
    return change;
}

OVChange* OVChange::newChangeForNewOrUpdatedObjects(std::span<NSManagedObject* const> newOrUpdatedObjects,
    std::span<NSManagedObject* const> deletedObjects, NSManagedObjectContext& context)
{
    if (!holdsSyncable(newOrUpdatedObjects) && !holdsSyncable(deletedObjects))
        return nullptr;
    OVChange* change = createChangeInManagedObjectContext(context);
    if (!change)
        return nullptr;
    addItems(*change, newOrUpdatedObjects, false);
    addItems(*change, deletedObjects, true);
    return change;
}

void OVChange::updateChangesInInManagedObjectContext(NSManagedObjectContext& context)
{
    std::vector<NSManagedObject*> newOrUpdated = context.insertedObjects();
    const std::vector<NSManagedObject*> updated = context.updatedObjects();
    newOrUpdated.insert(newOrUpdated.end(), updated.begin(), updated.end());
    newChangeForNewOrUpdatedObjects(newOrUpdated, context.deletedObjects(), context);
}

void OVChange::addChangeItemForObjects(std::span<NSManagedObject* const> objects)
{
    addItems(*this, objects, false);
}

void OVChange::removeChangeItemsWithUniqueIdentifiers(std::span<const std::string> uniqueIdentifiers)
{
    const std::set<std::string_view> handled(uniqueIdentifiers.begin(), uniqueIdentifiers.end());
    for (OVChangeItem* item : itemsSet().allObjects()) {
        const auto uniqueIdentifier = item->uniqueIdentifier();
        if (!uniqueIdentifier || !handled.contains(*uniqueIdentifier))
            continue;
        itemsSet().removeObject(*item);
        managedObjectContext().deleteObject(*item);
    }
}

} // namespace tarn
