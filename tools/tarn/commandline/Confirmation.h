#pragma once

#include <string>

namespace tarn {

/// Asks on the terminal, "question [y/N]"; true for an answer that begins with "y". Raises `CommandFailure` (usage),
/// which begins with `refusal`, when there is nobody to ask.
bool confirmedOnTerminal(const std::string& question, const std::string& refusal);

} // namespace tarn
