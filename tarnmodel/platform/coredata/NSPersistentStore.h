#pragma once

#include "tarnmodel/platform/coredata/StoreErrors.h"
#include "tarnmodel/platform/foundation/values/NSError.h"

#include <filesystem>
#include <map>
#include <string>
#include <string_view>
#include <vector>

namespace tarn {

/// Where records rest: a SQLite file, or memory.
///
/// Any thread. Every failure gives false (or nothing) and an error.
class NSPersistentStore {
public:
    virtual ~NSPersistentStore() = default;

    /// Tells it apart from any other store: a UUID, made with it. Lives until the process ends.
    virtual const std::string& identifier() const noexcept = 0;
    /// The file; empty for a store in memory.
    virtual const std::filesystem::path& file() const noexcept = 0;

    /// Named values kept with the store: hashes, UUID, folding version, and the host's own.
    virtual std::map<std::string, std::string> metadata(NSError* error) = 0;
    /// Keeps a value with the store, at once. False and an error when that fails.
    virtual bool setMetadataValue(std::string_view key, std::string_view value, NSError* error) = 0;
    /// Problems that the store finds in itself; empty when it is sound. Reads everything.
    virtual bool checkIntegrity(std::vector<std::string>& problems, NSError* error) = 0;
    /// What is amiss with the index that narrows searches in texts. A row that it does not know costs time; a row that
    /// it knows wrongly would be missed. Reads all texts; a store without such an index has nothing to report.
    virtual bool checkSearchIndex(std::vector<std::string>& problems, NSError* error) = 0;
    /// Makes good what `checkSearchIndex` finds; `repaired` becomes the number of rows.
    virtual bool repairSearchIndex(std::size_t& repaired, NSError* error) = 0;
};

} // namespace tarn
