#include "tarnmodel/platform/foundation/text/Characters.h"
#include "tarnmodel/platform/foundation/text/UTF.h"
#include "tarnmodel/platform/foundation/values/NSException.h"
#include "tarnmodel/search/ExpressionMatches.h"
#include "tarnmodel/search/HighlightTerms.h"
#include "tarnmodel/search/OVNoteSearchManager.h"
#include "tarnmodel/search/SearchCompiler.h"
#include "tarnmodel/search/Words.h"

namespace tarn {

namespace {

constexpr std::size_t kShortestNegatedPhrase = 4; ///< -"x"

std::string groupOf(const HighlightTerm& term)
{
    const std::string escaped = RegularExpression::escapedPattern(term.text);
    if (term.kind == HighlightTerm::Kind::Word)
        return R"(((?i)(?<!\w))" + escaped + R"((?!\w)))";
    return "(" + escaped + ")";
}

void raiseFlag(bool* flag, bool raised)
{
    if (flag && raised)
        *flag = true;
}

/// The phrase without its quotes, nothing for a negated one.
std::string editorTextOfPhrase(std::u16string_view match)
{
    if (match.starts_with(u'-') && match.size() >= kShortestNegatedPhrase)
        return {};
    return utf8FromUTF16(match.substr(1, match.size() - 2));
}

std::string editorTextOfTag(std::u16string_view match)
{
    if (match.starts_with(u'-'))
        return {};
    const std::size_t prefix = match.starts_with(u'!') ? 1 : match.starts_with(u"#*/") ? 2 : 0;
    return utf8FromUTF16(match.substr(prefix));
}

std::vector<OVNoteSearchToken> editorTokens(std::u16string_view text)
{
    std::vector<OVNoteSearchToken> tokens;
    for (const NSRange& range : quotedMatches(text))
        tokens.emplace_back(range, editorTextOfPhrase(text.substr(range.location, range.length)));
    const std::size_t phrases = tokens.size();
    std::size_t phrase = 0;
    for (const NSRange& range : tagMatches(text)) {
        // Tags never overlap, so only a phrase can hold the place already.
        while (phrase < phrases && tokens[phrase].range().end() <= range.location)
            ++phrase;
        if (phrase == phrases || !tokens[phrase].includeLocation(range.location))
            tokens.emplace_back(range, editorTextOfTag(text.substr(range.location, range.length)));
    }
    return tokens;
}

bool isPlainWord(std::string_view word)
{
    return !word.starts_with('-') && !OVNoteSearchManager::isString(word, "@title")
        && !OVNoteSearchManager::isString(word, "@ocr") && lowercased(word) != OVNoteSearchManager::orConjunction()
        && !OVNoteSearchManager::predicateStringForSpecialSearch(word);
}

} // namespace

std::string OVNoteSearchManager::likeOrPatternForSearchString(
    std::string_view searchString, bool* titleSearch, bool* ocrSearch)
{
    const HighlightTerms highlight = highlightTermsOfSearchString(searchString);
    raiseFlag(titleSearch, highlight.titleSearch);
    raiseFlag(ocrSearch, highlight.ocrSearch);
    std::string pattern;
    for (const HighlightTerm& term : highlight.terms) {
        if (!pattern.empty())
            pattern += '|';
        pattern += groupOf(term);
    }
    return pattern;
}

std::optional<RegularExpression> OVNoteSearchManager::likeOrRegexForSearchString(
    std::string_view searchString, bool* titleSearch, bool* ocrSearch)
{
    try {
        return RegularExpression(
            likeOrPatternForSearchString(searchString, titleSearch, ocrSearch), {.caseInsensitive = true});
    } catch (const NSException&) {
        return std::nullopt;
    }
}

std::optional<RegularExpression> OVNoteSearchManager::defaultSearchRegexForSearchString(
    std::string_view searchString, bool* titleSearch, bool* ocrSearch)
{
    return likeOrRegexForSearchString(searchString, titleSearch, ocrSearch);
}

std::string OVNoteSearchManager::searchStringForNoteEditor(std::string_view searchString)
{
    const std::string valid = validUTF8(searchString);
    const std::u16string units = utf16FromUTF8(valid);
    std::vector<OVNoteSearchToken> tokens = editorTokens(units);
    const TokenIndex index(tokens);
    std::uint64_t location = 0;
    for (WordSplitter words(valid); const auto word = words.next();) {
        // An empty word does not count, as in the compiler; kept.
        if (word->empty())
            continue;
        std::string term;
        if (OVNoteSearchToken* token = index.tokenForLocation(location)) {
            if (!token->predicatedUsed())
                term = token->predicateString();
            token->setPredicatedUsed(true);
        } else if (isPlainWord(*word)) {
            term = *word;
        }
        if (!term.empty() && !term.starts_with('-'))
            return term;
        location += utf16Length(*word) + 1;
    }
    return {};
}

} // namespace tarn
