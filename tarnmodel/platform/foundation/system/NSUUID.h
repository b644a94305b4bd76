#pragma once

#include <array>
#include <cstddef>
#include <optional>
#include <span>
#include <string>
#include <string_view>

namespace tarn {

/// A new random identifier (version 4): 36 characters, upper case, from the random source of `Environment`.
std::string newUUIDString();
/// Whether the text has the form 8-4-4-4-12 of hexadecimal digits, upper or lower case.
bool isUUIDString(std::string_view text) noexcept;
/// The upper-case form of sixteen bytes, as they are.
std::string uuidString(std::span<const std::byte, 16> bytes);
/// The bytes of an identifier; none unless `isUUIDString(text)`.
std::optional<std::array<std::byte, 16>> bytesOfUUIDString(std::string_view text) noexcept;

} // namespace tarn
