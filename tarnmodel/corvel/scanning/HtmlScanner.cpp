#include "tarnmodel/corvel/scanning/HtmlScanner.h"

#include "tarnmodel/corvel/scanning/CharacterClasses.h"

namespace tarn::corvel {

namespace {

constexpr ByteSet kEndOfUnquotedValue(" \t\r\n\"'=<>`");

char at(std::string_view content, std::size_t offset) noexcept
{
    return offset < content.size() ? content[offset] : '\0';
}

std::size_t skipBlanks(std::string_view content, std::size_t offset) noexcept
{
    while (offset < content.size() && isBlank(content[offset]))
        ++offset;
    return offset;
}

/// After the tag's name, or 0.
std::size_t scanTagName(std::string_view content, std::size_t offset) noexcept
{
    if (!isASCIILetter(at(content, offset)))
        return 0;
    while (isASCIIAlphanumeric(at(content, offset)) || at(content, offset) == '-')
        ++offset;
    return offset;
}

/// After the value, or 0.
std::size_t scanAttributeValue(std::string_view content, std::size_t offset) noexcept
{
    const char quote = at(content, offset);
    if (quote == '"' || quote == '\'') {
        const std::size_t end = content.find(quote, offset + 1);
        return end == std::string_view::npos ? 0 : end + 1;
    }
    const std::size_t begin = offset;
    while (offset < content.size() && !kEndOfUnquotedValue.contains(content[offset]))
        ++offset;
    return offset == begin ? 0 : offset;
}

/// After the attribute, or 0. `offset` lies after the blanks before it.
std::size_t scanAttribute(std::string_view content, std::size_t offset) noexcept
{
    const auto startsName = [](char c) { return isASCIILetter(c) || c == '_' || c == ':'; };
    if (!startsName(at(content, offset)))
        return 0;
    while (startsName(at(content, offset)) || isASCIIDigit(at(content, offset)) || at(content, offset) == '.'
        || at(content, offset) == '-')
        ++offset;
    const std::size_t equals = skipBlanks(content, offset);
    if (at(content, equals) != '=')
        return offset;
    return scanAttributeValue(content, skipBlanks(content, equals + 1));
}

} // namespace

std::size_t scanOpenTag(std::string_view content, std::size_t offset) noexcept
{
    offset = scanTagName(content, offset + 1);
    if (offset == 0)
        return 0;
    for (;;) {
        const std::size_t next = skipBlanks(content, offset);
        if (at(content, next) == '>')
            return next + 1;
        if (at(content, next) == '/')
            return at(content, next + 1) == '>' ? next + 2 : 0;
        if (next == offset)
            return 0;
        offset = scanAttribute(content, next);
        if (offset == 0)
            return 0;
    }
}

std::size_t scanClosingTag(std::string_view content, std::size_t offset) noexcept
{
    if (at(content, offset + 1) != '/')
        return 0;
    const std::size_t name = scanTagName(content, offset + 2);
    if (name == 0)
        return 0;
    const std::size_t end = skipBlanks(content, name);
    return at(content, end) == '>' ? end + 1 : 0;
}

std::size_t scanAutolink(std::string_view content, std::size_t offset) noexcept
{
    constexpr std::size_t kShortestScheme = 2;
    constexpr std::size_t kLongestScheme = 32;
    std::size_t i = offset + 1;
    if (!isASCIILetter(at(content, i)))
        return 0;
    while (
        isASCIIAlphanumeric(at(content, i)) || at(content, i) == '+' || at(content, i) == '.' || at(content, i) == '-')
        ++i;
    const std::size_t length = i - offset - 1;
    if (at(content, i) != ':' || length < kShortestScheme || length > kLongestScheme)
        return 0;
    for (; i < content.size(); ++i) {
        const char c = content[i];
        if (c == '>')
            return i + 1;
        if (c == ' ' || c == '<' || isASCIIControl(c))
            return 0;
    }
    return 0;
}

std::size_t scanEmailAutolink(std::string_view content, std::size_t offset) noexcept
{
    constexpr ByteSet kLocalPart("abcdefghijklmnopqrstuvwxyzABCDEFGHIJKLMNOPQRSTUVWXYZ0123456789.!#$%&'*+/=?^_`{|}~-");
    constexpr std::size_t kLongestLabel = 63;
    std::size_t i = offset + 1;
    while (i < content.size() && kLocalPart.contains(content[i]))
        ++i;
    if (i == offset + 1 || at(content, i) != '@')
        return 0;
    for (;;) {
        const std::size_t label = ++i;
        while (isASCIIAlphanumeric(at(content, i)) || at(content, i) == '-')
            ++i;
        if (i == label || i - label > kLongestLabel || content[label] == '-' || content[i - 1] == '-')
            return 0;
        if (at(content, i) == '>')
            return i + 1;
        if (at(content, i) != '.')
            return 0;
    }
}

std::size_t MarkupScanner::scanUntil(
    std::string_view content, std::size_t from, std::string_view closer, Kind kind) noexcept
{
    if (noCloserAhead_[kind])
        return 0;
    const std::size_t end = content.find(closer, from);
    if (end == std::string_view::npos) {
        noCloserAhead_[kind] = true;
        return 0;
    }
    return end + closer.size();
}

std::size_t MarkupScanner::scan(std::string_view content, std::size_t offset) noexcept
{
    const std::string_view rest = content.substr(offset);
    if (rest.starts_with("<?"))
        return scanUntil(content, offset + 2, "?>", Instruction);
    if (!rest.starts_with("<!"))
        return 0;
    if (rest.starts_with("<!--")) {
        if (rest.starts_with("<!-->"))
            return offset + 5;
        if (rest.starts_with("<!--->"))
            return offset + 6;
        return scanUntil(content, offset + 4, "-->", Comment);
    }
    if (rest.starts_with("<![CDATA["))
        return scanUntil(content, offset + 9, "]]>", CData);
    return isASCIILetter(at(content, offset + 2)) ? scanUntil(content, offset + 2, ">", Declaration) : 0;
}

} // namespace tarn::corvel
