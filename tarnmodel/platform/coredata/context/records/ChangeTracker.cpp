#include "tarnmodel/platform/coredata/context/records/ChangeTracker.h"

#include <algorithm>
#include <tuple>

namespace tarn {

namespace {

enum List : int { InsertedList = 1, UpdatedList = 2, DeletedList = 4, RefreshedList = 8 };

/// By entity and primary key; records with temporary keys (inserted, not saved) keep their order behind.
void sortByKey(std::vector<NSManagedObject*>& objects)
{
    std::stable_sort(objects.begin(), objects.end(), [](const NSManagedObject* left, const NSManagedObject* right) {
        const auto rank = [](const NSManagedObject* object) {
            const NSManagedObjectID id = object->objectID();
            return std::tuple(
                std::string_view(id.root()->name()), id.isTemporaryID(), id.isTemporaryID() ? 0 : id.key());
        };
        return rank(left) < rank(right);
    });
}

} // namespace

bool ChangeTracker::enter(NSManagedObject& object, int list, std::vector<NSManagedObject*>& members)
{
    int& lists = event_.members[&object];
    if (lists & list)
        return false;
    lists |= list;
    members.push_back(&object);
    return true;
}

void ChangeTracker::noteInserted(NSManagedObject& object)
{
    states_[&object] |= InsertedList;
    pending_[&object.entity().rootEntity()].inserted.push_back(&object);
    enter(object, InsertedList, event_.inserted);
}

void ChangeTracker::noteUpdated(NSManagedObject& object)
{
    if (!object.isInserted()) {
        int& lists = states_[&object];
        if (!(lists & UpdatedList)) {
            lists |= UpdatedList;
            pending_[&object.entity().rootEntity()].updated.push_back(&object);
        }
    }
    enter(object, UpdatedList, event_.updated);
}

void ChangeTracker::noteDeleted(NSManagedObject& object)
{
    if (!object.isInserted()) {
        int& lists = states_[&object];
        if (!(lists & DeletedList)) {
            lists |= DeletedList;
            pending_[&object.entity().rootEntity()].deleted.push_back(&object);
        }
    }
    enter(object, DeletedList, event_.deleted);
}

void ChangeTracker::noteRefreshed(NSManagedObject& object)
{
    enter(object, RefreshedList, event_.refreshed);
}

void ChangeTracker::noteGone(NSManagedObject& object)
{
    enter(object, DeletedList, event_.deleted);
}

void ChangeTracker::noteAppeared(NSManagedObject& object)
{
    enter(object, InsertedList, event_.inserted);
}

void ChangeTracker::forgetPending(NSManagedObject& object)
{
    if (states_.erase(&object) == 0)
        return;
    PendingRecords& records = pending_[&object.entity().rootEntity()];
    for (auto* list : {&records.inserted, &records.updated, &records.deleted})
        std::erase(*list, &object);
}

std::vector<NSManagedObject*> ChangeTracker::insertedObjects() const
{
    std::vector<NSManagedObject*> found;
    for (const auto& [root, records] : pending_)
        for (NSManagedObject* object : records.inserted)
            if (object->isInserted() && !object->isDeleted())
                found.push_back(object);
    std::sort(found.begin(), found.end(), [](const NSManagedObject* left, const NSManagedObject* right) {
        return left->insertionOrder() < right->insertionOrder();
    });
    return found;
}

std::vector<NSManagedObject*> ChangeTracker::updatedObjects() const
{
    std::vector<NSManagedObject*> found;
    for (const auto& [root, records] : pending_)
        for (NSManagedObject* object : records.updated)
            if (object->isUpdated())
                found.push_back(object);
    sortByKey(found);
    return found;
}

std::vector<NSManagedObject*> ChangeTracker::deletedObjects() const
{
    std::vector<NSManagedObject*> found;
    for (const auto& [root, records] : pending_)
        found.insert(found.end(), records.deleted.begin(), records.deleted.end());
    sortByKey(found);
    return found;
}

bool ChangeTracker::hasChanges() const
{
    for (const auto& [root, records] : pending_) {
        if (!records.deleted.empty())
            return true;
        const auto isPending
            = [](const NSManagedObject* object) { return object->hasChanges() && !object->isDeleted(); };
        // From the latest on: where many were inserted and deleted again, the first ones are all gone.
        if (std::any_of(records.inserted.rbegin(), records.inserted.rend(), isPending)
            || std::any_of(records.updated.rbegin(), records.updated.rend(), isPending))
            return true;
    }
    return false;
}

const PendingRecords* ChangeTracker::pending(const NSEntityDescription& root) const
{
    const auto found = pending_.find(&root);
    return found == pending_.end() ? nullptr : &found->second;
}

bool ChangeTracker::hasEvent() const noexcept
{
    return !event_.members.empty();
}

ObjectChanges ChangeTracker::takeEvent()
{
    Event event;
    std::swap(event, event_);
    ObjectChanges changes;
    // What was inserted and deleted in one event was never there for an observer.
    for (NSManagedObject* object : event.inserted)
        if (!(event.members[object] & DeletedList))
            changes.inserted.push_back(object);
    for (NSManagedObject* object : event.updated)
        if (!(event.members[object] & (InsertedList | DeletedList)))
            changes.updated.push_back(object);
    for (NSManagedObject* object : event.deleted)
        if (!(event.members[object] & InsertedList))
            changes.deleted.push_back(object);
    for (NSManagedObject* object : event.refreshed)
        if (!(event.members[object] & DeletedList))
            changes.refreshed.push_back(object);
    return changes;
}

bool ChangeTracker::isInEvent(const NSManagedObject& object) const
{
    return event_.members.contains(&object);
}

void ChangeTracker::clearPending()
{
    pending_.clear();
    states_.clear();
}

void ChangeTracker::clear()
{
    clearPending();
    event_ = {};
}

} // namespace tarn
