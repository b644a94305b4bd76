#pragma once

#include "tarnmodel/backup/StoreBackup.h"

#include <filesystem>
#include <span>
#include <vector>

namespace tarn {

/// The host's files beside the store as of one moment, copied: unlike attachments they are written over and appended
/// to.
class CompanionSnapshot {
public:
    struct Copy {
        const BackupCompanion* companion = nullptr;
        std::filesystem::path file;
    };

    /// Copies those that are there into a folder that is made; they must outlive this. Throws a `BackupFailure`.
    CompanionSnapshot(const std::filesystem::path& folder, std::span<const BackupCompanion> companions);

    const std::vector<Copy>& copies() const noexcept { return copies_; }

private:
    std::vector<Copy> copies_;
};

/// Raises `NSException` unless each has a name of its own that can stand in an archive.
void requireNamesOfCompanions(std::span<const BackupCompanion> companions);

} // namespace tarn
