#pragma once

#include "tarnmodel/platform/coredata/NSFetchRequest.h"
#include "tarnmodel/platform/coredata/NSManagedObject.h"
#include "tarnmodel/platform/coredata/NSManagedObjectID.h"
#include "tarnmodel/platform/coredata/RecordMerge.h"
#include "tarnmodel/platform/foundation/events/Queue.h"
#include "tarnmodel/platform/foundation/values/NSError.h"

#include <cstddef>
#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace tarn {

class NSPersistentStore;
class NSPersistentStoreCoordinator;
class SaveParticipant;

/// Who wins where a record was changed here and in the store since it was read.
enum class NSMergePolicy : std::uint8_t {
    Error,                      ///< the save fails
    MergeByPropertyStoreTrump,  ///< property by property, the store's where both changed
    MergeByPropertyObjectTrump, ///< property by property, this context's where both changed
};

/// A record that two writers changed: what `NSManagedObjectContext` tells of a merge that dropped values.
///
/// Values of attributes are as they are stored: of protected fields never the clear text.
struct MergeConflict {
    /// Why values were dropped.
    enum class Cause : std::uint8_t {
        ChangedByBoth,    ///< and the values of one side gave way
        DeletedElsewhere, ///< the unsaved changes went with the record, which reads as deleted
        DeletedHere,      ///< a change of another writer goes with the record, whose deletion is unsaved
    };
    Cause cause = Cause::ChangedByBoth;        ///< why
    MergeSide loser = MergeSide::Context;      ///< whose values were dropped
    NSManagedObject* record = nullptr;         ///< the record of this context
    std::vector<std::string> properties;       ///< that the loser had changed; their values were dropped
    std::map<std::string, Value> lostValues;   ///< a to-one as the record, where that is here
    /// Before either side changed them, and those of their groups, as far as they were read; a to-one likewise.
    std::map<std::string, Value> formerValues;
};

/// Notifications; `object` is the context. The payload is one of the structures below, valid during the call.
inline constexpr std::string_view NSManagedObjectContextObjectsDidChangeNotification
    = "NSManagedObjectContextObjectsDidChangeNotification";
inline constexpr std::string_view NSManagedObjectContextWillSaveNotification
    = "NSManagedObjectContextWillSaveNotification";
inline constexpr std::string_view NSManagedObjectContextDidSaveNotification
    = "NSManagedObjectContextDidSaveNotification";
/// Another process, or another coordinator of this one, has changed the store; of contexts on a store. Noticed at a
/// fetch or a pass of the main queue, posted once when changes are processed next, before the objects-did-change of the
/// records that were brought up to date. What was inserted is found by fetching.
inline constexpr std::string_view NSManagedObjectContextStoreDidChangeElsewhereNotification
    = "NSManagedObjectContextStoreDidChangeElsewhereNotification";

/// Payload of objects-did-change and did-save (where `refreshed` is empty).
struct ObjectChanges {
    std::vector<NSManagedObject*> inserted;  ///< new, and not deleted again
    std::vector<NSManagedObject*> updated;   ///< with changed values
    std::vector<NSManagedObject*> deleted;   ///< still there as objects; see `NSManagedObject::isDeleted`
    std::vector<NSManagedObject*> refreshed; ///< took other values from the store, or from a parent
};

/// What another context or process has saved, by permanent identifiers.
struct RemoteChanges {
    std::vector<NSManagedObjectID> inserted; ///< new in the store
    std::vector<NSManagedObjectID> updated;  ///< with changed values
    std::vector<NSManagedObjectID> deleted;  ///< gone from the store
};

/// One row of a dictionary fetch: property names and values; a to-one gives its object identifier's URI.
using DictionaryResult = std::map<std::string, Value>;

