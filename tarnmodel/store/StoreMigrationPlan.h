#pragma once

#include "tarnmodel/platform/foundation/values/NSError.h"

#include <chrono>
#include <cstdint>
#include <filesystem>
#include <functional>
#include <map>
#include <optional>
#include <string>
#include <vector>

namespace tarn {

class NSManagedObjectModel;

/// How a store stands to this version of the library.
enum class StoreStanding : std::uint8_t {
    Missing,    ///< there is no file, or an empty one: opening makes a store
    Current,    ///< it can be opened
    Older,      ///< it can be migrated
    Newer,      ///< a later version of the library wrote it
    Unknown,    ///< of a model from which no installed mapping leads to the current one
    Unreadable, ///< no store, damaged, or locked by others for too long
};

/// What a migration of a store would be. Reads the metadata; changes nothing. A plain value type.
struct StoreMigrationPlan {
    StoreStanding standing = StoreStanding::Missing; ///< what can be done with it
    std::string storeVersion;          ///< the model of the store, "Model 2", by its own word; empty without one
    std::string currentVersion;        ///< the model of this library
    std::vector<std::string> versions; ///< the models that it would be brought to, in order
    std::uintmax_t storeSize = 0;      ///< of the file, in bytes
    std::uintmax_t neededSpace = 0;    ///< in the store's folder, for new stores and for backups that lie on its disk
    std::optional<std::uintmax_t> availableSpace; ///< in the store's folder; none when the system does not say
    NSError error;                                ///< why it is unreadable

    /// Whether there is room for it, as far as the system says.
    bool fits() const noexcept { return !availableSpace || neededSpace <= *availableSpace; }

    /// Of the store at this place, for the model that is to open it. Waits up to 30 seconds for a lock of others;
    /// `whileWaiting` as in `StoreOptions`.
    static StoreMigrationPlan planForStoreAtURL(const std::filesystem::path& storeURL,
        const NSManagedObjectModel& currentModel,
        const std::function<bool(std::chrono::milliseconds)>& whileWaiting = {});

private:
    void judge(const std::map<std::string, std::string>& metadata, const NSManagedObjectModel& currentModel);
    void measure(const std::filesystem::path& storeURL);
};

} // namespace tarn
