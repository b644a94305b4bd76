#include "tarnmodel/corvel/scanning/CharacterClasses.h"

#include "tarnmodel/platform/foundation/text/UTF.h"

#include <unicode/uchar.h>

namespace tarn::corvel {

bool isUnicodeWhiteSpace(char32_t codePoint) noexcept
{
    if (codePoint < 0x80)
        return codePoint == ' ' || (codePoint >= '\t' && codePoint <= '\r' && codePoint != '\v');
    return u_charType(static_cast<UChar32>(codePoint)) == U_SPACE_SEPARATOR;
}

bool isUnicodePunctuation(char32_t codePoint) noexcept
{
    if (codePoint < 0x80)
        return isASCIIPunctuation(static_cast<char>(codePoint));
    return (U_GET_GC_MASK(static_cast<UChar32>(codePoint)) & (U_GC_P_MASK | U_GC_S_MASK)) != 0;
}

char32_t codePointBefore(std::string_view text, std::size_t offset) noexcept
{
    if (offset == 0)
        return U'\n';
    std::size_t begin = offset - 1;
    const auto isContinuation = [&](std::size_t at) { return (static_cast<unsigned char>(text[at]) & 0xC0) == 0x80; };
    while (begin > 0 && offset - begin < 4 && isContinuation(begin))
        --begin;
    const DecodedCodePoint decoded = decodeCodePoint(text, begin);
    return decoded.valid && begin + decoded.length == offset ? decoded.codePoint : U'\uFFFD';
}

char32_t codePointAt(std::string_view text, std::size_t offset) noexcept
{
    return offset < text.size() ? decodeCodePoint(text, offset).codePoint : U'\n';
}

} // namespace tarn::corvel
