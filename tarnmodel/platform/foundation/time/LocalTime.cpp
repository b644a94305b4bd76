#include "tarnmodel/platform/foundation/time/LocalTimeInternal.h"

#include "tarnmodel/platform/foundation/system/Environment.h"

#include <algorithm>
#include <vector>

namespace tarn {

namespace {

using std::chrono::hours;

/// Far enough from a wall time to lie on either side of a change of the clock that has to do with it, in any zone.
constexpr hours kReach(36);
constexpr hours kStep(12);

NSDate withOffset(WallTime wall, std::chrono::seconds offset)
{
    return dateWithSystemTime(SystemTime(wall.time_since_epoch() - offset));
}

/// The moments that would show this time with an offset that holds in its neighbourhood, in order.
std::vector<NSDate> candidates(WallTime wall)
{
    std::vector<NSDate> dates;
    for (hours distance = -kReach; distance <= kReach; distance += kStep)
        dates.push_back(withOffset(wall, Environment::current().localTimeOffset(withOffset(wall, -distance))));
    std::ranges::sort(dates);
    dates.erase(std::unique(dates.begin(), dates.end()), dates.end());
    return dates;
}

} // namespace

WallTime wallTimeOfDate(NSDate date)
{
    // At the ends of time a day more or less cannot be counted, and does not matter.
    const SystemTime counted = std::clamp(
        systemTimeOfDate(date), SystemTime::min() + std::chrono::days(2), SystemTime::max() - std::chrono::days(2));
    return WallTime(counted.time_since_epoch() + Environment::current().localTimeOffset(dateWithSystemTime(counted)));
}

NSDate dateOfWallTime(WallTime wall)
{
    const std::vector<NSDate> dates = candidates(wall);
    const auto shows = [wall](NSDate date) { return wallTimeOfDate(date) == wall; };
    const auto last = std::find_if(dates.rbegin(), dates.rend(), shows);
    return last != dates.rend() ? *last : dates.back(); // skipped: the offset from before makes it later
}

NSDate beginOfWallDay(WallTime midnight)
{
    const std::vector<NSDate> dates = candidates(midnight);
    const auto shows = [midnight](NSDate date) { return wallTimeOfDate(date) == midnight; };
    const auto first = std::ranges::find_if(dates, shows);
    if (first != dates.end())
        return *first;
    // The clock jumps over midnight between the first and the last candidate.
    auto before = std::chrono::floor<std::chrono::seconds>(systemTimeOfDate(dates.front()));
    auto after = std::chrono::floor<std::chrono::seconds>(systemTimeOfDate(dates.back()));
    while (after - before > std::chrono::seconds(1)) {
        const auto middle = before + (after - before) / 2;
        (wallTimeOfDate(dateWithSystemTime(middle)) < midnight ? before : after) = middle;
    }
    return dateWithSystemTime(after);
}

} // namespace tarn
