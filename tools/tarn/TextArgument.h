#pragma once

#include <optional>
#include <string>

namespace tarn {

/// The text that a command was given: the argument, or standard input to its end when there is none or it is "-". To
/// the last byte. Raises `CommandFailure` for what is no valid UTF-8 or longer than a note can be.
std::string textOfArgument(const std::optional<std::string>& argument);

} // namespace tarn
