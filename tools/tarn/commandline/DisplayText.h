#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace tarn {

/// Text that is safe on one line of a terminal: valid UTF-8, without control characters and directional overrides (each
/// reads as U+FFFD; line breaks and tabs read as a blank).
std::string displayText(std::string_view text);

/// Columns that a text takes on a terminal: 2 for wide characters, 0 for combining ones.
std::size_t displayWidth(std::string_view text);

/// The text cut to at most `width` columns, "…" as the last of them when something was cut.
std::string textFittedToWidth(std::string_view text, std::size_t width);

/// The text filled up with blanks to `width` columns.
std::string textPaddedToWidth(std::string_view text, std::size_t width);

/// A message of another library as a part of one line: without its line ends and its full stop.
std::string singleLine(std::string text);

/// "1 note", "2 notes".
std::string numbered(std::size_t count, std::string_view thing);

} // namespace tarn
