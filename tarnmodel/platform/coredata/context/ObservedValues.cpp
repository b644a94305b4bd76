#include "tarnmodel/platform/coredata/context/ObservedValues.h"

#include "tarnmodel/platform/coredata/context/reading/Faulting.h"
#include "tarnmodel/platform/coredata/context/records/HeldRecords.h"
#include "tarnmodel/platform/coredata/context/records/RecordAccess.h"
#include "tarnmodel/platform/foundation/system/Log.h"
#include "tarnmodel/platform/foundation/values/NSException.h"

#include <algorithm>
#include <utility>

namespace tarn {

void ObservedValues::keep(const NSManagedObject& record)
{
    const auto& observers = RecordAccess::details(record).observers;
    const bool isObserved = std::any_of(
        observers.begin(), observers.end(), [](const auto& registration) { return registration->active; });
    if (!isObserved || RecordAccess::values(record).isEmpty() || !kept_.insert(&record).second)
        return;
    former_.push_back({const_cast<NSManagedObject*>(&record), RecordAccess::values(record)});
    records_.operations.scheduleProcessing();
}

void ObservedValues::tell()
{
    kept_.clear();
    for (const Former& former : std::exchange(former_, {})) {
        try {
            tellOf(former);
        } catch (const NSException& exception) {
            logMessage("Error while telling observers\n" + exception.reason());
        }
    }
}

void ObservedValues::tellOf(const Former& former) const
{
    NSManagedObject& record = *former.record;
    if (record.isFault())
        faulting_.fire(record);
    if (RecordAccess::isGone(record))
        return; // told as a deletion
    std::vector<const NSPropertyDescription*> changed;
    for (const NSPropertyDescription* property : record.entity().properties())
        if (RecordAccess::isObserved(record, property->name()) && isOther(record, former.values, *property))
            changed.push_back(property);
    for (const NSPropertyDescription* property : changed)
        RecordAccess::tellObservers(record, property->name());
}

bool ObservedValues::isOther(
    NSManagedObject& record, const PropertyValues& former, const NSPropertyDescription& property) const
{
    const PropertyIndex index = property.index();
    const NSEntityDescription& entity = record.entity();
    if ((entity.toManyMask() | entity.inverseColumnMask()) & propertyBit(index))
        return true; // read at next use
    if (!former.isLoaded(index))
        return true; // nobody knows what it was
    if (!RecordAccess::values(record).isLoaded(index))
        faulting_.loadLarge(record);
    return !RecordAccess::values(record).equals(index, former);
}

} // namespace tarn
