#include "tarnmodel/model/Syncable.h"

#include <algorithm>

namespace tarn {
namespace {

bool isOfSyncableClass(const NSEntityDescription& concrete)
{
    for (const NSEntityDescription* entity = &concrete; entity; entity = entity->superentity()) {
        if (std::find(syncableClasses.begin(), syncableClasses.end(), entity->name()) != syncableClasses.end())
            return true;
    }
    return false;
}

} // namespace

bool isSyncable(const NSManagedObject& record)
{
    return isOfSyncableClass(record.entity()) && !record.storedValueForKey("uniqueIdentifier").isNil();
}

} // namespace tarn
