#pragma once

#include <array>
#include <optional>
#include <span>
#include <string>
#include <string_view>

namespace tarn {

/// How a word is compared with the spellings of a term: byte by byte, letter case and all.
enum class TermMatch {
    Exact,  ///< the word is the spelling
    Prefix, ///< the word begins with it; what follows is the argument
};

/// What becomes of the text of a term's fragment.
enum class FragmentForm {
    None,       ///< the term has no fragment: it is a switch
    Raw,        ///< the text as it stands
    Normalised, ///< its canonical form
    Wrapped,    ///< its canonical form between "( " and " )"
    Date,       ///< computed from the present day or the argument, and wrapped
};

/// One term of the search language.
struct Term {
    /// English, which names the term; Japanese, Korean, Russian, Simplified and Traditional Chinese. Empty where a
    /// language has no word for it.
    std::array<std::string_view, 6> spellings;
    TermMatch match = TermMatch::Exact;
    FragmentForm form = FragmentForm::None;
    std::string_view fragment = {};
    std::string_view negatedFragment = {};

    std::string_view name() const noexcept { return spellings.front(); }
    /// The first spelling that matches the word; empty for none.
    std::string_view matchingSpelling(std::string_view word) const noexcept;
};

/// All terms; they live as long as the program. Any thread.
std::span<const Term> termsOfSearches() noexcept;
/// The first term that the word matches, or null.
const Term* termOfWord(std::string_view word) noexcept;
/// The term with this English spelling, or null.
const Term* termNamed(std::string_view name) noexcept;

/// What stands behind the number of days of "@last" and "@created", by the spelling in front.
std::string_view suffixOfLastDays(std::string_view spelling) noexcept;
std::string_view suffixOfCreatedDays(std::string_view spelling) noexcept;

/// The fragment of a term in its final form; none for a switch or a date. It lives as long as the program.
std::optional<std::string_view> constantFragment(const Term& term, bool negated);
/// The canonical form of a fragment, wrapped as the form says.
std::string fragmentInForm(std::string_view canonicalText, FragmentForm form);

} // namespace tarn
