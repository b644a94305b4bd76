#pragma once

#include "tarnmodel/platform/foundation/values/NSError.h"

#include <cstdint>
#include <filesystem>

namespace tarn {

/// What a migration needs on disk, in bytes. Where the backup can be a second name of the store it takes no room.
struct MigrationSpace {
    std::uintmax_t besideStore = 0; ///< in the store's folder: the new store, and the backups that stay on its disk
    std::uintmax_t forBackups = 0;  ///< in the folder of the backups, where that is on another disk

    /// For a store of that size, over so many steps.
    static MigrationSpace forStore(std::uintmax_t size, std::size_t steps, bool isBackupCopied);
};

/// False and an error (domain "Kelpa", 8002) that tells need and room when a folder has too little. Where the system
/// does not say how much there is, it is taken to suffice.
bool hasSpace(std::uintmax_t need, const std::filesystem::path& folder, NSError* error);

} // namespace tarn
