#include "tarnmodel/platform/foundation/text/PercentEncoding.h"

#include "tarnmodel/platform/foundation/text/UTF.h"

#include <unicode/uchar.h>

#include <algorithm>
#include <charconv>

namespace tarn {

namespace {

constexpr std::string_view kQueryMarks = "-._~!$&'()*+,;=:@/?";
constexpr std::string_view kMarksEscapedInHeaders = "'?&()";

bool isAsciiAlphanumeric(char32_t codePoint)
{
    return (codePoint >= U'a' && codePoint <= U'z') || (codePoint >= U'A' && codePoint <= U'Z')
        || (codePoint >= U'0' && codePoint <= U'9');
}

bool isIn(std::string_view marks, char32_t codePoint)
{
    return codePoint != 0 && codePoint < 0x80 && marks.find(static_cast<char>(codePoint)) != std::string_view::npos;
}

bool isLetterMarkOrNumber(char32_t codePoint)
{
    return U_MASK(u_charType(static_cast<UChar32>(codePoint))) & (U_GC_L_MASK | U_GC_M_MASK | U_GC_N_MASK);
}

bool standsForItself(char32_t codePoint, UnescapedCharacters unescaped)
{
    if (unescaped == UnescapedCharacters::Alphanumeric)
        return isLetterMarkOrNumber(codePoint);
    if (unescaped == UnescapedCharacters::URLQueryHeader && isIn(kMarksEscapedInHeaders, codePoint))
        return false;
    return isAsciiAlphanumeric(codePoint) || isIn(kQueryMarks, codePoint);
}

void appendEscaped(std::string& result, std::string_view bytes)
{
    constexpr std::string_view digits = "0123456789ABCDEF";
    for (const char byte : bytes) {
        const auto value = static_cast<unsigned char>(byte);
        result += '%';
        result += digits[value >> 4U];
        result += digits[value & 0xFU];
    }
}

} // namespace

std::string stringByAddingPercentEncoding(std::string_view text, UnescapedCharacters unescaped)
{
    std::string result;
    result.reserve(text.size());
    std::string character;
    for (std::size_t offset = 0; offset < text.size();) {
        const DecodedCodePoint next = decodeCodePoint(text, offset);
        offset += next.length;
        character.clear();
        appendCodePoint(character, next.codePoint);
        if (standsForItself(next.codePoint, unescaped))
            result += character;
        else
            appendEscaped(result, character);
    }
    return result;
}

std::optional<std::string> stringByRemovingPercentEncoding(std::string_view text)
{
    std::string decoded;
    decoded.reserve(text.size());
    for (std::size_t position = 0; position < text.size(); ++position) {
        const std::size_t escape = std::min(text.find('%', position), text.size());
        decoded += text.substr(position, escape - position);
        position = escape;
        if (position == text.size())
            break;
        const std::string_view digits = text.substr(position + 1, 2);
        unsigned char value = 0;
        const auto [end, error] = std::from_chars(digits.data(), digits.data() + digits.size(), value, 16);
        if (digits.size() < 2 || error != std::errc() || end != digits.data() + digits.size())
            return std::nullopt;
        decoded += static_cast<char>(value);
        position += digits.size();
    }
    if (!isValidUTF8(decoded))
        return std::nullopt;
    return decoded;
}

} // namespace tarn
