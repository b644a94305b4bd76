#include "tarnmodel/search/SearchCompiler.h"

#include "tarnmodel/platform/foundation/text/Characters.h"
#include "tarnmodel/platform/foundation/text/UTF.h"
#include "tarnmodel/search/Clauses.h"
#include "tarnmodel/search/ExpressionMatches.h"
#include "tarnmodel/search/OVNoteSearchManager.h"
#include "tarnmodel/search/Words.h"

#include <algorithm>
#include <array>

namespace tarn {

namespace {

constexpr char32_t kZeroWidthJoiner = 0x200D;
constexpr std::size_t kShortestNegatedPhrase = 4; ///< -"x"
constexpr std::string_view kAnd = " AND ";
constexpr std::string_view kOr = " OR ";

std::string parenthesised(std::string_view text)
{
    return "(" + std::string(text) + ")";
}

OVNoteSearchToken phraseToken(std::u16string_view match, NSRange range, bool ocr)
{
    const bool isNegated = match.front() == u'-' && match.size() >= kShortestNegatedPhrase;
    if (isNegated)
        match.remove_prefix(1);
    const std::string inner = utf8FromUTF16(match.substr(1, match.size() - 2));
    if (inner.empty())
        return {range, {}};
    const std::string clause = containsBlank(inner) ? quotedPhraseClause(inner, ocr) : quotedWordClause(inner, ocr);
    return {range, (isNegated ? "NOT " : "") + parenthesised(clause)};
}

OVNoteSearchToken tagToken(std::u16string_view match, NSRange range)
{
    std::string (*clause)(std::string_view) = &tagClause;
    std::size_t prefix = 0;
    if (match.starts_with(u'!')) {
        clause = &tagWithoutSubtagsClause;
        prefix = 1;
    } else if (match.starts_with(u'-')) {
        clause = &negatedTagClause;
        prefix = 1;
    } else if (match.starts_with(u"#*/")) {
        clause = &subtagPathClause;
        prefix = 2; // the slash stays
    }
    std::string name = utf8FromUTF16(match.substr(prefix));
    std::erase(name, '#');
    return {range, name.empty() ? std::string() : parenthesised(clause(name))};
}

void replaceAll(std::string& text, std::string_view wanted, std::string_view replacement)
{
    std::string result;
    std::size_t begin = 0;
    for (std::size_t end; (end = text.find(wanted, begin)) != std::string::npos; begin = end + wanted.size())
        result.append(text, begin, end - begin).append(replacement);
    if (begin != 0)
        text = std::move(result.append(text, begin));
}

} // namespace

std::string cleanedSearchString(std::string_view string)
{
    const std::string valid = validUTF8(string);
    const std::string_view rest = trimmed(std::string_view(valid));
    std::string result;
    for (std::size_t offset = 0; offset < rest.size();) {
        const DecodedCodePoint next = decodeCodePoint(rest, offset);
        const bool isSeparator = next.codePoint == 0x2028 || next.codePoint == 0x2029;
        if (isSeparator)
            result += ' ';
        else if (next.codePoint == kZeroWidthJoiner || !isControlOrFormat(next.codePoint))
            result += rest.substr(offset, next.length);
        offset += next.length;
    }
    return result;
}

std::vector<OVNoteSearchToken> tokensOfSearchString(std::string_view cleaned, bool ocr)
{
    const std::u16string units = utf16FromUTF8(cleaned);
    const std::u16string_view text = units;
    std::vector<OVNoteSearchToken> tokens;
    for (const NSRange& range : quotedMatches(text))
        tokens.push_back(phraseToken(text.substr(range.location, range.length), range, ocr));
    for (const NSRange& range : tagMatches(text))
        tokens.push_back(tagToken(text.substr(range.location, range.length), range));
    return tokens;
}

TokenIndex::TokenIndex(std::vector<OVNoteSearchToken>& tokens) : tokens_(tokens), firstOfSecondKind_(tokens.size())
{
    for (std::size_t index = 1; index < tokens.size(); ++index) {
        if (tokens[index].range().location < tokens[index - 1].range().end()) {
            firstOfSecondKind_ = index;
            return;
        }
    }
}

OVNoteSearchToken* TokenIndex::tokenForLocation(std::uint64_t location) const
{
    const auto begins = [](const OVNoteSearchToken& token) { return token.range().location; };
    const auto middle = tokens_.begin() + static_cast<std::ptrdiff_t>(firstOfSecondKind_);
    const std::array kinds{std::pair(tokens_.begin(), middle), std::pair(middle, tokens_.end())};
    for (const auto& [begin, end] : kinds) {
        const auto after = std::ranges::upper_bound(begin, end, location, {}, begins);
        if (after != begin && std::prev(after)->includeLocation(location))
            return &*std::prev(after);
    }
    return nullptr;
}

SearchCompiler::SearchCompiler(std::string_view searchString, bool ocr)
    : cleaned_(cleanedSearchString(searchString)), ocr_(ocr), conjunction_(kAnd)
{ }

std::string SearchCompiler::predicateText()
{
    std::vector<OVNoteSearchToken> tokens = tokensOfSearchString(cleaned_, ocr_);
    const TokenIndex index(tokens);
    std::uint64_t location = 0;
    for (WordSplitter words(cleaned_); const auto word = words.next();) {
        // An empty word does not count, so each doubled blank shifts the words behind it; kept.
        if (word->empty())
            continue;
        const std::string lower = lowercased(*word);
        if (OVNoteSearchToken* token = index.tokenForLocation(location))
            takeToken(*token);
        else
            takeWord(lower);
        location += utf16Length(lower) + 1;
    }
    applySwitches();
    return std::move(result_);
}

void SearchCompiler::takeToken(OVNoteSearchToken& token)
{
    if (token.predicatedUsed())
        return;
    join();
    result_ += parenthesised(token.predicateString());
    token.setPredicatedUsed(true);
}

void SearchCompiler::takeWord(const std::string& word)
{
    if (OVNoteSearchManager::isString(word, "@title")) {
        titleOnly_ = true;
    } else if (OVNoteSearchManager::isString(word, "@ocr")) {
        ocrOnly_ = true;
    } else if (word == OVNoteSearchManager::orConjunction()) {
        andNext_ = false;
        conjunction_ = kOr;
    } else {
        join();
        takeFreeWord(word);
    }
}

void SearchCompiler::takeFreeWord(std::string_view word)
{
    const bool isNegated = word.size() > 1 && word.starts_with('-');
    if (isNegated)
        word.remove_prefix(1);
    if (const auto fragment = OVNoteSearchManager::predicateStringForSpecialSearch(word, isNegated)) {
        result_ += *fragment; // no parentheses: what it joins binds by the rules of the predicate language
        return;
    }
    if (isNegated)
        result_ += "NOT ";
    result_ += parenthesised(freeTextClause(word, ocr_));
}

// An "or" in front of everything waits for the second clause.
void SearchCompiler::join()
{
    if (andNext_)
        conjunction_ = kAnd;
    if (result_.empty())
        return;
    result_ += conjunction_;
    andNext_ = true;
}

void SearchCompiler::applySwitches()
{
    if (titleOnly_) {
        replaceAll(result_, "text CONTAINS[cd]", "title CONTAINS[cd]");
        replaceAll(result_, "text MATCHES[cd]", "title MATCHES[cd]");
        replaceAll(result_, "1 == 1", "1 == 0");
    } else if (ocrOnly_ && ocr_) {
        replaceAll(result_, "text CONTAINS[cd]", "ANY files.searchText CONTAINS[cd]");
        replaceAll(result_, "title CONTAINS[cd]", "ANY files.searchText CONTAINS[cd]");
    }
}

} // namespace tarn
