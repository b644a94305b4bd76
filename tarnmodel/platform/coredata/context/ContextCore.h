#pragma once

#include "tarnmodel/platform/coredata/NSManagedObjectContext.h"
#include "tarnmodel/platform/coredata/NSPersistentStoreCoordinator.h"
#include "tarnmodel/platform/coredata/QueueChecks.h"
#include "tarnmodel/platform/coredata/context/ChangeTracker.h"
#include "tarnmodel/platform/coredata/context/ChildContexts.h"
#include "tarnmodel/platform/coredata/context/Faulting.h"
#include "tarnmodel/platform/coredata/context/ObjectRegistry.h"
#include "tarnmodel/platform/coredata/context/ObservedValues.h"
#include "tarnmodel/platform/coredata/context/OtherWriters.h"
#include "tarnmodel/platform/coredata/context/PendingIndex.h"
#include "tarnmodel/platform/coredata/context/RelationshipMaintenance.h"

#include <functional>
#include <memory>
#include <unordered_map>
#include <vector>

namespace tarn {

/// What the rooms behind a context share: its records, what is pending, where it reads from.
class ContextCore {
public:
    ContextCore(NSManagedObjectContext& owner, NSManagedObjectContext::ConcurrencyType type);
    ~ContextCore();

    NSManagedObjectContext& context;
    ObjectRegistry registry;
    ChangeTracker tracker;
    PendingIndex pendingIndex;
    Faulting faulting;
    RelationshipMaintenance relationships;
    /// At rest in a child: its parent looks.
    OtherWriters otherWriters;
    ObservedValues observedValues;

    std::shared_ptr<NSPersistentStoreCoordinator> coordinator;
    NSMergePolicy mergePolicy = NSMergePolicy::Error;
    std::function<void(const MergeConflict&)> conflictHandler;
    /// The lock that `performExclusive` holds; null otherwise.
    std::unique_ptr<StoreTransaction> exclusiveTransaction;
    /// A save is under way; its will-save observers may change records, but not save again.
    bool isSaving = false;
    /// Changes of other writers came in below unsaved ones: relationships may say what nobody saved, until the next
    /// save or rollback.
    bool holdsMergedRelationships = false;

    /// The state of the store up to which this context has caught up; none when it has yet to.
    std::optional<std::uint64_t> knownState;

    /// Set for a child: the parent, as a store.
    std::shared_ptr<RowStore> parentStore;
    NSManagedObjectContext* parentContext = nullptr;
    /// Null where no child was made, or none is left.
    std::shared_ptr<ChildContexts> children;

    /// Brings this context in step with what others have saved since it last did, if anything. Under the lock.
    bool catchUp(const StoreTransaction& transaction, NSError* error);
    /// The parent's view for a child. Raises `NSInternalInconsistencyException` when the context has no store.
    RowStore& store() const;
    /// Begins to look for what others write to the coordinator's store: from now on, at each pass of a main queue.
    void followStore();
    /// The same, kept alive.
    std::shared_ptr<RowStore> sharedStore() const;
    /// Lets children, where there are any, see what is pending now.
    void publish();
    Queue& queue() const noexcept { return *queue_; }
    /// The same, kept alive. The main queue lives as long as the process.
    std::shared_ptr<Queue> sharedQueue() const;
    /// Where queues are checked: reports a caller that is on another one, and the record that it wanted.
    void assertOnQueue(const NSManagedObject* record = nullptr) const
    {
        if (queueChecks() != QueueChecks::Off && !queue_->isCurrent())
            reportWrongQueue(*queue_, record);
    }

