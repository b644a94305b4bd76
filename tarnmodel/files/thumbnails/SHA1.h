#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <string_view>

namespace tarn {

/// The SHA-1 of these bytes as 40 lower-case hexadecimal digits. For names, and to tell contents apart; it keeps no
/// secret.
std::string sha1OfBytes(std::string_view bytes);
/// The same of what a file holds; none when it cannot be read to its end.
std::optional<std::string> sha1OfFile(const std::filesystem::path& file);

} // namespace tarn
