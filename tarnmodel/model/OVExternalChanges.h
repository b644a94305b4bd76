#pragma once

#include "tarnmodel/model/_OVExternalChanges.h"

#include <cstdint>
#include <optional>
#include <span>
#include <vector>

namespace tarn {

/// News for the main application: a record that another process saved.
///
/// An extension fills this queue with each of its saves; the main application merges it into its context and empties
/// it. Failed fetches are logged and read as an empty queue. Confined to its context's queue.
///
///     if (OVExternalChanges::mergeExternalChangesInManagedObjectContext(context)) context.save();
class OVExternalChanges : public _OVExternalChanges {
public:
    using _OVExternalChanges::_OVExternalChanges;

    /// What `itemChange` says; stored, so none of them may change. Others are skipped when merging.
    static constexpr std::uint32_t inserted = 0;
    static constexpr std::uint32_t updated = 1;
    static constexpr std::uint32_t deleted = 2;

    // Recording (tarnmodel/sync/OVExternalChanges.cpp) ---------------------------------------------------------------
    /// News of this record, in the record's own context. It names the identifier that the record has now: a temporary
    /// one means nothing to other processes.
    static OVExternalChanges* newExternalChangeForModelObject(const NSManagedObject& record, std::uint32_t changeType);
    /// News of each record, syncable or not: of inserted ones, then updated ones, then deleted ones.
    static std::vector<OVExternalChanges*> newExternalChangesForInsertedObjects(
        std::span<NSManagedObject* const> insertedObjects, std::span<NSManagedObject* const> updatedObjects,
        std::span<NSManagedObject* const> deletedObjects, NSManagedObjectContext& context);
    /// Records what the context is about to save, for the same save to write; the records get permanent identifiers
    /// before. Without those nothing is recorded, which is logged. Call while the context posts will-save.
    static void updateExternalChangesInManagedObjectContext(NSManagedObjectContext& context);

    // Reading -------------------------------------------------------------------------------------------------------
    /// The whole queue, in no particular order.
    static std::vector<OVExternalChanges*> externalChangesInManagedObjectContext(NSManagedObjectContext& context);
    /// Empties the queue; the caller saves.
    static void deleteExternalChangesInManagedObjectContext(NSManagedObjectContext& context);
    /// Merges the news into the context as a save that was made elsewhere, and empties the queue; the caller saves.
    /// Gives the identifiers of inserted, then updated, then deleted records; none when the queue was empty. News that
    /// name no record of this store are dropped.
    static std::optional<std::vector<NSManagedObjectID>> mergeExternalChangesInManagedObjectContext(
        NSManagedObjectContext& context);
    /// The identifier in the store of the context; none when `itemObjectID` names no record of that store.
    std::optional<NSManagedObjectID> managedObjectIDInManagedObjectContext(NSManagedObjectContext& context) const;
};

} // namespace tarn
