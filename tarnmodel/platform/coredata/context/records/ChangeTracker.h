#pragma once

#include "tarnmodel/platform/coredata/NSManagedObjectContext.h"

#include <unordered_map>
#include <vector>

namespace tarn {

/// Unsaved records of one inheritance chain. Lists may hold records that have left that state: ask the record.
struct PendingRecords {
    std::vector<NSManagedObject*> inserted; ///< in order of insertion
    std::vector<NSManagedObject*> updated;
    std::vector<NSManagedObject*> deleted; ///< saved before
};

/// Which records of a context are inserted, updated and deleted since the last save, and since the last event.
class ChangeTracker {
public:
    void noteInserted(NSManagedObject& object);
    void noteUpdated(NSManagedObject& object);
    void noteDeleted(NSManagedObject& object);
    void noteRefreshed(NSManagedObject& object);
    /// Its row vanished, or its insertion was taken back: observers hear of a deletion, and nothing is saved.
    void noteGone(NSManagedObject& object);
    /// Another writer inserted it: observers hear of an insertion, and nothing is saved.
    void noteAppeared(NSManagedObject& object);
    /// Its unsaved changes, a deletion too, are nobody's any more.
    void forgetPending(NSManagedObject& object);

    std::vector<NSManagedObject*> insertedObjects() const;
    std::vector<NSManagedObject*> updatedObjects() const;
    std::vector<NSManagedObject*> deletedObjects() const;
    bool hasChanges() const;
    /// False only when there are none; asks no record.
    bool mayHaveChanges() const noexcept { return !states_.empty(); }
    /// Null when nothing of that chain is pending.
    const PendingRecords* pending(const NSEntityDescription& root) const;

    // One event: what changed since changes were last processed.
    bool hasEvent() const noexcept;
    /// Takes the event; the next one starts empty.
    ObjectChanges takeEvent();
    /// Whether the record is part of the event that is gathering now.
    bool isInEvent(const NSManagedObject& object) const;

    /// After a save or rollback: nothing is pending.
    void clearPending();
    void clear();

private:
    struct Event {
        std::vector<NSManagedObject*> inserted;
        std::vector<NSManagedObject*> updated;
        std::vector<NSManagedObject*> deleted;
        std::vector<NSManagedObject*> refreshed;
        std::unordered_map<const NSManagedObject*, int> members; ///< which lists: bits 1, 2, 4, 8
    };
    bool enter(NSManagedObject& object, int list, std::vector<NSManagedObject*>& members);

    std::unordered_map<const NSEntityDescription*, PendingRecords> pending_; ///< by root entity
    std::unordered_map<const NSManagedObject*, int> states_;                 ///< which pending lists a record stands in
    Event event_;
};

} // namespace tarn
