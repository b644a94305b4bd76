#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace tarn {

/// What a search highlights in a note.
struct HighlightTerm {
    /// Where a term counts as found.
    enum class Kind {
        Text,      ///< anywhere
        Word,      ///< between characters that belong to no word
        Tag,       ///< a hashtag of this path or of one below it
        PartOfTag, ///< a hashtag whose path has it somewhere
    };
    std::string text;       ///< what is looked for; of a tag its path
    Kind kind = Kind::Text; ///< where it counts
};

/// The terms of a search string and the switches in it.
struct HighlightTerms {
    std::vector<HighlightTerm> terms; ///< phrases, then tags, then words
    bool titleSearch = false;         ///< the string holds "@title"
    bool ocrSearch = false;           ///< the string holds "@ocr"
};

/// What `OVNoteSearchManager::likeOrPatternForSearchString` makes its pattern of, for those who look by other means.
/// Any thread.
HighlightTerms highlightTermsOfSearchString(std::string_view searchString);

} // namespace tarn
