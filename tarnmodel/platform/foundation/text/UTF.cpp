#include "tarnmodel/platform/foundation/text/UTF.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <cstring>

namespace tarn {

namespace {

constexpr char32_t kReplacement = 0xFFFD;

/// What a lead byte asks for: how long the sequence is and what its second byte may be.
struct LeadByte {
    std::uint8_t length = 0; ///< 0: no lead byte
    std::uint8_t lowestSecond = 0x80;
    std::uint8_t highestSecond = 0xBF;
};

constexpr std::array<LeadByte, 256> makeLeadBytes()
{
    std::array<LeadByte, 256> table{};
    for (unsigned byte = 0x00; byte < 0x80; ++byte)
        table[byte].length = 1;
    for (unsigned byte = 0xC2; byte < 0xE0; ++byte)
        table[byte].length = 2;
    for (unsigned byte = 0xE0; byte < 0xF0; ++byte)
        table[byte].length = 3;
    for (unsigned byte = 0xF0; byte < 0xF5; ++byte)
        table[byte].length = 4;
    table[0xE0].lowestSecond = 0xA0;  // overlong below
    table[0xED].highestSecond = 0x9F; // surrogates above
    table[0xF0].lowestSecond = 0x90;  // overlong below
    table[0xF4].highestSecond = 0x8F; // beyond U+10FFFF
    return table;
}
constexpr auto kLeadBytes = makeLeadBytes();

std::uint8_t byteAt(std::string_view text, std::size_t offset) noexcept
{
    return static_cast<std::uint8_t>(text[offset]);
}

/// The number of ASCII bytes from `offset` on, looked at eight at a time.
std::size_t asciiRunLength(std::string_view text, std::size_t offset) noexcept
{
    std::size_t end = offset;
    for (std::uint64_t eight = 0; end + sizeof eight <= text.size(); end += sizeof eight) {
        std::memcpy(&eight, text.data() + end, sizeof eight);
        if (eight & 0x8080808080808080U)
            break;
    }
    while (end < text.size() && byteAt(text, end) < 0x80)
        ++end;
    return end - offset;
}

std::size_t utf16Units(char32_t codePoint) noexcept
{
    return codePoint > 0xFFFF ? 2 : 1;
}

} // namespace

DecodedCodePoint decodeCodePoint(std::string_view text, std::size_t offset) noexcept
{
    if (offset >= text.size())
        return {kReplacement, 0, false};
    const std::uint8_t first = byteAt(text, offset);
    if (first < 0x80)
        return {first, 1, true};
    const LeadByte lead = kLeadBytes[first];
    if (lead.length == 0)
        return {kReplacement, 1, false};

    char32_t codePoint = first & (0x7FU >> lead.length);
    for (std::size_t index = 1; index < lead.length; ++index) {
        if (offset + index >= text.size())
            return {kReplacement, index, false};
        const std::uint8_t byte = byteAt(text, offset + index);
        const bool fits
            = index == 1 ? byte >= lead.lowestSecond && byte <= lead.highestSecond : (byte & 0xC0U) == 0x80U;
        if (!fits)
            return {kReplacement, index, false};
        codePoint = (codePoint << 6U) | (byte & 0x3FU);
    }
    return {codePoint, lead.length, true};
}

void appendCodePoint(std::string& text, char32_t codePoint)
{
    const auto push = [&text](char32_t byte) { text.push_back(static_cast<char>(byte)); };
    if (codePoint > 0x10FFFF || (codePoint >= 0xD800 && codePoint <= 0xDFFF))
        codePoint = kReplacement;
    if (codePoint < 0x80) {
        push(codePoint);
        return;
    }
    if (codePoint < 0x800) {
        push(0xC0U | (codePoint >> 6U));
    } else if (codePoint < 0x10000) {
        push(0xE0U | (codePoint >> 12U));
        push(0x80U | ((codePoint >> 6U) & 0x3FU));
    } else {
        push(0xF0U | (codePoint >> 18U));
        push(0x80U | ((codePoint >> 12U) & 0x3FU));
        push(0x80U | ((codePoint >> 6U) & 0x3FU));
    }
    push(0x80U | (codePoint & 0x3FU));
}

bool isValidUTF8(std::string_view text) noexcept
{
    for (std::size_t offset = 0; offset < text.size();) {
        offset += asciiRunLength(text, offset);
        if (offset == text.size())
            break;
        const DecodedCodePoint decoded = decodeCodePoint(text, offset);
        if (!decoded.valid)
            return false;
        offset += decoded.length;
    }
    return true;
}

std::string validUTF8(std::string_view text)
{
    std::string result;
    result.reserve(text.size());
    std::size_t copied = 0;
    for (std::size_t offset = 0; offset < text.size();) {
        offset += asciiRunLength(text, offset);
        if (offset == text.size())
            break;
        const DecodedCodePoint decoded = decodeCodePoint(text, offset);
        if (!decoded.valid) {
            result.append(text, copied, offset - copied);
            appendCodePoint(result, kReplacement);
            copied = offset + decoded.length;
        }
        offset += decoded.length;
    }
    result.append(text, copied, text.size() - copied);
    return result;
}

std::size_t utf16Length(std::string_view text) noexcept
{
    std::size_t units = 0;
    for (std::size_t offset = 0; offset < text.size();) {
        const std::size_t run = asciiRunLength(text, offset);
        units += run;
        offset += run;
        if (offset == text.size())
            break;
        const DecodedCodePoint decoded = decodeCodePoint(text, offset);
        units += utf16Units(decoded.codePoint);
        offset += decoded.length;
    }
    return units;
}

std::size_t byteOffsetForUTF16Offset(std::string_view text, std::size_t utf16Offset) noexcept
{
    std::size_t remaining = utf16Offset;
    std::size_t offset = 0;
    while (offset < text.size() && remaining > 0) {
        const std::size_t run = std::min(asciiRunLength(text, offset), remaining);
        offset += run;
        remaining -= run;
        if (remaining == 0 || offset == text.size())
            break;
        const DecodedCodePoint decoded = decodeCodePoint(text, offset);
        const std::size_t units = utf16Units(decoded.codePoint);
        if (units > remaining)
            break;
        remaining -= units;
        offset += decoded.length;
    }
    return offset;
}

std::u16string utf16FromUTF8(std::string_view text)
{
    std::u16string result;
    result.reserve(text.size());
    for (std::size_t offset = 0; offset < text.size();) {
        const std::size_t run = asciiRunLength(text, offset);
        result.append(text.begin() + static_cast<std::ptrdiff_t>(offset),
            text.begin() + static_cast<std::ptrdiff_t>(offset + run));
        offset += run;
        if (offset == text.size())
            break;
        const DecodedCodePoint decoded = decodeCodePoint(text, offset);
        offset += decoded.length;
        if (decoded.codePoint > 0xFFFF) {
            const char32_t rest = decoded.codePoint - 0x10000;
            result.push_back(static_cast<char16_t>(0xD800U + (rest >> 10U)));
            result.push_back(static_cast<char16_t>(0xDC00U + (rest & 0x3FFU)));
        } else {
            result.push_back(static_cast<char16_t>(decoded.codePoint));
        }
    }
    return result;
}

std::string utf8FromUTF16(std::u16string_view text)
{
    const auto isLead = [](char16_t unit) { return (unit & 0xFC00U) == 0xD800U; };
    const auto isTrail = [](char16_t unit) { return (unit & 0xFC00U) == 0xDC00U; };

    std::string result;
    result.reserve(text.size());
    for (std::size_t index = 0; index < text.size(); ++index) {
        const char16_t unit = text[index];
        if (isLead(unit) && index + 1 < text.size() && isTrail(text[index + 1])) {
            const char32_t high = unit & 0x3FFU;
            const char32_t low = text[++index] & 0x3FFU;
            appendCodePoint(result, 0x10000 + ((high << 10U) | low));
        } else {
            appendCodePoint(result, unit); // a lone surrogate becomes U+FFFD there
        }
    }
    return result;
}

bool isWhiteSpace(char32_t codePoint) noexcept
{
    if (codePoint < 0x80)
        return codePoint == ' ' || (codePoint >= 0x09 && codePoint <= 0x0D);
    if (codePoint >= 0x2000 && codePoint <= 0x200A)
        return true;
    switch (codePoint) {
    case 0x0085:
    case 0x00A0:
    case 0x1680:
    case 0x2028:
    case 0x2029:
    case 0x202F:
    case 0x205F:
    case 0x3000:
        return true;
    default:
        return false;
    }
}

std::string_view trimmed(std::string_view text) noexcept
{
    while (!text.empty()) {
        const DecodedCodePoint first = decodeCodePoint(text, 0);
        if (!isWhiteSpace(first.codePoint))
            break;
        text.remove_prefix(first.length);
    }
    while (!text.empty()) {
        std::size_t start = text.size() - 1;
        while (start > 0 && text.size() - start < 4 && (byteAt(text, start) & 0xC0U) == 0x80U)
            --start;
        const DecodedCodePoint last = decodeCodePoint(text, start);
        if (start + last.length != text.size() || !isWhiteSpace(last.codePoint))
            break;
        text.remove_suffix(last.length);
    }
    return text;
}

} // namespace tarn
