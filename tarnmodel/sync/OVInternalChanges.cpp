#include "tarnmodel/model/OVInternalChanges.h"

#include "tarnmodel/model/RecordFetch.h"
#include "tarnmodel/platform/coredata/NSFetchRequest.h"
#include "tarnmodel/platform/coredata/NSPersistentStoreCoordinator.h"

namespace tarn {

OVInternalChanges* OVInternalChanges::newExternalChangeForChangeType(
    std::string_view changeType, const NSManagedObject& modelObject, std::uint32_t itemChangeType)
{
    OVInternalChanges* change = insertInManagedObjectContext(modelObject.managedObjectContext());
    change->setItemObjectID(modelObject.objectID().URIRepresentation());
    change->setItemChangeValue(static_cast<std::int16_t>(itemChangeType));
    change->setChangeType(changeType);
    return change;
}

std::vector<OVInternalChanges*> OVInternalChanges::internalChangesForChangeType(
    std::string_view changeType, NSManagedObjectContext& context)
{
    NSFetchRequest request(entityInManagedObjectContext(context));
    request.predicate = NSPredicate::predicateWithFormat("changeType == %@", changeType);
    return fetchRecords<OVInternalChanges>(request, context).value_or(std::vector<OVInternalChanges*>());
}

void OVInternalChanges::deleteAllInternalChangesForType(std::string_view changeType, NSManagedObjectContext& context)
{
    for (OVInternalChanges* change : internalChangesForChangeType(changeType, context))
        context.deleteObject(*change);
}

std::optional<NSManagedObjectID> OVInternalChanges::itemManagedObjectID() const
{
    const auto uri = itemObjectID();
    if (!uri)
        return std::nullopt;
    return managedObjectContext().persistentStoreCoordinator().managedObjectIDForURIRepresentation(*uri);
}

} // namespace tarn
