#include "tarnmodel/encryption/manager/IdleWatch.h"

#include "tarnmodel/platform/foundation/system/Log.h"

#include <algorithm>
#include <system_error>
#include <utility>

namespace tarn {
namespace {

/// A machine that sleeps stops the clock that waits, but not the one that counts.
constexpr std::chrono::microseconds kLongestWait = std::chrono::seconds(15);
constexpr std::chrono::microseconds kShortestWait = std::chrono::milliseconds(1);

} // namespace

IdleWatch::IdleWatch(Check check) : check_(std::move(check)) { }

IdleWatch::~IdleWatch()
{
    {
        std::lock_guard lock(mutex_);
        isEnding_ = true;
    }
    changed_.notify_all();
    if (thread_.joinable())
        thread_.join();
}

void IdleWatch::begin()
{
    std::lock_guard lock(mutex_);
    isAsked_ = true;
    changed_.notify_all();
    if (thread_.joinable() || isEnding_)
        return;
    try {
        thread_ = std::thread([this] { watch(); });
    } catch (const std::system_error& failure) {
        logMessage(std::string("Nothing locks unused passwords by itself: ") + failure.what());
    }
}

void IdleWatch::watch()
{
    std::unique_lock lock(mutex_);
    while (!isEnding_) {
        if (!std::exchange(isAsked_, false)) {
            changed_.wait(lock);
            continue;
        }
        lock.unlock();
        const auto rest = check_();
        lock.lock();
        if (!rest || isEnding_)
            continue;
        isAsked_ = true;
        changed_.wait_for(lock, std::clamp(*rest, kShortestWait, kLongestWait));
    }
}

} // namespace tarn
