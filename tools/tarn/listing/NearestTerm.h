#pragma once

#include "tarnmodel/search/Vocabulary.h"

#include <string>
#include <string_view>

namespace tarn {

/// The term of a search that a word is nearly; none without one.
struct NearestTerm {
    const Term* term = nullptr;
    std::string spelling; ///< what to write
};

/// The term, in any of its languages, from which a word that begins with "@" and is no term itself is a few slips away;
/// else the one that the word begins, or for a term with an argument, that begins the word. In lower case, as searches
/// are compiled.
NearestTerm nearestTerm(std::string_view word);

} // namespace tarn
