#pragma once

#include "tarnmodel/platform/coredata/NSManagedObjectContext.h"
#include "tarnmodel/platform/coredata/NSPersistentStoreCoordinator.h"
#include "tarnmodel/platform/coredata/QueueChecks.h"
#include "tarnmodel/platform/foundation/events/Queue.h"
#include "tarnmodel/platform/foundation/values/WeakReference.h"
#include "tarnmodel/store/OVCoreDataStackDelegate.h"
#include "tarnmodel/store/StoreMigrationPlan.h"
#include "tarnmodel/store/VexMigrationManager.h"

#include <filesystem>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace tarn {

/// Opens the one store of an application, migrates it first when it is old, and offers the contexts on it.
///
/// Call it on the main queue, where its delegate and its timer are called too; `sharedStack`, `performBackgroundTask`,
/// `isMigrationNeeded` and what names the store may be called by any thread. It ends on the main queue.
///
/// The stack owns its contexts, which own their records. The main context, once made, is the same one until the stack
/// ends; only tasks in the background may hold it a little longer. So a record of it is good until the stack ends or
/// the context is reset, and for ever with `sharedStack`. Records that a block of `performBackgroundTask` sees end with
/// the block.
///
///     OVCoreDataStack::sharedStack().setupStackWithDelegate(&application);
///     OVNote::noteWithText("# Groceries", *OVCoreDataStack::sharedStack().managedObjectContext());
///     OVCoreDataStack::sharedStack().saveUsingCoalescence(true);
class OVCoreDataStack : public VexMigrationManagerDelegate {
public:
    /// Makes what migrates a store, once for each migration; called on the queue of the migration.
    using MigrationManagerMaker = std::function<std::unique_ptr<VexMigrationManager>()>;

    /// The one of this process, made at the first call; never destroyed.
    static OVCoreDataStack& sharedStack();

    /// A stack without a store yet.
    OVCoreDataStack();
    /// Takes back a pending save and waits for a migration that is under way.
    ~OVCoreDataStack() override;
    OVCoreDataStack(const OVCoreDataStack&) = delete;
    OVCoreDataStack& operator=(const OVCoreDataStack&) = delete;

    // Setting up ----------------------------------------------------------------------------------------------------
    /// Sets the delegate, then opens the store; one that needs migration is migrated in the background before.
    virtual void setupStackWithDelegate(OVCoreDataStackDelegate* delegate);
    /// Makes both contexts and tells the delegate when the main one is there.
    virtual void setupStack();
    /// Opens the store, or makes a new one, with the main context on it. One in which something was protected since the
    /// last start is written anew before, once; see `StoreCompaction`. A failure goes to the delegate, and there is no
    /// main context. Does nothing when there is one.
    void initializeCoreData();
    /// Makes the scratch context. Does nothing when there is one.
    void initializeInMemoryContext();

    /// Who hears of it; null for none, and once it has ended. Not owned.
    OVCoreDataStackDelegate* delegate() const noexcept { return delegate_.get(); }
    void setDelegate(OVCoreDataStackDelegate* delegate);

    // Contexts ------------------------------------------------------------------------------------------------------
    /// Has the contexts of the process look out for uses on wrong queues, in any build; see `QueueChecks`.
    static void setQueueChecks(QueueChecks checks) { tarn::setQueueChecks(checks); }
    /// Null before the store was opened.
    NSManagedObjectContext* managedObjectContext() const noexcept { return managedObjectContext_.get(); }
    /// Over a store in memory, for records that are never saved. Null before `setupStack`.
    NSManagedObjectContext* inMemoryManagedObjectContext() const noexcept
    {
        return inMemoryManagedObjectContext_.get();
    }
    /// A new child of the main context on a queue of its own, for work in the background. A text of the main context
    /// that gives way to one of the child is kept as a conflicted copy, whatever the delegate says. Let it end on that
    /// queue, or when nothing runs on it any more. Raises `NSInternalInconsistencyException` without a main context.
    std::unique_ptr<NSManagedObjectContext> backgroundPrivateManagedObjectContext();
    /// Calls `block` with such a child, on its queue; then the main context is saved. What the block wants to keep it
    /// saves into the main context by saving the child, which ends after the block. Returns at once.
    void performBackgroundTask(std::function<void(NSManagedObjectContext&)> block);