    NSManagedObject& insert(const NSEntityDescription& entity);
    /// The identifier in terms of this context's store and model; empty for one of another store.
    NSManagedObjectID localID(const NSManagedObjectID& objectID) const;
    /// The record of a permanent key, made as a fault when it is not here yet.
    NSManagedObject& recordOrFault(const NSEntityDescription& entity, std::int64_t key);
    /// Before the first change of a record: fires its fault and keeps its committed values. False when it is gone.
    bool beginWrite(NSManagedObject& object);
    /// After a change: the property counts as changed. `inRow`: it stands in the record's own row.
    void noteChange(NSManagedObject& object, PropertyIndex index, bool inRow);
    /// Whether `prepareForDeletion` ran already, in a child.
    enum class Preparation : std::uint8_t { Needed, Done };
    void remove(NSManagedObject& object, Preparation preparation = Preparation::Needed);
    /// A record that a child inserted, with its permanent key. Null when it was asked for, and deleted, here before.
    NSManagedObject* adoptInsertion(
        const NSEntityDescription& entity, std::int64_t key, PropertyValues values, PropertyMask changed);
    /// A child changes the record: once saved it is let go, for this context may never have asked for it.
    void noteFromChild(NSManagedObject& object);
    /// After a save: records that only children brought keep no values.
    void shedFromChildren();
    /// The record's row vanished from the store: it reads as deleted, and nothing of it is saved.
    void noteGone(NSManagedObject& object);
    /// A record that another writer inserted is here now: observers hear of an insertion, and nothing is saved.
    void noteAppeared(NSManagedObject& object);
    /// Nothing is unsaved any more: relationships that were changed here and elsewhere are read again at next use, and
    /// nothing names a record that was `deleted` here while others came to name it.
    void settleMergedRelationships(const std::vector<NSManagedObject*>& deleted);
    /// A clean record got newer values from the store.
    void noteRefreshed(NSManagedObject& object);

    void processPendingChanges();
    void scheduleProcessing();
    void rollback();
    void refresh(NSManagedObject& object, bool mergeChanges);
    void refreshAll();
    /// Reads one record's row and sets again, at next use; at once where unsaved changes stay on top.
    void readAgain(NSManagedObject& object);
    void reset();
    /// How often `reset` was called: who walks records while observers run asks whether they are still there.
    std::uint64_t resetCount() const noexcept { return resetCount_; }
    /// While one lives, records that `reset` drops stay in memory, for somebody has them in hand.
    class RecordsInHand {
    public:
        explicit RecordsInHand(ContextCore& core) : core_(core) { ++core_.inHand_; }
        ~RecordsInHand()
        {
            if (--core_.inHand_ == 0)
                core_.dropped_.clear();
        }
        RecordsInHand(const RecordsInHand&) = delete;
        RecordsInHand& operator=(const RecordsInHand&) = delete;

    private:
        ContextCore& core_;
    };
    bool obtainPermanentIDs(std::span<NSManagedObject* const> objects, NSError* error);
    /// Gives a record another identifier, also where others name it; it still answers to the one that it had.
    void readdress(NSManagedObject& object, const NSManagedObjectID& objectID);

private:
    /// Keys that were reserved outside a save and not given out yet.
    struct KeyBlock {
        std::int64_t next = 0;
        std::int64_t end = 0;
    };
    void discardChanges(NSManagedObject& object);
    void readBelowChanges(NSManagedObject& object);
    void cancelInsertion(NSManagedObject& object);
    const PropertyValues& defaultValues(const NSEntityDescription& entity);
    bool takeKey(const NSEntityDescription& root, std::int64_t& key, NSError* error);

    std::unordered_map<const NSEntityDescription*, PropertyValues> defaults_;
    std::unordered_map<const NSEntityDescription*, KeyBlock> keyBlocks_;

    std::vector<NSManagedObject*> fromChildren_;
    std::shared_ptr<Queue> privateQueue_;
    Queue* queue_;
    std::vector<ObjectRegistry> dropped_;
    std::uint64_t resetCount_ = 0;
    int inHand_ = 0;
    std::uint32_t nextOrder_ = 1;
    bool isPosting_ = false;
    bool isScheduled_ = false;
};

} // namespace tarn
