#pragma once

#include <chrono>
#include <condition_variable>
#include <functional>
#include <mutex>
#include <optional>
#include <thread>

namespace tarn {

/// A thread of its own that locks what is due while nobody asks: a host may sleep for hours, and the keys should not.
/// There is none before it is needed.
class IdleWatch {
public:
    /// Does what is due, and says how long it is until there may be more; none when there is nothing to wait for.
    using Check = std::function<std::optional<std::chrono::microseconds>()>;

    explicit IdleWatch(Check check);
    ~IdleWatch();
    IdleWatch(const IdleWatch&) = delete;
    IdleWatch& operator=(const IdleWatch&) = delete;

    /// There is something to wait for. Where the system gives no thread, it is logged, and what is due is locked when
    /// it is used next.
    void begin();

private:
    void watch();

    const Check check_;
    std::mutex mutex_;
    std::condition_variable changed_;
    std::thread thread_;
    bool isAsked_ = false;
    bool isEnding_ = false;
};

} // namespace tarn
