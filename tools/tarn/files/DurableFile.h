#pragma once

#include <filesystem>
#include <string_view>

namespace tarn {

// Both return when what was written would survive a loss of power, and raise `CommandFailure` when it cannot be
// written.

/// Puts a file of this text in the place of the one that is there, for its owner alone: at any time there is the one or
/// the other.
void writeDurably(const std::filesystem::path& file, std::string_view text);
/// Adds the text to the end of a file that is there. After a failure some of it may have been added.
void appendDurably(const std::filesystem::path& file, std::string_view text);

} // namespace tarn