    // Saving --------------------------------------------------------------------------------------------------------
    /// Saves the main context if it has changes: now, or with `coalescence` once at the start of the queue's next pass,
    /// however often it is asked for in this one. A failure goes to the log and the delegate; the changes stay.
    void saveUsingCoalescence(bool coalescence);
    /// What the timer of a pending save calls: saves at once.
    void coalescenceSaveTimerFired();
    /// Reads, changes and saves in one piece, which no other process or thread can come between: the way for small
    /// changes to what others change too, such as a line for a note.
    ///
    /// Saves what the main context has unsaved; takes the store's lock; brings the context's records up to date; calls
    /// `block` with the context and saves what it did. False and an error when one of these fails; then nothing of the
    /// block is left, and what was unsaved before is saved, or still there. An exception of the block takes back what
    /// it did and is raised again. A call, or a save, inside the block joins it. Waits up to 30 seconds for other
    /// writers.
    bool write(const std::function<void(NSManagedObjectContext&)>& block, NSError* error = nullptr);
    /// The pending save, or none.
    const std::optional<Timer>& coalescenceSaveTimer() const noexcept { return coalescenceSaveTimer_; }

    // Migration -----------------------------------------------------------------------------------------------------
    /// Whether there is a store that another version of the model wrote. False without one, or when it is unreadable.
    bool isMigrationNeeded() const;
    /// Migrates the store on a queue of its own, then sets up the stack. A store that cannot be migrated is kept beside
    /// the new one as "database_backup <time>.sqlite", unless the delegate objects. Does nothing while a migration is
    /// under way. Who cancels the progress that the delegate gets ends it.
    virtual void migrate();
    /// The stores of a folder that were set aside so, sorted. They are never deleted, and hold in clear what was not
    /// protected then.
    static std::vector<std::filesystem::path> storesSetAsideInFolder(const std::filesystem::path& folder);
    /// For tests, and for hosts that bring their own; an empty maker restores the library's. Counts from the next
    /// migration on.
    void setMigrationManagerMaker(MigrationManagerMaker maker);
    /// Moves the current progress of the calling thread.
    void migrationManagerMigrationProgress(VexMigrationManager& manager, float progress) override;

    // The store -----------------------------------------------------------------------------------------------------
    /// Read at first use; null when the resources are missing, which `setupStack` reports.
    std::shared_ptr<const NSManagedObjectModel> managedObjectModel(NSError* error = nullptr) const;
    /// The folder of all versions of the model.
    std::optional<std::filesystem::path> managedObjectModelURL() const;
    /// "database.sqlite" in the persistent data folder.
    std::filesystem::path persistentStoreURL() const;
    /// How the store is opened.
    virtual StoreOptions persistentStoreOptions() const;
    StoreType persistentStoreType() const noexcept { return StoreType::SQLite; }

protected:
    /// Opens the store and makes the main context on it; false and an error when that fails.
    bool openStore(NSManagedObjectContext::ConcurrencyType type, NSError* error);
    /// True, and an error of this domain, when the store needs migration, which is left to the main application.
    bool refusesToMigrate(std::string_view domain, NSError* error) const;

private:
    struct MigrationEnd {
        std::optional<NSError> error;
        std::vector<std::string> migratedVersions;
        StoreStanding standing = StoreStanding::Unknown; ///< of a store without a path
    };

    MigrationEnd runMigration(NSProgress& progress, const MigrationManagerMaker& makeManager);
    void setStoreAside(const MigrationEnd& end);
    void endMigration(const MigrationEnd& end);
    void waitForMigration();
    void compactStore();
    void removeClearLeftovers();
    void runInBackground(std::function<void(NSManagedObjectContext&)> block);
    void save();
    void settleConflict(const MergeConflict& conflict);
    void settleConflictOfChild(const MergeConflict& conflict);
    void tellOfKeptText(OVNote& copy);
    bool saveChanges(NSError& error);
    bool writeUnderLock(const std::function<void(NSManagedObjectContext&)>& block, NSError& error);

    WeakReference<OVCoreDataStackDelegate> delegate_;
    MigrationManagerMaker makeMigrationManager_;
    std::shared_ptr<NSManagedObjectContext> managedObjectContext_; ///< shared with tasks in the background alone
    std::unique_ptr<NSManagedObjectContext> inMemoryManagedObjectContext_;
    std::optional<Timer> coalescenceSaveTimer_;
    bool isWriting_ = false;                      ///< in the block of a `write`
    std::shared_ptr<SerialQueue> migrationQueue_; ///< while a migration is under way
};

} // namespace tarn
