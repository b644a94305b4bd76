#pragma once

#include "tarnmodel/platform/foundation/values/NSError.h"
#include "tarnmodel/platform/foundation/values/WeakReference.h"

#include <cstdint>
#include <filesystem>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace tarn {

class NSManagedObjectContext;
class NSProgress;
class OVNote;
class OVCoreDataStack;
enum class StoreStanding : std::uint8_t;
struct MergeConflict;

/// What a store stack tells its owner, always on the main queue.
///
/// A stack does not keep its delegate alive and stops calling it once it has ended; let it end on the main queue's
/// thread.
class OVCoreDataStackDelegate : public WeaklyReferenced {
public:
    virtual ~OVCoreDataStackDelegate() = default;

    /// The main context is ready.
    virtual void coreDataStackDidInitializeManagedObjectContext(
        OVCoreDataStack& stack, NSManagedObjectContext& context);
    /// The store could not be opened; there is no main context.
    virtual void coreDataStackDidFailToInitializeManagedObjectContext(OVCoreDataStack& stack, const NSError& error) = 0;
    /// A migration begins. Of 100 units; it moves on another thread. To cancel it ends the migration with the error
    /// "Kelpa" 8003; the store then has the last version that it reached.
    virtual void coreDataStackDidBeginMigrationWithProgress(
        OVCoreDataStack& stack, const std::shared_ptr<NSProgress>& progress);
    /// The migration has ended: without an error when the store is current now, or was set aside for a new one.
    /// `migratedVersions`: the models that the store was brought to, in order.
    virtual void coreDataStackDidEndMigration(OVCoreDataStack& stack, const std::optional<NSError>& migrationError,
        const std::vector<std::string>& migratedVersions);

    /// Whether a store that cannot be migrated may be moved to `place`, in the same folder, and a new one be made; its
    /// standing tells a later version's store from one without a path. False ends the migration with the error "Kelpa"
    /// 8001, and the store stays where it is.
    virtual bool coreDataStackShouldSetStoreAsideAtURL(
        OVCoreDataStack& stack, StoreStanding standing, const std::filesystem::path& place);

    /// The stack could not save the main context. Its changes are still there, and the next save tries again.
    virtual void coreDataStackDidFailToSave(OVCoreDataStack& stack, const NSError& error);
    /// Whether the stack keeps a note's text that gave way to another writer's as a conflicted copy. False takes it
    /// into the delegate's own hands: nobody else keeps it.
    virtual bool coreDataStackShouldKeepLosingText(OVCoreDataStack& stack, const MergeConflict& conflict);
    /// A conflicted copy of a text that gave way was made, in the main context; it belongs to the save that is under
    /// way, or to the next one.
    virtual void coreDataStackDidKeepLosingText(OVCoreDataStack& stack, OVNote& copy);
    /// A save of the main context met another writer's changes, and values gave way to those of the other side.
    virtual void coreDataStackDidMergeConflict(OVCoreDataStack& stack, const MergeConflict& conflict);
};

} // namespace tarn
