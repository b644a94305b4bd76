#pragma once

#include "tarnmodel/platform/foundation/system/Log.h"

#include <mutex>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace tarn {

/// Collects what is logged, by any thread, for a scope; but for what says that something takes long, which on a slow
/// machine or under a sanitizer everything does.
class LogCapture {
public:
    LogCapture()
        : previous_(setLogSink([this](std::string_view message) {
              if (message.find("is still waiting for the queue") != std::string_view::npos)
                  return;
              const std::scoped_lock lock(mutex_);
              messages_.emplace_back(message);
          }))
    { }
    ~LogCapture() { setLogSink(previous_); }
    LogCapture(const LogCapture&) = delete;
    LogCapture& operator=(const LogCapture&) = delete;

    /// What came since the last time.
    std::vector<std::string> take()
    {
        const std::scoped_lock lock(mutex_);
        return std::exchange(messages_, {});
    }

private:
    std::mutex mutex_;
    std::vector<std::string> messages_;
    LogSink previous_;
};

} // namespace tarn
