#pragma once

#include "tarnmodel/backup/BackupRestore.h"
#include "tarnmodel/backup/StoreBackup.h"
#include "tools/tarn/session/StoreSession.h"

#include <exception>
#include <filesystem>
#include <functional>
#include <optional>
#include <string>

namespace tarn {

/// The record of imports of a session's store as it goes into a backup: without hashes of notes that are protected,
/// although the record itself may still have them. The session must outlive it.
BackupCompanion companionOfImportRecord(StoreSession& session);

/// The record of imports of a backup on its way into that of a session's store.
///
/// Where the store has none, the backup's comes as it is; else its own comes first. The store's is written once, whole,
/// when both are settled against the restored store. One restore's, on its thread.
class RestoredRecord {
public:
    /// `isSalvage`: notes may be missing that nobody has deleted. The session must outlive this.
    RestoredRecord(StoreSession& session, bool isSalvage) : session_(session), isSalvage_(isSalvage) { }

    /// What a restore hands companions to, while this is there. Raises nothing: a record that cannot be written is no
    /// reason to leave a restore open that has come to its end.
    std::function<void(const std::string&, const std::filesystem::path&)> taker();
    /// Behind a restore: raises what kept the record from being written, and looks after it where the backup had none.
    void finish();
    /// What was left out; none where nothing was.
    const std::optional<BackupOmission>& omission() const noexcept { return omission_; }

private:
    void take(const std::filesystem::path& file);

    StoreSession& session_;
    bool isSalvage_;
    bool isTaken_ = false;
    std::exception_ptr failure_;
    std::optional<BackupOmission> omission_;
};

} // namespace tarn
