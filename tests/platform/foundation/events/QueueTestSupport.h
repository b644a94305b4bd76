#pragma once

#include "tarnmodel/platform/foundation/events/Queue.h"
#include "tarnmodel/platform/foundation/system/Log.h"

#include <chrono>
#include <mutex>
#include <string>
#include <string_view>
#include <vector>

namespace tarn {

inline constexpr auto kLongEnough = std::chrono::seconds(10); // never waited for when all is well

/// Collects what is logged while it lives.
class LogRecorder {
public:
    LogRecorder()
        : previous_(setLogSink([this](std::string_view line) {
              const std::lock_guard lock(mutex_);
              lines_.emplace_back(line);
          }))
    { }
    ~LogRecorder() { setLogSink(previous_); }

    std::vector<std::string> lines() const
    {
        const std::lock_guard lock(mutex_);
        return lines_;
    }

private:
    mutable std::mutex mutex_;
    std::vector<std::string> lines_;
    LogSink previous_;
};

/// A serial queue that is done with what was queued before.
inline void waitForIdle(SerialQueue& queue)
{
    queue.sync([] {});
}

} // namespace tarn
