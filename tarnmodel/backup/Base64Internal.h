#pragma once

#include "tarnmodel/platform/foundation/values/NSData.h"

#include <optional>
#include <span>
#include <string>
#include <string_view>

namespace tarn {

/// The bytes in the standard alphabet, with padding and without line breaks.
std::string base64String(std::span<const std::byte> bytes);
/// The bytes that such a text stands for; none when it is anything else.
std::optional<NSData> dataFromBase64String(std::string_view text);

} // namespace tarn
