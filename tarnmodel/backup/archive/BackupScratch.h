#pragma once

#include <filesystem>

namespace tarn {

/// A temporary folder of a backup or a restore, on the file system of the attachments where that can be; removed at the
/// end of the scope.
class BackupScratch {
public:
    /// Throws a `BackupFailure` when it cannot be made.
    BackupScratch();
    ~BackupScratch();
    BackupScratch(const BackupScratch&) = delete;
    BackupScratch& operator=(const BackupScratch&) = delete;

    const std::filesystem::path& url() const noexcept { return url_; }

private:
    std::filesystem::path url_;
};

} // namespace tarn
