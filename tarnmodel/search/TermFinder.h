#pragma once

#include "tarnmodel/platform/foundation/text/Folding.h"
#include "tarnmodel/search/HighlightTerms.h"

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace tarn {

/// Where the terms of a search stand in a text, each as the search looks for it: a word anywhere, a quoted one between
/// characters that belong to no word, a tag as a hashtag. What a list shows of a note and what it marks there come from
/// here.
///
/// Immutable; any thread.
///
///     const TermFinder finder(highlightTermsOfSearchString("\"pie\" #fruit").terms);
///     const auto first = finder.firstPlace(text);
class TermFinder {
public:
    /// Copies what it needs of the terms.
    explicit TermFinder(const std::vector<HighlightTerm>& terms);

    /// Whether there is nothing to look for.
    bool isEmpty() const noexcept { return terms_.empty(); }
    /// The first place of any term that begins at or after `from`, in bytes; of several there the longest.
    std::optional<FoldedRange> firstPlace(std::string_view text, std::size_t from = 0) const;
    /// All places from the first on, none of which overlaps another.
    std::vector<FoldedRange> places(std::string_view text) const;

private:
    struct Term {
        std::string folded; ///< of a tag: its path
        HighlightTerm::Kind kind;
    };
    static std::optional<FoldedRange> placeOf(const Term& term, std::string_view text, std::size_t from);

    std::vector<Term> terms_;
};

} // namespace tarn
