#include "tarnmodel/corvel/scanning/TagNames.h"

#include "tarnmodel/corvel/scanning/CharacterClasses.h"
#include "tarnmodel/corvel/scanning/HashtagScanner.h"

#include "tarnmodel/platform/foundation/text/Folding.h"
#include "tarnmodel/platform/foundation/text/UTF.h"

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

std::string utf8Of(std::u32string_view codePoints)
{
    std::string text;
    for (const char32_t c : codePoints)
        appendCodePoint(text, c);
    return text;
}

/// Whether nothing of a component is left in the key of a name: marks and format characters alone.
bool vanishesInKey(std::u32string_view component, bool isFirst)
{
    constexpr char32_t kFirstMark = 0x300;
    constexpr char32_t kSoftHyphen = 0xAD;
    if (std::ranges::any_of(component, [](char32_t c) { return c < kFirstMark && c != kSoftHyphen; }))
        return false;
    // A mark is another thing behind a slash than at the start of a name.
    return fold(isFirst ? utf8Of(component) : '/' + utf8Of(component)).size() == (isFirst ? 0U : 1U);
}

/// A component as it would be if the name ended with it, so that the path of an ancestor is a clean name as well.
std::u32string_view cleanComponent(std::u32string_view component, bool isFirst)
{
    for (std::u32string_view before; before != component;) {
        before = component;
        while (!component.empty() && isTrimmedInFront(component.front()))
            component.remove_prefix(1);
        while (!component.empty() && isTrimmedBehind(component.back()))
            component.remove_suffix(1);
        // Two code points of which the last ends a word are no hashtag in any form.
        if (isFirst && component.size() == 2 && isTagTerminator(component.back()))
            component.remove_suffix(1);
    }
    return vanishesInKey(component, isFirst) ? std::u32string_view() : component;
}

std::u32string withCleanComponents(std::u32string_view name)
{
    std::u32string joined;
    for (std::size_t begin = 0; begin <= name.size();) {
        const std::size_t slash = std::min(name.find(U'/', begin), name.size());
        const std::u32string_view component = cleanComponent(name.substr(begin, slash - begin), joined.empty());
        if (!component.empty() && !joined.empty())
            joined += U'/';
        joined += component;
        begin = slash + 1;
    }
    return joined;
}

bool isHexDigit(char32_t c) noexcept
{
    return c < 0x80 && isASCIIHexDigit(static_cast<char>(c));
}

/// A colour followed by a blank is no hashtag in any form.
std::u32string withWritableForm(std::u32string name)
{
    constexpr std::size_t kColor = 6;
    if (name.size() > kColor && name[kColor] == U' ' && std::all_of(name.begin(), name.begin() + kColor, isHexDigit))
        name[kColor] = U'-';
    return name;
}

/// Letters, digits and inner hyphens of ASCII, single slashes between them: nothing to clean.
bool isPlain(std::string_view name) noexcept
{
    const auto isInner = [](char c) { return isASCIIAlphanumeric(c) || c == '-' || c == '/'; };
    return !name.empty() && name.size() <= kLongestName && std::all_of(name.begin(), name.end(), isInner)
        && name.front() != '/' && name.back() != '/' && name.back() != '-' && name.find("//") == std::string_view::npos
        && name.find("-/") == std::string_view::npos;
}

} // namespace

std::string sanitizedTagName(std::string_view name)
{
    if (isPlain(name))
        return std::string(name);
    std::u32string clean = codePointsOf(name);
    for (std::u32string before; before != clean;) {
        before = clean;
        clean = withWritableForm(withCleanComponents(withoutForbidden(before)));
    }
    return clean.size() > kLongestName ? std::string() : utf8Of(clean);
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
