#include "tarnmodel/search/TermFinder.h"

#include "tarnmodel/corvel/CVKHashtag.h"
#include "tarnmodel/platform/foundation/text/UTF.h"
#include "tarnmodel/platform/predicate/WholeWordPattern.h"

#include <algorithm>

namespace tarn {

namespace {

using Kind = HighlightTerm::Kind;

/// How much text beside a place is looked at first.
constexpr std::size_t kFirstMargin = 16;

std::size_t startOfCharacter(std::string_view text, std::size_t offset)
{
    while (offset > 0 && offset < text.size() && (static_cast<unsigned char>(text[offset]) & 0xC0) == 0x80)
        --offset;
    return offset;
}

bool endsWithWordCharacter(std::string_view text)
{
    return !text.empty() && isWordCharacter(decodeCodePoint(text, startOfCharacter(text, text.size() - 1)).codePoint);
}

bool beginsWithWordCharacter(std::string_view text)
{
    return !text.empty() && isWordCharacter(decodeCodePoint(text, 0).codePoint);
}

/// What stands beside a word is asked in the folded text, where marks and soft hyphens are gone. None when the text
/// that was folded, from `begin` to `end`, is too short to tell.
std::optional<bool> isWholeWord(
    std::string_view text, const FoldedRange& place, const std::string& word, std::size_t begin, std::size_t end)
{
    const std::string around = fold(text.substr(begin, end - begin));
    const std::size_t first = fold(text.substr(begin, place.location - begin)).size();
    const std::size_t last = fold(text.substr(begin, place.location + place.length - begin)).size();
    for (std::size_t found = around.find(word, first); found != std::string::npos && found + word.size() <= last;
         found = around.find(word, found + 1)) {
        const std::string_view before = std::string_view(around).substr(0, found);
        const std::string_view after = std::string_view(around).substr(found + word.size());
        if ((before.empty() && begin > 0) || (after.empty() && end < text.size()))
            return std::nullopt;
        if (!endsWithWordCharacter(before) && !beginsWithWordCharacter(after))
            return true;
    }
    return false;
}

bool isWholeWord(std::string_view text, const FoldedRange& place, const std::string& word)
{
    for (std::size_t margin = kFirstMargin;; margin *= 8) {
        const std::size_t placeEnd = place.location + place.length;
        const std::size_t begin = startOfCharacter(text, place.location - std::min(place.location, margin));
        const std::size_t end = startOfCharacter(text, placeEnd + std::min(text.size() - placeEnd, margin));
        if (const auto is = isWholeWord(text, place, word, begin, end))
            return *is;
    }
}

std::optional<FoldedRange> placeOfWord(std::string_view text, const std::string& folded, std::size_t from)
{
    for (;;) {
        const auto place = rangeOfFolded(text, folded, from);
        if (!place)
            return std::nullopt;
        if (isWholeWord(text, *place, folded))
            return place;
        from = place->location + decodeCodePoint(text, place->location).length;
    }
}

bool isTagWanted(std::string_view path, const std::string& folded, Kind kind)
{
    if (kind == Kind::PartOfTag)
        return path.find(folded) != std::string_view::npos;
    return path == folded || (path.starts_with(folded) && path[folded.size()] == '/');
}

std::optional<FoldedRange> placeOfTag(std::string_view text, const std::string& folded, Kind kind, std::size_t from)
{
    for (std::size_t mark = text.find('#', from); mark != std::string_view::npos;) {
        const auto hashtag = CVKHashtag::hashtagAt(text, mark);
        if (hashtag && isTagWanted(CVKHashtag::normalizeTagName(hashtag->path), folded, kind))
            return FoldedRange{mark, hashtag->end - mark};
        mark = text.find('#', hashtag ? hashtag->end : mark + 1);
    }
    return std::nullopt;
}

} // namespace

TermFinder::TermFinder(const std::vector<HighlightTerm>& terms)
{
    for (const HighlightTerm& term : terms) {
        std::string text = term.text;
        if (term.kind == Kind::Tag || term.kind == Kind::PartOfTag)
            std::erase(text, '#');
        std::string folded = fold(text);
        if (!folded.empty())
            terms_.push_back({std::move(folded), term.kind});
    }
}

std::optional<FoldedRange> TermFinder::placeOf(const Term& term, std::string_view text, std::size_t from)
{
    switch (term.kind) {
    case Kind::Text:
        return rangeOfFolded(text, term.folded, from);
    case Kind::Word:
        return placeOfWord(text, term.folded, from);
    case Kind::Tag:
    case Kind::PartOfTag:
        return placeOfTag(text, term.folded, term.kind, from);
    }
    return std::nullopt;
}

std::optional<FoldedRange> TermFinder::firstPlace(std::string_view text, std::size_t from) const
{
    std::optional<FoldedRange> first;
    for (const Term& term : terms_) {
        const auto place = placeOf(term, text, from);
        const bool isBefore = place
            && (!first || place->location < first->location
                || (place->location == first->location && place->length > first->length));
        if (isBefore)
            first = place;
    }
    return first;
}

std::vector<FoldedRange> TermFinder::places(std::string_view text) const
{
    std::vector<FoldedRange> all;
    for (const Term& term : terms_)
        for (auto place = placeOf(term, text, 0); place;
             place = placeOf(term, text, place->location + std::max<std::size_t>(place->length, 1)))
            all.push_back(*place);
    std::ranges::sort(all, [](const FoldedRange& left, const FoldedRange& right) {
        return left.location != right.location ? left.location < right.location : left.length > right.length;
    });
    std::vector<FoldedRange> apart;
    for (const FoldedRange& place : all)
        if (apart.empty() || place.location >= apart.back().location + apart.back().length)
            apart.push_back(place);
    return apart;
}

} // namespace tarn
