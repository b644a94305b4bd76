#pragma once

#include "tarnmodel/platform/coredata/NSManagedObjectContext.h"
#include "tarnmodel/platform/coredata/NSPersistentStoreCoordinator.h"
#include "tarnmodel/platform/coredata/SaveParticipant.h"
#include "tarnmodel/platform/coredata/context/ChildContexts.h"
#include "tarnmodel/platform/coredata/context/ObservedValues.h"
#include "tarnmodel/platform/coredata/context/OtherWriters.h"
#include "tarnmodel/platform/coredata/context/merging/MergeConflicts.h"
#include "tarnmodel/platform/coredata/context/reading/Faulting.h"
#include "tarnmodel/platform/coredata/context/records/HeldRecords.h"
#include "tarnmodel/platform/coredata/context/records/RelationshipMaintenance.h"

#include <functional>
#include <memory>
#include <unordered_map>
#include <vector>

namespace tarn {

/// A context from inside: its parts, put together, and what takes more than one of them.
class ContextCore final : public ContextOperations, public OtherWriters::Host {
    std::shared_ptr<Queue> privateQueue_; ///< null for a context of the main queue

public:
    ContextCore(NSManagedObjectContext& owner, NSManagedObjectContext::ConcurrencyType type);
    ~ContextCore();
    ContextCore(const ContextCore&) = delete;
    ContextCore& operator=(const ContextCore&) = delete;

    HeldRecords records;
    RelationshipMaintenance relationships;
    Faulting faulting;
    /// At rest in a child: its parent looks.
    OtherWriters otherWriters;
    ObservedValues observedValues;

    std::shared_ptr<NSPersistentStoreCoordinator> coordinator;
    NSMergePolicy mergePolicy = NSMergePolicy::Error;
    MergeConflictHandler conflictHandler;
    /// The lock that `performExclusive` holds; null otherwise.
    std::unique_ptr<StoreTransaction> exclusiveTransaction;
    /// While one lives, a save is under way: its will-save observers may change records, but not save again.
    class Saving {
    public:
        explicit Saving(ContextCore& core) : core_(core) { core_.isSaving_ = true; }
        ~Saving() { core_.isSaving_ = false; }
        Saving(const Saving&) = delete;
        Saving& operator=(const Saving&) = delete;

    private:
        ContextCore& core_;
    };
    bool isSaving() const override { return isSaving_; }
    bool isExclusive() const override { return exclusiveTransaction != nullptr; }

    /// The state of the store up to which this context has caught up; none when it has yet to.
    std::optional<std::uint64_t> knownState;

    /// What goes along with the unsaved changes.
    std::vector<std::unique_ptr<SaveParticipant>> participants;

    /// Set for a child: the parent, as a store.
    std::shared_ptr<RowStore> parentStore;
    NSManagedObjectContext* parentContext = nullptr;
    /// Null where no child was made, or none is left.
    std::shared_ptr<ChildContexts> children;

    /// Brings this context in step with what others have saved since it last did, if anything. Under the lock.
    bool catchUp(const StoreTransaction& transaction, NSError* error);
    /// The parent's view for a child.
    RowStore& store() const override;
    RowStore* storeIfAny() const override;
    /// Begins to look for what others write to the coordinator's store: from now on, at each pass of a main queue.
    void followStore();
    /// The same, kept alive.
    std::shared_ptr<RowStore> sharedStore() const;
    /// Lets children, where there are any, see what is pending now.
    void publish();
    Queue& queue() const noexcept { return records.queue; }
    /// The same, kept alive. The main queue lives as long as the process.
    std::shared_ptr<Queue> sharedQueue() const;
    void assertOnQueue(const NSManagedObject* record = nullptr) const { records.assertOnQueue(record); }

    NSManagedObject& insert(const NSEntityDescription& entity);
    /// The identifier in terms of this context's store and model; empty for one of another store.
    NSManagedObjectID localID(const NSManagedObjectID& objectID) const;
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
    void processPendingChanges() override;
    void scheduleProcessing() override;
    void fire(const NSManagedObject& object) override { faulting.fire(object); }
    void takeRemoteChanges(const RemoteChanges& changes) override;
    void rollback();
    void refresh(NSManagedObject& object, bool mergeChanges);
    void refreshAll();
    void readAgain(NSManagedObject& object) override;
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
    void tellOfDroppedChanges() const;
    void readBelowChanges(NSManagedObject& object);
    void cancelInsertion(NSManagedObject& object);
    const PropertyValues& defaultValues(const NSEntityDescription& entity);
    bool takeKey(const NSEntityDescription& root, std::int64_t& key, NSError* error);

    std::unordered_map<const NSEntityDescription*, PropertyValues> defaults_;
    std::unordered_map<const NSEntityDescription*, KeyBlock> keyBlocks_;

    std::vector<NSManagedObject*> fromChildren_;
    std::vector<ObjectRegistry> dropped_;
    std::uint64_t resetCount_ = 0;
    int inHand_ = 0;
    std::uint32_t nextOrder_ = 1;
    bool isSaving_ = false;
    bool isScheduled_ = false;
};

} // namespace tarn