/// A scratch pad of records over a store, or over a parent context.
///
/// Confined to its queue: call it, and use its records, only there; debug builds abort elsewhere. It owns its records;
/// their addresses hold until `reset()` or destruction.
///
/// A context on a store notices by itself what other processes saved. At the next fetch its clean records take the new
/// values, at the next pass of the main queue (or the end of the pass of its own) all do, under unsaved changes as in a
/// merge, and deleted ones go; observers hear of it as objects-did-change. A text that was read in a pass is not
/// exchanged by a fetch of that pass. Children follow what they read.
///
/// It keeps its coordinator alive, and with that the store and the model; a child keeps its parent's coordinator alive,
/// not its parent. Lists that it returns hold borrowed pointers. Records survive saving, deletion, refreshing and
/// rollback as objects; `reset()` and the end of the context end them all. `WeakReference<OVNote>` tells whether one
/// has ended.
///
///     OVNote* note = OVNote::insertInManagedObjectContext(context);
///     if (NSError error; !context.save(&error)) report(error);
class NSManagedObjectContext {
public:
    /// `MainQueue`: works on `MainQueue::main()`; `PrivateQueue`: on a serial queue of its own.
    enum class ConcurrencyType { MainQueue, PrivateQueue };

    /// A context without a store or a parent yet.
    explicit NSManagedObjectContext(ConcurrencyType type);
    ~NSManagedObjectContext();
    NSManagedObjectContext(const NSManagedObjectContext&) = delete;
    NSManagedObjectContext& operator=(const NSManagedObjectContext&) = delete;

    // Where it reads and saves, set once before first use.
    /// Makes this a context on the coordinator's store, and keeps the coordinator alive.
    void setPersistentStoreCoordinator(std::shared_ptr<NSPersistentStoreCoordinator> coordinator);
    /// Makes this a child: it reads what the parent has, unsaved changes included, and saves into the parent, whose own
    /// save writes to the store. Instead of a coordinator; on the parent's queue. The parent's changes are seen once
    /// it has processed them; reading never waits for its queue, saving does, and fails when the parent is gone. The
    /// merge policy becomes by property, this context's values before the parent's.
    void setParentContext(NSManagedObjectContext& parent);
    /// Null for a context on a store. Not to be followed once the parent may be gone.
    NSManagedObjectContext* parentContext() const noexcept;
    /// Raises `NSInternalInconsistencyException` before one was set.
    NSPersistentStoreCoordinator& persistentStoreCoordinator() const;
    /// The coordinator's; it lives as long as the coordinator. Raises likewise.
    const NSManagedObjectModel& managedObjectModel() const;
    /// Who wins when a save meets what others saved; `NSMergePolicy::Error` until set.
    void setMergePolicy(NSMergePolicy policy) noexcept;
    /// What was set.
    NSMergePolicy mergePolicy() const noexcept;
    /// Hears of values that a merge dropped, when the merge is done; may change records, which then belong to the same
    /// save.
    void setMergeConflictHandler(std::function<void(const MergeConflict&)> handler);

    // Records -------------------------------------------------------------------------------------------------------
    /// Inserts a record of the entity with its default values and a temporary identifier. An abstract entity may be
    /// inserted too.
    NSManagedObject& insertObject(const NSEntityDescription& entity);
    /// Inserts by name, as the class that is registered. Raises `NSInvalidArgumentException` for an unknown entity.
    NSManagedObject& insertObject(std::string_view entityName);
    /// Runs `prepareForDeletion`, then takes the record out of all relationships (by their delete rules) and fetches.
    /// The rows go at the next save. Deleting twice is no error; a record of another context raises
    /// `NSInvalidArgumentException`.
    void deleteObject(NSManagedObject& object);
    // An identifier of another store, and one that names an entity which the record is not of, have no record.
    /// The record with this identifier, read when it is not here yet; null when the store does not know it (or cannot
    /// be read).
    NSManagedObject* existingObjectWithID(const NSManagedObjectID& objectID, NSError* error = nullptr);
    /// The record with this identifier, a fault when it is not here yet; a row that is not there shows when the fault
    /// is read: then the record is deleted. Null for a deleted record and for a temporary identifier of another
    /// context.
    NSManagedObject* objectWithID(const NSManagedObjectID& objectID);
    /// The record if it is here; never reads.
    NSManagedObject* objectRegisteredForID(const NSManagedObjectID& objectID) const;
    /// All records that are here, in the order in which they came.
    std::vector<NSManagedObject*> registeredObjects() const;

