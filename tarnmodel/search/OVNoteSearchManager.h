#pragma once

#include "tarnmodel/platform/foundation/text/RegularExpression.h"
#include "tarnmodel/platform/foundation/time/DateFormatter.h"
#include "tarnmodel/platform/foundation/values/NSDate.h"
#include "tarnmodel/platform/predicate/NSPredicate.h"
#include "tarnmodel/search/OVNoteSearchToken.h"

#include <optional>
#include <string>
#include <string_view>

namespace tarn {

/// Names of the attributes with which a search field marks what it recognised in the typed text. The library does not
/// read them.
inline constexpr std::string_view OVSearchQuoteAttribute = "Search Quote Attribute";
inline constexpr std::string_view OVSearchTagAttribute = "Search Tag Attribute";
inline constexpr std::string_view OVSearchSpecialAttribute = "Search Special Attribute";

/// The search language: what people type into the search field, as a predicate over notes and as what to highlight.
///
/// Holds no state but one setting; any thread. Texts are UTF-8, ill-formed parts read as U+FFFD; locations and lengths
/// count UTF-16 units. docs/search.md describes the language.
///
/// What it returns stands by itself: a predicate of a search names no record, and outlives every context. References
/// are to values of the process.
///
///     auto wanted = OVNoteSearchManager::predicateForSearchString("@todo #home -apple");
///     auto notes = OVNote::notesInManagedObjectContext(context, wanted);
class OVNoteSearchManager {
public:
    OVNoteSearchManager() = delete;

    // Compiling (tarnmodel/search/OVNoteSearchManager.cpp) -----------------------------------------------------------

    /// The notes that the string asks for. None when it asks for nothing: an empty string, or switches and "or" alone.
    /// Dates are those of the present; a predicate with dates goes stale at midnight. Raises the predicate parser's
    /// `NSInvalidArgumentException` where "@ocr" meets a tag that is looked for by containment, such as "#*/ideas".
    static std::optional<NSPredicate> predicateForSearchString(std::string_view searchString);
    /// What finds quoted phrases, and tags; `^` and `$` match at line ends. They take minutes for some texts of 100 KB,
    /// which is why the compiler finds the same matches by other means.
    static const RegularExpression& quotedSearchRegularExpression();
    static const RegularExpression& tagSearchRegularExpression();
    /// Whether searches also look into the recognised text of attachments; false until set. Read once by each
    /// compilation.
    static bool allowOCRSearch() noexcept;
    static void setAllowOCRSearch(bool allowOCRSearch) noexcept;
    /// "or", the word between alternatives.
    static std::string_view orConjunction() noexcept { return "or"; }

    // Special terms (tarnmodel/search/OVNoteSearchManager+SpecialSearches.cpp) ---------------------------------------
    // Words are taken as they are: letter case counts, a "-" in front is part of the word.

    /// The English spelling of the term that the word is in any language, or begins with where the term takes an
    /// argument; none for other words.
    static std::optional<std::string> mainSpecialForString(std::string_view string);
    /// The spelling of the term `specialSearch` (given in English) that the word is or begins with. None for another
    /// word, an unknown term, "@pinned" and "@untitled".
    static std::optional<std::string> isString(std::string_view string, std::string_view specialSearch);
    /// What the word stands for, or its negation, as a predicate text that can be joined to others. None for a word
    /// that is no term, for "@title" and "@ocr", and for a date that cannot be read.
    static std::optional<std::string> predicateStringForSpecialSearch(std::string_view string, bool notSearch);
    static std::optional<std::string> predicateStringForSpecialSearch(std::string_view string);
    /// What stands behind the number of days, by the spelling in front of it: "days" for "@last" and "@created".
    static std::string lastDaySpecialSearchEndPartWithInitialPart(std::string_view initialPart);
    static std::string createdSpecialSearchEndPartWithInitialPart(std::string_view initialPart);
    /// Whether any word is "or" or a term that stands for something by itself.
    static bool searchStringContainsSpecialSearches(std::string_view searchString);
    /// The other words: without such terms, negated words and "or".
    static std::string searchStringWithoutSpecialSearches(std::string_view searchString);

    // Dates (tarnmodel/search/OVNoteSearchManager+DateParsing.cpp) ---------------------------------------------------
    // In the Gregorian calendar and the zone of `Environment`. Results that are not asked for are null; what cannot
    // be read leaves the others as they are.

    /// 00:00:00 and 23:59:59 of the date's day.
    static void endAndBeginOfDayDatesFromDate(
        NSDate date, std::optional<NSDate>* beginDate, std::optional<NSDate>* endDate);
    /// From the first of its month to 00:59:59 on the first of the next one: an hour too long, and so it stays.
    static void endAndBeginOfMonthDatesFromDate(
        NSDate date, std::optional<NSDate>* beginDate, std::optional<NSDate>* endDate);
    /// From 1 January of its year to 00:59:59 on 1 January of the next one, likewise.
    static void endAndBeginOfYearDatesFromDate(
        NSDate date, std::optional<NSDate>* beginDate, std::optional<NSDate>* endDate);
    /// The bounds of a day, else of a month, else of a year, in one of the forms that the next three operations take.
    static void endAndBeginPeriodDatesFromDateString(
        std::string_view string, std::optional<NSDate>* beginDate, std::optional<NSDate>* endDate);
    /// A day in the short style of the current locale, as 2021-03-15, or as 20210315: its beginning.
    static std::optional<NSDate> ov_shortDateFromString(std::string_view string);
    /// A month as 03/2021, 03-2021, 2021-03 (or with one digit) or 202103: its beginning. None under 5 UTF-16 units.
    static std::optional<NSDate> ov_yearMonthDateFromString(std::string_view string);
    /// A year of four digits: its beginning.
    static std::optional<NSDate> ov_yearOnlyFromString(std::string_view string);
    /// For 2021-03-15.
    static DateFormatter ov_iso8601DateOnlyFormatter();
    /// For 20210315.
    static DateFormatter ov_noSeparatorsDateFormatter();

    // Highlighting (tarnmodel/search/OVNoteSearchManager+Highlighting.cpp) -------------------------------------------
    // What an open note shows of the search: words, phrases and tags that are not negated. Neither cleaned nor
    // brought to lower case first.

    /// An alternation of one group each: phrases, then tags, then words. Empty when there is nothing to highlight. Sets
    /// `titleSearch` or `ocrSearch`, where given, when the string holds "@title" or "@ocr"; never clears them.
    static std::string likeOrPatternForSearchString(
        std::string_view searchString, bool* titleSearch = nullptr, bool* ocrSearch = nullptr);
    /// The same as an expression that ignores letter case. None when ICU finds the pattern too large; an empty pattern
    /// matches the empty text everywhere.
    static std::optional<RegularExpression> likeOrRegexForSearchString(
        std::string_view searchString, bool* titleSearch = nullptr, bool* ocrSearch = nullptr);
    static std::optional<RegularExpression> defaultSearchRegexForSearchString(
        std::string_view searchString, bool* titleSearch = nullptr, bool* ocrSearch = nullptr);
    /// The first word, phrase (without quotes) or tag, for an editor's own find function; empty when there is none.
    static std::string searchStringForNoteEditor(std::string_view searchString);
};

} // namespace tarn
