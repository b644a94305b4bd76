#include "tarnmodel/platform/coredata/context/records/ToManySet.h"

#include "tarnmodel/platform/coredata/NSManagedObjectSet.h"
#include "tarnmodel/platform/coredata/context/records/RecordAccess.h"
#include "tarnmodel/platform/coredata/context/records/RelationshipMaintenance.h"

#include <algorithm>
#include <unordered_set>
#include <utility>

namespace tarn {

namespace {

bool keyOrder(const NSManagedObject* left, const NSManagedObject* right)
{
    const std::int64_t leftKey = left->objectID().key();
    const std::int64_t rightKey = right->objectID().key();
    if ((leftKey < 0) != (rightKey < 0))
        return rightKey < 0;
    return leftKey < 0 ? left->insertionOrder() < right->insertionOrder() : leftKey < rightKey;
}

} // namespace

ToManySet::ToManySet(
    RelationshipMaintenance& maintenance, NSManagedObject& owner, const NSRelationshipDescription& relationship)
    : maintenance_(&maintenance), owner_(&owner), relationship_(&relationship)
{ }

const std::vector<NSManagedObject*>& ToManySet::members()
{
    maintenance_->loadMembers(*this);
    putInOrder();
    return members_.values();
}

bool ToManySet::contains(const NSManagedObject& member)
{
    if (member.isDeleted())
        return false;
    if (loaded_)
        return holds(member);
    // The sets look for a pointer and change nothing through it.
    auto* const wanted = const_cast<NSManagedObject*>(&member);
    if (added_.contains(wanted))
        return true;
    if (removed_.contains(wanted))
        return false;
    const NSRelationshipDescription& inverse = relationship_->inverseRelationship();
    if (!inverse.isToMany())
        return member.toOneAt(inverse.index()) == owner_;
    const RecordDetails* details = RecordAccess::detailsIfAny(member);
    const ToManySet* other = details ? details->toManySet(inverse.index()) : nullptr;
    if (other && other->isLoaded())
        return other->holds(*owner_);
    members();
    return holds(member);
}

std::size_t ToManySet::count()
{
    return maintenance_->countMembers(*this);
}

void ToManySet::add(NSManagedObject& member)
{
    maintenance_->addMember(*this, member);
}

void ToManySet::remove(NSManagedObject& member)
{
    maintenance_->removeMember(*this, member);
}

void ToManySet::set(std::span<NSManagedObject* const> wanted)
{
    const std::unordered_set<const NSManagedObject*> keep(wanted.begin(), wanted.end());
    for (NSManagedObject* member : std::vector<NSManagedObject*>(members()))
        if (!keep.contains(member))
            remove(*member);
    for (NSManagedObject* member : wanted)
        if (!holds(*member))
            add(*member);
}

bool ToManySet::holds(const NSManagedObject& member) const
{
    return members_.contains(const_cast<NSManagedObject*>(&member));
}

/// Notes a new member; one that was only taken out since the last save is back where it stood.
/// Unread, nobody knows what is stored: then the delta says what shall be, and the store takes what is so already.
void ToManySet::put(NSManagedObject& member)
{
    if (loaded_ && holds(member))
        return;
    const bool wasStored = removed_.erase(&member) && loaded_;
    if (!wasStored)
        added_.add(&member);
    if (!loaded_)
        return;
    members_.add(&member);
    if (wasStored)
        isInOrder_ = false;
}

void ToManySet::take(NSManagedObject& member)
{
    if (loaded_ && !holds(member))
        return;
    const bool wasAdded = added_.erase(&member) && loaded_;
    if (!wasAdded)
        removed_.add(&member);
    if (loaded_)
        members_.erase(&member);
}

/// Stored members by key, then what was added, as it came.
void ToManySet::putInOrder()
{
    if (std::exchange(isInOrder_, true))
        return;
    std::vector<NSManagedObject*> members = members_.values();
    const auto isStored = [this](NSManagedObject* member) { return !added_.contains(member); };
    const auto firstAdded = std::stable_partition(members.begin(), members.end(), isStored);
    std::stable_sort(members.begin(), firstAdded, keyOrder);
    members_ = OrderedSet(std::move(members));
}

void ToManySet::settle()
{
    added_.clear();
    removed_.clear();
    isInOrder_ = !loaded_;
}

void ToManySet::unload()
{
    added_.clear();
    removed_.clear();
    forgetStored();
}

void ToManySet::forgetStored()
{
    if (std::exchange(loaded_, false))
        maintenance_->noteForgotten(*this);
}

// The face -----------------------------------------------------------------------------------------------------------

const std::vector<NSManagedObject*>& UntypedManagedObjectSet::members() const
{
    return set_->members();
}

std::size_t UntypedManagedObjectSet::count() const
{
    return set_->count();
}

bool UntypedManagedObjectSet::contains(const NSManagedObject& member) const
{
    return set_->contains(member);
}

void UntypedManagedObjectSet::add(NSManagedObject& member)
{
    set_->add(member);
}

void UntypedManagedObjectSet::remove(NSManagedObject& member)
{
    set_->remove(member);
}

void UntypedManagedObjectSet::set(std::span<NSManagedObject* const> members)
{
    set_->set(members);
}

} // namespace tarn
