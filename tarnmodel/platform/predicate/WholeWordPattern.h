#pragma once

#include "tarnmodel/platform/foundation/text/Folding.h"

#include <optional>
#include <string>
#include <string_view>

namespace tarn {

/// Whether the character belongs to a word: `\w` of the regular expressions.
bool isWordCharacter(char32_t codePoint);

/// The pattern by which a search looks for a whole word, seen as a literal between two boundaries.
///
/// Tens of times faster than the regular expression, with the same answers. Immutable; any thread.
class WholeWordPattern {
public:
    /// None for any other pattern, and where the options leave letter case standing, which the pattern does not.
    static std::optional<WholeWordPattern> recognise(std::string_view pattern, ComparisonOptions options);

    /// Whether the literal stands somewhere in the text, folded by the same options, between characters (or ends) that
    /// belong to no word.
    bool matches(std::string_view foldedText) const;
    /// What an index may look for: a text that matches contains it. Folded, never empty.
    const std::string& literal() const noexcept { return literal_; }

private:
    explicit WholeWordPattern(std::string literal);

    std::string literal_;
};

} // namespace tarn
