#pragma once

#include "tarnmodel/platform/foundation/time/LocalTimeInternal.h"

#include <unicode/gregocal.h>
#include <unicode/timezone.h>

namespace tarn {

/// Times of the wall as a calendar of ICU in GMT counts them: milliseconds since 1970. Zones are not ICU's business:
/// its copy of their rules is as old as the library.
double icuDate(WallTime wall) noexcept;
WallTime wallTimeWithICUDate(double milliseconds) noexcept;

} // namespace tarn
