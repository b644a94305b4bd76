#include "tarnmodel/store/OVManagedObjectObserver.h"

#include "tarnmodel/platform/coredata/NSManagedObjectContext.h"
#include "tarnmodel/platform/coredata/NSManagedObjectSet.h"

#include <algorithm>

namespace tarn {
namespace {

using KeyNames = OVManagedObjectObserver::KeyNames;

KeyNames changedKeysOf(const NSManagedObject& record)
{
    KeyNames keys = record.changedKeys();
    keys.merge(record.changedKeysForCurrentEvent());
    return keys;
}

bool shareAName(const KeyNames& left, const KeyNames& right)
{
    return std::any_of(left.begin(), left.end(), [&right](const std::string& key) { return right.contains(key); });
}

bool holds(const std::vector<NSManagedObject*>& records, const NSManagedObject* record)
{
    return std::find(records.begin(), records.end(), record) != records.end();
}

} // namespace

std::unique_ptr<OVManagedObjectObserver> OVManagedObjectObserver::observerForManagedObject(NSManagedObject& object,
    std::optional<KeyNames> keyPaths, const std::map<std::string, KeyNames>& relationships, Block block)
{
    std::unique_ptr<OVManagedObjectObserver> observer(
        new OVManagedObjectObserver(object, std::move(keyPaths), std::move(block)));
    for (const auto& [name, keys] : relationships)
        observer->observeObjectsInRelationshipName(name, keys);
    observer->startObserving();
    return observer;
}

OVManagedObjectObserver::OVManagedObjectObserver(NSManagedObject& object, std::optional<KeyNames> keyPaths, Block block)
    : object_(&object), keyPathToObserve_(std::move(keyPaths)), block_(std::move(block))
{ }

OVManagedObjectObserver::~OVManagedObjectObserver() = default;

void OVManagedObjectObserver::observeObjectsInRelationshipName(std::string_view name, const KeyNames& keyPaths)
{
    if (observedObject() && observedObject()->entity().relationshipNamed(name))
        relationships_.insert_or_assign(std::string(name), keyPaths);
}

void OVManagedObjectObserver::startObserving()
{
    if (!observedObject() || subscription_.isActive())
        return;
    subscription_ = NSNotificationCenter::defaultCenter().addObserver(
        NSManagedObjectContextObjectsDidChangeNotification, &observedObject()->managedObjectContext(),
        [this](const NSNotification& notification) { managedObjectContextObjectsDidChange(notification); });
}

void OVManagedObjectObserver::stopObserving()
{
    subscription_.cancel();
}

void OVManagedObjectObserver::managedObjectContextObjectsDidChange(const NSNotification& notification)
{
    // Another context may have come to the address of the one that is gone.
    const auto* changes = notification.userInfoAs<ObjectChanges>();
    if (!observedObject() || !changes)
        return;
    const Block block = block_; // which may destroy this observer
    if (holds(changes->refreshed, observedObject())) {
        block(std::nullopt, {}, true);
        return;
    }
    const auto changedKeys = countingKeysOfObject(*changes);
    const auto changedRelated = countingRelatedObjects(*changes);
    if (changedKeys || !changedRelated.empty())
        block(changedKeys, changedRelated, false);
}

std::optional<KeyNames> OVManagedObjectObserver::countingKeysOfObject(const ObjectChanges& changes) const
{
    if (!holds(changes.updated, observedObject()))
        return std::nullopt;
    KeyNames changedKeys = changedKeysOf(*observedObject());
    if (keyPathToObserve_ && !shareAName(*keyPathToObserve_, changedKeys))
        return std::nullopt;
    return changedKeys;
}

std::vector<NSManagedObject*> OVManagedObjectObserver::countingRelatedObjects(const ObjectChanges& changes) const
{
    std::vector<NSManagedObject*> related;
    for (const auto& [name, keys] : relationships_) {
        const auto& destination = observedObject()->entity().relationshipNamed(name)->destinationEntity();
        for (NSManagedObject* other : changes.updated) {
            if (other->entity().isKindOfEntity(destination) && shareAName(keys, changedKeysOf(*other))
                && isRelated(*other, name))
                related.push_back(other);
        }
    }
    return related;
}

bool OVManagedObjectObserver::isRelated(const NSManagedObject& other, const std::string& relationshipName) const
{
    if (observedObject()->isDeleted())
        return false;
    const NSRelationshipDescription& relationship = *observedObject()->entity().relationshipNamed(relationshipName);
    if (!relationship.isToMany())
        return observedObject()->toOneAt(relationship.index()) == &other;
    return UntypedManagedObjectSet(observedObject()->toManyAt(relationship.index())).contains(other);
}

} // namespace tarn
