#pragma once

#include "platform/predicate/NSPredicate.h"

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace tarn {

/// A search as one types it: words that must be in the text (of an encrypted note: in the title), without case and
/// diacritics; `#tag` or `#tag of several words#`; a `-` in front of either for notes without it.
struct SearchQuery {
    std::optional<NSPredicate> predicate; ///< none for a query that asks for nothing: every note
    std::vector<std::string> words;       ///< folded words that a hit shows
};

SearchQuery searchQueryOfText(std::string_view text);

} // namespace tarn
