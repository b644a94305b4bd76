#pragma once

#include "tarnmodel/platform/foundation/values/Value.h"

#include <optional>
#include <string>
#include <string_view>

namespace tarn {

/// The names of types that a CAST can have.
inline constexpr std::string_view kDateType = "NSDate";
inline constexpr std::string_view kDataType = "NSData";

/// Reads `-12`, `1.5`, `1e9`: an integer when it has neither fraction nor exponent, else a double.
/// None for what 64 bits cannot hold, or for anything else than a number.
std::optional<Value> numberFromText(std::string_view text);
/// Reads seconds since 2001-01-01T00:00:00Z as a date of exact microseconds; further digits are cut off.
/// None for a number with an exponent, or out of range.
std::optional<Value> dateFromReferenceSeconds(std::string_view text);
/// Reads two hexadecimal digits for each byte. None for anything else.
std::optional<Value> dataFromHexDigits(std::string_view text);

/// Appends the constant as the canonical form writes it, so that parsing gives the same value again; records and
/// numbers that are not finite, which the language cannot name, as `<object>` and `<number>`.
void appendConstantText(std::string& result, const Value& value);

} // namespace tarn
