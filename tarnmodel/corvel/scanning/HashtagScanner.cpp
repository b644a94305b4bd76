#include "tarnmodel/corvel/scanning/HashtagScanner.h"

#include "tarnmodel/corvel/scanning/CharacterClasses.h"

#include "tarnmodel/platform/foundation/text/UTF.h"

#include <algorithm>

namespace tarn::corvel {

namespace {

constexpr std::size_t kLongestOpenName = 500;
constexpr std::size_t kLongestClosedName = 502;

constexpr ByteSet kNoFirst("#/\\`<>|");
constexpr ByteSet kNotInClosedName("#\\`[]<>|\r\n");
constexpr ByteSet kAfterClosedName("*_~=|<>`[\\-/");
constexpr ByteSet kEndOfOpenName("`<>[\\|");
constexpr ByteSet kNotLastInOpenName("*_~=-/");
constexpr ByteSet kOpening("([{\"'");

bool isEndOrWhiteSpace(std::string_view content, std::size_t offset) noexcept
{
    return offset >= content.size() || isWhiteSpace(codePointAt(content, offset));
}

/// After white space or an opening mark; emphasis marks may stand between.
bool mayStart(std::string_view content, std::size_t offset) noexcept
{
    std::size_t i = offset;
    while (i > 0) {
        const char c = content[i - 1];
        if (c == '*' || c == '_')
            --i;
        else if ((c == '~' || c == '=') && i > 1 && content[i - 2] == c)
            i -= 2;
        else
            break;
    }
    return i == 0 || kOpening.contains(content[i - 1]) || isWhiteSpace(codePointBefore(content, i));
}

bool mayFollowHashMark(std::string_view content, std::size_t offset) noexcept
{
    if (isEndOrWhiteSpace(content, offset) || kNoFirst.contains(content[offset]))
        return false;
    return !isTagTerminator(codePointAt(content, offset));
}

std::optional<ScannedHashtag> scanClosed(std::string_view content, std::size_t begin) noexcept
{
    std::size_t i = begin;
    char32_t last = U' ';
    for (std::size_t count = 0; i < content.size() && !kNotInClosedName.contains(content[i]); ++count) {
        if (count == kLongestClosedName)
            return std::nullopt;
        const DecodedCodePoint decoded = decodeCodePoint(content, i);
        last = decoded.codePoint;
        i += decoded.length;
    }
    if (i == begin || i >= content.size() || content[i] != '#' || isWhiteSpace(last) || last == U'-' || last == U'!')
        return std::nullopt;
    const std::size_t end = i + 1;
    if (!isEndOrWhiteSpace(content, end) && !kAfterClosedName.contains(content[end])
        && !isTagTerminator(codePointAt(content, end)))
        return std::nullopt;
    return ScannedHashtag{rangeOf(begin, i), end, true};
}

std::optional<ScannedHashtag> scanOpen(std::string_view content, std::size_t begin) noexcept
{
    std::size_t i = begin;
    for (std::size_t count = 0; i < content.size() && !kEndOfOpenName.contains(content[i]); ++count) {
        const DecodedCodePoint decoded = decodeCodePoint(content, i);
        if (isWhiteSpace(decoded.codePoint) || isTagTerminator(decoded.codePoint))
            break;
        // A run with another hash mark is none: a rename to a name with blanks could not be written.
        if (content[i] == '#' || count == kLongestOpenName)
            return std::nullopt;
        i += decoded.length;
    }
    while (i > begin && kNotLastInOpenName.contains(content[i - 1]))
        --i;
    if (i == begin || isNumberLike(content.substr(begin, i - begin)))
        return std::nullopt;
    return ScannedHashtag{rangeOf(begin, i), i, false};
}

} // namespace

bool isTagTerminator(char32_t codePoint) noexcept
{
    constexpr std::u32string_view kTerminators = U":;,\u060C\u3001\u2026!.?)]}\"'";
    return kTerminators.find(codePoint) != std::u32string_view::npos;
}

bool isNumberLike(std::string_view name) noexcept
{
    return std::all_of(name.begin(), name.end(), [](char c) { return isASCIIDigit(c) || c == '-'; });
}

bool startsLikeColor(std::string_view name) noexcept
{
    constexpr std::size_t kDigits = 6;
    return name.size() >= kDigits && std::all_of(name.begin(), name.begin() + kDigits, isASCIIHexDigit);
}

std::optional<ScannedHashtag> scanHashtag(std::string_view content, std::size_t offset) noexcept
{
    const std::size_t begin = offset + 1;
    if (!mayFollowHashMark(content, begin) || !mayStart(content, offset))
        return std::nullopt;
    if (startsLikeColor(content.substr(begin)) && isEndOrWhiteSpace(content, begin + 6))
        return std::nullopt;
    if (const auto closed = scanClosed(content, begin))
        return closed;
    return scanOpen(content, begin);
}

} // namespace tarn::corvel
