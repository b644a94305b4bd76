#include "tarnmodel/platform/coredata/context/records/HeldRecords.h"

#include "tarnmodel/platform/coredata/context/records/RecordAccess.h"
#include "tarnmodel/platform/coredata/rows/RowStore.h"

namespace tarn {

// Records by key ------------------------------------------------------------------------------------------------------

NSManagedObject& HeldRecords::recordOrFault(const NSEntityDescription& entity, std::int64_t key)
{
    if (NSManagedObject* known = registry.find(entity.rootEntity(), key))
        return *known;
    NSManagedObject& object
        = registry.add(RecordAccess::make(context, NSManagedObjectID(store().identity(), entity, key)));
    RecordAccess::markFault(object);
    noteFault(object);
    return object;
}

NSManagedObject* HeldRecords::recordWithKey(const NSEntityDescription& entity, std::int64_t key)
{
    return key > 0 ? &recordOrFault(entity, key) : registry.find(entity.rootEntity(), key);
}

void HeldRecords::noteFault(NSManagedObject& object)
{
    auto& faults = faults_[&object.entity().rootEntity()];
    // What is read again and again keeps its place.
    if (const std::uint32_t place = RecordAccess::order(object); place < faults.size() && faults[place] == &object)
        return;
    RecordAccess::setOrder(object, static_cast<std::uint32_t>(faults.size()));
    faults.push_back(&object);
}

// Changes -------------------------------------------------------------------------------------------------------------

bool HeldRecords::beginWrite(NSManagedObject& object)
{
    assertOnQueue(&object);
    if (object.isDeleted())
        return false;
    if (object.isFault())
        operations.fire(object);
    if (RecordAccess::isGone(object))
        return false;
    RecordDetails& details = RecordAccess::details(object);
    if (!object.isInserted() && details.changed == 0)
        details.committed = RecordAccess::values(object);
    return true;
}

void HeldRecords::noteChange(NSManagedObject& object, PropertyIndex index, bool inRow)
{
    RecordDetails& details = RecordAccess::details(object);
    const PropertyMask bit = propertyBit(index);
    const bool isFirstChange = details.changed == 0;
    const bool isNews = isFirstChange || details.changedInEvent == 0 || isPosting;
    details.changed |= bit;
    details.changedInEvent |= bit;
    if (inRow)
        details.rowChanged |= bit;
    if (isNews)
        tracker.noteUpdated(object);
    pendingIndex.touch(object, isFirstChange ? ~PropertyMask{0} : bit);
    operations.scheduleProcessing();
    if (const NSPropertyDescription& property = object.entity().property(index); property.isRelationship())
        RecordAccess::tellObservers(object, property.name());
}

void HeldRecords::noteGone(NSManagedObject& object)
{
    tracker.forgetPending(object);
    tracker.noteGone(object);
    RecordAccess::markGone(object);
    unloadSets(object);
    registry.forget(object);
    pendingIndex.touch(object, ~PropertyMask{0});
    operations.scheduleProcessing();
}

void HeldRecords::noteAppeared(NSManagedObject& object)
{
    tracker.noteAppeared(object);
    operations.scheduleProcessing();
}

void HeldRecords::noteRefreshed(NSManagedObject& object)
{
    tracker.noteRefreshed(object);
    operations.scheduleProcessing();
}

void HeldRecords::unloadSets(NSManagedObject& object)
{
    if (RecordDetails* details = RecordAccess::detailsIfAny(object))
        for (const auto& set : details->toManySets)
            set->unload();
}

} // namespace tarn
