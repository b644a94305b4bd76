#include "tarnmodel/platform/foundation/text/Characters.h"

#include "tarnmodel/platform/foundation/text/LocaleInternal.h"

#include <unicode/uchar.h>
#include <unicode/unistr.h>

#include <algorithm>

namespace tarn {

namespace {

UChar32 icuCodePoint(char32_t codePoint)
{
    return static_cast<UChar32>(codePoint);
}

bool isASCII(std::string_view text)
{
    return std::ranges::all_of(text, [](char byte) { return static_cast<unsigned char>(byte) < 0x80; });
}

} // namespace

bool isControlOrFormat(char32_t codePoint) noexcept
{
    return (U_GET_GC_MASK(icuCodePoint(codePoint)) & (U_GC_CC_MASK | U_GC_CF_MASK)) != 0;
}

bool isBlank(char32_t codePoint) noexcept
{
    return codePoint == '\t' || u_charType(icuCodePoint(codePoint)) == U_SPACE_SEPARATOR;
}

std::optional<int> decimalDigitValue(char32_t codePoint) noexcept
{
    const int value = u_charDigitValue(icuCodePoint(codePoint));
    return value >= 0 ? std::optional(value) : std::nullopt;
}

std::string lowercased(std::string_view text)
{
    std::string result;
    if (isASCII(text)) {
        result = text;
        for (char& byte : result)
            byte = byte >= 'A' && byte <= 'Z' ? static_cast<char>(byte - 'A' + 'a') : byte;
        return result;
    }
    const icu::StringPiece piece(text.data(), static_cast<int32_t>(text.size()));
    icu::UnicodeString::fromUTF8(piece).toLower(rootLocale()).toUTF8String(result);
    return result;
}

} // namespace tarn
