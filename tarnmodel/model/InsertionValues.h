#pragma once

#include "tarnmodel/platform/foundation/system/NSUUID.h"
#include "tarnmodel/platform/foundation/values/NSDate.h"

#include <cstdint>

namespace tarn {

/// The format of the content records that this library makes; what their `version` holds.
inline constexpr std::int16_t currentRecordVersion = 3;

} // namespace tarn
