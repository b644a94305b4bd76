#include "tarnmodel/platform/coredata/context/records/HeldRecords.h"
#include "tarnmodel/platform/coredata/context/records/RecordAccess.h"
#include "tarnmodel/platform/coredata/context/records/RelationshipMaintenance.h"

#include <algorithm>

namespace tarn {

void RelationshipMaintenance::forgetGone(NSManagedObject& record)
{
    const auto isGone = [](const NSManagedObject* member) { return RecordAccess::isGone(*member); };
    if (RecordDetails* details = RecordAccess::detailsIfAny(record)) {
        for (const auto& set : details->toManySets) {
            const auto& members = set->members_.values();
            if (std::any_of(members.begin(), members.end(), isGone)) {
                RecordAccess::keepForObservers(record);
                set->forgetStored();
            }
            set->added_.eraseIf(isGone);
            set->removed_.eraseIf(isGone);
        }
    }
}

void RelationshipMaintenance::dropReferences(const KeysOfEntities& gone)
{
    const auto namesGone = [&](const PropertyValues& values, const NSRelationshipDescription& relationship) {
        const PropertyIndex index = relationship.index();
        if (values.isEmpty() || !values.isLoaded(index) || values.isNil(index))
            return false;
        const auto keys = gone.find(&relationship.destinationEntity().rootEntity());
        return keys != gone.end() && keys->second.contains(values.integer(index));
    };
    for (NSManagedObject* record : records_.registry.objects()) {
        forgetGone(*record);
        if (record->isFault())
            continue;
        RecordDetails* details = RecordAccess::detailsIfAny(*record);
        bool isRefreshed = false;
        for (const NSRelationshipDescription* relationship : record->entity().relationships()) {
            if (relationship->isToMany())
                continue;
            if (namesGone(RecordAccess::values(*record), *relationship)) {
                RecordAccess::keepForObservers(*record);
                RecordAccess::values(*record).setNil(relationship->index());
                isRefreshed = true;
            }
            if (details && namesGone(details->committed, *relationship))
                details->committed.setNil(relationship->index());
        }
        if (isRefreshed)
            records_.noteRefreshed(*record);
    }
}

void RelationshipMaintenance::forgetEndsWithoutColumn(NSManagedObject& record)
{
    forgetStoredMembers(record);
    if (record.isFault() || record.isDeleted() || record.isInserted())
        return;
    const NSEntityDescription& entity = record.entity();
    // What is unsaved at the other end only this end knows.
    PropertyMask rest = entity.inverseColumnMask() & ~entity.toManyMask() & ~RecordAccess::changed(record);
    for (; rest != 0; rest &= rest - 1)
        RecordAccess::values(record).setUnloaded(static_cast<PropertyIndex>(std::countr_zero(rest)));
}

void RelationshipMaintenance::forgetChangedMember(
    NSManagedObject& owner, const NSRelationshipDescription& relationship, NSManagedObject& member)
{
    RecordDetails* details = RecordAccess::detailsIfAny(owner);
    if (!details)
        return;
    bool isChanged = false;
    if (relationship.isToMany()) {
        ToManySet* set = details->toManySet(relationship.index());
        if (!set)
            return;
        set->added_.erase(&member);
        set->removed_.erase(&member);
        set->forgetStored();
        isChanged = !set->added_.isEmpty() || !set->removed_.isEmpty();
    } else if (!owner.isFault() && !RecordAccess::isGone(owner)) {
        PropertyValues& values = RecordAccess::values(owner);
        const PropertyIndex index = relationship.index();
        // Another unsaved record may have taken the place.
        if (values.isLoaded(index) && !values.isNil(index) && values.integer(index) != member.objectID().key())
            return;
        values.setUnloaded(index);
    }
    if (!isChanged)
        details->changed &= ~propertyBit(relationship.index());
}

void RelationshipMaintenance::forgetTarget(NSManagedObject& record, const NSRelationshipDescription& relationship,
    const PropertyValues& own, const PropertyValues& former)
{
    const PropertyIndex index = relationship.index();
    const NSEntityDescription& root = relationship.destinationEntity().rootEntity();
    for (const PropertyValues* values : {&own, &former}) {
        if (values->isEmpty() || !values->isLoaded(index) || values->isNil(index))
            continue;
        if (NSManagedObject* target = records_.registry.find(root, values->integer(index)))
            forgetChangedMember(*target, relationship.inverseRelationship(), record);
    }
}

void RelationshipMaintenance::forgetChangedMembers(
    NSManagedObject& record, const NSRelationshipDescription& relationship)
{
    RecordDetails* details = RecordAccess::detailsIfAny(record);
    ToManySet* set = details ? details->toManySet(relationship.index()) : nullptr;
    if (!set)
        return;
    for (const auto* members : {&set->added_, &set->removed_})
        for (NSManagedObject* member : members->values())
            forgetChangedMember(*member, relationship.inverseRelationship(), record);
    set->unload();
    details->changed &= ~propertyBit(relationship.index());
}

void RelationshipMaintenance::detachFromDeleted(
    NSManagedObject& record, const NSRelationshipDescription& relationship, NSManagedObject& deleted)
{
    if (!records_.beginWrite(record))
        return;
    if (!relationship.isToMany()) {
        store(record, relationship, nullptr);
        return;
    }
    toMany(record, relationship).take(deleted);
    records_.noteChange(record, relationship.index(), false);
}

} // namespace tarn
