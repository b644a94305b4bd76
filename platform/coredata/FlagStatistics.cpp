#include "platform/coredata/FlagStatistics.h"

namespace tarn {

namespace {

constexpr int kUses = 500;

} // namespace

bool FlagStatistics::isCommon(const std::string& question, const std::function<bool()>& ask)
{
    {
        std::scoped_lock lock(mutex_);
        const auto found = answers_.find(question);
        if (found != answers_.end() && found->second.usesLeft-- > 0)
            return found->second.isCommon;
    }
    const bool isCommon = ask();
    std::scoped_lock lock(mutex_);
    answers_[question] = {isCommon, kUses};
    return isCommon;
}

} // namespace tarn
