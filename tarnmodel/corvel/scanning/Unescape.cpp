#include "tarnmodel/corvel/scanning/Unescape.h"

#include "tarnmodel/corvel/scanning/CharacterClasses.h"
#include "tarnmodel/corvel/scanning/EntityTable.h"

#include "tarnmodel/platform/foundation/text/UTF.h"

#include <algorithm>

namespace tarn::corvel {

namespace {

std::uint32_t hexDigitValue(char c) noexcept
{
    return static_cast<std::uint32_t>(isASCIIDigit(c) ? c - '0' : lowerASCII(c) - 'a' + 10);
}

std::size_t appendNumericEntity(std::string& result, std::string_view content, std::size_t offset)
{
    std::size_t i = offset + 2;
    const bool hex = i < content.size() && (content[i] == 'x' || content[i] == 'X');
    if (hex)
        ++i;
    const std::size_t most = hex ? 6 : 7;
    const std::size_t begin = i;
    char32_t value = 0;
    for (; i < content.size() && i - begin <= most; ++i) {
        const char c = content[i];
        if (!(hex ? isASCIIHexDigit(c) : isASCIIDigit(c)))
            break;
        value = value * (hex ? 16 : 10) + hexDigitValue(c);
    }
    if (i == begin || i - begin > most || i == content.size() || content[i] != ';')
        return 0;
    appendCodePoint(result, value == 0 ? U'\uFFFD' : value);
    return i + 1 - offset;
}

std::size_t appendNamedEntity(std::string& result, std::string_view content, std::size_t offset)
{
    constexpr std::size_t kLongestEntityName = 31;
    std::size_t end = offset + 1;
    while (end < content.size() && end - offset <= kLongestEntityName + 1 && isASCIIAlphanumeric(content[end]))
        ++end;
    if (end == content.size() || content[end] != ';')
        return 0;
    const std::string_view name = content.substr(offset + 1, end - offset - 1);
    const auto entities = namedEntities();
    const auto found = std::lower_bound(entities.begin(), entities.end(), name,
        [](const NamedEntity& entity, std::string_view wanted) { return entity.name < wanted; });
    if (found == entities.end() || found->name != name)
        return 0;
    result += found->text;
    return end + 1 - offset;
}

} // namespace

std::size_t appendEntity(std::string& result, std::string_view content, std::size_t offset)
{
    if (offset + 1 < content.size() && content[offset + 1] == '#')
        return appendNumericEntity(result, content, offset);
    return appendNamedEntity(result, content, offset);
}

void appendUnescaped(std::string& result, std::string_view raw)
{
    for (std::size_t i = 0; i < raw.size();) {
        const std::size_t begin = i;
        while (i < raw.size() && raw[i] != '\\' && raw[i] != '&')
            ++i;
        result += raw.substr(begin, i - begin);
        if (i == raw.size())
            return;
        if (raw[i] == '\\' && i + 1 < raw.size() && isASCIIPunctuation(raw[i + 1])) {
            result += raw[i + 1];
            i += 2;
            continue;
        }
        if (raw[i] == '&') {
            if (const std::size_t length = appendEntity(result, raw, i)) {
                i += length;
                continue;
            }
        }
        result += raw[i++];
    }
}

std::string unescaped(std::string_view raw)
{
    std::string result;
    result.reserve(raw.size());
    appendUnescaped(result, raw);
    return result;
}

} // namespace tarn::corvel
