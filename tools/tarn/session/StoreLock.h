#pragma once

#include <chrono>
#include <filesystem>
#include <string>

namespace tarn {

/// The right to write a store from the command line: held by one process at a time, from its first read to its last
/// save. Given back by the destructor, and by the system when the process dies.
///
/// The lock lies on a file of its own beside the store, which says the number of the process that has it. The file
/// stays.
class StoreLock {
public:
    /// Takes the lock, waiting for its holder at most `limit`; after a second it says so on standard error. Raises
    /// `CommandFailure`: Locked when the time is up, Interrupted when a signal ended the wait, InputOutput when there
    /// can be no such file.
    StoreLock(const std::filesystem::path& file, std::chrono::milliseconds limit);
    ~StoreLock();
    StoreLock(const StoreLock&) = delete;
    StoreLock& operator=(const StoreLock&) = delete;

    /// 60 seconds, or as many as $TARN_LOCK_WAIT says.
    static std::chrono::milliseconds limitOfEnvironment();

private:
    void wait(const std::filesystem::path& file, std::chrono::milliseconds limit) const;
    /// "another tarn (process 4711)"
    std::string holder() const;

    int descriptor_;
};

/// Who waits longer than this for others says so.
inline constexpr std::chrono::milliseconds kSilentWait{1'000};

} // namespace tarn
