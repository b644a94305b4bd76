#pragma once

#include "tarnmodel/search/Vocabulary.h"

#include <optional>
#include <string>
#include <string_view>

namespace tarn {

/// The fragment of a word that a date term matches, by the present time; none when its argument cannot be read.
std::optional<std::string> dateFragment(const Term& term, std::string_view word, bool negated);

} // namespace tarn
