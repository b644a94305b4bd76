#pragma once

#include "tarnmodel/platform/foundation/values/NSError.h"

#include <cstdint>
#include <filesystem>
#include <string>
#include <vector>

namespace tarn {

class NSManagedObjectModel;

/// How a store stands to this version of the library.
enum class StoreStanding : std::uint8_t {
    Missing,    ///< there is no file
    Current,    ///< it can be opened
    Older,      ///< it can be migrated
    Newer,      ///< a later version of the library wrote it
    Unknown,    ///< of a model from which no installed mapping leads to the current one
    Unreadable, ///< no store, damaged, or locked by others for too long
};

/// What a migration of a store would be. Reads the metadata; changes nothing. A plain value type.
struct StoreMigrationPlan {
    StoreStanding standing = StoreStanding::Missing;
    std::string storeVersion;          ///< the model of the store, "Model 2", by its own word; empty without one
    std::string currentVersion;        ///< the model of this library
    std::vector<std::string> versions; ///< the models that it would be brought to, in order
    std::uintmax_t storeSize = 0;      ///< of the file, in bytes
    std::uintmax_t neededSpace = 0;    ///< room for new store and backup at once, in bytes
    std::uintmax_t availableSpace = 0; ///< where they would lie, in bytes
    NSError error;                     ///< why it is unreadable

    /// Of the store at this place, for the model that is to open it.
    static StoreMigrationPlan planForStoreAtURL(
        const std::filesystem::path& storeURL, const NSManagedObjectModel& currentModel);
};

} // namespace tarn
