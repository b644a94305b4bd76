#include "tools/tarn/commandline/DisplayText.h"

#include "tarnmodel/platform/foundation/text/UTF.h"

#include <unicode/uchar.h>

#include <algorithm>

namespace tarn {

namespace {

constexpr char32_t kReplacement = 0xFFFD;
constexpr char32_t kEmojiPresentation = 0xFE0F;
constexpr std::string_view kEllipsis = "…";

bool isLineBreakOrTab(char32_t codePoint) noexcept
{
    return (codePoint >= 0x09 && codePoint <= 0x0D) || codePoint == 0x85 || codePoint == 0x2028 || codePoint == 0x2029;
}

/// Controls move the cursor or the colours; bidirectional controls make a line read otherwise than it is.
bool isUnsafe(char32_t codePoint) noexcept
{
    return codePoint < 0x20 || (codePoint >= 0x7F && codePoint < 0xA0) || (codePoint >= 0x202A && codePoint <= 0x202E)
        || (codePoint >= 0x2066 && codePoint <= 0x2069);
}

std::size_t widthOfCodePoint(char32_t codePoint) noexcept
{
    if (codePoint < 0x300)
        return 1;
    const auto character = static_cast<UChar32>(codePoint);
    switch (u_charType(character)) {
    case U_NON_SPACING_MARK:
    case U_ENCLOSING_MARK:
    case U_FORMAT_CHAR:
        return 0;
    default:
        break;
    }
    const int width = u_getIntPropertyValue(character, UCHAR_EAST_ASIAN_WIDTH);
    return width == U_EA_WIDE || width == U_EA_FULLWIDTH ? 2 : 1;
}

/// A character with what combines with it.
struct Cluster {
    std::size_t length = 0; ///< bytes
    std::size_t width = 0;
};

Cluster clusterAt(std::string_view text, std::size_t offset) noexcept
{
    const DecodedCodePoint first = decodeCodePoint(text, offset);
    Cluster cluster{first.length, widthOfCodePoint(first.codePoint)};
    while (offset + cluster.length < text.size()) {
        const DecodedCodePoint next = decodeCodePoint(text, offset + cluster.length);
        if (widthOfCodePoint(next.codePoint) != 0)
            break;
        if (next.codePoint == kEmojiPresentation && cluster.width == 1)
            cluster.width = 2;
        cluster.length += next.length;
    }
    return cluster;
}

} // namespace

std::string displayText(std::string_view text)
{
    std::string result;
    result.reserve(text.size());
    for (std::size_t offset = 0; offset < text.size();) {
        const DecodedCodePoint next = decodeCodePoint(text, offset);
        if (isLineBreakOrTab(next.codePoint))
            result += ' ';
        else
            appendCodePoint(result, isUnsafe(next.codePoint) ? kReplacement : next.codePoint);
        offset += next.length;
    }
    return result;
}

std::size_t displayWidth(std::string_view text)
{
    std::size_t width = 0;
    for (std::size_t offset = 0; offset < text.size();) {
        const Cluster cluster = clusterAt(text, offset);
        width += cluster.width;
        offset += cluster.length;
    }
    return width;
}

std::string textFittedToWidth(std::string_view text, std::size_t width)
{
    std::size_t used = 0;
    std::size_t keep = 0; // bytes that fit beside the ellipsis
    for (std::size_t offset = 0; offset < text.size();) {
        const Cluster cluster = clusterAt(text, offset);
        used += cluster.width;
        if (used > width)
            return width == 0 ? std::string() : std::string(text.substr(0, keep)) + std::string(kEllipsis);
        offset += cluster.length;
        if (used < width)
            keep = offset;
    }
    return std::string(text);
}

std::string textPaddedToWidth(std::string_view text, std::size_t width)
{
    std::string result(text);
    const std::size_t used = displayWidth(text);
    if (used < width)
        result.append(width - used, ' ');
    return result;
}

std::string singleLine(std::string text)
{
    while (!text.empty() && (text.back() == '\n' || text.back() == '.'))
        text.pop_back();
    std::ranges::replace(text, '\n', ' ');
    return text;
}

std::string numbered(std::size_t count, std::string_view thing)
{
    return std::to_string(count) + ' ' + std::string(thing) + (count == 1 ? "" : "s");
}

} // namespace tarn
