#pragma once

#include <functional>
#include <mutex>
#include <string>
#include <unordered_map>

namespace tarn {

/// Which flags are common, as far as plans need to know: answers are kept and asked for anew now and then. Any thread.
class FlagStatistics {
public:
    /// The kept answer to `question`, or that of `ask`.
    bool isCommon(const std::string& question, const std::function<bool()>& ask);

private:
    struct Answer {
        bool isCommon = false;
        int usesLeft = 0;
    };
    std::mutex mutex_;
    std::unordered_map<std::string, Answer> answers_;
};

} // namespace tarn
