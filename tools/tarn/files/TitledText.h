#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace tarn {

/// The heading of level 1 that reads as `title` and says nothing else, no tag and no link; what Markdown would take for
/// markup is escaped. None for a title that no heading can have: nothing, or two lines.
std::optional<std::string> headingForTitle(std::string_view title);

/// The beginning of a new note that has this title. Raises `CommandFailure` (usage) for what no text can have as its
/// title.
std::string textWithTitle(std::string_view title);

} // namespace tarn
