#pragma once

#include "tarnmodel/platform/coredata/NSManagedObject.h"
#include "tarnmodel/platform/foundation/events/NSNotificationCenter.h"
#include "tarnmodel/platform/foundation/values/WeakReference.h"

#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <set>
#include <string>
#include <string_view>
#include <vector>

namespace tarn {

struct ObjectChanges;

/// Watches one record, and records related to it, by one registration for the changes of its context.
///
/// It does not keep the record alive: once the record's context is reset or gone it hears nothing any more, and a
/// record of another context needs another observer. The block runs on the queue of the context, at the end of the
/// pass in which something changed; it may destroy the observer. Confined to that queue.
///
///     auto observer = OVManagedObjectObserver::observerForManagedObject(note, {{"title"}}, {{"tags", {"title"}}},
///         [&](const auto& changedKeys, const auto& changedRelated, bool refreshed) { updateRow(); });
class OVManagedObjectObserver {
public:
    /// Names of properties.
    using KeyNames = std::set<std::string>;
    /// Receives what changed: the names of all changed properties of the record, or none when it did not change in a
    /// watched one; the changed related records, one more than once where several entries name it; and true (with no
    /// keys and no records) when the record was read again from the store, so that anything may have changed.
    using Block = std::function<void(const std::optional<KeyNames>& changedKeys,
        const std::vector<NSManagedObject*>& changedRelatedObjects, bool refreshed)>;

    /// A new observer that observes already. `keyPaths`: which properties of the record count; all without a set.
    /// `relationships`: by relationship, which properties of the related records count.
    static std::unique_ptr<OVManagedObjectObserver> observerForManagedObject(NSManagedObject& object,
        std::optional<KeyNames> keyPaths, const std::map<std::string, KeyNames>& relationships, Block block);

    ~OVManagedObjectObserver();
    OVManagedObjectObserver(const OVManagedObjectObserver&) = delete;
    OVManagedObjectObserver& operator=(const OVManagedObjectObserver&) = delete;

    /// The record; null once it is gone with its context.
    NSManagedObject* observedObject() const noexcept { return object_.get(); }
    /// Which properties of the record count; none: all.
    const std::optional<KeyNames>& keyPathToObserve() const noexcept { return keyPathToObserve_; }
    /// Which properties of related records count, by relationship.
    const std::map<std::string, KeyNames>& relationships() const noexcept { return relationships_; }

    /// Adds or replaces an entry; a name that is no relationship of the record is ignored.
    void observeObjectsInRelationshipName(std::string_view name, const KeyNames& keyPaths);
    /// Starts again after `stopObserving`; an observer that observes goes on.
    void startObserving();
    /// Ends the observation; nothing when it has ended.
    void stopObserving();

private:
    OVManagedObjectObserver(NSManagedObject& object, std::optional<KeyNames> keyPaths, Block block);
    void managedObjectContextObjectsDidChange(const NSNotification& notification);
    std::optional<KeyNames> countingKeysOfObject(const ObjectChanges& changes) const;
    std::vector<NSManagedObject*> countingRelatedObjects(const ObjectChanges& changes) const;
    bool isRelated(const NSManagedObject& other, const std::string& relationshipName) const;

    WeakReference<NSManagedObject> object_;
    std::optional<KeyNames> keyPathToObserve_;
    std::map<std::string, KeyNames> relationships_;
    Block block_;
    NSNotificationSubscription subscription_;
};

} // namespace tarn