    // Queries see unsaved changes -----------------------------------------------------------------------------------
    /// None and an error on failure; for callers to whom failure is not emptiness.
    std::optional<std::vector<NSManagedObject*>> fetch(const NSFetchRequest& request, NSError* error = nullptr);
    /// How the store answers a fetch, for people: its SQL with the arguments, how it is walked, and for a search in
    /// texts what the index left of the rows. Its form may change.
    std::string explain(const NSFetchRequest& request);
    /// The same; empty on failure.
    std::vector<NSManagedObject*> executeFetchRequest(const NSFetchRequest& request, NSError* error = nullptr);
    /// How many records `fetch` would give; none and an error on failure.
    std::optional<std::size_t> count(const NSFetchRequest& request, NSError* error = nullptr);
    /// How many records `executeFetchRequest` would give; 0 and an error on failure.
    std::size_t countForFetchRequest(const NSFetchRequest& request, NSError* error = nullptr);
    /// Rows of values in place of records; none and an error on failure.
    std::optional<std::vector<DictionaryResult>> executeDictionaryFetchRequest(
        const NSFetchRequest& request, NSError* error = nullptr);

    // Changes -------------------------------------------------------------------------------------------------------
    /// Whether a record was inserted, updated or deleted since the last save.
    bool hasChanges() const;
    /// Snapshots, in order of insertion or primary key: safe to walk while records are inserted or deleted.
    std::vector<NSManagedObject*> insertedObjects() const;
    std::vector<NSManagedObject*> updatedObjects() const;
    std::vector<NSManagedObject*> deletedObjects() const;
    /// Gives records identifiers that stay; nothing is saved.
    bool obtainPermanentIDsForObjects(std::span<NSManagedObject* const> objects, NSError* error = nullptr);
    /// Writes all changes in one transaction. On failure nothing is written and the changes stay. Without changes it
    /// does nothing.
    bool save(NSError* error = nullptr);
    /// Drops all changes since the last save; inserted records read as deleted.
    void rollback();
    /// Takes the store's write lock before the block's first read and saves after it: find-or-create across processes.
    /// Records without unsaved changes are brought up to date before the block.
    /// A `save` inside the block does nothing, since the end of the block saves.
    /// An exception of the block rolls back and is raised again.
    /// Inside the block of another one it joins that: the outer end saves, and an exception takes back all of it where
    /// it leaves the outer block.
    bool performExclusive(const std::function<void()>& block, NSError* error = nullptr);
    /// Posts objects-did-change for what changed since the last time. Runs by itself at the end of the queue's pass.
    void processPendingChanges();
    /// Takes over, in each of the contexts and on its queue, what was saved elsewhere; observers hear of it as
    /// objects-did-change before this returns.
    ///
    /// Inserted records appear; changed ones that this context knows take the new values, under its own unsaved changes
    /// (what derives from a note's text goes as one, and a value that gives way is told to the conflict handler);
    /// deleted ones go, and no save deletes or logs them again. Identifiers of another store, unknown ones and
    /// temporary ones are passed over. A failing read is logged and leaves the records as they were.
    static void mergeChangesFromRemoteContextSave(
        const RemoteChanges& changes, std::span<NSManagedObjectContext* const> contexts);
    /// Reads the record again: at next use, or at once below its unsaved changes where those are kept. Without
    /// `mergeChanges` they are dropped; a relationship goes back to what was saved at both ends, and so do other
    /// records' to-ones that name this one, or did. Inserted and deleted records stay as they are.
    void refreshObject(NSManagedObject& object, bool mergeChanges);
    /// The same for all records; unsaved changes stay on top.
    void refreshAllObjects();
    /// Forgets everything; all records of this context are gone. In an observer of this context's changes or saves
    /// they read as deleted until these are through.
    void reset();

    // What goes along with its changes ------------------------------------------------------------------------------
    /// Calls it at each save, and when changes are dropped. The context owns it.
    void addSaveParticipant(std::unique_ptr<SaveParticipant> participant);
    /// Those that were added, in that order.
    std::vector<SaveParticipant*> saveParticipants() const;

    // Work on its queue ---------------------------------------------------------------------------------------------
    /// The queue that it is confined to; lives as long as the context.
    Queue& queue() const noexcept;
    /// Runs the block later on that queue. Any thread.
    void performBlock(std::function<void()> block);
    /// Runs the block on that queue and returns when it is done; at once where that queue is current. Any thread. What
    /// the block throws is thrown here.
    void performBlockAndWait(const std::function<void()>& block);

    /// For the rooms of the object store.
    ContextCore& core() const noexcept { return *core_; }

private:
    std::unique_ptr<ContextCore> core_;
};

} // namespace tarn
