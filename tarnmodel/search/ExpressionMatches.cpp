#include "tarnmodel/search/ExpressionMatches.h"

#include "tarnmodel/platform/foundation/text/UTF.h"

#include <cstdint>

namespace tarn {

namespace {

constexpr std::size_t kLongestOpenTag = 500;   ///< characters behind the "#"
constexpr std::size_t kLongestClosedTag = 502; ///< between the two "#"
constexpr std::size_t kDigitsOfColour = 6;
constexpr std::u16string_view kTagEnds = u":;,،、…!.?)]}\"'";
constexpr std::u16string_view kTagOpeners = u"([{\"'";

bool contains(std::u16string_view characters, char16_t character)
{
    return characters.find(character) != std::u16string_view::npos;
}
/// The expressions' `\s`. All of it lies in the first plane.
bool isSpace(char16_t character)
{
    return isWhiteSpace(character);
}
/// What the expressions' `.` does not match.
bool endsLine(char16_t character)
{
    return (character >= u'\n' && character <= u'\r') || character == u'\u0085' || character == u'\u2028'
        || character == u'\u2029';
}
bool isOpeningQuote(char16_t character)
{
    return character == u'"' || character == u'“';
}
bool isClosingQuote(char16_t character)
{
    return character == u'"' || character == u'”';
}
bool isSign(char16_t character)
{
    return character == u'!' || character == u'-';
}
bool isDigitOrHyphen(char16_t character)
{
    return (character >= u'0' && character <= u'9') || character == u'-';
}
bool isHexDigit(char16_t character)
{
    return (character >= u'0' && character <= u'9') || (character >= u'a' && character <= u'f')
        || (character >= u'A' && character <= u'F');
}
bool isLowSurrogate(char16_t unit)
{
    return unit >= 0xDC00 && unit < 0xE000;
}

/// For each place of a text the next one at which something holds; the text's length where there is none.
class NextPlace {
public:
    template <typename Condition> NextPlace(std::size_t length, Condition holds) : next_(length + 1, length)
    {
        for (std::size_t place = length; place-- > 0;)
            next_[place] = holds(place) ? place : next_[place + 1];
    }
    std::size_t from(std::size_t place) const { return next_[place]; }

private:
    std::vector<std::size_t> next_;
};

/// Whether a stretch may end in front of this place.
bool endsWord(std::u16string_view text, std::size_t place)
{
    return place == text.size() || isSpace(text[place]);
}
bool beginsWord(std::u16string_view text, std::size_t place)
{
    return place == 0 || isSpace(text[place - 1]);
}

/// Walks over the text and takes the stretch that begins at a place, if any (`endOf` gives 0 for none).
template <typename EndOf> std::vector<NSRange> stretches(std::u16string_view text, EndOf endOf)
{
    std::vector<NSRange> found;
    for (std::size_t place = 0; place < text.size();) {
        const std::size_t end = endOf(place);
        if (end != 0)
            found.push_back({place, end - place});
        place = end != 0 ? end : place + 1;
    }
    return found;
}

/// Finds tags; the tables make each attempt take a bounded number of steps.
class TagScanner {
public:
    explicit TagScanner(std::u16string_view text)
        : text_(text), nextHash_(text.size(), [text](std::size_t place) { return text[place] == u'#'; }),
          nextNewline_(text.size(), [text](std::size_t place) { return text[place] == u'\n'; }),
          nextEnd_(text.size(),
              [text](std::size_t place) { return isSpace(text[place]) || contains(kTagEnds, text[place]); }),
          nextLetter_(text.size(), [text](std::size_t place) { return !isDigitOrHyphen(text[place]); }),
          characters_(text.size() + 1)
    {
        for (std::size_t place = 0; place < text.size(); ++place)
            characters_[place + 1] = characters_[place] + (isLowSurrogate(text[place]) ? 0 : 1);
    }

    std::size_t endOfTagAt(std::size_t place) const
    {
        const std::size_t end = endOfClosedTagAt(place);
        return end != 0 ? end : endOfOpenTagAt(place);
    }

private:
    /// The place of the "#" of a tag that begins here; the text's length for none.
    std::size_t hashAt(std::size_t place) const
    {
        const std::size_t hash = isSign(text_[place]) ? place + 1 : place;
        return hash < text_.size() && text_[hash] == u'#' ? hash : text_.size();
    }

