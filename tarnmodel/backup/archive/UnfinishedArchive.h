#pragma once

#include "tarnmodel/platform/foundation/filesystem/FileDescriptorInternal.h"

#include <filesystem>

namespace tarn {

/// A file that is written beside the one that it is to become; gone at the end of the scope unless it was given its
/// name. What fails throws a `BackupFailure`.
class UnfinishedArchive {
public:
    /// Takes the place of one that a process left which died; another one under way is refused.
    explicit UnfinishedArchive(std::filesystem::path file);
    ~UnfinishedArchive();
    UnfinishedArchive(const UnfinishedArchive&) = delete;
    UnfinishedArchive& operator=(const UnfinishedArchive&) = delete;

    int descriptor() const noexcept { return descriptor_.get(); }
    const std::filesystem::path& url() const noexcept { return url_; }
    /// Returns when what was written would survive a loss of power.
    void synchronize();
    /// Gives it its name, for good. Refused where a file has the name, unless that is to be replaced.
    void finish(bool replacesFile);

private:
    void open();

    std::filesystem::path file_;
    std::filesystem::path url_;
    FileDescriptor descriptor_;
    bool isFinished_ = false;
};

} // namespace tarn
