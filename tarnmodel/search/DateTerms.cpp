#include "tarnmodel/search/DateTerms.h"

#include "tarnmodel/platform/foundation/text/SpelledOutNumber.h"
#include "tarnmodel/platform/foundation/text/UTF.h"
#include "tarnmodel/platform/foundation/values/NSDate+Chrono.h"
#include "tarnmodel/platform/predicate/NSPredicate.h"
#include "tarnmodel/search/OVNoteSearchManager.h"

#include <algorithm>
#include <limits>

namespace tarn {

namespace {

constexpr std::int64_t kSecondsPerDay = 86'400;
/// The first day of the calendar, 0001-01-01 in UTC.
constexpr std::int64_t kDistantPast = -63'114'076'800;

struct FragmentPair {
    std::string_view plain;
    std::string_view negated;
};
/// What a term asks of one of the two dates of a note.
struct DateFragments {
    FragmentPair range;
    FragmentPair later;   ///< ">", after the end of the period
    FragmentPair earlier; ///< "<", not after the beginning of the period
};

constexpr DateFragments kModification{
    {"( (modificationDate >= %@) AND (modificationDate <= %@) )",
        "( (modificationDate < %@) OR (modificationDate > %@) )"},
    {"( modificationDate > %@ )", "( modificationDate <= %@) "},
    {"( modificationDate <= %@ )", "( modificationDate > %@) "},
};
constexpr DateFragments kCreation{
    {"( (creationDate >= %@) AND (creationDate <= %@) )", "( (creationDate < %@) OR (creationDate > %@) )"},
    {"( creationDate > %@ )", "( creationDate <= %@) "},
    {"( creationDate <= %@ )", "( creationDate > %@) "},
};

struct Period {
    NSDate begin;
    NSDate end;
};

std::string_view formatOf(const FragmentPair& pair, bool negated)
{
    return negated ? pair.negated : pair.plain;
}

std::string rangeFragment(const DateFragments& fragments, const Period& period, bool negated)
{
    return NSPredicate::predicateWithFormat(formatOf(fragments.range, negated), period.begin, period.end)
        .predicateFormat();
}

/// From the beginning of one day to the end of another.
Period daysFrom(NSDate first, NSDate last)
{
    std::optional<NSDate> begin;
    std::optional<NSDate> end;
    OVNoteSearchManager::endAndBeginOfDayDatesFromDate(first, &begin, nullptr);
    OVNoteSearchManager::endAndBeginOfDayDatesFromDate(last, nullptr, &end);
    return {*begin, *end};
}

/// What stands between `initial`, with which the word begins, and the first `close`, with which it must end.
std::optional<std::string_view> argumentBetween(std::string_view word, std::string_view initial, std::string_view close)
{
    const std::size_t found = word.find(close);
    if (found == std::string_view::npos || found + close.size() != word.size() || found < initial.size())
        return std::nullopt;
    return word.substr(initial.size(), found - initial.size());
}

/// Blanks, a sign, digits; 0 without digits. Stops at the ends of 32 bits.
std::int32_t leadingInteger(std::string_view text)
{
    while (!text.empty() && isWhiteSpace(decodeCodePoint(text, 0).codePoint))
        text.remove_prefix(decodeCodePoint(text, 0).length);
    const bool isNegative = text.starts_with('-');
    if (isNegative || text.starts_with('+'))
        text.remove_prefix(1);
    std::int64_t number = 0;
    for (const char digit : text) {
        if (digit < '0' || digit > '9')
            break;
        number = std::min<std::int64_t>(number * 10 + (digit - '0'), std::int64_t(1) << 32);
    }
    const std::int64_t value = isNegative ? -number : number;
    using Limits = std::numeric_limits<std::int32_t>;
    return static_cast<std::int32_t>(std::clamp<std::int64_t>(value, Limits::min(), Limits::max()));
}

std::int32_t wrappedTo32Bits(std::int64_t number)
{
    return static_cast<std::int32_t>(static_cast<std::uint32_t>(static_cast<std::uint64_t>(number)));
}

/// From the day so many days ago to the end of today. The seconds are counted in 32 bits, which more than 24,855 days
/// overflow; kept.
Period lastDays(std::int32_t days)
{
    const NSDate present = now();
    if (days < 0)
        return daysFrom(dateWithMicrosecondsSinceReferenceDate(kDistantPast * 1'000'000), present);
    const std::int32_t seconds = wrappedTo32Bits(days * kSecondsPerDay);
    return daysFrom(present - std::chrono::seconds(seconds), present);
}

std::optional<std::string> fragmentOfDays(const DateFragments& fragments, std::string_view word,
    std::string_view initial, std::string_view suffix, bool inNumerals, bool negated)
{
    const auto number = argumentBetween(word, initial, suffix);
    if (!number)
        return std::nullopt;
    const std::int32_t days
        = inNumerals ? wrappedTo32Bits(integerFromChineseNumerals(*number).value_or(0)) : leadingInteger(*number);
    return days == 0 ? std::nullopt : std::optional(rangeFragment(fragments, lastDays(days), negated));
}

std::optional<std::string> fragmentOfPeriod(
    const DateFragments& fragments, std::string_view word, std::string_view initial, bool negated)
{
    const std::string_view close = word.find(')') != std::string_view::npos ? ")" : "）";
    auto text = argumentBetween(word, initial, close);
    if (!text)
        return std::nullopt;
    const bool isLater = text->starts_with('>');
    const bool isEarlier = text->starts_with('<');
    if (isLater || isEarlier)
        text->remove_prefix(1);
    std::optional<NSDate> begin;
    std::optional<NSDate> end;
    OVNoteSearchManager::endAndBeginPeriodDatesFromDateString(*text, &begin, &end);
    if (!begin || !end)
        return std::nullopt;
    if (!isLater && !isEarlier)
        return rangeFragment(fragments, {*begin, *end}, negated);
    const FragmentPair& pair = isLater ? fragments.later : fragments.earlier;
    return NSPredicate::predicateWithFormat(formatOf(pair, negated), isLater ? *end : *begin).predicateFormat();
}

bool isWrittenInNumerals(std::string_view spelling)
{
    return spelling == "@前" || spelling == "@過去";
}

/// Its canonical form.
std::optional<std::string> canonicalDateFragment(const Term& term, std::string_view word, bool negated)
{
    const std::string_view initial = term.matchingSpelling(word);
    const NSDate present = now();
    if (term.name() == "@today")
        return rangeFragment(kModification, daysFrom(present, present), negated);
    if (term.name() == "@ctoday")
        return rangeFragment(kCreation, daysFrom(present, present), negated);
    if (term.name() == "@yesterday") {
        const NSDate before = present - std::chrono::seconds(kSecondsPerDay); // not a day of the calendar; kept
        return rangeFragment(kModification, daysFrom(before, before), negated);
    }
    if (term.name() == "@last")
        return fragmentOfDays(
            kModification, word, initial, suffixOfLastDays(initial), isWrittenInNumerals(initial), negated);
    if (term.name() == "@created")
        return fragmentOfDays(kCreation, word, initial, suffixOfCreatedDays(initial), false, negated);
    return fragmentOfPeriod(term.name() == "@date(" ? kModification : kCreation, word, initial, negated);
}

} // namespace

std::optional<std::string> dateFragment(const Term& term, std::string_view word, bool negated)
{
    const auto fragment = canonicalDateFragment(term, word, negated);
    return fragment ? std::optional(fragmentInForm(*fragment, FragmentForm::Date)) : std::nullopt;
}

} // namespace tarn
