#include "corvel/TagNames.h"

#include "corvel/Characters.h"
#include "corvel/HashtagScanner.h"

#include "platform/foundation/Folding.h"
#include "platform/foundation/UTF.h"

#include <algorithm>

namespace tarn::corvel {

namespace {

constexpr std::size_t kLongestName = 500;

/// What a hashtag cannot hold or nobody can see.
bool isRemoved(char32_t codePoint) noexcept
{
    constexpr std::u32string_view kRemoved = U"#\\`<>[]|\u200B\uFEFF";
    return kRemoved.find(codePoint) != std::u32string_view::npos;
}

bool isEmphasisMark(char32_t codePoint) noexcept
{
    return codePoint == U'*' || codePoint == U'_' || codePoint == U'~' || codePoint == U'=';
}

bool isTrimmedInFront(char32_t codePoint) noexcept
{
    return isWhiteSpace(codePoint) || isTagTerminator(codePoint) || isEmphasisMark(codePoint);
}

bool isTrimmedBehind(char32_t codePoint) noexcept
{
    if (codePoint == U')' || codePoint == U'}')
        return false;
    return isTrimmedInFront(codePoint) || codePoint == U'(' || codePoint == U'{' || codePoint == U'-';
}

std::u32string codePointsOf(std::string_view text)
{
    std::u32string codePoints;
    for (std::size_t i = 0; i < text.size();) {
        const DecodedCodePoint decoded = decodeCodePoint(text, i);
        codePoints += decoded.codePoint;
        i += decoded.length;
    }
    return codePoints;
}

std::u32string withoutForbidden(const std::u32string& name)
{
    std::u32string kept;
    for (const char32_t c : name) {
        if (isRemoved(c))
            continue;
        if (!isWhiteSpace(c) && !isControl(c))
            kept += c;
        else if (kept.empty() || kept.back() != U' ')
            kept += U' ';
    }
    return kept;
}

/// Each component without blanks at its ends; empty ones go.
std::u32string withCleanComponents(const std::u32string& name)
{
    std::u32string joined;
    for (std::size_t begin = 0; begin <= name.size();) {
        const std::size_t slash = std::min(name.find(U'/', begin), name.size());
        std::size_t first = begin;
        std::size_t last = slash;
        while (first < last && name[first] == U' ')
            ++first;
        while (last > first && name[last - 1] == U' ')
            --last;
        if (first < last && !joined.empty())
            joined += U'/';
        joined.append(name, first, last - first);
        begin = slash + 1;
    }
    return joined;
}

/// Slashes that come to stand at an end go at once: were each left to the next pass, a name of nothing but dots and
/// slashes would take as many passes as it is long.
std::u32string withCleanEnds(const std::u32string& name)
{
    std::size_t first = 0;
    std::size_t last = name.size();
    while (first < last && (isTrimmedInFront(name[first]) || name[first] == U'/'))
        ++first;
    while (last > first && (isTrimmedBehind(name[last - 1]) || name[last - 1] == U'/'))
        --last;
    return name.substr(first, last - first);
}

bool isHexDigit(char32_t c) noexcept
{
    return c < 0x80 && isASCIIHexDigit(static_cast<char>(c));
}

/// A colour followed by a blank, and two code points of which the last ends a word, are no hashtag in any form.
std::u32string withWritableForm(std::u32string name)
{
    constexpr std::size_t kColor = 6;
    if (name.size() > kColor && name[kColor] == U' ' && std::all_of(name.begin(), name.begin() + kColor, isHexDigit))
        name[kColor] = U'-';
    if (name.size() == 2 && isTagTerminator(name[1]))
        name.pop_back();
    return name;
}

/// Letters, digits and inner hyphens of ASCII, single slashes between them: nothing to clean.
bool isPlain(std::string_view name) noexcept
{
    const auto isInner = [](char c) { return isASCIIAlphanumeric(c) || c == '-' || c == '/'; };
    return !name.empty() && name.size() <= kLongestName && std::all_of(name.begin(), name.end(), isInner)
        && name.front() != '/' && name.back() != '/' && name.back() != '-' && name.find("//") == std::string_view::npos;
}

} // namespace

std::string sanitizedTagName(std::string_view name)
{
    if (isPlain(name))
        return std::string(name);
    std::u32string clean = codePointsOf(name);
    for (std::u32string before; before != clean;) {
        before = clean;
        clean = withWritableForm(withCleanEnds(withCleanComponents(withoutForbidden(before))));
    }
    std::string result;
    if (clean.size() > kLongestName)
        return result;
    for (const char32_t c : clean)
        appendCodePoint(result, c);
    return result;
}

std::string normalizedTagName(std::string_view name)
{
    return fold(sanitizedTagName(name));
}

std::vector<std::string> tagComponents(std::string_view name)
{
    std::vector<std::string> components;
    for (std::size_t begin = 0; begin < name.size();) {
        const std::size_t slash = std::min(name.find('/', begin), name.size());
        if (slash > begin)
            components.emplace_back(name.substr(begin, slash - begin));
        begin = slash + 1;
    }
    return components;
}

std::string hashtagForName(std::string_view name)
{
    constexpr std::size_t kColor = 6;
    std::string clean = sanitizedTagName(name);
    if (clean.empty())
        return clean;
    const std::u32string codePoints = codePointsOf(clean);
    const bool hasEnd = std::any_of(
        codePoints.begin(), codePoints.end(), [](char32_t c) { return isWhiteSpace(c) || isTagTerminator(c); });
    const bool isColor = clean.size() == kColor && startsLikeColor(clean);
    const bool needsClosing = hasEnd || isNumberLike(clean) || isColor;
    return '#' + clean + (needsClosing ? "#" : "");
}

} // namespace tarn::corvel
