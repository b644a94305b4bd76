#include "tools/tarn/listing/SearchHints.h"

#include "tarnmodel/platform/foundation/text/Characters.h"
#include "tarnmodel/platform/foundation/text/UTF.h"
#include "tarnmodel/search/OVNoteSearchManager.h"
#include "tarnmodel/search/SearchCompiler.h"
#include "tarnmodel/search/Vocabulary.h"
#include "tarnmodel/search/Words.h"
#include "tools/tarn/commandline/CommandLine.h"
#include "tools/tarn/commandline/DisplayText.h"
#include "tools/tarn/listing/NearestTerm.h"

#include <algorithm>
#include <array>
#include <optional>

namespace tarn {

namespace {

constexpr std::size_t kMostHints = 5;
constexpr std::size_t kShownColumns = 40;

struct Operator {
    std::string_view word;
    std::string_view instead;
};
constexpr std::array kOperators{
    Operator{"AND", "words that stand together must all fit, so leave it out"},
    Operator{"&&", "words that stand together must all fit, so leave it out"},
    Operator{"||", "write \"or\""},
    Operator{"|", "write \"or\""},
    Operator{"NOT", "write \"-\" in front of the word that must not be there"},
};

/// What other programs ask for with a word and a colon, and how it is written here; nothing where it cannot be asked.
struct Keyword {
    std::string_view name;
    std::string_view before;
    std::string_view behind;
};
constexpr std::array kKeywords{
    Keyword{"title", "@title ", ""},
    Keyword{"intitle", "@title ", ""},
    Keyword{"name", "@title ", ""},
    Keyword{"tag", "#", ""},
    Keyword{"tags", "#", ""},
    Keyword{"label", "#", ""},
    Keyword{"date", "@date(", ")"},
    Keyword{"modified", "@date(", ")"},
    Keyword{"updated", "@date(", ")"},
    Keyword{"created", "@cdate(", ")"},
    Keyword{"before", "@date(<", ")"},
    Keyword{"after", "@date(>", ")"},
    Keyword{"since", "", ""},
    Keyword{"is", "@", ""},
    Keyword{"has", "@", ""},
    Keyword{"path", "", ""},
    Keyword{"file", "", ""},
    Keyword{"folder", "", ""},
    Keyword{"notebook", "", ""},
    Keyword{"text", "", ""},
    Keyword{"body", "", ""},
    Keyword{"content", "", ""},
    Keyword{"type", "", ""},
};

std::string inQuotes(std::string_view word)
{
    return "\"" + textFittedToWidth(displayText(word), kShownColumns) + "\"";
}

std::string advice(const std::vector<std::string>& suggestions)
{
    std::string text;
    for (const std::string& suggestion : suggestions)
        text += (text.empty() ? "; write " : " or ") + suggestion;
    return text;
}

std::optional<SearchHint> hintForDate(std::string_view word, const Term& term)
{
    const bool isNumberOfDays = !term.name().ends_with('(');
    const std::vector<std::string> suggestions = isNumberOfDays
        ? std::vector{std::string(term.name()) + "7days"}
        : std::vector{std::string(term.name()) + "2021)", std::string(term.name()) + "2021-03)",
            std::string(term.name()) + "2021-03-15)"};
    return SearchHint{"date", std::string(word),
        inQuotes(word) + " holds no " + (isNumberOfDays ? "number of days" : "date") + ", and is looked for as a word"
            + advice(suggestions),
        suggestions};
}

/// A word that begins with "@".
std::optional<SearchHint> hintForTerm(std::string_view word, std::string_view sign)
{
    const std::string lower = lowercased(word);
    if (const Term* term = termOfWord(lower)) {
        const bool isRead = term->form != FragmentForm::Date
            || OVNoteSearchManager::predicateStringForSpecialSearch(lower).has_value();
        return isRead ? std::nullopt : hintForDate(word, *term);
    }
    const NearestTerm nearest = nearestTerm(lower);
    if (nearest.term && nearest.term->form == FragmentForm::Date && nearest.term->match == TermMatch::Prefix)
        return hintForDate(word, *nearest.term);
    SearchHint hint{
        "term", std::string(word), inQuotes(word) + " is no term of a search, and is looked for as a word", {}};
    if (nearest.term) {
        hint.suggestions = {std::string(sign) + nearest.spelling};
        hint.text += "; did you mean " + hint.suggestions.front() + "?";
    }
    return hint;
}

std::optional<SearchHint> hintForOperator(std::string_view word)
{
    const auto* found = std::ranges::find(kOperators, word, &Operator::word);
    if (found == kOperators.end())
        return std::nullopt;
    return SearchHint{
        "operator", std::string(word), inQuotes(word) + " is looked for as a word; " + std::string(found->instead), {}};
}

bool isDate(std::string_view text)
{
    std::optional<NSDate> begin;
    OVNoteSearchManager::endAndBeginPeriodDatesFromDateString(text, &begin, nullptr);
    return begin.has_value();
}

/// What a keyword with this value is in the language of searches; empty where there is nothing like it.
std::string termForKeyword(const Keyword& keyword, std::string_view value)
{
    if (keyword.before.empty() || value.find('"') != std::string_view::npos)
        return {};
    if (keyword.behind == ")" && !isDate(value))
        return {};
    const std::string term = std::string(keyword.before).append(value).append(keyword.behind);
    if (keyword.before != "@" || termOfWord(lowercased(term)))
        return term;
    return nearestTerm(lowercased(term)).spelling;
}

std::optional<SearchHint> hintForKeyword(std::string_view word, std::string_view sign)
{
    const std::size_t colon = word.find(':');
    if (colon == std::string_view::npos || colon + 1 == word.size())
        return std::nullopt;
    const std::string name = lowercased(word.substr(0, colon));
    const auto* keyword = std::ranges::find(kKeywords, name, &Keyword::name);
    if (keyword == kKeywords.end())
        return std::nullopt;
    SearchHint hint{
        "keyword", std::string(word), inQuotes(word) + " is looked for as it stands: searches have no keywords", {}};
    const std::string term = termForKeyword(*keyword, word.substr(colon + 1));
    if (!term.empty())
        hint.suggestions = {(term.starts_with("@title") ? "" : std::string(sign)) + term};
    hint.text += advice(hint.suggestions);
    return hint;
}

/// A star at one end of a word, or in it: Markdown has them at both.
std::optional<SearchHint> hintForWildcard(std::string_view word, std::string_view sign)
{
    const std::size_t star = word.find('*');
    const bool isOnlyOne = star != std::string_view::npos && word.find('*', star + 1) == std::string_view::npos;
    if (!isOnlyOne || word.size() < 3)
        return std::nullopt;
    SearchHint hint{"wildcard", std::string(word),
        inQuotes(word) + " is looked for with its star; a word is found inside of longer ones as well", {}};
    if (star == 0 || star + 1 == word.size())
        hint.suggestions = {std::string(sign).append(star == 0 ? word.substr(1) : word.substr(0, star))};
    hint.text += advice(hint.suggestions);
    return hint;
}

std::optional<SearchHint> hintForParenthesis(std::string_view word)
{
    const bool opens = word.starts_with('(') && word.size() > 1;
    const bool closes = word.ends_with(')') && word.find('(') == std::string_view::npos && word.size() > 1;
    const bool isAlone = word == "(" || word == ")";
    if (!opens && !closes && !isAlone)
        return std::nullopt;
    return SearchHint{"parenthesis", std::string(word),
        inQuotes(word)
            + " is looked for with its parenthesis: searches have none; words that stand together bind tighter than "
              "\"or\"",
        {}};
}

std::optional<SearchHint> hintForWord(std::string_view word)
{
    const std::string_view sign = word.starts_with('-') && word.size() > 1 ? word.substr(0, 1) : std::string_view();
    const std::string_view rest = word.substr(sign.size());
    if (rest.starts_with('@') && rest.size() > 1)
        return hintForTerm(rest, sign);
    if (auto hint = hintForOperator(word))
        return hint;
    if (auto hint = hintForKeyword(rest, sign))
        return hint;
    if (auto hint = hintForParenthesis(rest))
        return hint;
    return hintForWildcard(rest, sign);
}

} // namespace

std::vector<SearchHint> hintsForSearch(std::string_view searchString)
{
    const std::string cleaned = cleanedSearchString(searchString);
    std::vector<OVNoteSearchToken> tokens = tokensOfSearchString(cleaned, false);
    const TokenIndex index(tokens);
    std::vector<SearchHint> hints;
    std::uint64_t location = 0;
    // The compiler's way over the words.
    for (WordSplitter words(cleaned); const auto word = words.next();) {
        if (word->empty())
            continue;
        auto hint = index.tokenForLocation(location) ? std::nullopt : hintForWord(*word);
        const bool isTold = hint && std::ranges::any_of(hints, [&](const SearchHint& told) {
            return told.word == hint->word || (hint->kind == "parenthesis" && told.kind == "parenthesis");
        });
        if (hint && !isTold)
            hints.push_back(std::move(*hint));
        if (hints.size() == kMostHints)
            break;
        location += utf16Length(lowercased(*word)) + 1;
    }
    return hints;
}

void tellHints(const std::vector<SearchHint>& hints)
{
    for (const SearchHint& hint : hints)
        tellOnStandardError(hint.text);
}

JSON jsonOfHints(const std::vector<SearchHint>& hints)
{
    JSON list = JSON::array();
    for (const SearchHint& hint : hints)
        list.push_back(
            {{"kind", hint.kind}, {"word", hint.word}, {"text", hint.text}, {"suggestions", hint.suggestions}});
    return list;
}

} // namespace tarn
