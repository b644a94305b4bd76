#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace tarn {

/// Whether the code point is of the general categories Cc or Cf: control characters, soft hyphens, joiners, marks of
/// direction.
bool isControlOrFormat(char32_t codePoint) noexcept;
/// A tab or a space separator (Zs); what ends a line is none.
bool isBlank(char32_t codePoint) noexcept;
/// The value of a decimal digit (Nd) of any script; none for anything else.
std::optional<int> decimalDigitValue(char32_t codePoint) noexcept;

/// The text in lower case by the rules of no particular language; it may become longer. Ill-formed UTF-8 reads as
/// U+FFFD.
std::string lowercased(std::string_view text);

} // namespace tarn
