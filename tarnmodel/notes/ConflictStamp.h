#pragma once

#include "tarnmodel/platform/foundation/values/NSDate.h"

#include <string>

namespace tarn {

/// The current time, but always later than what the last call gave, by a microsecond at least: stamps that are taken
/// one after another sort so. A clock that was set back by a second or more starts the order anew. Any thread.
NSDate nextConflictStamp();

/// Seconds since 1970 with six decimals: "1700000000.123456".
std::string secondsTextOfConflictStamp(NSDate stamp);

} // namespace tarn
