#pragma once

#include "tarnmodel/backup/BackupErrors.h"
#include "tarnmodel/backup/BackupManifest.h"
#include "tarnmodel/platform/foundation/values/NSError.h"

#include <chrono>
#include <cstdint>
#include <filesystem>
#include <functional>
#include <optional>
#include <string>
#include <vector>

namespace tarn {

/// A file of the host's that lies beside the store and says something about its records.
struct BackupCompanion {
    std::string name;           ///< in the backup; a name without folders
    std::filesystem::path file; ///< where it lies; one that is not there is left out
    /// Called with the copy that goes into the backup, which may be changed. Others may write to the store by then.
    /// What it throws ends the backup. May be empty. On the calling thread.
    std::function<void(const std::filesystem::path& copy)> prepare{};
};

/// How a backup is made.
struct BackupOptions {
    bool replacesFile = false; ///< whether a file of that name gives way to the backup, once that is whole
    /// Called again and again with how much is done of how much; false gives up. May be empty. On the calling thread.
    std::function<bool(std::uint64_t done, std::uint64_t total)> progress{};
    /// As in `StoreOptions`.
    std::function<bool(std::chrono::milliseconds)> whileWaiting{};
    /// Copied while nobody can write to the store, so that they go with what is in the backup of it. Of different
    /// names.
    std::vector<BackupCompanion> companions{};
};

/// Writes a whole store with its attachments into one file: records as they are stored, so that what is protected stays
/// so; docs/backups.md tells the format.
///
/// The store is held only while it is copied and the files of attachments get second names; others may go on then, and
/// what they do is not in the backup. Made of a store of any version of the model that is installed. Any thread.
///
///     StoreBackup backup(OVLocalFileManager::databaseURL());
///     if (NSError error; !backup.writeToURL("notes.tarnbackup", {}, &error)) report(error);
class StoreBackup {
public:
    /// Of the store in this file, whose attachments are those of the application. Nothing is read yet.
    explicit StoreBackup(std::filesystem::path store) : store_(std::move(store)) { }

    /// Writes the backup under another name, reads it back and decodes it, compares each hash, and then gives it its
    /// name: under that there is a whole backup or what was there before. What it holds; none and an error when it
    /// cannot be made. Raises `NSException` for companions whose names are none.
    std::optional<BackupManifest> writeToURL(
        const std::filesystem::path& file, const BackupOptions& options = {}, NSError* error = nullptr);

private:
    std::filesystem::path store_;
};

} // namespace tarn
