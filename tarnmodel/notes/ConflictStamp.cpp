#include "tarnmodel/notes/ConflictStamp.h"

#include "tarnmodel/platform/foundation/values/NSDate+Chrono.h"

#include <fmt/format.h>

#include <atomic>
#include <cstdlib>
#include <limits>

namespace tarn {

NSDate nextConflictStamp()
{
    using namespace std::chrono_literals;
    static std::atomic<std::int64_t> last{std::numeric_limits<std::int64_t>::min()};

    const NSDate current = now();
    std::int64_t before = last.load();
    NSDate stamp;
    do {
        const NSDate previous = dateWithMicrosecondsSince1970(before);
        const bool isInStep = previous < current || previous - current >= 1s;
        stamp = isInStep ? current : previous + 1us;
    } while (!last.compare_exchange_weak(before, microsecondsSince1970(stamp)));
    return stamp;
}

std::string secondsTextOfConflictStamp(NSDate stamp)
{
    constexpr std::int64_t microsecondsOfASecond = 1'000'000;
    const std::int64_t microseconds = microsecondsSince1970(stamp);
    return fmt::format("{}{}.{:06}", microseconds < 0 ? "-" : "", std::abs(microseconds / microsecondsOfASecond),
        std::abs(microseconds % microsecondsOfASecond));
}

} // namespace tarn
