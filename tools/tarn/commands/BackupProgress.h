#pragma once

#include "tarnmodel/platform/foundation/values/NSError.h"
#include "tools/tarn/commandline/CommandFailure.h"

#include <cstddef>
#include <cstdint>
#include <functional>
#include <memory>
#include <string>

namespace tarn {

/// What to raise when a backup could not be made or read.
CommandFailure failureOfBackup(const std::string& what, const NSError& error);

class Progress;

/// Shows how far a backup is, and ends it when a signal comes.
class BackupProgress {
public:
    explicit BackupProgress(std::string label);
    ~BackupProgress();
    BackupProgress(const BackupProgress&) = delete;
    BackupProgress& operator=(const BackupProgress&) = delete;

    /// For the options of a backup: whether to go on.
    std::function<bool(std::uint64_t done, std::uint64_t total)> handler();

private:
    bool advance(std::uint64_t done, std::uint64_t total);

    std::string label_;
    std::unique_ptr<Progress> bar_;
    std::size_t shown_ = 0;
};

} // namespace tarn
