#include "tools/tarn/listing/NearestTerm.h"

#include "tarnmodel/platform/foundation/text/Characters.h"
#include "tools/tarn/listing/SpellingDistance.h"

namespace tarn {

namespace {

constexpr std::size_t kLongestTerm = 40; ///< code points; the longest term has 12
constexpr std::size_t kShortestBeginning = 4;

/// What to write for a spelling of a term. One with capitals is known to nobody, since words are brought to lower case.
std::string writable(const Term& term, std::string_view spelling)
{
    const std::string_view known = lowercased(spelling) == spelling ? spelling : term.name();
    if (term.match == TermMatch::Exact || term.form != FragmentForm::Date)
        return std::string(known);
    return known.ends_with('(') ? std::string(known) + "2021-03)" : std::string(term.name()) + "7days";
}

/// A word with the argument of a date cut off: "@dates(" of "@dates(2021)".
std::string_view withoutArgument(std::string_view word)
{
    const std::size_t parenthesis = word.find('(');
    return parenthesis == std::string_view::npos ? word : word.substr(0, parenthesis + 1);
}

template <typename Visit> void forEachSpelling(const Visit& visit)
{
    for (const Term& term : termsOfSearches())
        for (const std::string_view spelling : term.spellings)
            if (!spelling.empty())
                visit(term, spelling);
}

NearestTerm termWithFewestSlips(std::string_view word)
{
    const std::u32string wanted = spellingOf(withoutArgument(word));
    NearestTerm nearest;
    std::size_t fewest = wanted.size() > kLongestTerm ? 0 : slipsIn(wanted.size() - 1) + 1;
    forEachSpelling([&](const Term& term, std::string_view spelling) {
        if (fewest == 0)
            return;
        const std::size_t slips = spellingDistance(wanted, spellingOf(spelling), fewest - 1);
        if (slips >= fewest)
            return;
        fewest = slips;
        nearest = {&term, writable(term, spelling)};
    });
    return nearest;
}

NearestTerm termWithSameBeginning(std::string_view word)
{
    NearestTerm nearest;
    forEachSpelling([&](const Term& term, std::string_view spelling) {
        if (nearest.term)
            return;
        std::string_view name = spelling;
        if (name.ends_with('('))
            name.remove_suffix(1);
        const bool beginsTerm = word.size() >= kShortestBeginning && name.starts_with(word);
        const bool hasArgument = term.form == FragmentForm::Date && term.match == TermMatch::Prefix;
        if (beginsTerm || (hasArgument && word.starts_with(name)))
            nearest = {&term, writable(term, spelling)};
    });
    return nearest;
}

} // namespace

NearestTerm nearestTerm(std::string_view word)
{
    const NearestTerm nearest = termWithFewestSlips(word);
    return nearest.term ? nearest : termWithSameBeginning(word);
}

} // namespace tarn
