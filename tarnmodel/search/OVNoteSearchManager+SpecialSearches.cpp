#include "tarnmodel/platform/foundation/text/Characters.h"
#include "tarnmodel/search/DateTerms.h"
#include "tarnmodel/search/OVNoteSearchManager.h"
#include "tarnmodel/search/Vocabulary.h"
#include "tarnmodel/search/Words.h"

namespace tarn {

namespace {

/// Whether the word adds something to a search that no text would.
bool isSpecial(std::string_view word)
{
    return lowercased(word) == OVNoteSearchManager::orConjunction()
        || OVNoteSearchManager::predicateStringForSpecialSearch(word).has_value();
}

} // namespace

std::optional<std::string> OVNoteSearchManager::mainSpecialForString(std::string_view string)
{
    const Term* term = termOfWord(string);
    return term ? std::optional(std::string(term->name())) : std::nullopt;
}

std::optional<std::string> OVNoteSearchManager::isString(std::string_view string, std::string_view specialSearch)
{
    const bool isKnownHere = specialSearch != "@pinned" && specialSearch != "@untitled";
    const Term* term = isKnownHere ? termNamed(specialSearch) : nullptr;
    const std::string_view spelling = term ? term->matchingSpelling(string) : std::string_view();
    return spelling.empty() ? std::nullopt : std::optional(std::string(spelling));
}

std::optional<std::string> OVNoteSearchManager::predicateStringForSpecialSearch(std::string_view string, bool notSearch)
{
    const Term* term = termOfWord(string);
    if (!term)
        return std::nullopt;
    if (term->form == FragmentForm::Date)
        return dateFragment(*term, string, notSearch);
    const auto fragment = constantFragment(*term, notSearch);
    return fragment ? std::optional(std::string(*fragment)) : std::nullopt;
}

std::optional<std::string> OVNoteSearchManager::predicateStringForSpecialSearch(std::string_view string)
{
    return predicateStringForSpecialSearch(string, false);
}

std::string OVNoteSearchManager::lastDaySpecialSearchEndPartWithInitialPart(std::string_view initialPart)
{
    return std::string(suffixOfLastDays(initialPart));
}

std::string OVNoteSearchManager::createdSpecialSearchEndPartWithInitialPart(std::string_view initialPart)
{
    return std::string(suffixOfCreatedDays(initialPart));
}

bool OVNoteSearchManager::searchStringContainsSpecialSearches(std::string_view searchString)
{
    for (WordSplitter words(searchString); const auto word = words.next();) {
        if (isSpecial(*word))
            return true;
    }
    return false;
}

std::string OVNoteSearchManager::searchStringWithoutSpecialSearches(std::string_view searchString)
{
    std::string result;
    for (WordSplitter words(searchString); const auto word = words.next();) {
        const bool isNegated = word->size() > 1 && word->starts_with('-');
        if (word->empty() || isNegated || isSpecial(*word))
            continue;
        if (!result.empty())
            result += ' ';
        result += *word;
    }
    return result;
}

} // namespace tarn
