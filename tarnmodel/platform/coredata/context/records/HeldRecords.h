#pragma once

#include "tarnmodel/platform/coredata/QueueChecks.h"
#include "tarnmodel/platform/coredata/context/records/ChangeTracker.h"
#include "tarnmodel/platform/coredata/context/records/ContextOperations.h"
#include "tarnmodel/platform/coredata/context/records/ObjectRegistry.h"
#include "tarnmodel/platform/coredata/context/records/PendingIndex.h"
#include "tarnmodel/platform/foundation/events/Queue.h"

#include <unordered_map>
#include <vector>

namespace tarn {

/// The records that a context holds and what is unsaved of them: what its other parts look at and change.
class HeldRecords {
public:
    HeldRecords(NSManagedObjectContext& owner, ContextOperations& contextOperations, Queue& contextQueue)
        : context(owner), operations(contextOperations), queue(contextQueue)
    { }

    NSManagedObjectContext& context;
    ContextOperations& operations;
    Queue& queue;
    ObjectRegistry registry;
    ChangeTracker tracker;
    PendingIndex pendingIndex;
    /// While observers hear of an event, a change belongs to the next one.
    bool isPosting = false;

    RowStore& store() const { return operations.store(); }
    /// Where queues are checked: reports a caller that is on another one, and the record that it wanted.
    void assertOnQueue(const NSManagedObject* record = nullptr) const
    {
        if (queueChecks() != QueueChecks::Off && !queue.isCurrent())
            reportWrongQueue(queue, record);
    }

    // Records by key ------------------------------------------------------------------------------------------------
    /// The record of a permanent key, made as a fault when it is not here yet.
    NSManagedObject& recordOrFault(const NSEntityDescription& entity, std::int64_t key);
    /// The same for any key; null for a temporary one that no record here has or had.
    NSManagedObject* recordWithKey(const NSEntityDescription& entity, std::int64_t key);
    /// Remembers a new fault beside the one made before it: neighbours are filled together.
    void noteFault(NSManagedObject& object);
    /// Faults, and records that were, of one inheritance chain, as they were made.
    const std::vector<NSManagedObject*>& faults(const NSEntityDescription& root) { return faults_[&root]; }
    void forgetFaults() { faults_.clear(); }

    // Changes -------------------------------------------------------------------------------------------------------
    /// Before the first change of a record: fires its fault and keeps its committed values. False when it is gone.
    bool beginWrite(NSManagedObject& object);
    /// After a change: the property counts as changed. `inRow`: it stands in the record's own row.
    void noteChange(NSManagedObject& object, PropertyIndex index, bool inRow);
    /// The record's row vanished from the store: it reads as deleted, and nothing of it is saved.
    void noteGone(NSManagedObject& object);
    /// A record that another writer inserted is here now: observers hear of an insertion, and nothing is saved.
    void noteAppeared(NSManagedObject& object);
    /// A clean record got newer values from the store.
    void noteRefreshed(NSManagedObject& object);
    /// Forgets what is known of a record's to-many sets, unsaved changes included.
    static void unloadSets(NSManagedObject& object);

private:
    std::unordered_map<const NSEntityDescription*, std::vector<NSManagedObject*>> faults_; ///< by root entity
};

} // namespace tarn
