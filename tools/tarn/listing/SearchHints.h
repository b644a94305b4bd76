#pragma once

#include "tools/tarn/commandline/JSON.h"

#include <string>
#include <string_view>
#include <vector>

namespace tarn {

/// What may have been meant by a search, for who wrote it.
struct SearchHint {
    std::string kind; ///< for programs: term, date, operator, keyword, wildcard, parenthesis, titles, tags
    std::string word; ///< of the search; empty where all of it is meant
    std::string text; ///< for people, one line
    std::vector<std::string> suggestions; ///< what to write instead, or what there is
};

/// The words of a search that look like terms of its language and are none, so that they are looked for as they stand.
/// Not more than a few. Quoted words and tags are never taken for terms.
std::vector<SearchHint> hintsForSearch(std::string_view searchString);

/// One line each on standard error.
void tellHints(const std::vector<SearchHint>& hints);
/// `[{kind, word, text, suggestions[]}]`
JSON jsonOfHints(const std::vector<SearchHint>& hints);

} // namespace tarn
