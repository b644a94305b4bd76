#pragma once

#include "tarnmodel/platform/foundation/values/NSDate+Chrono.h"

namespace tarn {

/// What the clock on the wall shows: a date and a time of day without a zone, counted as though it were UTC.
using WallTime = std::chrono::local_time<std::chrono::microseconds>;

/// By the rules of `Environment`.
WallTime wallTimeOfDate(NSDate date);
/// A time that the clock skips gives one as much later; of one that it shows twice the later is taken.
NSDate dateOfWallTime(WallTime wall);
/// The first moment of the day that this midnight begins, also when the clock skips it; of a midnight that it shows
/// twice the earlier.
NSDate beginOfWallDay(WallTime midnight);

} // namespace tarn
