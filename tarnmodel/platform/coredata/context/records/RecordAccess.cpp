#include "tarnmodel/platform/coredata/context/records/RecordAccess.h"

#include "tarnmodel/platform/foundation/values/NSException.h"

namespace tarn {

std::unique_ptr<NSManagedObject> RecordAccess::make(NSManagedObjectContext& context, const NSManagedObjectID& objectID)
{
    const NSManagedObjectSeed seed(context, objectID);
    if (const RecordConstructor constructor = objectID.entity().recordConstructor())
        return std::unique_ptr<NSManagedObject>(constructor(seed));
    return std::make_unique<NSManagedObject>(seed);
}

const NSPropertyDescription& RecordAccess::propertyForKey(const NSManagedObject& object, std::string_view key)
{
    if (const NSPropertyDescription* property = object.entity().propertyNamed(key))
        return *property;
    throw NSException(NSUndefinedKeyException,
        "The entity \"" + object.entity().name() + "\" has no property \"" + std::string(key) + "\"");
}

void RecordAccess::markGone(NSManagedObject& object)
{
    object.flags_ = NSManagedObject::Deleted | NSManagedObject::Gone;
    object.values_ = PropertyValues(object.entity());
    if (object.details_) {
        object.details_->changed = object.details_->changedInEvent = object.details_->rowChanged = 0;
        object.details_->committed = PropertyValues();
    }
}

} // namespace tarn
