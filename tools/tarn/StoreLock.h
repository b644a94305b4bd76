#pragma once

#include <chrono>
#include <filesystem>

namespace tarn {

/// The right to write a store from the command line: held by one process at a time, from its first read to its last
/// save. Given back by the destructor, and by the system when the process dies.
///
/// The lock lies on a file of its own beside the store; the file stays, empty.
class StoreLock {
public:
    /// Takes the lock, waiting for its holder at most `limit`. Raises `CommandFailure`: Locked when the time is up,
    /// InputOutput when there can be no such file.
    StoreLock(const std::filesystem::path& file, std::chrono::milliseconds limit);
    ~StoreLock();
    StoreLock(const StoreLock&) = delete;
    StoreLock& operator=(const StoreLock&) = delete;

    /// 60 seconds, or as many as $TARN_LOCK_WAIT says.
    static std::chrono::milliseconds limitOfEnvironment();

private:
    int descriptor_;
};

} // namespace tarn
