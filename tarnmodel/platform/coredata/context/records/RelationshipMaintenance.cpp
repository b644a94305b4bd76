#include "tarnmodel/platform/coredata/context/records/RelationshipMaintenance.h"

#include "tarnmodel/platform/coredata/context/records/HeldRecords.h"
#include "tarnmodel/platform/coredata/context/records/RecordAccess.h"
#include "tarnmodel/platform/foundation/values/NSException.h"

#include <algorithm>
#include <unordered_set>
#include <utility>

namespace tarn {

namespace {

void requireSameContext(
    const NSManagedObject& record, const NSRelationshipDescription& relationship, const NSManagedObject& target)
{
    if (&record.managedObjectContext() != &target.managedObjectContext())
        throw NSException(
            NSInvalidArgumentException, "\"" + relationship.name() + "\" cannot name a record of another context");
}

[[noreturn]] void raiseUnreadable(const NSRelationshipDescription& relationship, const NSError& error)
{
    throw NSException(NSInternalInconsistencyException,
        "The relationship \"" + relationship.name() + "\" could not be read: " + error.localizedDescription());
}

} // namespace

// To-one --------------------------------------------------------------------------------------------------------------

NSManagedObject* RelationshipMaintenance::toOne(
    const NSManagedObject& record, const NSRelationshipDescription& relationship)
{
    NSManagedObject* target = named(record, relationship);
    return target && !target->isDeleted() ? target : nullptr;
}

NSManagedObject* RelationshipMaintenance::named(
    const NSManagedObject& record, const NSRelationshipDescription& relationship)
{
    if (record.isFault())
        records_.operations.fire(record);
    const PropertyValues& values = RecordAccess::values(record);
    const PropertyIndex index = relationship.index();
    if (RecordAccess::isGone(record))
        return nullptr;
    if (!values.isLoaded(index))
        loadInverseToOne(record, relationship);
    if (values.isNil(index))
        return nullptr;
    const std::int64_t key = values.integer(index);
    const NSEntityDescription& destination = relationship.destinationEntity();
    return records_.recordWithKey(destination, key);
}

/// Its column is the inverse's.
void RelationshipMaintenance::loadInverseToOne(
    const NSManagedObject& record, const NSRelationshipDescription& relationship)
{
    PropertyValues& values = RecordAccess::values(record);
    const NSManagedObjectID id = record.objectID();
    values.setNil(relationship.index());
    if (id.isTemporaryID())
        return;
    std::vector<RelatedKey> related;
    NSError error;
    if (!records_.store().relatedKeys(relationship, id.key(), related, &error)) {
        values.setUnloaded(relationship.index());
        raiseUnreadable(relationship, error);
    }
    for (const RelatedKey& candidate : related) {
        NSManagedObject& target = records_.recordOrFault(*candidate.entity, candidate.key);
        // An unsaved change at the other end has the last word.
        const PropertyIndex inverse = relationship.inverseRelationship().index();
        if (target.isDeleted() || (RecordAccess::changed(target) & propertyBit(inverse)))
            continue;
        // It was read before another writer moved it.
        if (!target.isFault() && RecordAccess::values(target).integer(inverse) != id.key())
            records_.operations.readAgain(target);
        values.setInteger(relationship.index(), candidate.key);
        return;
    }
}

void RelationshipMaintenance::store(
    NSManagedObject& record, const NSRelationshipDescription& relationship, NSManagedObject* target)
{
    if (!records_.beginWrite(record))
        return;
    PropertyValues& values = RecordAccess::values(record);
    if (target)
        values.setInteger(relationship.index(), target->objectID().key());
    else
        values.setNil(relationship.index());
    records_.noteChange(record, relationship.index(), relationship.storage() == RelationshipStorage::Column);
}

void RelationshipMaintenance::setToOne(
    NSManagedObject& record, const NSRelationshipDescription& relationship, NSManagedObject* target)
{
    if (target)
        requireSameContext(record, relationship, *target);
    if (!records_.beginWrite(record))
        return;
    NSManagedObject* former = named(record, relationship);
    if (former == target)
        return;
    if (target && !records_.beginWrite(*target))
        target = nullptr;
    if (!former && !target)
        return;
    const NSRelationshipDescription& inverse = relationship.inverseRelationship();
    // The other end of a pair may not have been read yet; afterwards the store's answer does not count any more.
    if (former && !inverse.isToMany())
        toOne(*former, inverse);
    store(record, relationship, target);
    if (former)
        detachInverse(*former, inverse, record);
    if (target)
        attachInverse(*target, inverse, record);
}

void RelationshipMaintenance::attachInverse(
    NSManagedObject& target, const NSRelationshipDescription& inverse, NSManagedObject& record)
{
    if (!records_.beginWrite(target))
        return;
    if (inverse.isToMany()) {
        toMany(target, inverse).put(record);
        records_.noteChange(target, inverse.index(), false);
        return;
    }
    // One to one: whoever held the target before lets it go.
    NSManagedObject* holder = toOne(target, inverse);
    if (holder == &record)
        return;
    if (holder)
        store(*holder, inverse.inverseRelationship(), nullptr);
    store(target, inverse, &record);
}

void RelationshipMaintenance::detachInverse(
    NSManagedObject& target, const NSRelationshipDescription& inverse, NSManagedObject& record)
{
    if (!records_.beginWrite(target))
        return;
    if (inverse.isToMany()) {
        toMany(target, inverse).take(record);
        records_.noteChange(target, inverse.index(), false);
    } else if (toOne(target, inverse) == &record || !RecordAccess::values(target).isNil(inverse.index())) {
        store(target, inverse, nullptr);
    }
}

// To-many -------------------------------------------------------------------------------------------------------------

ToManySet& RelationshipMaintenance::toMany(const NSManagedObject& record, const NSRelationshipDescription& relationship)
{
    RecordDetails& details = RecordAccess::details(record);
    if (ToManySet* set = details.toManySet(relationship.index()))
        return *set;
    details.toManySets.push_back(
        std::make_unique<ToManySet>(*this, const_cast<NSManagedObject&>(record), relationship));
    return *details.toManySets.back();
}

void RelationshipMaintenance::addMember(ToManySet& set, NSManagedObject& member)
{
    NSManagedObject& owner = *set.owner_;
    requireSameContext(owner, set.relationship(), member);
    const NSRelationshipDescription& inverse = set.relationship().inverseRelationship();
    if (!inverse.isToMany()) {
        setToOne(member, inverse, &owner);
        return;
    }
    ToManySet& other = toMany(member, inverse);
    if ((set.isLoaded() && set.holds(member)) || (other.isLoaded() && other.holds(owner)))
        return;
    if (!records_.beginWrite(owner) || !records_.beginWrite(member))
        return;
    set.put(member);
    other.put(owner);
    records_.noteChange(owner, set.relationship().index(), false);
    records_.noteChange(member, inverse.index(), false);
}

void RelationshipMaintenance::removeMember(ToManySet& set, NSManagedObject& member)
{
    NSManagedObject& owner = *set.owner_;
    const NSRelationshipDescription& inverse = set.relationship().inverseRelationship();
    if (!inverse.isToMany()) {
        if (named(member, inverse) == &owner)
            setToOne(member, inverse, nullptr);
        return;
    }
    ToManySet& other = toMany(member, inverse);
    if ((set.isLoaded() && !set.holds(member)) || (other.isLoaded() && !other.holds(owner)))
        return;
    if (!records_.beginWrite(owner) || !records_.beginWrite(member))
        return;
    set.take(member);
    other.take(owner);
    records_.noteChange(owner, set.relationship().index(), false);
    records_.noteChange(member, inverse.index(), false);
}

void RelationshipMaintenance::loadMembers(ToManySet& set)
{
    if (set.loaded_)
        return;
    const NSManagedObject& owner = *set.owner_;
    const NSRelationshipDescription& relationship = set.relationship();
    const std::vector<RelatedKey> keys = storedKeys(owner, relationship);
    readMovedMembers(set, keys);

    // Where the members' rows say it, an unsaved change there has the last word.
    const NSRelationshipDescription& inverse = relationship.inverseRelationship();
    const auto isElsewhere = [&](const NSManagedObject& member) {
        return !inverse.isToMany() && (RecordAccess::changed(member) & propertyBit(inverse.index()))
            && named(member, inverse) != &owner;
    };
    std::unordered_set<const NSManagedObject*> stored;
    std::vector<NSManagedObject*> members;
    members.reserve(keys.size() + set.added_.size());
    for (const RelatedKey& key : keys) {
        NSManagedObject& member = records_.recordOrFault(*key.entity, key.key);
        stored.insert(&member);
        if (!member.isDeleted() && !set.removed_.contains(&member) && !isElsewhere(member))
            members.push_back(&member);
    }
    // From here on the deltas say exactly what differs from the store; noted unread, they may say too much.
    set.added_.eraseIf([&](const NSManagedObject* member) { return member->isDeleted() || stored.contains(member); });
    set.removed_.eraseIf([&](const NSManagedObject* member) { return !stored.contains(member); });
    members.insert(members.end(), set.added().begin(), set.added().end());
    set.members_ = OrderedSet(std::move(members));
    set.isInOrder_ = true;
    set.loaded_ = true;
    noteLoaded(set);
    forgetSetsWithoutOwner(set);
}

std::vector<RelatedKey> RelationshipMaintenance::storedKeys(
    const NSManagedObject& owner, const NSRelationshipDescription& relationship)
{
    std::vector<RelatedKey> keys;
    NSError error;
    if (!owner.objectID().isTemporaryID() && !RecordAccess::isGone(owner) && !owner.isInserted()
        && !records_.store().relatedKeys(relationship, owner.objectID().key(), keys, &error))
        raiseUnreadable(relationship, error);
    return keys;
}

std::size_t RelationshipMaintenance::countMembers(ToManySet& set)
{
    const NSManagedObject& owner = *set.owner_;
    if (set.loaded_ || !set.added_.isEmpty() || !set.removed_.isEmpty() || owner.objectID().isTemporaryID()
        || owner.isInserted() || records_.tracker.pending(set.relationship().destinationEntity().rootEntity())) {
        loadMembers(set);
        return set.members_.size();
    }
    std::size_t count = 0;
    NSError error;
    if (!records_.store().countRelated(set.relationship(), owner.objectID().key(), count, &error))
        raiseUnreadable(set.relationship(), error);
    return count;
}

// Whole records -----------------------------------------------------------------------------------------------------

std::vector<NSManagedObject*> RelationshipMaintenance::related(
    const NSManagedObject& record, const NSRelationshipDescription& relationship)
{
    if (relationship.isToMany())
        return toMany(record, relationship).members();
    NSManagedObject* target = toOne(record, relationship);
    return target ? std::vector{target} : std::vector<NSManagedObject*>();
}

void RelationshipMaintenance::detach(NSManagedObject& record, const NSRelationshipDescription& relationship)
{
    if (!relationship.isToMany()) {
        setToOne(record, relationship, nullptr);
        return;
    }
    ToManySet& set = toMany(record, relationship);
    for (NSManagedObject* member : std::vector<NSManagedObject*>(set.members()))
        removeMember(set, *member);
}

void RelationshipMaintenance::settle(NSManagedObject& record)
{
    if (RecordDetails* details = RecordAccess::detailsIfAny(record))
        for (const auto& set : details->toManySets)
            set->settle();
}

void RelationshipMaintenance::unload(NSManagedObject& record, const NSRelationshipDescription& relationship)
{
    if (RecordDetails* details = RecordAccess::detailsIfAny(record))
        if (ToManySet* set = details->toManySet(relationship.index()))
            set->unload();
}

void RelationshipMaintenance::forgetStoredMembers(NSManagedObject& record)
{
    if (RecordDetails* details = RecordAccess::detailsIfAny(record))
        for (const auto& set : details->toManySets)
            set->forgetStored();
}

void RelationshipMaintenance::followKey(const NSManagedObject& record, std::int64_t former)
{
    const std::int64_t key = record.objectID().key();
    const RecordDetails* details = RecordAccess::detailsIfAny(record);
    for (const NSRelationshipDescription* relationship : record.entity().relationships()) {
        const NSRelationshipDescription& inverse = relationship->inverseRelationship();
        const PropertyIndex index = inverse.index();
        const auto follow = [&](NSManagedObject& holder) {
            PropertyValues& values = RecordAccess::values(holder);
            if (values.isEmpty() || !values.isLoaded(index) || values.isNil(index) || values.integer(index) != former)
                return;
            values.setInteger(index, key);
            records_.pendingIndex.touch(holder, propertyBit(index));
        };
        if (inverse.isToMany())
            continue; // sets hold the record itself
        if (!relationship->isToMany()) {
            if (NSManagedObject* holder = named(record, *relationship))
                follow(*holder);
        } else if (const ToManySet* set = details ? details->toManySet(relationship->index()) : nullptr) {
            for (NSManagedObject* holder : set->added())
                follow(*holder);
        }
    }
}

} // namespace tarn
