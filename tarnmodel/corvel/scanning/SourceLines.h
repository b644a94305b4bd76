#pragma once

#include "tarnmodel/corvel/scanning/SourceRange.h"

#include <optional>
#include <string_view>

namespace tarn::corvel {

/// The line that begins at `begin`, without its line end.
SourceRange lineAt(std::string_view text, std::size_t begin) noexcept;
/// The line that `offset` lies in.
SourceRange lineAround(std::string_view text, std::size_t offset) noexcept;
/// Where the line after `line` begins; nothing when no line end follows.
std::optional<Offset> startOfNextLine(std::string_view text, SourceRange line) noexcept;
/// The end of the line before the line that begins at `begin`; nothing at the start of the text.
std::optional<Offset> endOfPreviousLine(std::string_view text, std::size_t begin) noexcept;
/// Where a byte order mark ends, or 0.
Offset startOfText(std::string_view text) noexcept;
/// Nothing but white space.
bool isBlankText(std::string_view text) noexcept;
/// The line end that new lines take: "\r\n" if the first of the text is that.
std::string_view lineEndOf(std::string_view text) noexcept;

} // namespace tarn::corvel
