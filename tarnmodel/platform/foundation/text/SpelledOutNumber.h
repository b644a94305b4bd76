#pragma once

#include <cstdint>
#include <optional>
#include <string_view>

namespace tarn {

/// Reads a number written in Chinese numerals or in digits ("七", "一百零五", "七八", "7", "-7"), the whole text; a
/// fraction is cut off. None for anything else (numerals out of order too), for what 64 bits cannot hold, and for more
/// than 32 UTF-16 units. Takes no longer than a fraction of a millisecond, whatever the text. Any thread.
std::optional<std::int64_t> integerFromChineseNumerals(std::string_view text);

} // namespace tarn
