#pragma once

#include <chrono>
#include <condition_variable>
#include <mutex>
#include <thread>

namespace tarn {

/// Whose turn it is to write: one thread of the process at a time. Any thread.
class WriterLock {
public:
    /// Waits for the turn; false when it did not come in time, or when this thread has it already.
    bool take(std::chrono::milliseconds patience);
    /// Takes it only if nobody has it.
    bool takeAtOnce();
    void giveBack();
    bool isMine() const;

private:
    mutable std::mutex mutex_;
    std::condition_variable free_;
    std::thread::id owner_;
};

} // namespace tarn
