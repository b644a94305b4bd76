#include "platform/coredata/NSManagedObjectSet.h"

#include "platform/coredata/ContextCore.h"
#include "platform/coredata/RecordAccess.h"

#include <algorithm>
#include <utility>

namespace tarn {

namespace {

/// From here on a hash of the members beats walking them.
constexpr std::size_t indexThreshold = 16;

RelationshipMaintenance& maintenance(const NSManagedObject& owner)
{
    return owner.managedObjectContext().core().relationships;
}

bool eraseFrom(std::vector<NSManagedObject*>& objects, const NSManagedObject& object)
{
    const auto found = std::find(objects.begin(), objects.end(), &object);
    if (found == objects.end())
        return false;
    objects.erase(found);
    return true;
}

bool keyOrder(const NSManagedObject* left, const NSManagedObject* right)
{
    const std::int64_t leftKey = left->objectID().key();
    const std::int64_t rightKey = right->objectID().key();
    if ((leftKey < 0) != (rightKey < 0))
        return rightKey < 0;
    return leftKey < 0 ? left->insertionOrder() < right->insertionOrder() : leftKey < rightKey;
}

} // namespace

ToManySet::ToManySet(NSManagedObject& owner, const NSRelationshipDescription& relationship)
    : owner_(&owner), relationship_(&relationship)
{ }

const std::vector<NSManagedObject*>& ToManySet::members()
{
    maintenance(*owner_).loadMembers(*this);
    return members_;
}

bool ToManySet::contains(const NSManagedObject& member)
{
    if (member.isDeleted())
        return false;
    if (loaded_)
        return holds(member);
    if (std::find(added_.begin(), added_.end(), &member) != added_.end())
        return true;
    if (std::find(removed_.begin(), removed_.end(), &member) != removed_.end())
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
    return maintenance(*owner_).countMembers(*this);
}

void ToManySet::add(NSManagedObject& member)
{
    maintenance(*owner_).addMember(*this, member);
}

void ToManySet::remove(NSManagedObject& member)
{
    maintenance(*owner_).removeMember(*this, member);
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
    if (members_.size() < indexThreshold)
        return std::find(members_.begin(), members_.end(), &member) != members_.end();
    if (index_.size() != members_.size()) {
        index_.clear();
        index_.insert(members_.begin(), members_.end());
    }
    return index_.contains(&member);
}

/// Notes a new member; one that was only taken out since the last save is back where it stood.
/// Unread, nobody knows what is stored: then the delta says what shall be, and the store takes what is so already.
void ToManySet::put(NSManagedObject& member)
{
    if (loaded_ && holds(member))
        return;
    const bool wasStored = eraseFrom(removed_, member) && loaded_;
    if (!wasStored && std::find(added_.begin(), added_.end(), &member) == added_.end())
        added_.push_back(&member);
    if (!loaded_)
        return;
    if (wasStored) {
        const auto storedEnd = members_.end() - static_cast<std::ptrdiff_t>(std::min(added_.size(), members_.size()));
        members_.insert(std::lower_bound(members_.begin(), storedEnd, &member, keyOrder), &member);
    } else {
        members_.push_back(&member);
    }
    if (!index_.empty())
        index_.insert(&member);
}

void ToManySet::take(NSManagedObject& member)
{
    if (loaded_ && !holds(member))
        return;
    const bool wasAdded = eraseFrom(added_, member) && loaded_;
    if (!wasAdded && std::find(removed_.begin(), removed_.end(), &member) == removed_.end())
        removed_.push_back(&member);
    if (loaded_) {
        eraseFrom(members_, member);
        index_.erase(&member);
    }
}

void ToManySet::settle()
{
    added_.clear();
    removed_.clear();
    if (loaded_)
        std::stable_sort(members_.begin(), members_.end(), keyOrder);
}

void ToManySet::unload()
{
    added_.clear();
    removed_.clear();
    forgetStored();
}

void ToManySet::forgetStored()
{
    index_.clear();
    if (std::exchange(loaded_, false))
        maintenance(*owner_).noteForgotten(*this);
}

} // namespace tarn
