#include "tarnmodel/platform/coredata/context/records/RelationshipMaintenance.h"

#include "tarnmodel/platform/coredata/context/records/HeldRecords.h"
#include "tarnmodel/platform/coredata/context/records/RecordAccess.h"

#include <algorithm>
#include <unordered_set>
#include <utility>

namespace tarn {

namespace {

/// Of a set that is not among the loaded ones of its context.
constexpr auto noPlace = static_cast<std::size_t>(-1);

/// 0 for none, and for what is not read.
std::int64_t keyIn(const PropertyValues& values, PropertyIndex index)
{
    return values.isEmpty() || !values.isLoaded(index) || values.isNil(index) ? 0 : values.integer(index);
}

bool isChanged(const NSManagedObject& record, PropertyIndex index)
{
    return RecordAccess::changed(record) & propertyBit(index);
}

/// Has been read, and says of this property what was stored then.
bool showsTheStore(const NSManagedObject& record, PropertyIndex index)
{
    return !record.isFault() && !record.isDeleted() && !record.isInserted() && !isChanged(record, index);
}

/// A saved record's property is as it was saved.
void clearChange(NSManagedObject& record, PropertyIndex index)
{
    RecordDetails& details = RecordAccess::details(record);
    details.changed &= ~propertyBit(index);
    details.rowChanged &= ~propertyBit(index);
    if (details.changed == 0)
        details.committed = PropertyValues();
}

bool isAsSaved(const NSManagedObject& record, PropertyIndex index)
{
    const RecordDetails* details = RecordAccess::detailsIfAny(record);
    return details && !record.isInserted() && !details->committed.isEmpty() && details->committed.isLoaded(index)
        && RecordAccess::values(record).equals(index, details->committed);
}

} // namespace

// The store says something new ----------------------------------------------------------------------------------------

void RelationshipMaintenance::followRow(NSManagedObject& record, const PropertyValues& before)
{
    const NSEntityDescription& entity = record.entity();
    PropertyMask rest = entity.relationshipMask() & ~entity.toManyMask() & ~entity.inverseColumnMask();
    for (; rest != 0; rest &= rest - 1) {
        const auto index = static_cast<PropertyIndex>(std::countr_zero(rest));
        const auto& relationship = static_cast<const NSRelationshipDescription&>(entity.property(index));
        const std::int64_t former = keyIn(before, index);
        const std::int64_t key = keyIn(RecordAccess::values(record), index);
        if (former == key)
            continue;
        forgetEnd(relationship, former);
        if (NSManagedObject* target = records_.registry.find(relationship.destinationEntity().rootEntity(), key);
            target && !target->isDeleted())
            meetEnd(record, relationship, *target);
    }
}

/// What the record of this key knows of who names it is of another time.
void RelationshipMaintenance::forgetEnd(const NSRelationshipDescription& relationship, std::int64_t key)
{
    NSManagedObject* target = records_.registry.find(relationship.destinationEntity().rootEntity(), key);
    const NSRelationshipDescription& inverse = relationship.inverseRelationship();
    if (!target)
        return;
    if (!inverse.isToMany()) {
        if (showsTheStore(*target, inverse.index()))
            RecordAccess::values(*target).setUnloaded(inverse.index());
    } else if (RecordDetails* details = RecordAccess::detailsIfAny(*target)) {
        if (ToManySet* set = details->toManySet(inverse.index()))
            set->forgetStored();
    }
}

void RelationshipMaintenance::meetEnd(
    NSManagedObject& record, const NSRelationshipDescription& relationship, NSManagedObject& target)
{
    const NSRelationshipDescription& inverse = relationship.inverseRelationship();
    if (inverse.isToMany()) {
        const RecordDetails* details = RecordAccess::detailsIfAny(target);
        ToManySet* set = details ? details->toManySet(inverse.index()) : nullptr;
        if (set && set->isLoaded() && !set->holds(record))
            set->forgetStored();
        return;
    }
    if (target.isFault() || !RecordAccess::values(target).isLoaded(inverse.index()))
        return;
    const std::int64_t holder = keyIn(RecordAccess::values(target), inverse.index());
    if (holder == record.objectID().key())
        return;
    if (isChanged(target, inverse.index())) {
        store(record, relationship, nullptr); // an unsaved change there has the last word
        return;
    }
    RecordAccess::values(target).setUnloaded(inverse.index());
    if (NSManagedObject* former = records_.registry.find(record.entity().rootEntity(), holder);
        former && showsTheStore(*former, relationship.index()))
        records_.operations.readAgain(*former);
}

void RelationshipMaintenance::readMovedMembers(const ToManySet& set, const std::vector<RelatedKey>& stored)
{
    const NSRelationshipDescription& relationship = set.relationship();
    const PropertyIndex column = relationship.inverseRelationship().index();
    if (relationship.storage() != RelationshipStorage::InverseColumn)
        return;
    const NSEntityDescription& root = relationship.destinationEntity().rootEntity();
    const std::int64_t owner = set.owner_->objectID().key();
    std::unordered_set<std::int64_t> keys;
    std::vector<NSManagedObject*> moved;
    for (const RelatedKey& related : stored) {
        keys.insert(related.key);
        NSManagedObject* member = records_.registry.find(root, related.key);
        if (member && showsTheStore(*member, column) && keyIn(RecordAccess::values(*member), column) != owner)
            moved.push_back(member);
    }
    for (NSManagedObject* member : set.members_.values())
        if (showsTheStore(*member, column) && keyIn(RecordAccess::values(*member), column) == owner
            && !keys.contains(member->objectID().key()))
            moved.push_back(member);
    for (NSManagedObject* member : moved)
        records_.operations.readAgain(*member);
}

void RelationshipMaintenance::forgetSetsWithoutOwner(const ToManySet& set)
{
    const NSRelationshipDescription& inverse = set.relationship().inverseRelationship();
    if (!inverse.isToMany())
        return;
    for (const NSManagedObject* member : set.members_.values()) {
        const RecordDetails* details = RecordAccess::detailsIfAny(*member);
        ToManySet* other = details ? details->toManySet(inverse.index()) : nullptr;
        if (other && other->isLoaded() && !other->holds(*set.owner_))
            other->forgetStored();
    }
}

void RelationshipMaintenance::forgetOtherEnds(NSManagedObject& record)
{
    for (const NSRelationshipDescription* relationship : record.entity().relationships())
        if (!relationship->isToMany() && relationship->storage() == RelationshipStorage::Column
            && showsTheStore(record, relationship->index()))
            forgetEnd(*relationship, keyIn(RecordAccess::values(record), relationship->index()));
    const NSEntityDescription& root = record.entity().rootEntity();
    for (std::size_t place = loaded_.size(); place-- > 0;) // from the end: a set that forgets takes itself out
        if (ToManySet& set = *loaded_[place];
            &set.relationship().destinationEntity().rootEntity() == &root && set.holds(record))
            set.forgetStored();
}

std::vector<NSManagedObject*> RelationshipMaintenance::holdersOf(const NSManagedObject& record) const
{
    std::vector<NSManagedObject*> holders;
    const NSEntityDescription& entity = record.entity();
    PropertyMask rest = entity.inverseColumnMask() & ~entity.toManyMask();
    for (; rest != 0; rest &= rest - 1) {
        const auto index = static_cast<PropertyIndex>(std::countr_zero(rest));
        const auto& relationship = static_cast<const NSRelationshipDescription&>(entity.property(index));
        NSManagedObject* holder = records_.registry.find(
            relationship.destinationEntity().rootEntity(), keyIn(RecordAccess::values(record), index));
        if (holder && showsTheStore(*holder, relationship.inverseRelationship().index()))
            holders.push_back(holder);
    }
    return holders;
}

/// What a record that is gone loads may be gone itself by the next walk over the loaded sets.
void RelationshipMaintenance::noteLoaded(ToManySet& set)
{
    set.place_ = RecordAccess::isGone(*set.owner_) ? noPlace : loaded_.size();
    if (set.place_ != noPlace)
        loaded_.push_back(&set);
}

void RelationshipMaintenance::noteForgotten(ToManySet& set)
{
    if (set.place_ == noPlace)
        return;
    loaded_.back()->place_ = set.place_;
    loaded_[set.place_] = loaded_.back();
    loaded_.pop_back();
}

void RelationshipMaintenance::clear()
{
    for (ToManySet* set : loaded_)
        set->place_ = noPlace;
    loaded_.clear();
}

void RelationshipMaintenance::settleMerged(const std::vector<NSManagedObject*>& deleted)
{
    if (!std::exchange(holdsMerged_, false))
        return;
    KeysOfEntities gone;
    for (const NSManagedObject* record : deleted)
        gone[&record->entity().rootEntity()].insert(record->objectID().key());
    if (!gone.empty())
        dropReferences(gone);
    for (NSManagedObject* record : records_.registry.objects())
        forgetEndsWithoutColumn(*record);
}

// Taking back ---------------------------------------------------------------------------------------------------------

void RelationshipMaintenance::takeBack(NSManagedObject& record)
{
    for (const NSRelationshipDescription* relationship : record.entity().relationships()) {
        if (!isChanged(record, relationship->index()))
            continue;
        if (relationship->storage() == RelationshipStorage::Column)
            takeBackToOne(record, *relationship);
        else if (relationship->storage() == RelationshipStorage::JoinTable)
            takeBackJoins(record, *relationship);
        else
            for (NSManagedObject* holder : changedHolders(record, *relationship))
                takeBackToOne(*holder, relationship->inverseRelationship());
    }
}

/// Those that name the record and did not when they were saved, or the reverse.
std::vector<NSManagedObject*> RelationshipMaintenance::changedHolders(
    const NSManagedObject& record, const NSRelationshipDescription& relationship)
{
    std::vector<NSManagedObject*> holders;
    if (relationship.isToMany()) {
        const ToManySet& set = toMany(record, relationship);
        holders = set.added();
        holders.insert(holders.end(), set.removed().begin(), set.removed().end());
    } else {
        if (NSManagedObject* holder = named(record, relationship))
            holders.push_back(holder);
        for (const RelatedKey& related : storedKeys(record, relationship))
            if (NSManagedObject* holder = records_.registry.find(related.entity->rootEntity(), related.key))
                holders.push_back(holder);
    }
    // What a set notes unread may say too much.
    const NSRelationshipDescription& column = relationship.inverseRelationship();
    std::erase_if(holders, [&](const NSManagedObject* holder) {
        const RecordDetails* details = RecordAccess::detailsIfAny(*holder);
        const bool wasHolder = details && keyIn(details->committed, column.index()) == record.objectID().key();
        return !wasHolder && named(*holder, column) != &record;
    });
    return holders;
}

void RelationshipMaintenance::takeBackToOne(NSManagedObject& holder, const NSRelationshipDescription& relationship)
{
    const PropertyIndex index = relationship.index();
    if (holder.isDeleted() || !isChanged(holder, index))
        return;
    const std::int64_t savedKey = keyIn(RecordAccess::details(holder).committed, index);
    NSManagedObject* former = named(holder, relationship);
    NSManagedObject* saved
        = savedKey == 0 ? nullptr : records_.recordWithKey(relationship.destinationEntity(), savedKey);
    if (saved && saved->isDeleted())
        saved = nullptr;
    setToOne(holder, relationship, saved);
    const bool isBack = isAsSaved(holder, index);
    if (isBack)
        clearChange(holder, index);
    for (NSManagedObject* target : {former, saved})
        if (target && (isBack || holder.isInserted()))
            forgetChange(*target, relationship.inverseRelationship(), holder);
}

/// The member is at this end again what it is in the store.
void RelationshipMaintenance::forgetChange(
    NSManagedObject& record, const NSRelationshipDescription& relationship, NSManagedObject& member)
{
    bool isAsStored = isAsSaved(record, relationship.index());
    if (relationship.isToMany()) {
        ToManySet& set = toMany(record, relationship);
        set.added_.erase(&member);
        set.removed_.erase(&member);
        isAsStored = set.added_.isEmpty() && set.removed_.isEmpty() && !record.isInserted();
    }
    if (isAsStored && !record.isDeleted())
        clearChange(record, relationship.index());
}

void RelationshipMaintenance::takeBackJoins(NSManagedObject& record, const NSRelationshipDescription& relationship)
{
    ToManySet& set = toMany(record, relationship);
    std::vector<NSManagedObject*> members = set.added();
    members.insert(members.end(), set.removed().begin(), set.removed().end());
    for (NSManagedObject* member : members) {
        toMany(*member, relationship.inverseRelationship()).forgetStored();
        forgetChange(*member, relationship.inverseRelationship(), record);
        records_.noteRefreshed(*member);
    }
    set.unload();
}

} // namespace tarn
