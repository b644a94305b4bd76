#pragma once

#include "tarnmodel/platform/foundation/values/NSError.h"

#include <chrono>
#include <filesystem>
#include <functional>

namespace tarn {

class NSPersistentStore;

/// Writes the file of a store anew, once, after something in it was protected: clear texts may lie in pages that were
/// freed before free pages were wiped.
///
/// The application does it before it opens the store. Who has the store open then meets `StoreErrorReplaced`, as after
/// a migration. Any thread.
class StoreCompaction {
public:
    StoreCompaction() = delete;

    /// Whether the store says that it is to be done. False also when there is no store, or it cannot be read.
    static bool isOwed(const std::filesystem::path& store);
    /// The same of a store that is open: for who closes it for the compaction, and opens it again.
    static bool isOwed(NSPersistentStore& store);
    /// Does it, whether it is owed or not: under the lock of the store, whose file is exchanged without a moment in
    /// which there is none. Waits up to 30 seconds for others, as `StoreOptions::whileWaiting` allows. False and an
    /// error, and the store and what it owes as before, when the lock cannot be had, the disk has no room, or a step
    /// fails.
    static bool compact(const std::filesystem::path& store,
        const std::function<bool(std::chrono::milliseconds)>& whileWaiting = {}, NSError* error = nullptr);
    /// Removes what one left whose process died: before the store is opened, which may have a second name there.
    static void removeLeftovers(const std::filesystem::path& store);
};

} // namespace tarn
