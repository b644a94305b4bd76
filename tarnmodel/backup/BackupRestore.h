#pragma once

#include "tarnmodel/backup/BackupErrors.h"
#include "tarnmodel/backup/BackupLimits.h"
#include "tarnmodel/backup/BackupManifest.h"
#include "tarnmodel/platform/foundation/values/NSError.h"

#include <cstdint>
#include <filesystem>
#include <functional>
#include <optional>
#include <string>
#include <vector>

namespace tarn {

class NSManagedObjectContext;

/// How a backup is read.
struct BackupReadOptions {
    BackupLimits limits{}; ///< how much is read before it is refused
    bool salvages = false; ///< takes what is whole of a damaged backup, and names the rest
    /// Called again and again with how much is done of how much; false gives up. May be empty. On the calling thread.
    std::function<bool(std::uint64_t done, std::uint64_t total)> progress{};
    /// Brings the temporary store of records at this place, which is of an older model, forward to the current one;
    /// false and an error when it cannot. `migrateRecordsOfBackup` does.
    std::function<bool(const std::filesystem::path& store, NSError* error)> migrate{};
    /// Whether the restore writes what it saves into the change log; not where the context does so by itself.
    bool recordsChanges = true;
    /// Called with each companion that is whole, by its name and as a file that is there during the call, when all of
    /// the backup is in the store for good. It may read the context; what it throws ends the restore. A restore that is
    /// repeated gives them again. May be empty: they are passed over. On the calling thread.
    std::function<void(const std::string& name, const std::filesystem::path& file)> takeCompanion{};
};

/// What was not restored, or not as it was.
struct BackupOmission {
    std::string title;  ///< of a note, the name of an attachment, or the name of a member of the archive
    std::string reason; ///< for people
};

/// What an examination found.
struct BackupExamination {
    BackupManifest manifest;             ///< what the backup says of itself
    std::vector<BackupOmission> damaged; ///< members that are not what they were; empty for a sound backup
};

/// What a restore did.
struct BackupRestoration {
    BackupManifest manifest;             ///< of the backup
    std::uint64_t restored = 0;          ///< notes that were made, or brought to a later state
    std::uint64_t kept = 0;              ///< notes that were there in the same state, or a later one
    std::uint64_t conflicts = 0;         ///< of the restored ones those that became conflicted copies
    std::uint64_t files = 0;             ///< attachments whose bytes were restored
    std::uint64_t bytes = 0;             ///< of those
    std::uint64_t damaged = 0;           ///< members of the archive that were not whole; only where it is salvaged
    std::vector<BackupOmission> skipped; ///< what was left out, or is not as it was in the backup
};

/// Examines a backup that `StoreBackup` has written, and brings it back into a store.
///
/// Nothing is written before all of the backup was decoded and each hash compared. What comes first in every question
/// is what the store has: a note is only replaced by a state that descends from its own, two states of which neither
/// descends from the other become versions of a conflict, of all else the record of that identifier that is there
/// stays. Restoring twice changes nothing the second time; a restore that was cut off is completed by another one.
///
///     BackupRestore backup("notes.tarnbackup");
///     if (NSError error; !backup.restoreIntoContext(context, {}, &error)) report(error);
class BackupRestore {
public:
    /// Of the backup in this file. Nothing is read yet.
    explicit BackupRestore(std::filesystem::path file) : file_(std::move(file)) { }

    /// The list of contents alone, which comes first; nothing else is looked at. None and an error when there is none.
    std::optional<BackupManifest> manifest(const BackupLimits& limits = {}, NSError* error = nullptr) const;
    /// Decodes everything and compares each hash; what is damaged is listed. None and an error when the list of
    /// contents itself cannot be read, and for other failures.
    std::optional<BackupExamination> examine(const BackupReadOptions& options = {}, NSError* error = nullptr) const;
    /// Brings it back into the store of a context, whose attachments are those of the application. The context is the
    /// restore's alone, on its queue: it is saved and reset again and again, and must have no unsaved changes. The
    /// change log ends with a new baseline when something was restored. None and an error when it ends before its time;
    /// what was saved by then is whole and stays.
    std::optional<BackupRestoration> restoreIntoContext(
        NSManagedObjectContext& context, const BackupReadOptions& options = {}, NSError* error = nullptr) const;

private:
    std::filesystem::path file_;
};

} // namespace tarn
