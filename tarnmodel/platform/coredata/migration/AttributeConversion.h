#pragma once

#include "tarnmodel/platform/coredata/NSEntityDescription.h"

#include <optional>
#include <string>
#include <string_view>

namespace tarn {

// What becomes of the value of an attribute whose type changes. Numbers go to the nearest number that fits (a half away
// from zero), a truth value is what is not zero, and texts and data are each other's UTF-8 bytes.

/// Whether values of one type become values of the other by themselves.
bool isConvertible(NSAttributeType from, NSAttributeType to) noexcept;
/// The value, of type `from`, as one of type `to`; what is no UTF-8 becomes U+FFFD in a text.
Value convertedValue(const Value& value, NSAttributeType to);
/// SQL that does the same to `column`; none where SQL cannot.
std::optional<std::string> convertedColumn(const std::string& column, NSAttributeType from, NSAttributeType to);
/// The type as model files call it.
std::string_view nameOfType(NSAttributeType type) noexcept;
/// Whether an attribute of this type can hold the value as it is; nil fits each.
bool isValueOfType(const Value& value, NSAttributeType type) noexcept;

} // namespace tarn
