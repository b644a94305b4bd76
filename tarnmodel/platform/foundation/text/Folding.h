#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

namespace tarn {

/// The key by which names, titles and searched texts are compared without case and diacritics.
///
/// Canonical decomposition; full case folding of every code point but U+0345; removal of combining marks (U+0345
/// included) whose base, after folding, is below U+0510, and of format characters (Cf) but U+200D; full folding of what
/// is left; canonical composition. fold(fold(x)) == fold(x). Any bytes are taken: ill-formed UTF-8 reads as U+FFFD. Any
/// thread.
std::string fold(std::string_view text);
/// The same, appended to `result`, which lets a loop keep its buffer.
void appendFolded(std::string& result, std::string_view text);
/// Grows whenever `fold` may give other bytes for some text (new rules or new Unicode data); stores keep it beside what
/// they folded.
int foldingVersion() noexcept;

/// Case folding alone ("[c]") and removal of diacritics alone ("[d]"), by the same rules.
std::string foldCase(std::string_view text);
std::string foldDiacritics(std::string_view text);

/// How strings are compared: the options between the brackets of a predicate's operator.
struct ComparisonOptions {
    bool caseInsensitive = false;      ///< "c"
    bool diacriticInsensitive = false; ///< "d"
    friend bool operator==(const ComparisonOptions&, const ComparisonOptions&) = default;
};
/// The text as the options compare it: as it is, `foldCase`, `foldDiacritics` or `fold`.
std::string folded(std::string_view text, ComparisonOptions options);

/// fold(needle) is a substring of fold(text), code point by code point; an empty folded needle is contained nowhere.
/// Fold the needle once and keep it.
bool foldedContains(std::string_view text, std::string_view foldedNeedle);

/// A hit in the original text, widened to whole source characters; bytes.
struct FoldedRange {
    std::size_t location = 0; ///< of the first byte
    std::size_t length = 0;   ///< in bytes
    friend bool operator==(const FoldedRange&, const FoldedRange&) = default;
};
/// The first place at or after `from` (a byte offset) that shows the needle, for display only.
std::optional<FoldedRange> rangeOfFolded(std::string_view text, std::string_view foldedNeedle, std::size_t from = 0);

} // namespace tarn
