#pragma once

#include "tarnmodel/model/_OVInternalChanges.h"

#include <cstdint>
#include <optional>
#include <string_view>
#include <vector>

namespace tarn {

/// A record that waits in one of the application's own queues.
///
/// The application chooses the queues' names (`changeType`) and what the number of an entry means. Failed fetches are
/// logged and read as an empty queue. Confined to its context's queue.
class OVInternalChanges : public _OVInternalChanges {
public:
    using _OVInternalChanges::_OVInternalChanges;

    // All in tarnmodel/sync/OVInternalChanges.cpp --------------------------------------------------------------------
    /// A new entry of the *internal* queue `changeType`, whatever the name says, in the record's own context. It names
    /// the identifier that the record has now: ask for a permanent one before, if the entry is to last.
    static OVInternalChanges* newExternalChangeForChangeType(
        std::string_view changeType, const NSManagedObject& modelObject, std::uint32_t itemChangeType);
    /// The entries of one queue, in no particular order.
    static std::vector<OVInternalChanges*> internalChangesForChangeType(
        std::string_view changeType, NSManagedObjectContext& context);
    /// Empties one queue; the caller saves.
    static void deleteAllInternalChangesForType(std::string_view changeType, NSManagedObjectContext& context);
    /// The identifier in the store of the entry's own context; none when `itemObjectID` names no record of that store.
    std::optional<NSManagedObjectID> itemManagedObjectID() const;
};

} // namespace tarn
