#include "tarnmodel/search/HighlightTerms.h"

#include "tarnmodel/platform/foundation/text/Characters.h"
#include "tarnmodel/platform/foundation/text/UTF.h"
#include "tarnmodel/search/ExpressionMatches.h"
#include "tarnmodel/search/OVNoteSearchManager.h"
#include "tarnmodel/search/Words.h"

namespace tarn {

namespace {

using Kind = HighlightTerm::Kind;

void addPhrase(HighlightTerms& result, std::u16string_view match)
{
    if (match.starts_with(u'-'))
        return;
    std::string inner = utf8FromUTF16(match.substr(1, match.size() - 2));
    const Kind kind = containsBlank(inner) ? Kind::Text : Kind::Word;
    result.terms.push_back({std::move(inner), kind});
}

void addTag(HighlightTerms& result, std::u16string_view match)
{
    if (match.starts_with(u'!')) {
        result.terms.push_back({utf8FromUTF16(match.substr(1)), Kind::PartOfTag});
    } else if (match.starts_with(u"#*/")) {
        const std::string path = utf8FromUTF16(match.substr(2));
        result.terms.push_back({path, Kind::PartOfTag});
        result.terms.push_back({path + "/", Kind::PartOfTag});
    } else if (!match.starts_with(u'-')) {
        result.terms.push_back({utf8FromUTF16(match), Kind::Tag});
    }
}

void addWord(HighlightTerms& result, std::string_view word)
{
    if (word.empty() || word.starts_with('-'))
        return;
    if (OVNoteSearchManager::isString(word, "@title"))
        result.titleSearch = true;
    else if (OVNoteSearchManager::isString(word, "@ocr"))
        result.ocrSearch = true;
    else if (lowercased(word) != OVNoteSearchManager::orConjunction()
        && !OVNoteSearchManager::predicateStringForSpecialSearch(word))
        result.terms.push_back({std::string(word)});
}

} // namespace

HighlightTerms highlightTermsOfSearchString(std::string_view searchString)
{
    HighlightTerms result;
    const auto cut = [](const std::u16string& text, const NSRange& range) {
        return std::u16string_view(text).substr(range.location, range.length);
    };
    const std::u16string all = utf16FromUTF8(searchString);
    const std::vector<NSRange> phrases = quotedMatches(all);
    for (const NSRange& range : phrases)
        addPhrase(result, cut(all, range));

    const std::u16string withoutPhrases = textWithoutRanges(all, phrases);
    const std::vector<NSRange> tags = tagMatches(withoutPhrases);
    for (const NSRange& range : tags)
        addTag(result, cut(withoutPhrases, range));

    const std::string rest = utf8FromUTF16(textWithoutRanges(withoutPhrases, tags));
    for (WordSplitter words(rest); const auto word = words.next();)
        addWord(result, *word);
    return result;
}

} // namespace tarn