    /// A heading, or a colour such as "#a0b1c2".
    bool isNoTagAt(std::size_t hash) const
    {
        if (text_[hash] != u'#')
            return false;
        const std::size_t end = hash + 1 + kDigitsOfColour;
        std::size_t place = hash + 1;
        if (place < text_.size() && text_[place] == u'#')
            return true;
        while (place < end && place < text_.size() && isHexDigit(text_[place]))
            ++place;
        return place == end && endsWord(text_, end);
    }

    /// "#two words#".
    std::size_t endOfClosedTagAt(std::size_t place) const
    {
        // A sign in front lets a colour or a "##" pass here.
        if (isNoTagAt(place))
            return 0;
        const std::size_t hash = hashAt(place);
        if (hash == text_.size())
            return 0;
        const std::size_t begin = hash + 1;
        const std::size_t end = nextHash_.from(begin);
        if (end == text_.size() || end == begin || nextNewline_.from(begin) < end || isSpace(text_[begin]))
            return 0;
        const std::size_t length = characters_[end] - characters_[begin];
        const char16_t last = text_[end - 1];
        const bool mayEnd = !isSpace(last) && !isSign(last);
        const bool fits = length == 1 || (length >= 3 && length <= kLongestClosedTag && mayEnd);
        return fits ? end + 1 : 0;
    }

    /// "#word".
    std::size_t endOfOpenTagAt(std::size_t place) const
    {
        if (!beginsWord(text_, place) && !contains(kTagOpeners, text_[place - 1]))
            return 0;
        const std::size_t hash = hashAt(place);
        const std::size_t begin = hash + 1;
        if (hash == text_.size() || begin >= text_.size() || isNoTagAt(hash))
            return 0;
        if (text_[begin] == u'/' || isSpace(text_[begin]) || isNumberAt(begin))
            return 0;
        // The first character may itself be one that ends tags.
        const std::size_t second = begin + 1 < text_.size() && isLowSurrogate(text_[begin + 1]) ? begin + 2 : begin + 1;
        const std::size_t end = nextEnd_.from(second);
        return characters_[end] - characters_[begin] <= kLongestOpenTag ? end : 0;
    }

    /// Digits and hyphens alone, up to where a tag ends.
    bool isNumberAt(std::size_t begin) const
    {
        const std::size_t end = nextLetter_.from(begin);
        return end != begin && nextEnd_.from(end) == end;
    }

    std::u16string_view text_;
    NextPlace nextHash_;
    NextPlace nextNewline_;
    NextPlace nextEnd_;
    NextPlace nextLetter_;
    std::vector<std::size_t> characters_; ///< how many stand in front of each place
};

} // namespace

std::vector<NSRange> quotedMatches(std::u16string_view text)
{
    const NextPlace nextClosing(
        text.size(), [text](std::size_t place) { return isClosingQuote(text[place]) && endsWord(text, place + 1); });
    const NextPlace nextLineEnd(text.size(), [text](std::size_t place) { return endsLine(text[place]); });
    return stretches(text, [&](std::size_t place) -> std::size_t {
        const std::size_t quote = text[place] == u'-' ? place + 1 : place;
        if (!beginsWord(text, place) || quote + 2 >= text.size() || !isOpeningQuote(text[quote]))
            return 0;
        const std::size_t closing = nextClosing.from(quote + 2); // at least one character between them
        return closing < nextLineEnd.from(quote + 1) ? closing + 1 : 0;
    });
}

std::vector<NSRange> tagMatches(std::u16string_view text)
{
    const TagScanner scanner(text);
    return stretches(text, [&scanner](std::size_t place) { return scanner.endOfTagAt(place); });
}

std::u16string textWithoutRanges(std::u16string_view text, const std::vector<NSRange>& stretches)
{
    std::u16string result;
    std::size_t place = 0;
    for (const NSRange& stretch : stretches) {
        result += text.substr(place, stretch.location - place);
        place = stretch.end();
    }
    result += text.substr(place);
    return result;
}

} // namespace tarn
